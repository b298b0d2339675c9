#include "shell/common/text_number.hpp"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace kestri {
namespace {

// The number in ASCII; nothing when a character belongs to no number.
std::optional<std::string> AsciiNumber(std::u16string_view text) {
  constexpr std::u16string_view kBlanks = u" \t\u3000";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::u16string_view::npos) return std::nullopt;
  std::string number;
  for (char16_t unit : text.substr(first, text.find_last_not_of(kBlanks) - first + 1)) {
    if (unit >= u'！' && unit <= u'～') unit = static_cast<char16_t>(unit - u'！' + u'!');
    if (unit == u',' && !number.empty()) continue;
    const bool belongs = (unit >= u'0' && unit <= u'9') || unit == u'.' || unit == u'+' || unit == u'-';
    if (!belongs) return std::nullopt;
    number += static_cast<char>(unit);
  }
  if (number.starts_with('+') && !number.starts_with("+-")) number.erase(0, 1);
  return number;
}

}  // namespace

std::optional<double> ToNumber(std::u16string_view text) {
  const auto digits = AsciiNumber(text);
  if (!digits) return std::nullopt;
  double number = 0;
  const char* const last = digits->data() + digits->size();
  const auto [end, error] = std::from_chars(digits->data(), last, number, std::chars_format::fixed);
  if (end != last || error == std::errc::invalid_argument) return std::nullopt;
  return error == std::errc() ? number : std::numeric_limits<double>::infinity();
}

std::optional<std::int32_t> RoundedToLong(double number) {
  const double rounded = std::nearbyint(number);
  const bool fits = rounded >= std::numeric_limits<std::int32_t>::min() &&
                    rounded <= std::numeric_limits<std::int32_t>::max();
  return fits ? std::optional(static_cast<std::int32_t>(rounded)) : std::nullopt;
}

}  // namespace kestri
