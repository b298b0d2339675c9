// Blanks and tabs in an ascii-art draft.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::Journal;
using fakes::MainTextDesk;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kHead = "status: 先頭に半角ｽﾍﾟｰｽは使えません";
constexpr const char* kBeside = "status: 半角ｽﾍﾟｰｽの連続挿入はできません";

struct BlankRow {
  std::string name;
  std::u16string before;
  std::u16string after;
  Journal messages;
};

class BlankInAsciiArt : public testing::TestWithParam<BlankRow> {};

TEST_P(BlankInAsciiArt, IsAcceptedOrRefused) {
  MainTextDesk desk;
  desk.state.fileKind = kFileTypeAsciiArt;
  desk.Put(GetParam().before);
  desk.Press(u" ");
  EXPECT_EQ(desk.Row(), ToUtf8(GetParam().after));
  EXPECT_EQ(desk.Messages(), GetParam().messages);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BlankInAsciiArt,
    testing::Values(BlankRow{"EmptyDocument", u"‸", u"‸", {kHead}},
                    BlankRow{"TextsStart", u"‸a", u"‸a", {kHead}},
                    BlankRow{"TextsStartBeforeABlank", u"‸ a", u"‸ a", {kHead}},
                    BlankRow{"SelectionFromTheTextsStart", u"⟦a⟧b", u"⟦a⟧b", {kHead}},
                    BlankRow{"LineHead", u"a\n‸b", u"a\n‸b", {kHead}},
                    BlankRow{"EmptyLine", u"a\n‸\nb", u"a\n‸\nb", {kHead}},
                    BlankRow{"SelectionFromALineHead", u"a\n⟦b⟧c", u"a\n⟦b⟧c", {kHead}},
                    BlankRow{"AfterACharacter", u"a‸b", u"a ‸b", {}},
                    BlankRow{"LineEndAfterACharacter", u"あ‸\nい", u"あ ‸\nい", {}},
                    BlankRow{"TextsEndAfterACharacter", u"∧＿∧‸", u"∧＿∧ ‸", {}},
                    BlankRow{"AfterABlank", u"a ‸b", u"a⟦ ⟧b", {kBeside}},
                    BlankRow{"BeforeABlank", u"a‸ b", u"a⟦ ⟧b", {kBeside}},
                    BlankRow{"LineHeadBeforeABlank", u"a\n‸ b", u"a\n⟦ ⟧b", {kBeside}},
                    BlankRow{"AfterAFullWidthBlank", u"a　‸b", u"a　 ‸b", {}},
                    BlankRow{"SelectionAfterABlank", u"a ⟦b⟧c", u"a⟦ ⟧bc", {kBeside}},
                    BlankRow{"SelectionBeforeABlank", u"a⟦b⟧ c", u"ab⟦ ⟧c", {kBeside}},
                    BlankRow{"SelectionBetweenCharacters", u"a⟦bc⟧d", u"a ‸d", {}},
                    BlankRow{"SelectionThatBeginsWithABlank", u"a⟦ b⟧c", u"a⟦ ⟧bc", {kBeside}},
                    BlankRow{"SelectionThatEndsWithABlank", u"a⟦b ⟧c", u"ab⟦ ⟧c", {kBeside}},
                    BlankRow{"SelectionOfTheOffendingBlank", u"a⟦ ⟧b", u"a⟦ ⟧b", {kBeside}},
                    BlankRow{"SelectionWithABlankInside", u"a⟦b c⟧d", u"a ‸d", {}}),
    [](const auto& test) { return test.param.name; });

TEST(AsciiArt, RefusesATabWithoutSelection) {
  MainTextDesk desk;
  desk.state.fileKind = kFileTypeAsciiArt;
  desk.Put(u"a‸");
  desk.Press(u"{Tab}");
  EXPECT_EQ(desk.Row(), "a‸");
  EXPECT_THAT(desk.Messages(), ElementsAre("status: AAﾓｰﾄﾞでTabは挿入せきません"));
}

TEST(AsciiArt, RefusesNoFullWidthBlank) {
  MainTextDesk desk;
  desk.state.fileKind = kFileTypeAsciiArt;
  desk.Put(u"‸");
  desk.Press(u"　　");
  EXPECT_EQ(desk.Row(), "　　‸");
}

TEST(AsciiArt, LetsPastedBlanksPass) {
  MainTextDesk desk;
  desk.state.fileKind = kFileTypeAsciiArt;
  desk.clipboard.text = u"  a  b";
  desk.Put(u"‸");
  desk.Press(u"{Ctrl+V}");
  EXPECT_EQ(desk.Row(), "  a  b‸");
  EXPECT_THAT(desk.Messages(), IsEmpty());
}

TEST(AsciiArt, RulesHoldInNoOtherDocument) {
  for (const std::int32_t kind : {kFileTypeText, kFileTypeHtml, kFileTypeOther}) {
    MainTextDesk desk;
    desk.state.fileKind = kind;
    desk.Put(u"‸");
    desk.Press(u"  {Tab}");
    EXPECT_EQ(desk.Row(), "      ‸") << kind;
    EXPECT_THAT(desk.Messages(), IsEmpty()) << kind;
  }
}

}  // namespace
}  // namespace kestri
