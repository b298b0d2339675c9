// Colours, and marks around a text.
#include "shell/common/class_common.hpp"

namespace kestri {
namespace {

bool IsColorPart(int value) {
  return value >= 0 && value <= 255;
}

std::optional<int> HexDigit(char16_t digit) {
  if (digit >= u'0' && digit <= u'9') return digit - u'0';
  if (digit >= u'A' && digit <= u'F') return digit - u'A' + 10;
  if (digit >= u'a' && digit <= u'f') return digit - u'a' + 10;
  return std::nullopt;
}

std::optional<int> HexPair(std::u16string_view pair) {
  const auto high = HexDigit(pair[0]);
  const auto low = HexDigit(pair[1]);
  if (!high || !low) return std::nullopt;
  return *high * 16 + *low;
}

bool StartsWithMark(std::u16string_view text, std::u16string_view mark, Compare compare) {
  return text.size() >= mark.size() && StrComp(text.substr(0, mark.size()), mark, compare) == 0;
}

bool EndsWithMark(std::u16string_view text, std::u16string_view mark, Compare compare) {
  return text.size() >= mark.size() && StrComp(text.substr(text.size() - mark.size()), mark, compare) == 0;
}

std::u16string WithMarks(std::u16string_view text, std::u16string_view left, std::u16string_view right,
                         Compare compare) {
  const bool hasLeft = StartsWithMark(text, left, compare);
  const bool isLeftAlone = hasLeft && text.size() == left.size();
  const bool hasRight = EndsWithMark(text, right, compare) && !isLeftAlone;
  std::u16string result;
  if (!hasLeft) result += left;
  result += text;
  if (!hasRight) result += right;
  return result;
}

std::u16string_view WithoutMarks(std::u16string_view text, std::u16string_view left,
                                 std::u16string_view right, Compare compare) {
  const bool hasBoth = text.size() >= left.size() + right.size() && StartsWithMark(text, left, compare) &&
                       EndsWithMark(text, right, compare);
  return hasBoth ? text.substr(left.size(), text.size() - left.size() - right.size()) : text;
}

}  // namespace

std::u16string ClassCommon::DecimalToHtmlColor(int red, int green, int blue) {
  static constexpr char16_t kHex[] = u"0123456789ABCDEF";
  if (!IsColorPart(red) || !IsColorPart(green) || !IsColorPart(blue)) return u"";
  std::u16string text = u"#";
  for (const int part : {red, green, blue}) text += {kHex[part / 16], kHex[part % 16]};
  return text;
}

HtmlColor ClassCommon::HtmlColorToDecimal(std::u16string_view text) {
  if (text.size() != 7 || text.front() != u'#') return {};
  const auto red = HexPair(text.substr(1, 2));
  const auto green = HexPair(text.substr(3, 2));
  const auto blue = HexPair(text.substr(5, 2));
  if (!red || !green || !blue) return {};
  return {*red, *green, *blue, *red + *green * 256 + *blue * 65536};
}

std::u16string ClassCommon::StringSurround(std::u16string_view text, Surround mode, std::u16string_view left,
                                           std::u16string_view right, Compare compare, bool trim) {
  if (trim) text = Trim(text);
  if (mode == Surround::Add) return WithMarks(text, left, right, compare);
  return std::u16string(WithoutMarks(text, left, right, compare));
}

}  // namespace kestri
