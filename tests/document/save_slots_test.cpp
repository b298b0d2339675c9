#include "document/save_slots.hpp"

#include <utime.h>

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class Slots : public DocumentTest {
 protected:
  Slots() { state.currentFile = Work("index.html"); }

  std::u16string SlotFile(const std::string& name) const { return Whole("program/SlotSave/" + name); }
  std::string Told() const { return window.messages.empty() ? "(none)" : ToUtf8(window.messages.back()); }
  SaveSlots slots{control, state, *common, *document, window};
};

TEST_F(Slots, SavedTextComesBackAndMarksTheDocumentChanged) {
  ASSERT_TRUE(Open(MakeFile("index.html", "<p>\r\n")));
  control.SetText(u"一行目\r\n二行目\r\n");
  EXPECT_TRUE(slots.SaveSlot(3));
  EXPECT_EQ(Told(), "Slot(3).Save");
  EXPECT_EQ(Bytes(SlotFile("index.html.s03")), Encoded(u"一行目\r\n二行目\r\n\r\n"));
  EXPECT_EQ(state.modified, 0);
  control.SetText(u"他の文");
  EXPECT_TRUE(slots.LoadSlot(3));
  EXPECT_EQ(Told(), "Slot(3).Load");
  EXPECT_EQ(ToUtf8(control.Text()), "一行目\r\n二行目\r\n");
  EXPECT_EQ(state.modified, -1);
  EXPECT_EQ(state.currentFile, Work("index.html"));
  EXPECT_EQ(Bytes(Work("index.html")), "<p>\r\n");
}

TEST_F(Slots, ClosingAsksToSaveAfterALoad) {
  ASSERT_TRUE(Open(MakeFile("index.html", "a\r\n")));
  slots.SaveSlot(0);
  ASSERT_TRUE(document->ConfirmDiscard(u"終了"));
  slots.LoadSlot(0);
  EXPECT_FALSE(document->ConfirmDiscard(u"終了"));
  EXPECT_EQ(boxes.asked.size(), 1U);
}

TEST_F(Slots, TextAroundTheGapIsSavedWhole) {
  control.SetText(u"abcdef");
  control.EM_SETSEL(3, 3);
  Type(u"表");
  slots.SaveSlot(9);
  EXPECT_EQ(Bytes(SlotFile("index.html.s09")), Encoded(u"abc表def\r\n"));
}

TEST_F(Slots, SecondSaveTakesThePlaceOfTheFirst) {
  control.SetText(u"first");
  slots.SaveSlot(1);
  control.SetText(u"second");
  slots.SaveSlot(1);
  EXPECT_EQ(Bytes(SlotFile("index.html.s01")), "second\r\n");
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(Slots, DocumentsOfTheSameNameShareTheirSlots) {
  control.SetText(u"shared");
  slots.SaveSlot(0);
  state.currentFile = Whole("documents/index.html");
  control.SetText(u"");
  EXPECT_TRUE(slots.LoadSlot(0));
  EXPECT_EQ(control.Text(), u"shared");
}

TEST_F(Slots, NewDocumentsShareTheSlotsOfTheirName) {
  state.currentFile = u"無題.htm";
  control.SetText(u"new");
  slots.SaveSlot(2);
  EXPECT_EQ(Bytes(SlotFile("無題.htm.s02")), "new\r\n");
}

TEST_F(Slots, EmptySlotIsNotLoadedAndTheTextStays) {
  control.SetText(u"kept");
  EXPECT_FALSE(slots.DefSlotLoad());
  EXPECT_EQ(Told(), "Error - Slot(0).Load");
  EXPECT_EQ(control.Text(), u"kept");
  EXPECT_EQ(state.modified, 0);
}

TEST_F(Slots, FolderThatCannotBeMadeIsAnError) {
  std::ofstream(ToUtf8(Whole("program/SlotSave"))) << "a file in the way";
  EXPECT_FALSE(slots.SaveSlot(4));
  EXPECT_EQ(Told(), "Error - Slot(4).Save");
}

TEST_F(Slots, FolderThatVanishedIsAnErrorForALoadAndMadeAgainByASave) {
  control.SetText(u"kept");
  ASSERT_TRUE(slots.SaveSlot(4));
  std::filesystem::remove_all(ToUtf8(Whole("program/SlotSave")));
  EXPECT_FALSE(slots.LoadSlot(4));
  EXPECT_EQ(Told(), "Error - Slot(4).Load");
  EXPECT_EQ(control.Text(), u"kept");
  EXPECT_TRUE(slots.SaveSlot(4));
  EXPECT_EQ(Bytes(SlotFile("index.html.s04")), "kept\r\n");
}

TEST_F(Slots, SlotThatIsReadOnlyKeepsItsSnapshot) {
  control.SetText(u"earlier");
  ASSERT_TRUE(slots.SaveSlot(4));
  MakeReadOnly(SlotFile("index.html.s04"));
  control.SetText(u"later");
  EXPECT_FALSE(slots.SaveSlot(4));
  EXPECT_EQ(Told(), "Error - Slot(4).Save");
  EXPECT_EQ(Bytes(SlotFile("index.html.s04")), "earlier\r\n");
  EXPECT_EQ(control.Text(), u"later");
}

TEST_F(Slots, SlotThatIsNoTextIsAnErrorAndTheTextStays) {
  std::filesystem::create_directories(ToUtf8(Whole("program/SlotSave")));
  std::ofstream(ToUtf8(SlotFile("index.html.s04"))) << "a\x1A"
                                                    << "b";
  std::filesystem::create_directory(ToUtf8(SlotFile("index.html.s05")));
  control.SetText(u"kept");
  EXPECT_FALSE(slots.LoadSlot(4));
  EXPECT_FALSE(slots.LoadSlot(5));
  EXPECT_EQ(Told(), "Error - Slot(5).Load");
  EXPECT_FALSE(slots.SaveSlot(5));
  EXPECT_EQ(Told(), "Error - Slot(5).Save");
  EXPECT_EQ(control.Text(), u"kept");
}

TEST_F(Slots, FailedWriteKeepsTheEarlierSnapshot) {
  control.SetText(u"earlier");
  slots.SaveSlot(4);
  control.SetText(u"later");
  files.faultyReplace = SlotFile("index.html.s04");
  EXPECT_FALSE(slots.SaveSlot(4));
  EXPECT_EQ(Told(), "Error - Slot(4).Save");
  EXPECT_EQ(Bytes(SlotFile("index.html.s04")), "earlier\r\n");
}

TEST_F(Slots, SlotTooLongForTheTextIsAnError) {
  control.SetText(u"longer");
  slots.SaveSlot(5);
  document->LimitText(3);
  EXPECT_FALSE(slots.LoadSlot(5));
  EXPECT_EQ(Told(), "Error - Slot(5).Load");
}

TEST_F(Slots, NumberOutsideTheSlotsIsAnErrorAndWritesNothing) {
  EXPECT_FALSE(slots.SaveSlot(10));
  EXPECT_EQ(Told(), "Error - Slot(10).Save");
  EXPECT_FALSE(slots.LoadSlot(-1));
  EXPECT_EQ(Told(), "Error - Slot(-1).Load");
  EXPECT_FALSE(slots.Slot(10));
  EXPECT_EQ(Told(), "Error - Slot(10).Change");
  EXPECT_FALSE(Exists(Whole("program/SlotSave")));
  EXPECT_EQ(Get(u"Setting", u"SaveSlot"), u"(none)");
}

TEST_F(Slots, ChangedDefaultIsKeptAndUsed) {
  EXPECT_EQ(slots.DefaultSlot(), 0);
  EXPECT_TRUE(slots.Slot(7));
  EXPECT_EQ(Told(), "Slot(7).Change");
  EXPECT_EQ(Get(u"Setting", u"SaveSlot"), u"7");
  control.SetText(u"default");
  EXPECT_TRUE(slots.DefSlotSave());
  EXPECT_EQ(Told(), "Slot(7).Save");
  control.SetText(u"");
  EXPECT_TRUE(slots.DefSlotLoad());
  EXPECT_EQ(control.Text(), u"default");
}

TEST_F(Slots, DefaultThatCannotBeKeptIsAnError) {
  files.faultyReplace = common->IniPath(0, u"Kestri");
  EXPECT_FALSE(slots.Slot(7));
  EXPECT_EQ(Told(), "Error - Slot(7).Change");
}

TEST_F(Slots, UnusableDefaultCountsAsSlotZero) {
  Set(u"Setting", u"SaveSlot", u"fast");
  EXPECT_EQ(slots.DefaultSlot(), 0);
  Set(u"Setting", u"SaveSlot", u"10");
  EXPECT_EQ(slots.DefaultSlot(), 0);
}

TEST_F(Slots, MenuShowsTheTimeOfEachFilledSlotAndDashesForTheRest) {
  slots.SaveSlot(3);
  const utimbuf stamp{1044072306, 1044072306};  // 2003-02-01 04:05:06
  ASSERT_EQ(::utime(ToUtf8(SlotFile("index.html.s03")).c_str(), &stamp), 0);
  const auto items = slots.SlotSaveEdit();
  EXPECT_EQ(ToUtf8(items[3].caption), "3: [2003/02/01 04:05:06]");
  EXPECT_TRUE(items[3].filled);
  EXPECT_EQ(ToUtf8(items[9].caption), "9: ------------");
  EXPECT_FALSE(items[9].filled);
}

TEST_F(Slots, ALoadIsTakenBackInOneStep) {
  control.SetText(u"snapshot");
  slots.SaveSlot(0);
  control.SetText(u"");
  Type(u"unsaved work");
  slots.LoadSlot(0);
  EXPECT_EQ(ToUtf8(control.Text()), "snapshot");
  EXPECT_EQ(control.SelStart(), 0);
  control.EM_UNDO();
  EXPECT_EQ(ToUtf8(control.Text()), "unsaved work");
}

TEST_F(Slots, ASaveTellsOfCharactersThatTheSlotCannotHold) {
  control.SetText(u"\U0001F600");
  EXPECT_TRUE(slots.SaveSlot(2));
  EXPECT_EQ(Told(), "Slot(2).Save  ｼﾌﾄJISにない文字は「?」などになりました");
  EXPECT_TRUE(boxes.asked.empty());
}

}  // namespace
}  // namespace kestri
