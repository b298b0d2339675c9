// Enter, the indent keys, Home, Esc and the gate between a key and its character.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::Journal;
using fakes::MainTextDesk;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct KeyRow {
  std::string name;
  std::u16string before;
  std::u16string keys;
  std::u16string after;
  std::function<void(MainTextDesk&)> setUp = [](MainTextDesk&) {};
};

class KeyRows : public testing::TestWithParam<KeyRow> {};

TEST_P(KeyRows, GiveTheText) {
  MainTextDesk desk;
  desk.state.fileKind = kFileTypeText;
  GetParam().setUp(desk);
  desk.Put(GetParam().before);
  desk.Press(GetParam().keys);
  EXPECT_EQ(desk.Row(), ToUtf8(GetParam().after));
}

std::string RowName(const testing::TestParamInfo<KeyRow>& info) {
  return info.param.name;
}

void NoAutoIndent(MainTextDesk& desk) {
  desk.state.tabASeT = 0;
}
void NoTabConversion(MainTextDesk& desk) {
  desk.state.tabSpaceCount = 0;
}
void EightBlanks(MainTextDesk& desk) {
  desk.state.tabSpaceCount = 2;
}
void NoSubclass(MainTextDesk& desk) {
  desk.text.InstallSubclass(0);
}
void AsciiArt(MainTextDesk& desk) {
  desk.state.fileKind = kFileTypeAsciiArt;
}
void Locked(MainTextDesk& desk) {
  desk.control.SetLocked(true);
}

INSTANTIATE_TEST_SUITE_P(
    Enter, KeyRows,
    testing::Values(
        KeyRow{"AtPositionZeroBreaksPlainly", u"‸  a", u"{Enter}", u"\n‸  a"},
        KeyRow{"InAnEmptyDocumentBreaksPlainly", u"‸", u"{Enter}", u"\n‸"},
        KeyRow{"AtALineHeadBreaksPlainly", u"  a\n‸  b", u"{Enter}", u"  a\n\n‸  b"},
        KeyRow{"CopiesHalfWidthBlanks", u"    <p>‸", u"{Enter}", u"    <p>\n    ‸"},
        KeyRow{"CopiesFullWidthBlanks", u"　　吾輩は猫である‸", u"{Enter}", u"　　吾輩は猫である\n　　‸"},
        KeyRow{"ExpandsTabsInTheIndent", u"\t<p>‸", u"{Enter}", u"\t<p>\n    ‸"},
        KeyRow{"KeepsTabsWithoutConversion", u"\t<p>‸", u"{Enter}", u"\t<p>\n\t‸", NoTabConversion},
        KeyRow{"KeepsTabsWithoutSubclass", u"\t<p>‸", u"{Enter}", u"\t<p>\n\t‸", NoSubclass},
        KeyRow{"CopiesMixedBlanks", u" 　\t a‸b", u"{Enter}", u" 　\t a\n 　\t ‸b", NoTabConversion},
        KeyRow{"InsideBlanksCopiesOnlyThoseLeftOfTheCaret", u"  ‸    a", u"{Enter}", u"  \n  ‸    a"},
        KeyRow{"OnABlankLineCopiesItWhole", u"a\n   ‸", u"{Enter}", u"a\n   \n   ‸"},
        KeyRow{"WithoutIndentBreaksTheLine", u"ab‸cd", u"{Enter}", u"ab\n‸cd"},
        KeyRow{"ReplacesTheSelection", u"  a⟦bc⟧d", u"{Enter}", u"  a\n  ‸d"},
        KeyRow{"OverLinesTakesTheIndentOfTheFirst", u"  a⟦b\n      c⟧d", u"{Enter}", u"  a\n  ‸d"},
        KeyRow{"WithAutoIndentOffBreaksPlainly", u"    a‸", u"{Enter}", u"    a\n‸", NoAutoIndent},
        KeyRow{"InAReadOnlyDocumentDoesNothing", u"  a‸", u"{Enter}", u"  a‸", Locked}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Tab, KeyRows,
    testing::Values(
        KeyRow{"BecomesFourBlanks", u"a‸b", u"{Tab}", u"a    ‸b"},
        KeyRow{"BecomesEightBlanksAtLevelTwo", u"a‸", u"{Tab}", u"a        ‸", EightBlanks},
        KeyRow{"StaysATabWithoutConversion", u"あ‸", u"{Tab}", u"あ\t‸", NoTabConversion},
        KeyRow{"StaysATabWithoutSubclass", u"あ‸", u"{Tab}", u"あ\t‸", NoSubclass},
        KeyRow{"WithControlIsSwallowed", u"a‸", u"{Ctrl+Tab}", u"a‸"},
        KeyRow{"InAReadOnlyDocumentDoesNothing", u"a‸", u"{Tab}", u"a‸", Locked},
        KeyRow{"InAReadOnlyDocumentMovesNoBlock", u"⟦a\nb⟧", u"{Tab}", u"⟦a\nb⟧", Locked},
        KeyRow{"WithinOneLineIndentsTheWholeLine", u"a⟦b⟧c", u"{Tab}", u"⟦    abc⟧"},
        KeyRow{"IndentsEveryLine", u"x\n<p⟦>\n犬\n⟧猫\ny", u"{Tab}", u"x\n⟦    <p>\n    犬\n    猫⟧\ny"},
        KeyRow{"TakesInTheLineInWhoseFirstColumnTheSelectionEnds", u"⟦a\n⟧b\nc", u"{Tab}",
               u"⟦    a\n    b⟧\nc"},
        KeyRow{"IndentsEmptyLinesToo", u"⟦a\n\nb⟧", u"{Tab}", u"⟦    a\n    \n    b⟧"},
        KeyRow{"IndentsTheLastLineWithoutALineEnd", u"a\n⟦b⟧", u"{Tab}", u"a\n⟦    b⟧"},
        KeyRow{"IndentsByATabWithoutConversion", u"⟦a\nb⟧", u"{Tab}", u"⟦\ta\n\tb⟧", NoTabConversion},
        KeyRow{"ExpandsTheTabsOfTheBlock", u"⟦\ta\tb⟧", u"{Tab}", u"⟦        a    b⟧"},
        KeyRow{"MovesABlockInAsciiArt", u"⟦a⟧", u"{Tab}", u"⟦    a⟧", AsciiArt},
        KeyRow{"MovesABackwardSelectionAsWell", u"a⟦‸b\nc⟧d", u"{Tab}", u"⟦    ab\n    cd⟧"},
        KeyRow{"TwiceIndentsTwoLevels", u"⟦a⟧", u"<{Ctrl+Z}{Ctrl+A}{Tab}{Tab}", u"⟦        a⟧"}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    CtrlBackspace, KeyRows,
    testing::Values(
        KeyRow{"WithoutSelectionDoesNothing", u"    ab‸", u"{Ctrl+Backspace}", u"    ab‸"},
        KeyRow{"TakesOneLevelOff", u"⟦        a\n    b⟧", u"{Ctrl+Backspace}", u"⟦    a\nb⟧"},
        KeyRow{"LeavesPartialIndents", u"⟦   a\n    b⟧", u"{Ctrl+Backspace}", u"⟦   a\nb⟧"},
        KeyRow{"LeavesFullWidthBlanks", u"⟦　　a\n    b⟧", u"{Ctrl+Backspace}", u"⟦　　a\nb⟧"},
        KeyRow{"LeavesATabThatIsNoLevel", u"⟦\ta⟧", u"{Ctrl+Backspace}", u"⟦\ta⟧"},
        KeyRow{"TakesATabOffWithoutConversion", u"⟦\ta\n\t\tb⟧", u"{Ctrl+Backspace}", u"⟦a\n\tb⟧",
               NoTabConversion},
        KeyRow{"WidensTheSelectionThoughNothingChanges", u"x\na⟦b⟧c\ny", u"{Ctrl+Backspace}", u"x\n⟦abc⟧\ny"},
        KeyRow{"LeavesBlanksInsideALine", u"⟦a    b⟧", u"{Ctrl+Backspace}", u"⟦a    b⟧"},
        KeyRow{"EmptiesALineOfOneLevel", u"⟦    ⟧", u"{Ctrl+Backspace}", u"‸"},
        KeyRow{"TakesEightBlanksAtLevelTwo", u"⟦        a\n    b⟧", u"{Ctrl+Backspace}", u"⟦a\n    b⟧",
               EightBlanks},
        KeyRow{"TakesBackWhatTabHasPutIn", u"⟦あ\n\n い⟧", u"{Tab}{Ctrl+Backspace}", u"⟦あ\n\n い⟧"},
        KeyRow{"InAReadOnlyDocumentDoesNothing", u"⟦    a⟧", u"{Ctrl+Backspace}", u"⟦    a⟧", Locked}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Home, KeyRows,
    testing::Values(KeyRow{"StopsBehindTheIndent", u"a\n    b‸c", u"{Home}", u"a\n    ‸bc"},
                    KeyRow{"PassesFullWidthBlanksAndTabs", u"　\t 春‸", u"{Home}", u"　\t ‸春"},
                    KeyRow{"ASecondTimeStaysThere", u"    b‸c", u"{Home}{Home}", u"    ‸bc"},
                    KeyRow{"FromInsideTheIndentGoesToItsEnd", u"  ‸  b", u"{Home}", u"    ‸b"},
                    KeyRow{"OnABlankLineGoesToItsEnd", u"a\n ‸  \nb", u"{Home}", u"a\n   ‸\nb"},
                    KeyRow{"OnAnEmptyLineStays", u"a\n‸\nb", u"{Home}", u"a\n‸\nb"},
                    KeyRow{"OnTheLastLineCountsToTheTextsEnd", u"a\n  ‸ ", u"{Home}", u"a\n   ‸"},
                    KeyRow{"WithoutIndentGoesToTheLineHead", u"ab‸", u"{Home}", u"‸ab"},
                    KeyRow{"WithSmartHomeOffGoesToColumnZero", u"    b‸", u"{Home}", u"‸    b", NoAutoIndent},
                    KeyRow{"InAReadOnlyDocumentGoesToColumnZero", u"    b‸", u"{Home}", u"‸    b", Locked},
                    KeyRow{"WithShiftSelectsBackToTheIndentsEnd", u"    bc‸d", u"{Shift+Home}",
                           u"    ⟦‸bc⟧d"},
                    KeyRow{"WithControlGoesToTheFirstLinesIndent", u"  a\nb‸", u"{Ctrl+Home}", u"  ‸a\nb"}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Others, KeyRows,
    testing::Values(
        KeyRow{"TypeThemselves", u"‸", u"abあ亜ｱ", u"abあ亜ｱ‸"},
        KeyRow{"ReplaceTheSelection", u"a⟦b\nc⟧d", u"X", u"aX‸d"},
        KeyRow{"CtrlBackslashIsSwallowed", u"a‸", u"{Ctrl+\\}", u"a‸"},
        KeyRow{"CtrlBackslashLeavesTheSelection", u"⟦a⟧", u"{Ctrl+\\}", u"⟦a⟧"},
        KeyRow{"EscTakesTheSelectionAway", u"a⟦bc⟧d", u"{Esc}", u"a‸bcd"},
        KeyRow{"EscTakesTheSelectionAwayInAReadOnlyDocument", u"a⟦bc⟧d", u"{Esc}", u"a‸bcd", Locked},
        KeyRow{"EscWithoutSubclassLeavesTheSelection", u"a⟦bc⟧d", u"{Esc}", u"a⟦bc⟧d", NoSubclass},
        KeyRow{"BackspaceTakesALineEndWhole", u"a\n‸b", u"{Backspace}", u"a‸b"},
        KeyRow{"DeleteTakesALineEndWhole", u"a‸\nb", u"{Delete}", u"a‸b"},
        KeyRow{"InAReadOnlyDocumentTypeNothing", u"a‸", u"x<= あ{Backspace}", u"a‸", Locked}),
    RowName);

TEST(KeyGate, IsOpenForOneCharacterOnly) {
  MainTextDesk desk;
  desk.Put(u"  a‸");
  desk.text.KeyDown(0, 0);
  EXPECT_EQ(desk.text.KeyPress(13), 0);
  EXPECT_EQ(desk.text.KeyPress(13), 13);
}

TEST(KeyGate, LetsCharactersOfTheProgramPassUntouched) {
  MainTextDesk desk;
  desk.Put(u"  a‸");
  desk.text.WM_CHAR(u'<', 0);
  desk.text.WM_CHAR(9, -1);
  desk.text.WM_CHAR(13, 0);
  EXPECT_EQ(desk.Row(), "  a<\t\n‸");
  EXPECT_THAT(desk.Messages(), IsEmpty());
}

TEST(KeyGate, IsClosedByTheKeysRelease) {
  MainTextDesk desk;
  desk.Put(u"  a‸");
  desk.text.KeyDown(kKeyDelete, 0);
  desk.text.KeyUp(kKeyDelete, 0);
  EXPECT_EQ(desk.text.KeyPress(u'<'), u'<');
}

// The release may go to a popup or to another window.
TEST(KeyGate, IsClosedByAKeyThatBringsNoCharacterEvenIfItsReleaseIsLost) {
  using Press = std::function<void(MainText&)>;
  const Press presses[] = {
      [](MainText& text) {
        if (!text.KeyDown(kKeyHome, 0)) text.WM_KEYDOWN(EditKey::Home, {});
      },
      [](MainText& text) {
        if (!text.KeyDown(kKeyDelete, 0)) text.WM_KEYDOWN(EditKey::Delete, {});
      },
      [](MainText& text) { EXPECT_TRUE(text.KeyDown(kKeyTab, kControl)); },
      [](MainText& text) {
        if (!text.KeyDown(0, 0)) text.CommitInput(u"𠮷");
      },
  };
  for (const Press& press : presses) {
    MainTextDesk desk;
    desk.Put(u"‸");
    press(desk.text);
    desk.text.WM_CHAR(u'<', 0);
    EXPECT_EQ(desk.control.At(desk.control.SelStart() - 1), u'<');
    EXPECT_THAT(desk.Lines({"preset", "popup"}), IsEmpty());
  }
}

TEST(KeyGate, StaysOpenInAReadOnlyDocument) {
  MainTextDesk desk;
  desk.Put(u"  a‸");
  desk.control.SetLocked(true);
  desk.text.KeyDown(0, 0);
  EXPECT_EQ(desk.text.KeyPress(13), 0);
  desk.text.KeyUp(0, 0);
  desk.control.SetLocked(false);
  EXPECT_EQ(desk.text.KeyPress(13), 0) << "the gate was left as it was";
}

TEST(KeyDown, SwallowsCtrlTabAlone) {
  MainTextDesk desk;
  EXPECT_TRUE(desk.text.KeyDown(kKeyTab, kControl));
  EXPECT_FALSE(desk.text.KeyDown(kKeyTab, 0));
  EXPECT_FALSE(desk.text.KeyDown(kKeyTab, kShift));
  EXPECT_FALSE(desk.text.KeyDown(kKeyTab, kControl | kShift));
  EXPECT_FALSE(desk.text.KeyDown(kKeyHome, kControl));
}

TEST(Esc, ClearsThePaneAndSendsTheHintAway) {
  MainTextDesk desk;
  desk.Put(u"<a‸>");
  desk.Press(u"{Esc}");
  EXPECT_THAT(desk.Lines({"pane", "dismiss", "drag"}), ElementsAre("pane 1: ", "dismiss hint"));
}

TEST(Esc, EndsDragging) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧");
  desk.text.WM_LBUTTONDOWN();
  ASSERT_TRUE(desk.text.DragMode());
  desk.Press(u"{Esc}");
  EXPECT_FALSE(desk.text.DragMode());
  EXPECT_THAT(desk.Lines({"drag"}), ElementsAre("drag on", "drag off"));
}

TEST(BlockIndent, HidesTheTextForItsDuration) {
  MainTextDesk desk;
  desk.Put(u"⟦a\nb⟧");
  desk.Press(u"{Tab}");
  EXPECT_THAT(desk.Lines({"hide text", "show text", "focus"}),
              ElementsAre("hide text", "focus text", "show text"));
}

TEST(BlockIndent, ThatChangesNothingLeavesNoUndoStep) {
  MainTextDesk desk;
  desk.Put(u"⟦a\nb⟧");
  desk.Press(u"{Ctrl+Backspace}");
  EXPECT_FALSE(desk.control.EM_CANUNDO());
  EXPECT_EQ(desk.state.modified, 0);
  EXPECT_THAT(desk.journal, Not(Contains("focus text")));
}

struct UndoRow {
  std::u16string before;
  std::u16string keys;
};

TEST(Commands, AreEachUndoneInOneStep) {
  for (const UndoRow& row :
       {UndoRow{u"    a‸b", u"{Enter}"}, UndoRow{u"  a⟦b⟧", u"{Enter}"}, UndoRow{u"a‸", u"{Tab}"},
        UndoRow{u"⟦春\n夏⟧", u"{Tab}"}, UndoRow{u"⟦    春\n    夏⟧", u"{Ctrl+Backspace}"},
        UndoRow{u"a⟦b⟧", u"{ime:日本}"}, UndoRow{u"a⟦b⟧c", u"{Ctrl+X}"}}) {
    MainTextDesk desk;
    desk.Put(row.before);
    desk.Press(row.keys);
    ASSERT_NE(desk.Row(), ToUtf8(row.before)) << ToUtf8(row.keys);
    desk.text.MenUNDO(0);
    EXPECT_EQ(desk.Row(), ToUtf8(row.before)) << ToUtf8(row.keys);
  }
}

TEST(Commands, DoNotRunTogetherWithTheTypingAroundThem) {
  MainTextDesk desk;
  desk.Put(u"‸");
  desk.Press(u"ab{Tab}cd{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "ab    ‸");
  desk.Press(u"{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "ab‸");
}

TEST(BlockIndent, UndoneGivesTheFormerSelectionBack) {
  MainTextDesk desk;
  desk.Put(u"x\na⟦b\nc⟧d");
  desk.Press(u"{Tab}{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "x\na⟦b\nc⟧d");
}

TEST(KeyError, IsToldInABoxAndTheKeyIsSwallowed) {
  MainTextDesk desk;
  desk.Put(u"a‸");
  desk.tags.failing = true;
  desk.Press(u"<");
  EXPECT_EQ(desk.Row(), "a‸");
  ASSERT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_EQ(desk.boxes.asked[0].text, u"不明なｴﾗｰが発生しました");
  EXPECT_EQ(desk.boxes.asked[0].caption, u"Kestrile");
  EXPECT_EQ(desk.boxes.asked[0].icon, MessageIcon::Exclamation);
  desk.tags.failing = false;
  desk.Press(u"b");
  EXPECT_EQ(desk.Row(), "ab‸");
}

TEST(KeyError, OfAReleaseIsToldToo) {
  MainTextDesk desk;
  desk.Put(u"a‸");
  desk.tags.failingHints = true;
  desk.text.KeyUp(0, 0);
  EXPECT_THAT(desk.Messages(), ElementsAre("box: 不明なｴﾗｰが発生しました"));
}

// A painter that fails, for messages that ask nothing else of their surroundings.
class FailingPainter : public fakes::MainTextRecorder {
 public:
  using MainTextRecorder::MainTextRecorder;
  void PaintTextDecor(Decor) override {
    if (failing) throw std::runtime_error("no memory for the picture");
  }
  bool failing = false;
};

TEST(Errors, ThatEscapeAMessageAreToldInABox) {
  using Send = std::function<void(MainText&)>;
  const Send messages[] = {
      [](MainText& text) { text.WM_KEYDOWN(EditKey::Left, {}); },
      [](MainText& text) { text.WM_PASTE(); },
      [](MainText& text) { text.PasteAt(1, u"x"); },
      [](MainText& text) { text.CommitInput(u"x"); },
      [](MainText& text) { text.DropSelection(3, MainText::SelectionDrag::Move); },
      [](MainText& text) { text.DropSelection(3, MainText::SelectionDrag::Copy); },
      [](MainText& text) { text.OLEDropText(u"x"); },
      [](MainText& text) { text.Edit(0); },
      [](MainText& text) { text.Edit(5); },
      [](MainText& text) { text.MenUNDO(0); },
  };
  for (const Send& send : messages) {
    MainTextDesk desk;
    FailingPainter host(desk.journal);
    MainText text(desk.control, desk.state, desk.common, host, desk.tags, desk.clipboard, desk.boxes);
    text.InstallSubclass(1);
    desk.clipboard.text = u"x";
    desk.Put(u"a⟦b⟧cd");
    desk.control.EM_REPLACESEL(true, u"B");
    desk.Put(u"a⟦b⟧cd");
    host.failing = true;
    EXPECT_NO_THROW(send(text));
    EXPECT_THAT(desk.Messages(), ElementsAre("box: 不明なｴﾗｰが発生しました"));
  }
}

TEST(KeyError, OfTheEventAloneAnswersWithNoKey) {
  MainTextDesk desk;
  desk.Put(u"a‸");
  desk.tags.failing = true;
  desk.text.KeyDown(0, 0);
  EXPECT_EQ(desk.text.KeyPress(u'<'), 0);
  EXPECT_EQ(desk.boxes.asked.size(), 1u);
}

TEST(KeyUp, ChecksTheHintInHtmlWithHintsOn) {
  struct Row {
    std::int32_t fileKind;
    std::int16_t hints;
    bool checked;
  };
  for (const Row& row : {Row{kFileTypeHtml, 1, true}, Row{kFileTypeHtml, 0, false},
                         Row{kFileTypeText, 1, false}, Row{kFileTypeAsciiArt, 1, false}}) {
    MainTextDesk desk;
    desk.state.fileKind = row.fileKind;
    desk.state.htmlNAVkeyB_AUTO = row.hints;
    desk.text.KeyUp(0, 0);
    EXPECT_EQ(desk.Lines({"check hint"}).size(), row.checked ? 1u : 0u) << row.fileKind << ' ' << row.hints;
  }
}

TEST(KeyUp, ChecksTheHintInAReadOnlyDocumentToo) {
  MainTextDesk desk;
  desk.control.SetLocked(true);
  desk.text.KeyUp(0, 0);
  EXPECT_THAT(desk.Lines({"check hint"}), ElementsAre("check hint"));
}

TEST(SmartHome, LeavesTheCaretWhenAnotherKeyHasMovedIt) {
  MainTextDesk desk;
  desk.Put(u"ab‸    cd");
  desk.text.KeyUp(kKeyHome, 0);
  EXPECT_EQ(desk.Row(), "ab‸    cd");
}

TEST(Change, MarksTheDocumentOnce) {
  MainTextDesk desk;
  desk.Put(u"‸");
  desk.Press(u"ab");
  EXPECT_EQ(desk.state.modified, -1);
  EXPECT_EQ(desk.state.modifiedShown, -1);
  EXPECT_THAT(desk.Lines({"pane 2"}), ElementsAre("pane 2: 変更あり"));
}

TEST(Change, AfterASaveMarksItAnew) {
  MainTextDesk desk;
  desk.Put(u"‸");
  desk.Press(u"a");
  desk.state.modified = desk.state.modifiedShown = 0;
  desk.Press(u"b");
  EXPECT_EQ(desk.state.modified, -1);
  EXPECT_EQ(desk.Lines({"pane 2"}).size(), 2u);
}

TEST(MouseDown, HidesTheHint) {
  MainTextDesk desk;
  desk.text.MouseDown();
  EXPECT_THAT(desk.journal, ElementsAre("hide hint"));
}

}  // namespace
}  // namespace kestri
