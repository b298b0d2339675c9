#include "shell/window/status_text.hpp"

#include <gtest/gtest.h>

namespace kestri {
namespace {

std::tm At(int hour, int minute, int second) {
  std::tm time{};
  time.tm_year = 103;
  time.tm_mon = 1;
  time.tm_mday = 1;
  time.tm_hour = hour;
  time.tm_min = minute;
  time.tm_sec = second;
  return time;
}

TEST(StampedMessage, CarriesDateTimeAndHalfOfTheDay) {
  EXPECT_EQ(StampedMessage(u"保存完了", At(4, 5, 6)), u"保存完了 [ 2003/02/01 04:05:06(AM) ]");
  EXPECT_EQ(StampedMessage(u"保存完了", At(16, 5, 6)), u"保存完了 [ 2003/02/01 04:05:06(PM) ]");
}

TEST(StampedMessage, AnEmptyTextClearsThePane) {
  EXPECT_EQ(StampedMessage(u"", At(4, 5, 6)), u"");
}

TEST(ClockText, NoonAndMidnightAreTwelve) {
  EXPECT_EQ(ClockText(At(0, 0, 7)), u"12:00:07 AM");
  EXPECT_EQ(ClockText(At(12, 30, 0)), u"12:30:00 PM");
  EXPECT_EQ(ClockText(At(23, 59, 59)), u"11:59:59 PM");
}

}  // namespace
}  // namespace kestri
