// Folding of single characters for text compare: to small letters, ASCII width and hiragana.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "shell/common/letter_case.hpp"

namespace kestri::text_fold {

// Full-width relatives of U+FF61 to U+FF9F, kana as hiragana.
inline constexpr std::u16string_view kFromHalfWidthKana =
    u"。「」、・をぁぃぅぇぉゃゅょっーあいうえおかきくけこさしすせそたちつてとなにぬねのはひふへほまみむめも"
    u"やゆよらりるれろわん゛゜";
inline constexpr char16_t kVoicedMark = 0xFF9E;
inline constexpr char16_t kSemiVoicedMark = 0xFF9F;
inline constexpr char16_t kFirstVoicing = u'ｦ';
inline constexpr char16_t kLastVoicing = u'ﾜ';
inline constexpr char16_t kSoftHyphen = 0xAD;

inline constexpr char16_t ToHalfWidth(char16_t unit) {
  if (unit == 0x3000) return u' ';
  if (unit == 0xFF3C)
    return unit;  // the full-width backslash is a sign of its own; the yen sign is the backslash
  if (unit == 0xFFE5 || unit == 0xA5) return u'\\';
  if (letter_case::InRange(unit, 0xFF01, 0xFF5E)) return unit - 0xFEE0;
  if (letter_case::InRange(unit, 0xFF61, 0xFF9F)) return kFromHalfWidthKana[unit - 0xFF61];
  constexpr std::u16string_view kSigns = u"\u00A2\u00A3\u00AC\u00AF\u00A6";
  return letter_case::InRange(unit, 0xFFE0, 0xFFE4) ? kSigns[unit - 0xFFE0] : unit;
}

inline constexpr char16_t ToHiragana(char16_t unit) {
  const bool hasHiragana = letter_case::InRange(unit, 0x30A1, 0x30F6) || unit == 0x30FD || unit == 0x30FE;
  return hasHiragana ? unit - 0x60 : unit;
}

inline constexpr char16_t FoldCase(char16_t unit) {
  const char16_t folded = letter_case::ToLower(unit);
  return folded == u'ς' ? u'σ' : folded;
}

inline constexpr char16_t FoldByRule(char16_t unit) {
  return FoldCase(ToHiragana(ToHalfWidth(unit)));
}

// Pages of 256 units in which some unit folds to another; all others fold to themselves.
inline constexpr std::array<unsigned char, 8> kFoldingPages = {0x00, 0x01, 0x03, 0x04,
                                                               0x21, 0x24, 0x30, 0xFF};

struct FoldTable {
  std::array<unsigned char, 256> pageOf{};  // page 0 changes nothing
  std::array<std::array<char16_t, 256>, kFoldingPages.size() + 1> differences{};

  constexpr FoldTable() {
    for (std::size_t page = 0; page < kFoldingPages.size(); ++page) {
      pageOf[kFoldingPages[page]] = static_cast<unsigned char>(page + 1);
      for (unsigned low = 0; low < 256; ++low) {
        const auto unit = static_cast<char16_t>(kFoldingPages[page] << 8 | low);
        differences[page + 1][low] = static_cast<char16_t>(FoldByRule(unit) - unit);
      }
    }
  }
};
inline constexpr FoldTable kFoldTable;

inline char16_t Fold(char16_t unit) {
  return static_cast<char16_t>(unit + kFoldTable.differences[kFoldTable.pageOf[unit >> 8]][unit & 0xFF]);
}

// The folded full-width letter of a half-width kana and the voiced mark behind it, or 0 when they stay two.
inline constexpr char16_t FoldVoiced(char16_t kana, char16_t mark) {
  const bool hRow = letter_case::InRange(kana, u'ﾊ', u'ﾎ');
  if (mark == kSemiVoicedMark) return hRow ? FoldByRule(kana) + 2 : 0;
  if (mark != kVoicedMark) return 0;
  if (hRow || letter_case::InRange(kana, u'ｶ', u'ﾄ')) return FoldByRule(kana) + 1;
  return kana == u'ｳ' ? u'ゔ' : kana == u'ﾜ' ? u'ヷ' : kana == u'ｦ' ? u'ヺ' : u'\0';
}

// Letters that fold to two, and the soft hyphen, which folds to none.
inline constexpr bool HasOtherLength(char16_t unit) {
  constexpr std::u16string_view kUnits = u"\u00ADßÆæŒœ";
  return unit < 0x180 && kUnits.find(unit) != kUnits.npos;
}
inline constexpr std::u16string_view FoldOtherLength(char16_t unit) {
  if (unit == kSoftHyphen) return u"";
  if (unit == u'ß') return u"ss";
  return unit == u'Æ' || unit == u'æ' ? u"ae" : u"oe";
}

struct FoldSource {
  char16_t folded = 0;
  char16_t unit = 0;
};

// Which units of a text a hit may begin with when the folded find text begins with a given unit, beside that
// unit itself; in the order of the folded units.
struct FoldSources {
  static constexpr std::size_t kCapacity = 1024;
  std::array<FoldSource, kCapacity> sources{};
  std::size_t count = 0;

  constexpr FoldSources() {
    for (const unsigned char page : kFoldingPages) {
      for (unsigned low = 0; low < 256; ++low) AddAll(static_cast<char16_t>(page << 8 | low));
    }
    std::sort(sources.begin(), sources.begin() + count, ByFolded);
  }

  std::span<const FoldSource> Of(char16_t folded) const {
    const auto [first, last] =
        std::equal_range(sources.begin(), sources.begin() + count, FoldSource{folded, 0}, ByFolded);
    return {first, last};
  }

 private:
  static constexpr bool ByFolded(FoldSource left, FoldSource right) { return left.folded < right.folded; }

  constexpr void Add(char16_t folded, char16_t unit) { sources[count++] = {folded, unit}; }

  constexpr void AddAll(char16_t unit) {
    if (HasOtherLength(unit)) {
      if (!FoldOtherLength(unit).empty()) Add(FoldOtherLength(unit)[0], unit);
      return;
    }
    if (FoldByRule(unit) != unit) Add(FoldByRule(unit), unit);
    if (!letter_case::InRange(unit, kFirstVoicing, kLastVoicing)) return;
    for (const char16_t mark : {kVoicedMark, kSemiVoicedMark}) {
      if (FoldVoiced(unit, mark) != 0) Add(FoldVoiced(unit, mark), unit);
    }
  }
};
inline constexpr FoldSources kFoldSources;

// One character of a text, folded.
struct Character {
  std::array<char16_t, 2> units{};
  std::size_t count = 1;  // units it folds to
  std::size_t taken = 1;  // units it has in the text
};

inline Character FoldOtherLengthAt(char16_t unit) {
  const std::u16string_view units = FoldOtherLength(unit);
  if (units.empty()) return {{}, 0, 1};
  return {{units[0], units[1]}, 2, 1};
}

inline Character FoldAt(const char16_t* at, const char16_t* end) {
  const char16_t unit = *at;
  if (letter_case::InRange(unit, kFirstVoicing, kLastVoicing) && end - at > 1) {
    const char16_t voiced = FoldVoiced(unit, at[1]);
    if (voiced != 0) return {{voiced}, 1, 2};
  }
  if (HasOtherLength(unit)) return FoldOtherLengthAt(unit);
  return {{Fold(unit)}, 1, 1};
}

// Folded in case alone; the end of the text does not matter.
inline Character FoldCaseAt(const char16_t* at, const char16_t*) {
  if (HasOtherLength(*at)) return FoldOtherLengthAt(*at);
  return {{FoldCase(*at)}, 1, 1};
}

}  // namespace kestri::text_fold
