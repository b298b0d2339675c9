// The six conversions against the recorded ones.
#include "document/str_conv.hpp"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "shell/common/text.hpp"
#include "tests/fakes/oracle_rows.hpp"

namespace kestri {
namespace {

const std::map<std::string, Conversion> kConversions = {
    {"UPPERCASE", Conversion::UpperCase}, {"LOWERCASE", Conversion::LowerCase},
    {"FULLWIDTH", Conversion::Wide},      {"HALFWIDTH", Conversion::Narrow},
    {"KATAKANA", Conversion::Katakana},   {"HIRAGANA", Conversion::Hiragana},
};

// Recorded with signs that only that recording knows: arrows and the like become half-width forms that the
// code page lacks.
bool HasForeignSign(const std::u16string& recorded) {
  return recorded.find_first_of(u"\uFFE8\uFFE9\uFFEA\uFFEB\uFFEC\uFFED\uFFEE") != recorded.npos;
}

// Recorded as combining marks, which the code page lacks; a mark that joins no letter is the spacing one.
std::u16string WithSpacingMarks(const std::u16string& recorded) {
  return Replace(Replace(recorded, u"\u3099", u"\u309B"), u"\u309A", u"\u309C");
}

TEST(StrConv, AgreesWithTheRecordedConversions) {
  int compared = 0;
  for (const fakes::OracleRow& row : fakes::ReadOracleRows(KESTRI_TEST_DATA "/strconv.tsv")) {
    const auto conversion = kConversions.find(row[1]);
    if (conversion == kConversions.end()) continue;  // two conversions at once, which no command asks for
    const std::u16string input = fakes::HexUnits(row[3]);
    const std::u16string recorded = fakes::HexUnits(row[5]);
    const bool wide = conversion->second == Conversion::Wide;
    const std::u16string expected = HasForeignSign(recorded) ? input
                                    : wide                   ? WithSpacingMarks(recorded)
                                                             : recorded;
    EXPECT_EQ(ToUtf8(StrConv(input, conversion->second)), ToUtf8(expected)) << row[1] << " of " << row[3];
    ++compared;
  }
  EXPECT_GT(compared, 1000);
}

TEST(StrConv, AnEmptyTextStaysEmpty) {
  for (const auto& [name, conversion] : kConversions) EXPECT_EQ(StrConv(u"", conversion), u"") << name;
}

struct Row {
  Conversion conversion;
  std::u16string text;
  std::u16string converted;
};

void ExpectAll(std::initializer_list<Row> rows) {
  for (const Row& row : rows)
    EXPECT_EQ(ToUtf8(StrConv(row.text, row.conversion)), ToUtf8(row.converted)) << ToUtf8(row.text);
}

TEST(StrConv, WideJoinsAKanaAndItsVoicedMark) {
  ExpectAll({{Conversion::Wide, u"ｶﾞｷﾞｸﾞﾄﾞﾊﾞﾎﾞ", u"ガギグドバボ"},
             {Conversion::Wide, u"ﾊﾟﾋﾟﾌﾟﾍﾟﾎﾟ", u"パピプペポ"},
             {Conversion::Wide, u"ｳﾞﾜﾞｦﾞ", u"ヴヷヺ"},
             {Conversion::Wide, u"ﾁﾞﾂﾞ", u"ヂヅ"}});
}

TEST(StrConv, AMarkThatCannotJoinStandsAlone) {
  ExpectAll({{Conversion::Wide, u"ｶﾟ", u"カ゜"},
             {Conversion::Wide, u"ｱﾞ", u"ア゛"},
             {Conversion::Wide, u"ﾞﾟ", u"゛゜"},
             {Conversion::Wide, u"ｶﾞﾞ", u"ガ゛"},
             {Conversion::Wide, u"かﾞ", u"か゛"},
             {Conversion::Wide, u"か゛", u"か゛"},
             {Conversion::Wide, u"ｶ", u"カ"}});
}

TEST(StrConv, NarrowTakesAVoicedKanaApart) {
  ExpectAll({{Conversion::Narrow, u"ガヅドバパヴ", u"ｶﾞﾂﾞﾄﾞﾊﾞﾊﾟｳﾞ"},
             {Conversion::Narrow, u"ヷヸヹヺ", u"ﾜﾞヰﾞヱﾞｦﾞ"},
             {Conversion::Narrow, u"ハ゜", u"ﾊﾟ"},
             {Conversion::Narrow, u"カ\u3099", u"ｶﾞ"}});
}

TEST(StrConv, EveryHalfWidthKanaComesBackFromItsWideForm) {
  for (char16_t unit = 0xFF61; unit <= 0xFF9F; ++unit) {
    const std::u16string kana(1, unit);
    EXPECT_EQ(StrConv(StrConv(kana, Conversion::Wide), Conversion::Narrow), kana);
    const std::u16string voiced = kana + u'ﾞ';
    EXPECT_EQ(StrConv(StrConv(voiced, Conversion::Wide), Conversion::Narrow), voiced);
  }
}

TEST(StrConv, AsciiComesBackFromItsWideFormAndTheBackslashStays) {
  for (char16_t unit = u' '; unit < 0x7F; ++unit) {
    const std::u16string text(1, unit);
    const std::u16string wide = StrConv(text, Conversion::Wide);
    EXPECT_EQ(wide == text, unit == u'\\') << ToUtf8(text);
    EXPECT_EQ(StrConv(wide, Conversion::Narrow), text);
  }
}

TEST(StrConv, LeavesLineEndsTabsAndKanjiAlone) {
  const std::u16string text = u"漢字\r\n\t仝々〆𠮷";
  for (const auto& [name, conversion] : kConversions) EXPECT_EQ(StrConv(text, conversion), text) << name;
}

TEST(StrConv, ArrowsAndRulesKeepTheirWidth) {
  const std::u16string text = u"←↑→↓│■○";
  EXPECT_EQ(StrConv(text, Conversion::Narrow), text);
  EXPECT_EQ(StrConv(text, Conversion::Wide), text);
}

TEST(StrConv, KanaConversionsLeaveHalfWidthKanaAlone) {
  ExpectAll(
      {{Conversion::Katakana, u"かﾞｶあゝ", u"カﾞｶアヽ"}, {Conversion::Hiragana, u"カﾞｶアヽ", u"かﾞｶあゝ"}});
}

// Each unit outside the pages that hold letters must come through unchanged.
TEST(StrConv, EveryConversionChangesOnlyLettersSignsAndKana) {
  const std::set<unsigned> pages = {0x00, 0x01, 0x03, 0x04, 0x20, 0x21, 0x24, 0x30, 0xFF};
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    if (pages.contains(unit >> 8)) continue;
    const std::u16string text(1, static_cast<char16_t>(unit));
    for (const auto& [name, conversion] : kConversions) ASSERT_EQ(StrConv(text, conversion), text) << unit;
  }
}

}  // namespace
}  // namespace kestri
