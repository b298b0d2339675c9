#pragma once

#include <random>

#include "platform/clock.hpp"

namespace kestri {

class PosixClock : public Clock {
 public:
  PosixClock() : engine_(std::random_device{}()) {}

  std::tm Now() override;
  std::tm LocalTime(std::time_t seconds) override;
  float RandomSingle() override;

 private:
  std::mt19937 engine_;
};

}  // namespace kestri
