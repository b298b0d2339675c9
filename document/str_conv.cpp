#include "document/str_conv.hpp"

#include <array>
#include <cstddef>

#include "shell/common/letter_case.hpp"
#include "shell/common/text_fold.hpp"

namespace kestri {
namespace {

using letter_case::InRange;
using text_fold::kFromHalfWidthKana;
using text_fold::kSemiVoicedMark;
using text_fold::kVoicedMark;

constexpr char16_t kFirstHalfWidth = 0xFF61;
constexpr char16_t kLastHalfWidth = 0xFF9F;
constexpr char16_t kWidthDistance = 0xFEE0;  // between ASCII and its full-width forms
constexpr char16_t kKanaDistance = 0x60;     // between hiragana and katakana
constexpr std::u16string_view kNarrowSigns = u"\u00A2\u00A3\u00AC\u00AF\u00A6\u00A5";
constexpr std::u16string_view kWideSigns = u"\uFFE0\uFFE1\uFFE2\uFFE3\uFFE4\uFFE5";

constexpr char16_t ToKatakana(char16_t unit) {
  const bool hasKatakana = InRange(unit, 0x3041, 0x3096) || InRange(unit, 0x309D, 0x309E);
  return hasKatakana ? unit + kKanaDistance : unit;
}

// The unit that stands in the second list where this one stands in the first, or this one.
constexpr char16_t Counterpart(char16_t unit, std::u16string_view from, std::u16string_view to) {
  const std::size_t at = from.find(unit);
  return at == from.npos ? unit : to[at];
}

// The backslash keeps its width both ways: its full-width form is a sign of its own.
constexpr char16_t ToWide(char16_t unit) {
  if (unit == u' ') return 0x3000;
  if (InRange(unit, 0x21, 0x7E)) return unit == u'\\' ? unit : unit + kWidthDistance;
  if (InRange(unit, kFirstHalfWidth, kLastHalfWidth))
    return ToKatakana(kFromHalfWidthKana[unit - kFirstHalfWidth]);
  return Counterpart(unit, kNarrowSigns, kWideSigns);
}

constexpr char16_t ToNarrowKana(char16_t unit) {
  const std::size_t at = kFromHalfWidthKana.find(text_fold::ToHiragana(unit));
  return at == kFromHalfWidthKana.npos ? unit : static_cast<char16_t>(kFirstHalfWidth + at);
}

constexpr char16_t ToNarrow(char16_t unit) {
  if (InRange(unit, 0x3041, 0x3096)) return unit;
  if (InRange(unit, 0x3000, 0x30FF))
    return ToNarrowKana(Counterpart(unit, u"\u3000\u3099\u309A", u"\u0020\u309B\u309C"));
  if (InRange(unit, 0xFF01, 0xFF5E)) return unit == 0xFF3C ? unit : unit - kWidthDistance;
  if (InRange(unit, 0x2018, 0x2019)) return u'\'';
  if (InRange(unit, 0x201C, 0x201D)) return u'"';
  return Counterpart(unit, kWideSigns, kNarrowSigns);
}

// One unit to one unit, by pages of 256; units of all other pages stay as they are.
constexpr std::array<unsigned char, 9> kPages = {0x00, 0x01, 0x03, 0x04, 0x20, 0x21, 0x24, 0x30, 0xFF};

struct UnitTable {
  std::array<unsigned char, 256> pageOf{};  // page 0 changes nothing
  std::array<std::array<char16_t, 256>, kPages.size() + 1> differences{};

  constexpr explicit UnitTable(char16_t (*rule)(char16_t)) {
    for (std::size_t page = 0; page < kPages.size(); ++page) {
      pageOf[kPages[page]] = static_cast<unsigned char>(page + 1);
      for (unsigned low = 0; low < 256; ++low) {
        const auto unit = static_cast<char16_t>(kPages[page] << 8 | low);
        differences[page + 1][low] = static_cast<char16_t>(rule(unit) - unit);
      }
    }
  }

  char16_t operator()(char16_t unit) const {
    return static_cast<char16_t>(unit + differences[pageOf[unit >> 8]][unit & 0xFF]);
  }
};

constexpr UnitTable kUpperCase(letter_case::ToUpper);
constexpr UnitTable kLowerCase(letter_case::ToLower);
constexpr UnitTable kWide(ToWide);
constexpr UnitTable kNarrow(ToNarrow);
constexpr UnitTable kKatakana(ToKatakana);
constexpr UnitTable kHiragana(text_fold::ToHiragana);

// A voiced katakana as the two units it has in narrow form.
struct VoicedPair {
  char16_t kana = 0;
  char16_t mark = 0;  // 0: the letter is not voiced
};

constexpr char16_t kFirstVoiced = u'ガ';
constexpr char16_t kLastVoiced = u'ヺ';

struct VoicedTable {
  std::array<VoicedPair, kLastVoiced - kFirstVoiced + 1> pairs{};

  constexpr VoicedTable() {
    for (char16_t kana = text_fold::kFirstVoicing; kana <= text_fold::kLastVoicing; ++kana) {
      for (const char16_t mark : {kVoicedMark, kSemiVoicedMark}) {
        const char16_t voiced = ToKatakana(text_fold::FoldVoiced(kana, mark));
        if (voiced != 0) pairs[voiced - kFirstVoiced] = {kana, mark};
      }
    }
    // These two have no half-width letter, only the mark has.
    pairs[u'ヸ' - kFirstVoiced] = {u'ヰ', kVoicedMark};
    pairs[u'ヹ' - kFirstVoiced] = {u'ヱ', kVoicedMark};
  }

  VoicedPair Of(char16_t unit) const {
    return InRange(unit, kFirstVoiced, kLastVoiced) ? pairs[unit - kFirstVoiced] : VoicedPair{};
  }
};
constexpr VoicedTable kVoiced;

std::u16string ConvertUnits(std::u16string_view text, const UnitTable& table) {
  std::u16string result(text);
  for (char16_t& unit : result) unit = table(unit);
  return result;
}

std::u16string Widen(std::u16string_view text) {
  std::u16string result(text);
  auto out = result.begin();
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool mayBeVoiced =
        InRange(text[at], text_fold::kFirstVoicing, text_fold::kLastVoicing) && at + 1 < text.size();
    const char16_t voiced = mayBeVoiced ? text_fold::FoldVoiced(text[at], text[at + 1]) : u'\0';
    *out++ = voiced == 0 ? kWide(text[at]) : ToKatakana(voiced);
    if (voiced != 0) ++at;
  }
  result.erase(out, result.end());
  return result;
}

std::u16string Narrowed(std::u16string_view text) {
  std::u16string result;
  result.reserve(text.size() + text.size() / 8);
  for (const char16_t unit : text) {
    const VoicedPair pair = kVoiced.Of(unit);
    result += pair.mark == 0 ? kNarrow(unit) : pair.kana;
    if (pair.mark != 0) result += pair.mark;
  }
  return result;
}

}  // namespace

std::u16string StrConv(std::u16string_view text, Conversion conversion) {
  switch (conversion) {
    case Conversion::UpperCase:
      return ConvertUnits(text, kUpperCase);
    case Conversion::LowerCase:
      return ConvertUnits(text, kLowerCase);
    case Conversion::Wide:
      return Widen(text);
    case Conversion::Narrow:
      return Narrowed(text);
    case Conversion::Katakana:
      return ConvertUnits(text, kKatakana);
    case Conversion::Hiragana:
      return ConvertUnits(text, kHiragana);
  }
  return std::u16string(text);
}

}  // namespace kestri
