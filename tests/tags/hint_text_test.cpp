#include "tags/hint_text.hpp"

#include <gtest/gtest.h>

#include "shell/common/class_common.hpp"

namespace kestri {
namespace {

TEST(HintTextTest, ATextThatFitsStays) {
  EXPECT_EQ(TipTagHelpStrings(u"太字 <B>", 12), u"太字 <B>");
  EXPECT_EQ(TipTagHelpStrings(u"太字 <B>", 8), u"太字 <B>");
  EXPECT_EQ(TipTagHelpStrings(u"", 50), u"");
}

TEST(HintTextTest, BelowTenBytesNothingIsWrapped) {
  EXPECT_EQ(TipTagHelpStrings(u"とても長い説明 <TABLE>", 9), u"とても長い説明 <TABLE>");
}

TEST(HintTextTest, TheDefaultTagStandsUnderTheExplanation) {
  EXPECT_EQ(TipTagHelpStrings(u"文字を太くします <B class=\"\">", 20), u"文字を太くします\r\n<B class=\"\">");
}

TEST(HintTextTest, JapaneseIsBrokenAtTheWidthInBytes) {
  EXPECT_EQ(TipTagHelpStrings(u"あいうえおかきくけこさ", 11), u"あいうえお\r\nかきくけこ\r\nさ");
}

TEST(HintTextTest, ABlankInTheLastThirdEndsTheLine) {
  EXPECT_EQ(TipTagHelpStrings(u"<blockquote cite=\"a\" title=\"\">", 22),
            u"<blockquote cite=\"a\"\r\ntitle=\"\">");
  EXPECT_EQ(TipTagHelpStrings(u"a 0123456789012345678", 10), u"a 01234567\r\n　89012345\r\n　678");
}

TEST(HintTextTest, FurtherLinesStandUnderTheSecondWord) {
  EXPECT_EQ(TipTagHelpStrings(u"表: 行と列に並べた表を作ります <TABLE>", 20),
            u"表: 行と列に並べた表\r\n　　を作ります\r\n　　<TABLE>");
  EXPECT_EQ(TipTagHelpStrings(u"ab 0123456789 <A>", 13), u"ab 0123456789\r\n　 <A>");
}

TEST(HintTextTest, AFirstWordOfHalfTheWidthIndentsNothing) {
  EXPECT_EQ(TipTagHelpStrings(u"ハイパーリンク 飛び先", 16), u"ハイパーリンク\r\n飛び先");
}

TEST(HintTextTest, SurrogatePairsStayWhole) {
  const std::u16string text = TipTagHelpStrings(
      u"\U00020BB7\U00020BB7\U00020BB7\U00020BB7\U00020BB7"
      u"\U00020BB7\U00020BB7\U00020BB7\U00020BB7\U00020BB7"
      u"\U00020BB7\U00020BB7",
      11);
  EXPECT_EQ(text.find(u"\xD842\r"), std::u16string::npos);
  EXPECT_NE(text.find(u"\r\n"), std::u16string::npos);
}

TEST(HintTextTest, NoLineIsWiderThanTheWidth) {
  const std::u16string text = TipTagHelpStrings(
      u"リンク ほかの文書や同じ文書の別の場所へ移るための目印を作ります <A href=\"\" target=\"\" title=\"\">",
      30);
  std::u16string_view rest = text;
  while (!rest.empty()) {
    const std::u16string line = ClassCommon::CrLfCurFirstSplitString(rest);
    EXPECT_LE(ClassCommon::GetTextByte(line), 30);
    rest.remove_prefix(std::min(rest.size(), line.size() + 2));
  }
}

}  // namespace
}  // namespace kestri
