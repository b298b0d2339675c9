// One-based string rules as the system's texts state them. Positions count UTF-16 units from 1; 0 is "not
// found".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kestri {

enum class Compare : std::int16_t { Binary = 0, Text = 1 };

inline constexpr std::u16string_view kCrLf = u"\r\n";
inline constexpr char16_t kIdeographicSpace = u'\u3000';

// First occurrence at or after start (one-based, at least 1). An empty find text is found at start when start
// lies in the text. A start behind the text gives 0.
int InStr(int start, std::u16string_view text, std::u16string_view find, Compare compare = Compare::Binary);
inline int InStr(std::u16string_view text, std::u16string_view find, Compare compare = Compare::Binary) {
  return InStr(1, text, find, compare);
}
// Last occurrence that ends at or before start (one-based); start -1 means the text's end. Start 0 or below
// -1 is the caller's error and gives 0; a start behind the text gives 0.
int InStrRev(std::u16string_view text, std::u16string_view find, int start = -1,
             Compare compare = Compare::Binary);

// Mid clamps at the text's end; a start below 1 or a negative length is the caller's error and gives "".
std::u16string_view Mid(std::u16string_view text, int start, int length);
std::u16string_view Mid(std::u16string_view text, int start);
std::u16string_view Left(std::u16string_view text, int length);
std::u16string_view Right(std::u16string_view text, int length);
inline int Len(std::u16string_view text) {
  return static_cast<int>(text.size());
}

// Half-width blanks only, as the system's Trim does.
std::u16string_view Trim(std::u16string_view text);

std::u16string UCase(std::u16string_view text);  // every letter of the code page
std::u16string LCase(std::u16string_view text);

// -1, 0 or 1. Text compare ignores case, width and kana kind, see text_compare.hpp.
int StrComp(std::u16string_view left, std::u16string_view right, Compare compare = Compare::Binary);

// One pass; count above 0 limits the replacements. An empty find text changes nothing. Text compare leaves
// the length of each hit as it is in the text.
std::u16string Replace(std::u16string_view text, std::u16string_view find, std::u16string_view replacement,
                       int count = -1, Compare compare = Compare::Binary);

std::u16string String(int count, char16_t character);

// Format(7, "000") is "007"; a longer number keeps all its digits; negative numbers get "-" in front.
std::u16string FormatZeros(std::int64_t number, int digits);
// Format(1234567.5, "###,###,##0.00"): thousands separated, two decimals, halves rounded away from zero as
// the number reads in decimal. Nothing for infinity and the like.
std::u16string FormatThousands(double number, int decimals);
std::u16string ToText(std::int64_t number);

// Whole decimal number, blanks around it allowed; nothing for anything else or when it overflows 32 bits.
std::optional<std::int32_t> ToLong(std::u16string_view text);
// The same in the range of 16 bits.
std::optional<std::int16_t> ToInteger(std::u16string_view text);

bool StartsWith(std::u16string_view text, std::u16string_view prefix);
bool EndsWith(std::u16string_view text, std::u16string_view suffix);

// UTF-8 for ports, logs and tests. Bytes that are no UTF-8 travel as U+DC80 + (byte - 0x80) and come back as
// such; any other lone surrogate becomes U+FFFD.
std::string ToUtf8(std::u16string_view text);
std::u16string FromUtf8(std::string_view text);

}  // namespace kestri
