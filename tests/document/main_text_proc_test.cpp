// What each message repaints, and what it does besides.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::Journal;
using fakes::MainTextDesk;
using testing::ElementsAre;
using testing::IsEmpty;

const Journal kRefresh = {"reset caret memo", "paint all rows"};
const Journal kSoftRefresh = {"paint all rows"};
const Journal kPartial = {"paint changed rows"};
const Journal kNothing = {};

struct MessageRow {
  std::string name;
  std::function<void(MainText&)> send;
  Journal decor;
};

class MessageRows : public testing::TestWithParam<MessageRow> {};

TEST_P(MessageRows, Repaint) {
  MainTextDesk desk;
  desk.state.fileKind = kFileTypeText;
  desk.clipboard.text = u"x";
  desk.Put(u"a⟦b⟧c");
  GetParam().send(desk.text);
  EXPECT_EQ(desk.Decor(), GetParam().decor);
}

TEST_P(MessageRows, PaintNothingWithoutTheSubclass) {
  MainTextDesk desk;
  desk.text.InstallSubclass(0);
  desk.Put(u"a⟦b⟧c");
  GetParam().send(desk.text);
  EXPECT_THAT(desk.Decor(), IsEmpty());
}

std::function<void(MainText&)> Character(char16_t character, int lParam) {
  return [=](MainText& text) { text.WM_CHAR(character, lParam); };
}
std::function<void(MainText&)> Down(EditKey key, KeyModifiers modifiers = {}) {
  return [=](MainText& text) { text.WM_KEYDOWN(key, modifiers); };
}

const Journal kMoved = {"reset caret memo", "paint all rows"};
const Journal kSelecting = {"reset caret memo", "paint changed rows"};

INSTANTIATE_TEST_SUITE_P(
    Rows, MessageRows,
    testing::Values(
        MessageRow{"SetText", [](MainText& text) { text.WM_SETTEXT(u"x"); }, kSoftRefresh},
        MessageRow{"ReplaceSel", [](MainText& text) { text.EM_REPLACESEL(u"x"); }, kSoftRefresh},
        MessageRow{"Paint", [](MainText& text) { text.WM_PAINT(); }, kRefresh},
        MessageRow{"SetSel", [](MainText& text) { text.EM_SETSEL(0, 1); }, kRefresh},
        MessageRow{"Undo", [](MainText& text) { text.EM_UNDO(); }, kRefresh},
        MessageRow{"Redo", [](MainText& text) { text.EM_REDO(); }, kRefresh},
        MessageRow{"Cut", [](MainText& text) { text.WM_CUT(); }, kRefresh},
        MessageRow{"Clear", [](MainText& text) { text.WM_CLEAR(); }, kRefresh},
        MessageRow{"Copy", [](MainText& text) { text.WM_COPY(); }, kNothing},
        MessageRow{"Paste", [](MainText& text) { text.WM_PASTE(); }, kSoftRefresh},
        MessageRow{"CommitInput", [](MainText& text) { text.CommitInput(u"日本"); }, kSoftRefresh},
        MessageRow{"LeftButtonDown", [](MainText& text) { text.WM_LBUTTONDOWN(); }, kRefresh},
        MessageRow{"DoubleClick", [](MainText& text) { text.WM_LBUTTONDBLCLK(); }, kRefresh},
        MessageRow{"ButtonUp", [](MainText& text) { text.WM_BUTTONUP(); }, kNothing},
        MessageRow{"LeftKey", Down(EditKey::Left), kMoved},
        MessageRow{"RightKey", Down(EditKey::Right), kMoved}, MessageRow{"UpKey", Down(EditKey::Up), kMoved},
        MessageRow{"DownKey", Down(EditKey::Down), kMoved},
        MessageRow{"HomeKey", Down(EditKey::Home), kMoved}, MessageRow{"EndKey", Down(EditKey::End), kMoved},
        MessageRow{"PageUpKey", Down(EditKey::PageUp), kMoved},
        MessageRow{"PageDownKey", Down(EditKey::PageDown), kMoved},
        MessageRow{"SelectingKey", Down(EditKey::Right, {.shift = true}), kSelecting},
        MessageRow{"DeleteKey", Down(EditKey::Delete), kRefresh},
        MessageRow{"Backspace", Character(8, 1), kRefresh},
        MessageRow{"Enter", Character(13, 1), kSoftRefresh}, MessageRow{"Escape", Character(27, 1), kRefresh},
        MessageRow{"Letter", Character(u'a', 1), kPartial},
        MessageRow{"HalfWidthKana", Character(u'ｱ', 1), kPartial},
        MessageRow{"KanjiFromTheKeyboard", Character(u'亜', 1), kNothing},
        MessageRow{"KanjiFromTheProgram", Character(u'亜', 0), kPartial},
        MessageRow{"FullWidthBlankFromTheKeyboard", Character(u'　', 1), kPartial},
        MessageRow{"FullWidthSymbolFromTheKeyboard", Character(u'＜', 1), kPartial}),
    [](const auto& test) { return test.param.name; });

TEST(MainTextProc, PaintsTheFirstStateWhenInstalled) {
  MainTextDesk desk;
  desk.text.InstallSubclass(1);
  EXPECT_EQ(desk.journal, kRefresh);
  EXPECT_TRUE(desk.text.Subclassed());
}

TEST(MainTextProc, IsInstalledByTheSetting) {
  MainTextDesk desk;
  desk.text.InstallSubclass(0);
  desk.text.InstallSubclassAsSet();
  EXPECT_TRUE(desk.text.Subclassed()) << "on without the setting";
  desk.SetSetting(u"SubClass", u"0");
  desk.text.InstallSubclassAsSet();
  EXPECT_FALSE(desk.text.Subclassed());
  desk.SetSetting(u"SubClass", u"1");
  desk.text.InstallSubclassAsSet();
  EXPECT_TRUE(desk.text.Subclassed());
}

TEST(ContextMenu, IsTheProgramsOwnWhereSetSo) {
  MainTextDesk desk;
  EXPECT_TRUE(desk.text.WM_CONTEXTMENU());
  EXPECT_THAT(desk.journal, ElementsAre("text menu"));
  desk.journal.clear();
  desk.state.popUpMen = 0;
  EXPECT_FALSE(desk.text.WM_CONTEXTMENU());
  desk.state.popUpMen = 1;
  desk.text.InstallSubclass(0);
  EXPECT_FALSE(desk.text.WM_CONTEXTMENU());
  EXPECT_THAT(desk.journal, IsEmpty());
}

TEST(MouseMove, RepaintsWhenTheSelectionHasGrown) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.WM_MOUSEMOVE(0);
  EXPECT_EQ(desk.Decor(), kSoftRefresh);
}

TEST(MouseMove, OverTheSameSelectionRepaintsNothing) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.WM_MOUSEMOVE(1);
  EXPECT_THAT(desk.Decor(), IsEmpty());
}

TEST(MouseMove, WithAHintInSightRepaintsNothing) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.tags.hintVisible = true;
  desk.text.WM_MOUSEMOVE(0);
  EXPECT_THAT(desk.Decor(), IsEmpty());
}

TEST(DragMode, BeginsWithAPressOnASelection) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.WM_LBUTTONDOWN();
  desk.text.WM_LBUTTONDOWN();
  EXPECT_TRUE(desk.text.DragMode());
  EXPECT_THAT(desk.Lines({"drag"}), ElementsAre("drag on"));
}

TEST(DragMode, EndsWithAPressOutsideASelection) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.WM_LBUTTONDOWN();
  desk.control.SetSelLength(0);
  desk.text.WM_LBUTTONDOWN();
  EXPECT_FALSE(desk.text.DragMode());
  EXPECT_THAT(desk.Lines({"drag"}), ElementsAre("drag on", "drag off"));
}

TEST(DragMode, EndsWithTheButton) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.WM_LBUTTONDOWN();
  desk.text.WM_BUTTONUP();
  desk.text.WM_BUTTONUP();
  EXPECT_THAT(desk.Lines({"drag"}), ElementsAre("drag on", "drag off"));
}

TEST(DragMode, EndsWithTheSubclass) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.WM_LBUTTONDOWN();
  desk.text.InstallSubclass(0);
  EXPECT_FALSE(desk.text.DragMode());
  EXPECT_THAT(desk.Lines({"drag"}), ElementsAre("drag on", "drag off"));
}

TEST(DragMode, NeverBeginsWhereSwitchedOff) {
  MainTextDesk desk;
  desk.state.dragModeTrue = 0;
  desk.Put(u"a⟦b⟧c");
  desk.text.WM_LBUTTONDOWN();
  EXPECT_FALSE(desk.text.DragMode());
  desk.state.dragModeTrue = 1;
  desk.text.InstallSubclass(0);
  desk.text.WM_LBUTTONDOWN();
  EXPECT_FALSE(desk.text.DragMode());
}

}  // namespace
}  // namespace kestri
