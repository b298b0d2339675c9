// The Edit menu, undo and redo, and the answers of a read-only document.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::Journal;
using fakes::MainTextDesk;
using testing::ElementsAre;
using testing::IsEmpty;

struct EditRow {
  std::string name;
  int index;
  std::u16string before;
  std::u16string after;
  std::u16string clipboard;
  bool hidesHint = false;
};

class EditMenu : public testing::TestWithParam<EditRow> {};

TEST_P(EditMenu, ChangesTextSelectionAndClipboard) {
  MainTextDesk desk;
  desk.clipboard.text = u"貼\t";
  desk.Put(GetParam().before);
  desk.text.Edit(GetParam().index);
  EXPECT_EQ(desk.Row(), ToUtf8(GetParam().after));
  EXPECT_EQ(ToUtf8(desk.clipboard.text), ToUtf8(GetParam().clipboard));
  EXPECT_EQ(desk.Lines({"hide hint"}).size(), GetParam().hidesHint ? 1u : 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EditMenu,
    testing::Values(EditRow{"Cut", 0, u"a⟦b⟧c", u"a‸c", u"b"},
                    EditRow{"Copy", 1, u"a⟦春⟧c", u"a⟦春⟧c", u"春"},
                    EditRow{"Paste", 2, u"a⟦b⟧c", u"a貼    ‸c", u"貼\t"},
                    EditRow{"Delete", 3, u"a⟦b\n⟧c", u"a‸c", u"貼\t"},
                    EditRow{"SelectAll", 5, u"a\nb‸\n", u"⟦a\nb\n⟧", u"貼\t", true},
                    EditRow{"SelectAllOfNothing", 5, u"‸", u"‸", u"貼\t", true},
                    EditRow{"SelectTheLine", 6, u"a\nb‸c\nd", u"a\n⟦bc⟧\nd", u"貼\t", true},
                    EditRow{"SelectTheLastLine", 6, u"a\n犬‸猫", u"a\n⟦犬猫⟧", u"貼\t", true},
                    EditRow{"SelectTheLineOfASelectionsStart", 6, u"a⟦b\nc⟧", u"⟦ab⟧\nc", u"貼\t", true},
                    EditRow{"SelectAnEmptyLine", 6, u"a\n‸\nb", u"a\n‸\nb", u"貼\t", true},
                    EditRow{"NothingAtOtherIndices", 4, u"a⟦b⟧", u"a⟦b⟧", u"貼\t"}),
    [](const auto& test) { return test.param.name; });

TEST(ReadOnly, AnswersEachEditCommandWithABeepAndAMessage) {
  for (const int index : {0, 1, 2, 3}) {
    MainTextDesk desk;
    desk.clipboard.text = u"x";
    desk.Put(u"a⟦b⟧c");
    desk.control.SetLocked(true);
    desk.text.Edit(index);
    EXPECT_EQ(desk.Row(), "a⟦b⟧c") << index;
    EXPECT_EQ(desk.clipboard.text, u"x") << index;
    EXPECT_THAT(desk.Messages(), ElementsAre("beep", "status: 読み取り専用で開かれています")) << index;
  }
}

TEST(ReadOnly, AnswersUndoAndRedoTheSameWay) {
  for (const int index : {0, 1}) {
    MainTextDesk desk;
    desk.Put(u"‸");
    desk.Press(u"a");
    desk.control.SetLocked(true);
    desk.journal.clear();
    desk.text.MenUNDO(index);
    EXPECT_EQ(desk.Row(), "a‸");
    EXPECT_THAT(desk.Messages(), ElementsAre("beep", "status: 読み取り専用で開かれています")) << index;
  }
}

TEST(ReadOnly, LetsTheTextBeSelected) {
  for (const int index : {5, 6}) {
    MainTextDesk desk;
    desk.Put(u"a‸b");
    desk.control.SetLocked(true);
    desk.text.Edit(index);
    EXPECT_EQ(desk.Row(), "⟦ab⟧");
    EXPECT_THAT(desk.Messages(), IsEmpty());
  }
}

TEST(ReadOnly, KeepsSilentOnKeys) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧");
  desk.control.SetLocked(true);
  desk.Press(u"x<= {Enter}{Tab}{Ctrl+Backspace}{Backspace}{Delete}{ime:漢}");
  EXPECT_EQ(desk.Row(), "a⟦b⟧");
  EXPECT_THAT(desk.Messages(), IsEmpty());
}

TEST(Undo, TakesEachCommandBackInOneStep) {
  MainTextDesk desk;
  desk.state.fileKind = kFileTypeText;
  desk.clipboard.text = u"貼\n";
  desk.Put(u"  a‸");
  desk.Press(u"{Enter}{Tab}{Ctrl+V}");
  ASSERT_EQ(desk.Row(), "  a\n      貼\n‸");
  desk.text.MenUNDO(0);
  EXPECT_EQ(desk.Row(), "  a\n      ‸");
  desk.text.MenUNDO(0);
  EXPECT_EQ(desk.Row(), "  a\n  ‸");
  desk.text.MenUNDO(0);
  EXPECT_EQ(desk.Row(), "  a‸");
}

TEST(Redo, BringsBackWhatUndoTookAway) {
  MainTextDesk desk;
  desk.Put(u"⟦a\nb⟧");
  desk.Press(u"{Tab}{Ctrl+Z}");
  ASSERT_EQ(ToUtf8(desk.control.Text()), "a\r\nb");
  desk.text.MenUNDO(1);
  EXPECT_EQ(ToUtf8(desk.control.Text()), "    a\r\n    b");
}

TEST(Undo, WithNothingToUndoChangesNothing) {
  MainTextDesk desk;
  desk.Put(u"a‸b");
  desk.text.MenUNDO(0);
  desk.text.MenUNDO(1);
  EXPECT_EQ(desk.Row(), "a‸b");
  EXPECT_EQ(desk.state.modified, 0);
}

}  // namespace
}  // namespace kestri
