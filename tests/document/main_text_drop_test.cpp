// Text and files dropped on the text.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::MainTextDesk;
using testing::ElementsAre;

TEST(DroppedText, ReplacesTheSelectionAndTakesTheFocus) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  EXPECT_EQ(desk.text.OLEDropText(u"\t日本\nx"), MainText::Drop::Done);
  EXPECT_EQ(desk.Row(), "a    日本\nx‸c");
  EXPECT_EQ(desk.control.Text().find(u"\r\n"), 7u);
  EXPECT_THAT(desk.Lines({"bring", "focus"}), ElementsAre("bring to front", "focus text"));
  desk.text.EM_UNDO();
  EXPECT_EQ(desk.Row(), "a⟦b⟧c");
}

TEST(DroppedText, BringsTheSignsThatTheCodePageHas) {
  MainTextDesk desk;
  desk.Put(u"‸");
  EXPECT_EQ(desk.text.OLEDropText(u"\u2014\u2016"), MainText::Drop::Done);
  EXPECT_EQ(desk.control.Text(), u"\u2015\u2225");
}

TEST(DroppedText, IsRefusedByAReadOnlyDocument) {
  MainTextDesk desk;
  desk.Put(u"a‸");
  desk.control.SetLocked(true);
  EXPECT_EQ(desk.text.OLEDropText(u"b"), MainText::Drop::Refused);
  EXPECT_EQ(desk.Row(), "a‸");
  EXPECT_THAT(desk.journal, ElementsAre("bring to front", "box: 読み取り専用で開かれています!!"));
  EXPECT_EQ(desk.boxes.asked[0].caption, u"ReadOnly Kestrile");
  EXPECT_EQ(desk.boxes.asked[0].icon, MessageIcon::Exclamation);
}

class DroppedFiles : public testing::Test {
 protected:
  DroppedFiles() {
    desk.files.contents[u"/home/author/猫.htm"] = "<html>";
    desk.files.contents[u"/home/author/b c.txt"] = "text";
  }
  MainTextDesk desk;
};

TEST_F(DroppedFiles, OpenInFurtherInstances) {
  EXPECT_EQ(desk.text.OLEDropFiles({u"/home/author/猫.htm", u"/home/author/b c.txt"}), MainText::Drop::Done);
  EXPECT_THAT(desk.journal, ElementsAre("unload popups", "bring to front", "open anew: /home/author/猫.htm",
                                        "open anew: /home/author/b c.txt"));
}

TEST_F(DroppedFiles, OpenTheFirstOneHereWhenSetSo) {
  desk.SetSetting(u"DragAndDropFileData", u"0");
  EXPECT_EQ(desk.text.OLEDropFiles({u"/home/author/猫.htm", u"/home/author/b c.txt"}), MainText::Drop::Done);
  EXPECT_THAT(desk.journal, ElementsAre("unload popups", "bring to front", "open here: /home/author/猫.htm"));
}

TEST_F(DroppedFiles, OpenHereWithEverySettingButOne) {
  desk.SetSetting(u"DragAndDropFileData", u"2");
  EXPECT_EQ(desk.text.OLEDropFiles({u"/home/author/猫.htm"}), MainText::Drop::Done);
  EXPECT_THAT(desk.Lines({"open"}), ElementsAre("open here: /home/author/猫.htm"));
}

TEST_F(DroppedFiles, OpenFromAReadOnlyDocumentToo) {
  desk.control.SetLocked(true);
  EXPECT_EQ(desk.text.OLEDropFiles({u"/home/author/猫.htm"}), MainText::Drop::Done);
}

TEST_F(DroppedFiles, AFolderIsNone) {
  EXPECT_EQ(desk.text.OLEDropFiles({u"/home/author"}), MainText::Drop::Refused);
  EXPECT_THAT(desk.journal,
              ElementsAre("unload popups", "bring to front", "status: ﾌｧｲﾙ以外は転送できません"));
}

TEST_F(DroppedFiles, BesideAFolderAreOpenedAndTheFolderIsToldOf) {
  EXPECT_EQ(desk.text.OLEDropFiles({u"/home/author", u"/home/author/猫.htm"}), MainText::Drop::Done);
  EXPECT_THAT(desk.Lines({"status", "open"}),
              ElementsAre("status: ﾌｧｲﾙ以外は転送できません", "open anew: /home/author/猫.htm"));
}

TEST_F(DroppedFiles, ThatAreGoneAreNone) {
  EXPECT_EQ(desk.text.OLEDropFiles({u"/home/author/x.htm"}), MainText::Drop::Refused);
  EXPECT_EQ(desk.text.OLEDropFiles({}), MainText::Drop::Refused);
}

TEST(DroppedSelection, IsMovedOrCopiedInOneStep) {
  using Drag = MainText::SelectionDrag;
  struct Row {
    Position to;
    Drag drag;
    const char* after;
  };
  for (const Row& row : {Row{5, Drag::Move, "ade⟦bc⟧f"}, Row{0, Drag::Move, "⟦bc⟧adef"},
                         Row{5, Drag::Copy, "abcde⟦bc⟧f"}, Row{2, Drag::Move, "a⟦bc⟧def"}}) {
    MainTextDesk desk;
    desk.Put(u"a⟦bc⟧def");
    desk.text.DropSelection(row.to, row.drag);
    EXPECT_EQ(desk.Row(), row.after);
    desk.text.EM_UNDO();
    EXPECT_EQ(desk.control.Text(), u"abcdef");
  }
}

TEST(DroppedSelection, IsRefusedByAReadOnlyDocument) {
  MainTextDesk desk;
  desk.Put(u"a⟦bc⟧def");
  desk.control.SetLocked(true);
  desk.text.DropSelection(5, MainText::SelectionDrag::Move);
  EXPECT_EQ(desk.Row(), "a⟦bc⟧def");
  EXPECT_THAT(desk.Messages(), ElementsAre("beep", "status: 読み取り専用で開かれています"));
}

TEST(DroppedAnythingElse, Beeps) {
  MainTextDesk desk;
  EXPECT_EQ(desk.text.OLEDropOther(), MainText::Drop::Refused);
  EXPECT_THAT(desk.journal, ElementsAre("beep"));
}

}  // namespace
}  // namespace kestri
