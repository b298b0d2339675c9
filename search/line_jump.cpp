#include "search/line_jump.hpp"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "document/settings_values.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kSection = u"LineIndexFrm";
constexpr std::u16string_view kKey = u"No";

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

// Infinite for a number beyond every range; nothing for what is no number.
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

}  // namespace

bool LineJump::JumpTo(std::u16string_view lineNumber) {
  const auto number = ToNumber(lineNumber);
  if (!number) {
    window_.MessageToStatusBar(u"行数は数字で指定してください");
    return false;
  }
  const auto line = RoundedToLong(*number);
  if (!line) {
    boxes_.Ask({.text = u"入力値がｵｰﾊﾞｰﾌﾛｰしました",
                .caption = std::u16string(kLineJumpTitle),
                .icon = MessageIcon::Exclamation});
    return false;
  }
  EditControl& control = text_.Control();
  if (*line < 1 || *line > control.EM_GETLINECOUNT()) {
    window_.MessageToStatusBar(ToText(*line) + u"行目が見つかりません");
    return false;
  }
  const Position offset = control.EM_LINEINDEX(*line - 1);
  text_.EM_SETSEL(offset, offset);
  control.EM_SCROLLCARET();
  window_.MessageToStatusBar(u"");
  text_.WM_PAINT();
  return true;
}

std::u16string LineJump::LastNumber() const {
  return common_.GetINI(common_.ExeName(), kSection, kKey, u"");
}

void LineJump::RememberNumber(std::u16string_view lineNumber) const {
  common_.SetINI(common_.ExeName(), kSection, kKey, WithoutControls(lineNumber));
}

}  // namespace kestri
