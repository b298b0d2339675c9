#include <gtest/gtest.h>

#include "tests/shell/common/class_common_world.hpp"

namespace kestri {
namespace {

using fakes::WindowsWorld;
using Surround = ClassCommon::Surround;

TEST(LineEnds, AreNamedByWhatTheTextHolds) {
  EXPECT_EQ(ClassCommon::CrLfWinOrMac(u"a\r\nb"), u"CR+LF");
  EXPECT_EQ(ClassCommon::CrLfWinOrMac(u"a\rb\nc\r\nd"), u"CR+LF");
  EXPECT_EQ(ClassCommon::CrLfWinOrMac(u"a\rb\rc"), u"CR");
  EXPECT_EQ(ClassCommon::CrLfWinOrMac(u"a\nb"), u"LF");
  EXPECT_EQ(ClassCommon::CrLfWinOrMac(u"ab"), u"CR+LF");
  EXPECT_EQ(ClassCommon::CrLfWinOrMac(u""), u"CR+LF");
}

TEST(LineEnds, LoneCrAndLoneLfTogetherAreUnknown) {
  EXPECT_EQ(ClassCommon::CrLfWinOrMac(u"a\rb\nc"), u"(不明)");
  EXPECT_EQ(ClassCommon::CrLfWinOrMac(u"a\nb\rc"), u"(不明)");
}

TEST(LineEnds, FirstLine) {
  EXPECT_EQ(ClassCommon::CrLfCurFirstSplitString(u"a\r\nb\r\nc"), u"a");
  EXPECT_EQ(ClassCommon::CrLfCurFirstSplitString(u"a\nb"), u"a\nb");
  EXPECT_EQ(ClassCommon::CrLfCurFirstSplitString(u"\r\nb"), u"");
}

TEST(TextBytes, CountCodePageBytes) {
  EXPECT_EQ(ClassCommon::GetTextByte(u"aｱ日\r\n"), 6);
  EXPECT_EQ(ClassCommon::GetTextByte(u""), 0);
}

TEST(Rermutation, TheFirstKindGoesOnUntilTheFindTextIsGone) {
  EXPECT_EQ(ClassCommon::Rermutation1(u"a     b", u"  ", u" ", Compare::Binary), u"a b");
  EXPECT_EQ(ClassCommon::Rermutation1(u"= = =", u"= ", u"=", Compare::Binary), u"===");
  EXPECT_EQ(ClassCommon::Rermutation1(u"aabb", u"ab", u"", Compare::Binary), u"");
  EXPECT_EQ(ClassCommon::Rermutation1(u"aab", u"ab", u"b", Compare::Binary), u"b");
  EXPECT_EQ(ClassCommon::Rermutation1(u"xAbAB", u"ab", u"yz", Compare::Text), u"xyzyz");
  EXPECT_EQ(ClassCommon::Rermutation1(u"x\ty", u"\t", u"    ", Compare::Binary), u"x    y");
}

TEST(Rermutation, TheFirstKindFindsHitsThatReachBackIntoTheTextBefore) {
  EXPECT_EQ(ClassCommon::Rermutation1(u"xxabcyy", u"xabcy", u"abc", Compare::Binary), u"abc");
  EXPECT_EQ(ClassCommon::Rermutation1(u"aaabbb", u"ab", u"", Compare::Text), u"");
}

TEST(Rermutation, AFoldedHitIsReplacedInTheLengthItHasInTheText) {
  EXPECT_EQ(ClassCommon::Rermutation1(u"xｶﾞy", u"ガ", u"g", Compare::Text), u"xgy");
  EXPECT_EQ(ClassCommon::Rermutation1(u"xガy", u"ｶﾞ", u"g", Compare::Text), u"xgy");
}

TEST(Rermutation, AReplacementThatHoldsTheFindTextIsMadeOnce) {
  EXPECT_EQ(ClassCommon::Rermutation1(u"a.b.c", u".", u"..", Compare::Binary), u"a..b..c");
  EXPECT_EQ(ClassCommon::Rermutation1(u"abc", u"", u"x", Compare::Binary), u"abc");
}

TEST(Rermutation, TheSecondKindIsOnePass) {
  EXPECT_EQ(ClassCommon::Rermutation2(u"a    b", u"  ", u" ", Compare::Binary, 0), u"a  b");
  EXPECT_EQ(ClassCommon::Rermutation2(u"aaaa", u"a", u"b", Compare::Binary, 2), u"bbaa");
  EXPECT_EQ(ClassCommon::Rermutation2(u"aaaa", u"A", u"b", Compare::Text, -1), u"bbbb");
  EXPECT_EQ(ClassCommon::Rermutation2(u"%A%%B%", u"%A%", u"%B%", Compare::Binary, 0), u"%B%%B%");
}

TEST(Colours, ToHtml) {
  EXPECT_EQ(ClassCommon::DecimalToHtmlColor(255, 10, 0), u"#FF0A00");
  EXPECT_EQ(ClassCommon::DecimalToHtmlColor(0, 0, 0), u"#000000");
  EXPECT_EQ(ClassCommon::DecimalToHtmlColor(256, 0, 0), u"");
  EXPECT_EQ(ClassCommon::DecimalToHtmlColor(0, -1, 0), u"");
  EXPECT_EQ(ClassCommon::DecimalToHtmlColor(0, 0, 256), u"");
}

void ExpectColor(std::u16string_view text, int red, int green, int blue, std::int32_t rgb) {
  const HtmlColor color = ClassCommon::HtmlColorToDecimal(text);
  EXPECT_EQ(color.red, red);
  EXPECT_EQ(color.green, green);
  EXPECT_EQ(color.blue, blue);
  EXPECT_EQ(color.rgb, rgb);
}

TEST(Colours, FromHtml) {
  ExpectColor(u"#FF0a01", 255, 10, 1, 255 + 10 * 256 + 65536);
  ExpectColor(u"#12345", 0, 0, 0, 0);
  ExpectColor(u"#1234567", 0, 0, 0, 0);
  ExpectColor(u"1234567", 0, 0, 0, 0);
  ExpectColor(u"#12 456", 0, 0, 0, 0);
  ExpectColor(u"", 0, 0, 0, 0);
}

std::u16string Add(std::u16string_view text) {
  return ClassCommon::StringSurround(text, Surround::Add, u"<", u">", Compare::Binary, false);
}
std::u16string Strip(std::u16string_view text, bool trim = false) {
  return ClassCommon::StringSurround(text, Surround::Remove, u"\"", u"\"", Compare::Binary, trim);
}

TEST(StringSurround, AddsOnlyTheMarksThatAreMissing) {
  EXPECT_EQ(Add(u"a"), u"<a>");
  EXPECT_EQ(Add(u"<a"), u"<a>");
  EXPECT_EQ(Add(u"a>"), u"<a>");
  EXPECT_EQ(Add(u"<a>"), u"<a>");
  EXPECT_EQ(Add(u""), u"<>");
}

TEST(StringSurround, ATextThatIsTheLeftMarkGetsTheRightOne) {
  EXPECT_EQ(ClassCommon::StringSurround(u"\"", Surround::Add, u"\"", u"\"", Compare::Binary, false), u"\"\"");
}

TEST(StringSurround, RemovesBothMarksOrNone) {
  EXPECT_EQ(Strip(u"\"a\""), u"a");
  EXPECT_EQ(Strip(u"\"a"), u"\"a");
  EXPECT_EQ(Strip(u"a\""), u"a\"");
  EXPECT_EQ(Strip(u"\""), u"\"");
  EXPECT_EQ(Strip(u"\"\""), u"");
}

TEST(StringSurround, TrimsFirstWhenAsked) {
  EXPECT_EQ(Strip(u" \"a \" ", true), u"a ");
  EXPECT_EQ(Strip(u" \"a\" ", false), u" \"a\" ");
}

TEST(StringSurround, MarksCompareAsAsked) {
  EXPECT_EQ(ClassCommon::StringSurround(u"Bab", Surround::Remove, u"b", u"B", Compare::Text, false), u"a");
  EXPECT_EQ(ClassCommon::StringSurround(u"Bab", Surround::Remove, u"b", u"B", Compare::Binary, false),
            u"Bab");
}

TEST(Words, PackAndCut) {
  EXPECT_EQ(ClassCommon::ConvertUpWord16_Point(1, 2), 0x20001);
  EXPECT_EQ(ClassCommon::ConvertUpWord16_Point(-1, 0), 0xFFFF);
  EXPECT_EQ(ClassCommon::ConvertUpWord16_Point(0, -1), -65536);
  EXPECT_EQ(ClassCommon::DeleteNull(std::u16string_view(u"ab\0cd", 5)), u"ab");
  EXPECT_EQ(ClassCommon::DeleteNull(u"ab"), u"ab");
  EXPECT_EQ(ClassCommon::GetStringPointer(u"日a"), std::string("\x93\xFA\x61\0", 4));
}

class Desk : public testing::Test, protected WindowsWorld {
 protected:
  ClassCommon common_ = Common();
};

TEST_F(Desk, TwipsAndPixels) {
  EXPECT_EQ(common_.ConvPixelX(44), 2);
  EXPECT_EQ(common_.ConvPixelY(45), 3);
  EXPECT_EQ(common_.ConvTwipX(3), 45);
  EXPECT_EQ(common_.ConvTwipY(2), 30);
}

TEST_F(Desk, ExecuteShowPicksTheDesktopsVerb) {
  common_.ExecuteShow(u"C:\\x", 1, u"");
  common_.ExecuteShow(u"C:\\a.htm", 2, u"");
  common_.ExecuteShow(u"C:\\p.exe", 3, u"\"C:\\a\"");
  EXPECT_EQ(shell.explored.at(0), u"C:\\x");
  EXPECT_EQ(shell.properties.at(0), u"C:\\a.htm");
  EXPECT_EQ(shell.opened.at(0).first, u"C:\\p.exe");
  EXPECT_EQ(shell.opened.at(0).second, u"\"C:\\a\"");
}

TEST_F(Desk, SystemAndUser) {
  EXPECT_EQ(common_.GetOSType(), -99);
  EXPECT_EQ(common_.GetUserName(), u"author");
}

}  // namespace
}  // namespace kestri
