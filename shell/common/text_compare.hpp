// Text compare ("folding"): letter case, full or half width, and hiragana or katakana do not count; a
// half-width kana with its voiced mark equals the one full-width letter. Accents count: "é" is not "e". Of
// the Latin letters that are two in one, "ß" is "ss", "æ" is "ae" and "œ" is "oe"; a soft hyphen does not
// count at all.
//
// A hit covers whole characters of the text: "か" is not found in "ｶﾞ", nor "s" in "ß".
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kestri::text_compare {

// -1, 0 or 1; the order of unequal texts is that of their folded UTF-16 units.
int Compare(std::u16string_view left, std::u16string_view right);

// Length in the text of a hit of find at the start of text, or npos. The length may differ from find's.
std::size_t MatchPrefix(std::u16string_view text, std::u16string_view find);
inline constexpr std::size_t npos = static_cast<std::size_t>(-1);

struct Hit {
  std::size_t position = npos;
  std::size_t length = 0;  // in the text

  friend bool operator==(const Hit&, const Hit&) = default;
};
// First hit at or after from (zero-based). An empty find text is hit at from when that is not behind the
// text.
Hit Find(std::u16string_view text, std::u16string_view find, std::size_t from);
// Last hit that ends at or before end (zero-based, exclusive). An empty find text is hit at end.
Hit FindLast(std::u16string_view text, std::u16string_view find, std::size_t end);

// A find text folded once, for searches in many texts.
class Needle {
 public:
  explicit Needle(std::u16string_view find);

  std::size_t MatchPrefix(std::u16string_view text) const;
  Hit Find(std::u16string_view text, std::size_t from) const;
  Hit FindLast(std::u16string_view text, std::size_t end) const;

  static constexpr std::size_t kMaxFirstUnits = 8;

 private:
  std::size_t HitLengthAt(std::u16string_view text, std::size_t position) const;
  unsigned Candidates(const char16_t* at) const;

  std::u16string folded_;
  std::array<char16_t, kMaxFirstUnits> firstUnits_{};  // the units of a text that a hit may begin with
  std::size_t firstUnitCount_ = 0;
};

// For lists: case is ignored, nothing else; "Ａ" equals "ａ" but not "a". A whole item takes "ß" for "ss", a
// prefix is compared letter by letter.
bool EqualIgnoringCase(std::u16string_view left, std::u16string_view right);
bool StartsWithIgnoringCase(std::u16string_view text, std::u16string_view prefix);

}  // namespace kestri::text_compare
