#include "platform/posix/posix_clock.hpp"

namespace kestri {

std::tm PosixClock::Now() {
  return LocalTime(std::time(nullptr));
}

std::tm PosixClock::LocalTime(std::time_t seconds) {
  std::tm result{};
  ::localtime_r(&seconds, &result);
  return result;
}

// 24 bits are what a single holds, so the result never rounds up to 1.
float PosixClock::RandomSingle() {
  return static_cast<float>(engine_() >> 8) * (1.0f / 16777216.0f);
}

}  // namespace kestri
