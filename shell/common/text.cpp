#include "shell/common/text.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "shell/common/letter_case.hpp"
#include "shell/common/text_compare.hpp"
#include "shell/common/unit_search.hpp"

namespace kestri {
namespace {

constexpr std::size_t npos = std::u16string_view::npos;

std::size_t Size(int length) {
  return length > 0 ? static_cast<std::size_t>(length) : 0;
}

int OneBased(std::size_t position) {
  return position == npos ? 0 : static_cast<int>(position) + 1;
}

std::u16string Widen(std::string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

// Decimal digits of a number, the point standing behind the first `whole` of them.
struct Digits {
  std::string digits;
  int whole = 0;
};

// The 15 digits that a double surely holds, so that 1.005 is what it reads like and not a little less.
Digits SignificantDigits(double number) {
  char buffer[40];
  const auto end =
      std::to_chars(buffer, buffer + sizeof buffer, number, std::chars_format::scientific, 14).ptr;
  const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
  const std::size_t exponentMark = text.find('e');
  std::size_t exponentFrom = exponentMark + 1;
  if (text[exponentFrom] == '+') ++exponentFrom;
  int exponent = 0;
  std::from_chars(text.data() + exponentFrom, end, exponent);
  std::string digits(text.substr(0, exponentMark));
  digits.erase(1, 1);  // the point
  return {std::move(digits), exponent + 1};
}

// Cut to the given count of decimals, halves up; the whole part has at least one digit.
void Round(Digits& number, int decimals) {
  if (number.whole < 1) {
    number.digits.insert(0, Size(1 - number.whole), '0');
    number.whole = 1;
  }
  const std::size_t keep = Size(number.whole) + Size(decimals);
  number.digits.resize(std::max(number.digits.size(), keep + 1), '0');
  const bool up = number.digits[keep] >= '5';
  number.digits.resize(keep);
  if (!up) return;
  std::size_t at = keep;
  while (at > 0 && number.digits[at - 1] == '9') number.digits[--at] = '0';
  if (at > 0) {
    ++number.digits[at - 1];
  } else {
    number.digits.insert(0, 1, '1');
    ++number.whole;
  }
}

std::string GroupThousands(std::string digits) {
  for (std::size_t at = digits.size(); at > 3;) digits.insert(at -= 3, 1, ',');
  return digits;
}

bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

void AppendUtf8(std::string& out, char32_t code) {
  const auto put = [&out](char32_t byte) { out += static_cast<char>(byte); };
  if (code < 0x80) return put(code);
  if (code < 0x800) {
    put(0xC0 | code >> 6);
  } else {
    if (code < 0x10000) {
      put(0xE0 | code >> 12);
    } else {
      put(0xF0 | code >> 18);
      put(0x80 | (code >> 12 & 0x3F));
    }
    put(0x80 | (code >> 6 & 0x3F));
  }
  put(0x80 | (code & 0x3F));
}

bool IsHighSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}
bool IsLowSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

constexpr char16_t kRawByteBase = 0xDC00;  // U+DC80 is byte 80
bool IsRawByte(char16_t unit) {
  return unit >= kRawByteBase + 0x80 && unit <= kRawByteBase + 0xFF;
}

struct Utf8Character {
  char32_t code = 0;
  std::size_t length = 0;  // 0: no character begins here
};

Utf8Character ReadUtf8(std::string_view bytes) {
  const auto byte = [bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  const unsigned char first = byte(0);
  if (first < 0x80) return {first, 1};
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || bytes.size() < length) return {};
  char32_t code = first & (0x7FU >> length);
  for (std::size_t at = 1; at < length; ++at) {
    if ((byte(at) & 0xC0) != 0x80) return {};
    code = code << 6 | (byte(at) & 0x3FU);
  }
  const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (overlong || surrogate || code > 0x10FFFF) return {};
  return {code, length};
}

}  // namespace

int InStr(int start, std::u16string_view text, std::u16string_view find, Compare compare) {
  if (start < 1 || Size(start) > text.size()) return 0;
  if (find.empty()) return start;
  const std::size_t from = Size(start) - 1;
  return OneBased(compare == Compare::Binary ? unit_search::Find(text, find, from)
                                             : text_compare::Find(text, find, from).position);
}

int InStrRev(std::u16string_view text, std::u16string_view find, int start, Compare compare) {
  if (start == -1) start = Len(text);
  if (start < 1 || Size(start) > text.size()) return 0;
  if (find.empty()) return start;
  return OneBased(compare == Compare::Binary ? unit_search::FindLast(text, find, Size(start))
                                             : text_compare::FindLast(text, find, Size(start)).position);
}

std::u16string_view Mid(std::u16string_view text, int start, int length) {
  if (start < 1 || length < 0 || Size(start) > text.size()) return {};
  return text.substr(Size(start) - 1, Size(length));
}

std::u16string_view Mid(std::u16string_view text, int start) {
  if (start < 1 || Size(start) > text.size()) return {};
  return text.substr(Size(start) - 1);
}

std::u16string_view Left(std::u16string_view text, int length) {
  return text.substr(0, Size(length));
}

std::u16string_view Right(std::u16string_view text, int length) {
  return text.substr(text.size() - std::min(text.size(), Size(length)));
}

std::u16string_view Trim(std::u16string_view text) {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

std::u16string UCase(std::u16string_view text) {
  std::u16string result(text);
  for (char16_t& unit : result) unit = letter_case::ToUpper(unit);
  return result;
}

std::u16string LCase(std::u16string_view text) {
  std::u16string result(text);
  for (char16_t& unit : result) unit = letter_case::ToLower(unit);
  return result;
}

int StrComp(std::u16string_view left, std::u16string_view right, Compare compare) {
  if (compare == Compare::Text) return text_compare::Compare(left, right);
  const int order = left.compare(right);
  return (order > 0) - (order < 0);
}

std::u16string Replace(std::u16string_view text, std::u16string_view find, std::u16string_view replacement,
                       int count, Compare compare) {
  std::u16string result;
  std::size_t copiedTo = 0;
  for (int done = 0; !find.empty() && (count <= 0 || done < count); ++done) {
    const text_compare::Hit hit =
        compare == Compare::Binary ? text_compare::Hit{unit_search::Find(text, find, copiedTo), find.size()}
                                   : text_compare::Find(text, find, copiedTo);
    if (hit.position == npos || hit.length == 0) break;
    result.append(text, copiedTo, hit.position - copiedTo).append(replacement);
    copiedTo = hit.position + hit.length;
  }
  return result.append(text, copiedTo);
}

std::u16string String(int count, char16_t character) {
  return std::u16string(Size(count), character);
}

std::u16string FormatZeros(std::int64_t number, int digits) {
  std::u16string text = ToText(number);
  const std::size_t sign = number < 0 ? 1 : 0;
  const std::size_t have = text.size() - sign;
  if (have < Size(digits)) text.insert(sign, Size(digits) - have, u'0');
  return text;
}

std::u16string FormatThousands(double number, int decimals) {
  if (!std::isfinite(number)) return {};
  Digits value = SignificantDigits(std::abs(number));
  Round(value, decimals);
  const bool isZero = value.digits.find_first_not_of('0') == std::string::npos;
  std::string text = GroupThousands(value.digits.substr(0, Size(value.whole)));
  if (decimals > 0) text.append(".").append(value.digits, Size(value.whole));
  if (number < 0 && !isZero) text.insert(0, 1, '-');
  return Widen(text);
}

std::u16string ToText(std::int64_t number) {
  return Widen(std::to_string(number));
}

std::optional<std::int32_t> ToLong(std::u16string_view text) {
  text = Trim(text);
  const bool negative = StartsWith(text, u"-");
  if (negative || StartsWith(text, u"+")) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  std::int64_t value = 0;
  for (const char16_t unit : text) {
    if (!IsDigit(unit)) return std::nullopt;
    value = value * 10 + (unit - u'0');
    if (value > std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1) return std::nullopt;
  }
  if (negative) value = -value;
  if (value > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
  return static_cast<std::int32_t>(value);
}

std::optional<std::int16_t> ToInteger(std::u16string_view text) {
  const std::optional<std::int32_t> value = ToLong(text);
  using Limits = std::numeric_limits<std::int16_t>;
  if (!value || *value < Limits::min() || *value > Limits::max()) return std::nullopt;
  return static_cast<std::int16_t>(*value);
}

bool StartsWith(std::u16string_view text, std::u16string_view prefix) {
  return text.starts_with(prefix);
}

bool EndsWith(std::u16string_view text, std::u16string_view suffix) {
  return text.ends_with(suffix);
}

std::string ToUtf8(std::u16string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char16_t unit = text[at];
    if (IsHighSurrogate(unit) && at + 1 < text.size() && IsLowSurrogate(text[at + 1])) {
      const char32_t high = unit & 0x3FFU;
      AppendUtf8(result, 0x10000 + (high << 10 | (text[++at] & 0x3FFU)));
    } else if (IsRawByte(unit)) {
      result += static_cast<char>(unit - kRawByteBase);
    } else {
      AppendUtf8(result, (unit & 0xF800) == 0xD800 ? char32_t{0xFFFD} : char32_t{unit});
    }
  }
  return result;
}

std::u16string FromUtf8(std::string_view text) {
  std::u16string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const Utf8Character character = ReadUtf8(text);
    if (character.length == 0) {
      result += static_cast<char16_t>(kRawByteBase + static_cast<unsigned char>(text[0]));
    } else if (character.code >= 0x10000) {
      result += static_cast<char16_t>(0xD7C0 + (character.code >> 10));
      result += static_cast<char16_t>(0xDC00 | (character.code & 0x3FF));
    } else {
      result += static_cast<char16_t>(character.code);
    }
    text.remove_prefix(character.length == 0 ? 1 : character.length);
  }
  return result;
}

}  // namespace kestri
