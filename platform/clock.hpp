// Port: local time and random numbers.
#pragma once

#include <ctime>

namespace kestri {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::tm Now() = 0;  // local time
  virtual std::tm LocalTime(std::time_t seconds) = 0;
  virtual float RandomSingle() = 0;  // 0 <= x < 1
};

}  // namespace kestri
