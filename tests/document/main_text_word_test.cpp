// What a double click selects.
#include <gtest/gtest.h>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::MainTextDesk;

struct WordRow {
  std::string name;
  std::u16string before;
  std::u16string after;
};

class DoubleClick : public testing::TestWithParam<WordRow> {};

TEST_P(DoubleClick, SelectsTheWord) {
  MainTextDesk desk;
  desk.Put(GetParam().before);
  EXPECT_TRUE(desk.text.WM_LBUTTONDBLCLK());
  EXPECT_EQ(desk.Row(), ToUtf8(GetParam().after));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DoubleClick,
    testing::Values(WordRow{"InsideAWord", u"foo b‸ar baz", u"foo ⟦bar⟧ baz"},
                    WordRow{"AtAWordsEnd", u"foo‸ bar", u"⟦foo⟧ bar"},
                    WordRow{"AtAWordsStart", u"foo ‸bar", u"foo ⟦bar⟧"},
                    WordRow{"AtTheFirstColumn", u"‸foo bar", u"⟦foo⟧ bar"},
                    WordRow{"OfOneCharacterAtTheFirstColumn", u"‸a b", u"⟦a⟧ b"},
                    WordRow{"OfALineOfOneCharacter", u"‸a", u"⟦a⟧"},
                    WordRow{"BehindABreakAtTheFirstColumn", u"‸<a>", u"<⟦a⟧>"},
                    WordRow{"BehindATagsBracket", u"<‸a", u"<⟦a⟧"},
                    WordRow{"UpToTheLineEnd", u"x\na b‸c\nd e", u"x\na ⟦bc⟧\nd e"},
                    WordRow{"FromTheLineStart", u"x\nab‸c d", u"x\n⟦abc⟧ d"},
                    WordRow{"AtTheFirstColumnOfALaterLine", u"x\n‸ab c", u"x\n⟦ab⟧ c"},
                    WordRow{"AtTheTextsEnd", u"a bc‸", u"a ⟦bc⟧"},
                    WordRow{"OfJapaneseBetweenPunctuation", u"春、夏‸秋。冬", u"春、⟦夏秋⟧。冬"},
                    WordRow{"BetweenFullWidthBlanks", u"春　夏‸　秋", u"春　⟦夏⟧　秋"},
                    WordRow{"BetweenTabs", u"a\tb‸\tc", u"a\t⟦b⟧\tc"},
                    WordRow{"OfAnAttributeValue", u"<a href=\"x‸y\">", u"<a href=\"⟦xy⟧\">"},
                    WordRow{"InBrackets", u"『吾輩‸は』", u"『⟦吾輩は⟧』"},
                    WordRow{"BetweenTwoBreaksIsNone", u"<‸>", u"<‸>"},
                    WordRow{"OnAnEmptyLineIsNone", u"a\n‸\nb", u"a\n‸\nb"},
                    WordRow{"InAnEmptyTextIsNone", u"‸", u"‸"},
                    WordRow{"WithASelectionChangesNothing", u"a b⟦c⟧d", u"a b⟦c⟧d"},
                    WordRow{"FarDownALongLine", std::u16string(3000, u'x') + u" ab‸c d",
                            std::u16string(3000, u'x') + u" ⟦abc⟧ d"}),
    [](const auto& test) { return test.param.name; });

TEST(DoubleClick, IsLeftToTheControlWithoutTheSetting) {
  MainTextDesk desk;
  desk.state.textTrp = 0;
  desk.Put(u"a b‸c");
  EXPECT_FALSE(desk.text.WM_LBUTTONDBLCLK());
  EXPECT_EQ(desk.Row(), "a b‸c");
}

TEST(DoubleClick, IsLeftToTheControlWithoutTheSubclass) {
  MainTextDesk desk;
  desk.text.InstallSubclass(0);
  desk.Put(u"a b‸c");
  EXPECT_FALSE(desk.text.WM_LBUTTONDBLCLK());
}

TEST(DoubleClick, StopsAtBlanksEvenWithAnEmptyBreakString) {
  MainTextDesk desk;
  desk.state.trpString.clear();
  desk.Put(u"a <b‸> c");
  desk.text.WM_LBUTTONDBLCLK();
  EXPECT_EQ(desk.Row(), "a ⟦<b>⟧ c");
}

TEST(DoubleClick, StopsAtTheUsersOwnBreaks) {
  MainTextDesk desk;
  desk.state.trpString = u"のx";
  desk.Put(u"猫の手‸xも");
  desk.text.WM_LBUTTONDBLCLK();
  EXPECT_EQ(desk.Row(), "猫の⟦手⟧xも");
}

TEST(TrpString, HasTheBreaksOfBothWidths) {
  const std::u16string breaks = DefaultTrpString();
  EXPECT_TRUE(breaks.starts_with(u",、，\"\u201D()（）"));
  EXPECT_TRUE(breaks.ends_with(u"『』【】"));
  EXPECT_EQ(breaks.size(), 38u);
}

}  // namespace
}  // namespace kestri
