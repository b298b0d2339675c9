// Port: the windows of the other processes of this program, and this one as they see it. A window's handle is
// the id of its process.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace kestri {

class Instances {
 public:
  using CaptionProvider = std::function<std::u16string()>;
  using FrontRequest = std::function<void()>;

  virtual ~Instances() = default;

  // From here on the others find this process living. Cheap, so that it can stand in front of the choice of a
  // window number. False: they never will.
  virtual bool Appear() = 0;
  // From here on this process answers. For the time after the first painting.
  virtual void Announce(CaptionProvider caption, FrontRequest bringToFront) = 0;
  virtual void Withdraw() = 0;

  // A running process with this handle has appeared. Never waits; a process that hangs is living.
  virtual bool Living(std::int64_t handle) = 0;
  // These wait at most 200 ms: a process that hangs gives no caption and does not come to the front.
  virtual std::optional<std::u16string> CaptionOf(std::int64_t handle) = 0;
  virtual bool BringToFront(std::int64_t handle) = 0;
};

}  // namespace kestri
