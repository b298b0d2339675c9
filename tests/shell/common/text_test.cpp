#include "shell/common/text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "shell/common/unit_search.hpp"
#include "tests/fakes/oracle_rows.hpp"

namespace kestri {
namespace {

TEST(InStr, FindsTheFirstOccurrenceFromTheStart) {
  EXPECT_EQ(InStr(u"abcabc", u"bc"), 2);
  EXPECT_EQ(InStr(2, u"abcabc", u"bc"), 2);
  EXPECT_EQ(InStr(3, u"abcabc", u"bc"), 5);
  EXPECT_EQ(InStr(6, u"abcabc", u"bc"), 0);
  EXPECT_EQ(InStr(u"日本語の本", u"本"), 2);
  EXPECT_EQ(InStr(3, u"日本語の本", u"本"), 5);
}

TEST(InStr, TellsCaseApartUnlessAskedForTextCompare) {
  EXPECT_EQ(InStr(u"<BODY>", u"body"), 0);
  EXPECT_EQ(InStr(1, u"<BODY>", u"body", Compare::Text), 2);
  EXPECT_EQ(InStr(1, u"あｶﾞい", u"ガ", Compare::Text), 2);
}

TEST(InStr, AnEmptyFindTextIsFoundAtAStartInsideTheText) {
  EXPECT_EQ(InStr(u"abc", u""), 1);
  EXPECT_EQ(InStr(3, u"abc", u""), 3);
  EXPECT_EQ(InStr(4, u"abc", u""), 0);
  EXPECT_EQ(InStr(u"", u""), 0);
  EXPECT_EQ(InStr(3, u"abc", u"", Compare::Text), 3);
}

TEST(InStr, GivesZeroForAnEmptyTextALongerFindTextOrABadStart) {
  EXPECT_EQ(InStr(u"", u"a"), 0);
  EXPECT_EQ(InStr(u"ab", u"abc"), 0);
  EXPECT_EQ(InStr(4, u"abc", u"c"), 0);
  EXPECT_EQ(InStr(0, u"abc", u"a"), 0);
  EXPECT_EQ(InStr(-1, u"abc", u"a"), 0);
}

TEST(InStrRev, FindsTheLastOccurrence) {
  EXPECT_EQ(InStrRev(u"abcabc", u"bc"), 5);
  EXPECT_EQ(InStrRev(u"C:\\a\\b", u"\\"), 5);
  EXPECT_EQ(InStrRev(u"abc", u"x"), 0);
}

TEST(InStrRev, TheWholeOccurrenceMustLieAtOrBeforeTheStart) {
  EXPECT_EQ(InStrRev(u"abcabc", u"bc", 6), 5);
  EXPECT_EQ(InStrRev(u"abcabc", u"bc", 5), 2);
  EXPECT_EQ(InStrRev(u"abcabc", u"bc", 3), 2);
  EXPECT_EQ(InStrRev(u"abcabc", u"bc", 2), 0);
  EXPECT_EQ(InStrRev(u"abcabc", u"a", 1), 1);
}

TEST(InStrRev, AnEmptyFindTextIsFoundAtTheStart) {
  EXPECT_EQ(InStrRev(u"abc", u""), 3);
  EXPECT_EQ(InStrRev(u"abc", u"", 2), 2);
  EXPECT_EQ(InStrRev(u"abc", u"", 4), 0);
  EXPECT_EQ(InStrRev(u"", u""), 0);
}

TEST(InStrRev, GivesZeroForABadStart) {
  EXPECT_EQ(InStrRev(u"abc", u"a", 0), 0);
  EXPECT_EQ(InStrRev(u"abc", u"a", -2), 0);
  EXPECT_EQ(InStrRev(u"abc", u"a", 4), 0);
  EXPECT_EQ(InStrRev(u"", u"a"), 0);
}

TEST(InStrRev, TextCompareFindsTheFoldedHitThatEndsBeforeTheStart) {
  EXPECT_EQ(InStrRev(u"Ａａa", u"A", -1, Compare::Text), 3);
  EXPECT_EQ(InStrRev(u"Ａａa", u"A", 2, Compare::Text), 2);
  EXPECT_EQ(InStrRev(u"ｶﾞｶﾞ", u"が", 3, Compare::Text), 1);
}

TEST(Mid, TakesFromAOneBasedStart) {
  EXPECT_EQ(Mid(u"abcdef", 2, 3), u"bcd");
  EXPECT_EQ(Mid(u"abcdef", 1), u"abcdef");
  EXPECT_EQ(Mid(u"abcdef", 6), u"f");
}

TEST(Mid, ClampsAtTheEnd) {
  EXPECT_EQ(Mid(u"abc", 3, 5), u"c");
  EXPECT_EQ(Mid(u"abc", 1, std::numeric_limits<int>::max()), u"abc");
  EXPECT_EQ(Mid(u"abc", 4, 1), u"");
  EXPECT_EQ(Mid(u"abc", 4), u"");
  EXPECT_EQ(Mid(u"abc", 99), u"");
  EXPECT_EQ(Mid(u"", 1, 1), u"");
}

TEST(Mid, GivesNothingForABadStartOrLength) {
  EXPECT_EQ(Mid(u"abc", 0, 1), u"");
  EXPECT_EQ(Mid(u"abc", -1), u"");
  EXPECT_EQ(Mid(u"abc", 1, -1), u"");
  EXPECT_EQ(Mid(u"abc", 1, 0), u"");
}

TEST(LeftAndRight, TakeAtMostWhatIsThere) {
  EXPECT_EQ(Left(u"abc", 2), u"ab");
  EXPECT_EQ(Left(u"abc", 0), u"");
  EXPECT_EQ(Left(u"abc", 9), u"abc");
  EXPECT_EQ(Left(u"abc", -1), u"");
  EXPECT_EQ(Right(u"abc", 2), u"bc");
  EXPECT_EQ(Right(u"abc", 0), u"");
  EXPECT_EQ(Right(u"abc", 9), u"abc");
  EXPECT_EQ(Right(u"abc", -1), u"");
  EXPECT_EQ(Right(u"", 1), u"");
}

TEST(Len, CountsUnits) {
  EXPECT_EQ(Len(u""), 0);
  EXPECT_EQ(Len(u"日本"), 2);
  EXPECT_EQ(Len(u"𠮷"), 2);
}

TEST(Trim, TakesHalfWidthBlanksOffBothEndsOnly) {
  EXPECT_EQ(Trim(u"  a b  "), u"a b");
  EXPECT_EQ(Trim(u"   "), u"");
  EXPECT_EQ(Trim(u""), u"");
  EXPECT_EQ(Trim(u"\u3000a\t"), u"\u3000a\t");
}

TEST(LetterCase, ChangesEveryRecordedLetterAndTextAsRecorded) {
  int rows = 0;
  for (const fakes::OracleRow& row : fakes::ReadOracleRows(std::string(KESTRI_TEST_DATA) + "/strconv.tsv")) {
    if (row.at(1) != "UPPERCASE" && row[1] != "LOWERCASE") continue;
    const std::u16string input = fakes::HexUnits(row.at(3));
    EXPECT_EQ(row[1] == "UPPERCASE" ? UCase(input) : LCase(input), fakes::HexUnits(row.at(5))) << row[2];
    ++rows;
  }
  EXPECT_EQ(rows, 96 + 105 + 2 * 92);
}

TEST(LetterCase, CoversAsciiFullWidthGreekAndCyrillicLetters) {
  EXPECT_EQ(UCase(u"abzａｚαωаяёⅳ"), u"ABZＡＺΑΩАЯЁⅣ");
  EXPECT_EQ(LCase(u"ABZＡＺΑΩАЯЁⅣ"), u"abzａｚαωаяёⅳ");
}

TEST(LetterCase, LeavesEverythingElse) {
  EXPECT_EQ(UCase(u"@[`{あア漢ß÷ς１"), u"@[`{あア漢ß÷ς１");
  EXPECT_EQ(LCase(u"@[`{あア漢ß×１"), u"@[`{あア漢ß×１");
}

TEST(LetterCase, EveryCapitalHasTheSmallLetterThatLeadsBackToIt) {
  for (unsigned code = 0; code < 0x10000; ++code) {
    const std::u16string unit(1, static_cast<char16_t>(code));
    const bool isCapital = LCase(unit) != unit;
    EXPECT_EQ(UCase(LCase(unit)), isCapital ? unit : UCase(unit)) << std::hex << code;
    EXPECT_EQ(LCase(UCase(unit)), isCapital ? LCase(unit) : unit) << std::hex << code;
  }
}

TEST(StrComp, OrdersByUnitOrByFoldedText) {
  EXPECT_EQ(StrComp(u"a", u"b"), -1);
  EXPECT_EQ(StrComp(u"b", u"a"), 1);
  EXPECT_EQ(StrComp(u"a", u"a"), 0);
  EXPECT_EQ(StrComp(u"a", u"ab"), -1);
  EXPECT_EQ(StrComp(u"a", u"A"), 1);
  EXPECT_EQ(StrComp(u"a", u"Ａ", Compare::Text), 0);
  EXPECT_EQ(StrComp(u"B", u"ａ", Compare::Text), 1);
  EXPECT_EQ(StrComp(u"", u""), 0);
}

TEST(Replace, ReplacesEveryOccurrenceInOnePass) {
  EXPECT_EQ(Replace(u"a-b-c", u"-", u"+"), u"a+b+c");
  EXPECT_EQ(Replace(u"aaa", u"a", u"aa"), u"aaaaaa");
  EXPECT_EQ(Replace(u"aaaa", u"aa", u"a"), u"aa");
  EXPECT_EQ(Replace(u"a\r\nb", u"\r\n", u""), u"ab");
  EXPECT_EQ(Replace(u"abc", u"x", u"y"), u"abc");
}

TEST(Replace, StopsAtTheCount) {
  EXPECT_EQ(Replace(u"a-b-c-d", u"-", u"+", 2), u"a+b+c-d");
  EXPECT_EQ(Replace(u"a-b", u"-", u"+", 0), u"a+b");
  EXPECT_EQ(Replace(u"a-b", u"-", u"+", 9), u"a+b");
}

TEST(Replace, AnEmptyTextOrFindTextChangesNothing) {
  EXPECT_EQ(Replace(u"abc", u"", u"x"), u"abc");
  EXPECT_EQ(Replace(u"", u"a", u"x"), u"");
  EXPECT_EQ(Replace(u"abc", u"", u"x", -1, Compare::Text), u"abc");
}

TEST(Replace, TextCompareTakesEachHitInItsOwnLength) {
  EXPECT_EQ(Replace(u"<BR><br><ＢＲ>", u"br", u"hr", -1, Compare::Text), u"<hr><hr><hr>");
  EXPECT_EQ(Replace(u"ｶﾞがガか", u"ガ", u"x", -1, Compare::Text), u"xxxか");
  EXPECT_EQ(Replace(u"ｶﾞがガか", u"ガ", u"x", 1, Compare::Text), u"xがガか");
}

TEST(StringOf, RepeatsACharacter) {
  EXPECT_EQ(String(3, u'x'), u"xxx");
  EXPECT_EQ(String(0, u'x'), u"");
  EXPECT_EQ(String(-1, u'x'), u"");
}

TEST(FormatZeros, FillsUpToTheDigitsAndKeepsLongerNumbersWhole) {
  EXPECT_EQ(FormatZeros(7, 3), u"007");
  EXPECT_EQ(FormatZeros(0, 5), u"00000");
  EXPECT_EQ(FormatZeros(12345, 3), u"12345");
  EXPECT_EQ(FormatZeros(-7, 3), u"-007");
  EXPECT_EQ(FormatZeros(7, 0), u"7");
  EXPECT_EQ(FormatZeros(std::numeric_limits<std::int64_t>::min(), 3), u"-9223372036854775808");
}

TEST(FormatThousands, GroupsAndRounds) {
  EXPECT_EQ(FormatThousands(1234567.5, 2), u"1,234,567.50");
  EXPECT_EQ(FormatThousands(999999, 0), u"999,999");
  EXPECT_EQ(FormatThousands(1000000, 0), u"1,000,000");
  EXPECT_EQ(FormatThousands(999999 / 1000.0, 2), u"1,000.00");
  EXPECT_EQ(FormatThousands(100, 0), u"100");
  EXPECT_EQ(FormatThousands(0, 2), u"0.00");
  EXPECT_EQ(FormatThousands(0, 0), u"0");
  EXPECT_EQ(FormatThousands(0.004, 2), u"0.00");
  EXPECT_EQ(FormatThousands(0.5, 2), u"0.50");
}

TEST(FormatThousands, RoundsHalvesAwayFromZeroAsTheNumberReads) {
  EXPECT_EQ(FormatThousands(0.125, 2), u"0.13");
  EXPECT_EQ(FormatThousands(-0.125, 2), u"-0.13");
  EXPECT_EQ(FormatThousands(1.005, 2), u"1.01");
  EXPECT_EQ(FormatThousands(0.005, 2), u"0.01");
  EXPECT_EQ(FormatThousands(0.0049, 2), u"0.00");
  EXPECT_EQ(FormatThousands(2.5, 0), u"3");
  EXPECT_EQ(FormatThousands(9.999, 2), u"10.00");
  EXPECT_EQ(FormatThousands(0.999, 2), u"1.00");
  EXPECT_EQ(FormatThousands(999.5, 0), u"1,000");
}

TEST(FormatThousands, ShowsNoMinusBeforeZeroAndNothingForNoNumber) {
  EXPECT_EQ(FormatThousands(-0.001, 2), u"0.00");
  EXPECT_EQ(FormatThousands(-1234.5, 1), u"-1,234.5");
  EXPECT_EQ(FormatThousands(1e18, 0), u"1,000,000,000,000,000,000");
  EXPECT_EQ(FormatThousands(std::nan(""), 2), u"");
  EXPECT_EQ(FormatThousands(std::numeric_limits<double>::infinity(), 2), u"");
}

TEST(ToLong, TakesAWholeNumberWithBlanksAround) {
  EXPECT_EQ(ToLong(u"42"), 42);
  EXPECT_EQ(ToLong(u"  -7 "), -7);
  EXPECT_EQ(ToLong(u"+7"), 7);
  EXPECT_EQ(ToLong(u"007"), 7);
  EXPECT_EQ(ToLong(u"2147483647"), 2147483647);
  EXPECT_EQ(ToLong(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
}

TEST(ToLong, GivesNothingForAnythingElse) {
  for (const char16_t* text : {u"", u" ", u"-", u"+", u"1.5", u"12a", u"a", u"1 2", u"- 1", u"--1", u"１２",
                               u"&H1", u"\t1", u"2147483648", u"-2147483649", u"99999999999999999999"}) {
    EXPECT_EQ(ToLong(text), std::nullopt) << ToUtf8(text);
  }
}

TEST(ToInteger, HasTheRangeOf16Bits) {
  EXPECT_EQ(ToInteger(u"32767"), 32767);
  EXPECT_EQ(ToInteger(u"-32768"), -32768);
  EXPECT_EQ(ToInteger(u"32768"), std::nullopt);
  EXPECT_EQ(ToInteger(u"-32769"), std::nullopt);
  EXPECT_EQ(ToInteger(u"x"), std::nullopt);
}

TEST(ToText, WritesTheNumber) {
  EXPECT_EQ(ToText(0), u"0");
  EXPECT_EQ(ToText(-15), u"-15");
}

TEST(StartsAndEnds, CompareExactly) {
  EXPECT_TRUE(StartsWith(u"abc", u"ab"));
  EXPECT_TRUE(StartsWith(u"abc", u""));
  EXPECT_FALSE(StartsWith(u"abc", u"AB"));
  EXPECT_FALSE(StartsWith(u"a", u"ab"));
  EXPECT_TRUE(EndsWith(u"abc", u"bc"));
  EXPECT_FALSE(EndsWith(u"abc", u"ab"));
}

TEST(Utf8, CarriesEveryCharacter) {
  EXPECT_EQ(ToUtf8(u"aéあ𠮷"), "aéあ𠮷");
  EXPECT_EQ(FromUtf8("aéあ𠮷"), u"aéあ𠮷");
  for (char32_t code = 0; code < 0x110000; code += code < 0x11000 ? 1 : 0xFB) {
    if (code >= 0xD800 && code < 0xE000) continue;
    std::u16string text;
    if (code < 0x10000) {
      text = static_cast<char16_t>(code);
    } else {
      text = {static_cast<char16_t>(0xD7C0 + (code >> 10)), static_cast<char16_t>(0xDC00 | (code & 0x3FF))};
    }
    ASSERT_EQ(FromUtf8(ToUtf8(text)), text) << std::hex << static_cast<unsigned>(code);
  }
}

TEST(Utf8, BytesThatAreNoCharacterTravelAlongAndComeBack) {
  EXPECT_EQ(FromUtf8("a\xFF"), u"a\xDCFF");
  EXPECT_EQ(FromUtf8("\xE3\x81"), u"\xDCE3\xDC81");
  EXPECT_EQ(FromUtf8("\xC0\x80"), u"\xDCC0\xDC80") << "overlong";
  EXPECT_EQ(FromUtf8("\xE0\x80\x80"), u"\xDCE0\xDC80\xDC80") << "overlong";
  EXPECT_EQ(FromUtf8("\xED\xA0\x80"), u"\xDCED\xDCA0\xDC80") << "surrogate";
  EXPECT_EQ(FromUtf8("\xF4\x90\x80\x80"), u"\xDCF4\xDC90\xDC80\xDC80") << "above U+10FFFF";
  EXPECT_EQ(FromUtf8("\x82\xA0.htm"), u"\xDC82\xDCA0.htm");

  std::mt19937 random(8);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes = "あ𠮷";
    for (int i = 0; i < 20; ++i) bytes += static_cast<char>(random());
    ASSERT_EQ(ToUtf8(FromUtf8(bytes)), bytes);
  }
}

TEST(Utf8, OtherLoneSurrogatesBecomeTheReplacementCharacter) {
  EXPECT_EQ(ToUtf8(u"a\xD842"), "a\uFFFD");
  EXPECT_EQ(ToUtf8(u"\xDFB7z"), "\uFFFDz");
}

// Every length around the block size, every place, against the plain search of the standard string.
TEST(UnitSearch, AgreesWithThePlainSearch) {
  std::mt19937 random(16);
  for (int round = 0; round < 20000; ++round) {
    std::u16string text(random() % 70, u'a');
    for (char16_t& unit : text) unit = random() % 3 == 0 ? u'b' : random() % 9 == 0 ? u'\u0161' : u'a';
    const std::u16string find = round % 2 == 0
                                    ? text.substr(text.empty() ? 0 : random() % text.size(), 1 + random() % 9)
                                    : std::u16string(random() % 4, u'b');
    const std::size_t at = random() % (text.size() + 2);
    ASSERT_EQ(unit_search::Find(text, find, at), text.find(find, at))
        << ToUtf8(text) << " / " << ToUtf8(find);
    const std::size_t end = std::min(at, text.size());
    ASSERT_EQ(unit_search::FindLast(text, find, at), text.substr(0, end).rfind(find))
        << ToUtf8(text) << " / " << ToUtf8(find) << " end " << at;
  }
}

}  // namespace
}  // namespace kestri
