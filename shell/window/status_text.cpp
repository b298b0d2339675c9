#include "shell/window/status_text.hpp"

#include "shell/common/text.hpp"

namespace kestri {
namespace {

std::u16string TimeOfDay(const std::tm& now) {
  const int hour = now.tm_hour % 12 == 0 ? 12 : now.tm_hour % 12;
  return FormatZeros(hour, 2) + u":" + FormatZeros(now.tm_min, 2) + u":" + FormatZeros(now.tm_sec, 2);
}

std::u16string HalfOfDay(const std::tm& now) {
  return now.tm_hour < 12 ? u"AM" : u"PM";
}

}  // namespace

std::u16string StampedMessage(std::u16string_view text, const std::tm& now) {
  if (text.empty()) return {};
  return std::u16string(text) + u" [ " + FormatZeros(now.tm_year + 1900, 4) + u"/" +
         FormatZeros(now.tm_mon + 1, 2) + u"/" + FormatZeros(now.tm_mday, 2) + u" " + TimeOfDay(now) + u"(" +
         HalfOfDay(now) + u")" + u" ]";
}

std::u16string ClockText(const std::tm& now) {
  return TimeOfDay(now) + u" " + HalfOfDay(now);
}

std::u16string CaretPlaceText(std::int64_t row, std::int64_t column) {
  return ToText(row) + u"行 " + ToText(column) + u"列";
}

}  // namespace kestri
