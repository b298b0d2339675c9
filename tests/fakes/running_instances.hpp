// Other processes as a test makes them up: captions by handle.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/instances.hpp"

namespace kestri::fakes {

class RunningInstances : public Instances {
 public:
  bool Appear() override { return true; }
  void Announce(CaptionProvider, FrontRequest) override {}
  void Withdraw() override {
    if (withdrawing) withdrawing();
  }
  bool Living(std::int64_t handle) override { return captions.contains(handle); }
  std::optional<std::u16string> CaptionOf(std::int64_t handle) override {
    const auto found = captions.find(handle);
    return found == captions.end() ? std::nullopt : std::optional(found->second);
  }
  bool BringToFront(std::int64_t handle) override {
    broughtToFront.push_back(handle);
    return captions.contains(handle);
  }

  std::function<void()> withdrawing;
  std::map<std::int64_t, std::u16string> captions;
  std::vector<std::int64_t> broughtToFront;
};

}  // namespace kestri::fakes
