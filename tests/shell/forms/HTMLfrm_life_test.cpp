// The editor window from its load to its close.
#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QTimer>

#include "shell/common/code_page.hpp"
#include "shell/forms/HTMLfrm.hpp"
#include "shell/forms/menu_hint_text.hpp"
#include "tests/shell/forms/editor_desk.hpp"

namespace kestri {
namespace {

using fakes::EditorDesk;

class Life : public testing::Test {
 protected:
  std::u16string Kept(std::u16string_view section, std::u16string_view key) {
    return desk.common->GetINI(u"Kestri", section, key, u"(unset)");
  }
  EditorDesk desk;
};

TEST_F(Life, EveryStageOfTheLoadIsToldInItsOrder) {
  fakes::RecordedProgress progress;
  desk.progress = &progress;
  desk.Open();
  EXPECT_EQ(progress.texts, (std::vector<std::u16string>{
                                u"ﾒﾓﾘ初期化中...", u"ｱﾌﾟﾘｹｰｼｮﾝ設定中...", u"ﾘｿｰｽ中からｱｲｺﾝ抽出中...",
                                u"ﾒﾆｭｰｱｲｺﾝ設定中...", u"ﾒﾆｭｰﾋﾝﾄ設定中...", u"ﾂｰﾙﾊﾞｰ復元中...",
                                u"ｳｨﾝﾄﾞｳｻｲｽﾞ復元中...", u"ｻﾌﾞｸﾗｽ化設定中...", u"初期ﾌｧｲﾙ設定中..."}));
}

TEST_F(Life, MenuIconsAndTheirStageAreLeftOutWhenTheyAreOff) {
  desk.Set(u"Setting", u"MenIcon", u"0");
  fakes::RecordedProgress progress;
  desk.progress = &progress;
  HTMLfrm& window = desk.Open();
  EXPECT_EQ(std::count(progress.texts.begin(), progress.texts.end(), u"ﾒﾆｭｰｱｲｺﾝ設定中..."), 0);
  window.Commands().Menu(TopMenu::File);
  EXPECT_TRUE(window.Commands().Action(*FindCommand("MenFileM", 0))->icon().isNull());
}

TEST_F(Life, LoadSetsTheMenuAnimationAndTheLastCloseBringsItBack) {
  desk.Set(u"Setting", u"MenuAnimation", u"0");
  desk.Open();
  using Calls = std::vector<std::pair<std::int16_t, std::int32_t>>;
  EXPECT_EQ(desk.effects.calls, (Calls{{0, 0}, {0, 2}}));
  desk.effects.calls.clear();
  desk.window->close();
  EXPECT_EQ(desk.effects.calls, (Calls{{-1, 0}, {-1, 2}}));
}

TEST_F(Life, CloseBesideAnotherProcessLeavesAnimationsAndLog) {
  desk.environment.processes = {desk.folder.Text(u"Kestri"), desk.folder.Text(u"Kestri")};
  desk.Open();
  desk.common->SetINIex(2, desk.folder.Text(u"Kestri_TEMP_FileLog.INI"), u"HWND", u"002HWND", u"4712");
  desk.effects.calls.clear();
  desk.window->close();
  EXPECT_TRUE(desk.effects.calls.empty());
  EXPECT_TRUE(desk.common->PathExists(desk.folder.Text(u"Kestri_TEMP_FileLog.INI")));
}

TEST_F(Life, CloseWritesEveryKeyThatItRemembers) {
  desk.Open();
  desk.window->close();
  for (const char16_t* key : {u"NawPath", u"FontName", u"FontSize", u"htmlNAVkeyB_AUTO", u"htmlNAVkeyB",
                              u"htmlNAV", u"TabSpaceCount", u"TextTrp", u"TrpString", u"DragModeTrue",
                              u"MenuHints", u"PopUpMen", u"GLine", u"MenuAnimation", u"TabASeT"}) {
    EXPECT_NE(Kept(u"Setting", key), u"(unset)") << ToUtf8(key);
  }
  for (const char16_t* key : {u"Dkg", u"FileInfo", u"DirectoryTreeWidth"})
    EXPECT_NE(Kept(u"Bar", key), u"(unset)") << ToUtf8(key);
  for (const char16_t* key : {u"IMGTint", u"FontSize", u"FontStyle", u"LEFT", u"TOP", u"Worp"})
    EXPECT_NE(Kept(u"IMGTint", key), u"(unset)") << ToUtf8(key);
  EXPECT_EQ(Kept(u"Setting", u"StartUpWindow"), u"(unset)") << "the default placement remembers nothing";
}

TEST_F(Life, WhatWasSetStaysAsItWas) {
  desk.Set(u"Bar", u"DirectoryTreeWidth", u"4321");
  desk.Set(u"Bar", u"FileInfo", u"1");
  desk.Set(u"IMGTint", u"Worp", u"77");
  desk.Set(u"IMGTint", u"IMGPath", u"/pictures/own.bmp");
  desk.Open();
  desk.window->close();
  EXPECT_EQ(Kept(u"Bar", u"DirectoryTreeWidth"), u"4321");
  EXPECT_EQ(Kept(u"Bar", u"FileInfo"), u"1");
  EXPECT_EQ(Kept(u"IMGTint", u"Worp"), u"77");
  EXPECT_EQ(Kept(u"IMGTint", u"IMGPath"), u"/pictures/own.bmp");
}

TEST_F(Life, NothingCanBeUsedWhileTheWindowLoads) {
  HTMLfrm& window = desk.Open();
  window.SetLoading(true);
  EXPECT_FALSE(window.isEnabled());
  EXPECT_FALSE(window.menuBar()->isEnabled());
  EXPECT_FALSE(window.TextView().isEnabled());
  window.SetLoading(false);
  EXPECT_TRUE(window.menuBar()->isEnabled());
  EXPECT_TRUE(window.TextView().hasFocus());
}

TEST_F(Life, TimerShowsTheTimeAndWhereTheCaretStands) {
  desk.Set(u"Setting", u"ClTimer", u"1");
  desk.Open();
  desk.Put(u"一行目\r\n二行‸目");
  EXPECT_TRUE(QTest::qWaitFor([&] { return desk.Pane(StatusPanes::kCaret) == "2行 3列"; }))
      << desk.Pane(StatusPanes::kCaret);
  EXPECT_EQ(desk.Pane(StatusPanes::kClock), "04:05:06 AM");
}

TEST_F(Life, PointingAtAnItemShowsItsHintAndLeavingTakesItAway) {
  HTMLfrm& window = desk.Open();
  QAction* exit = window.Commands().Action(*FindCommand("MenFileM", 10));
  exit->hover();
  EXPECT_EQ(desk.Pane(StatusPanes::kMessage), "Kestrile を終了します");
  Q_EMIT window.Commands().Menu(TopMenu::File).aboutToHide();
  EXPECT_EQ(desk.Pane(StatusPanes::kMessage), "");
}

TEST_F(Life, HintsStayAwayWhenTheyAreOff) {
  desk.Set(u"Setting", u"MenuHints", u"0");
  HTMLfrm& window = desk.Open();
  const std::string before = desk.Pane(StatusPanes::kMessage);
  window.Commands().Action(*FindCommand("MenFileM", 10))->hover();
  EXPECT_EQ(desk.Pane(StatusPanes::kMessage), before);
}

TEST_F(Life, EveryCommandHasItsHintText) {
  ProgramResources resources(*desk.common);
  for (const CommandRow& row : CommandRows()) {
    if (row.IsSeparator()) continue;
    EXPECT_GT(MenuHintText(resources, row.hint).size(), 5) << ToUtf8(row.caption);
  }
  EXPECT_TRUE(MenuHintText(resources, 0).isEmpty());
}

TEST_F(Life, LineNumbersCanBeSwitchedOffAndOnAgain) {
  HTMLfrm& window = desk.Open();
  ASSERT_TRUE(window.TextView().LineNumbersShown());
  desk.Run("MenV", 5);
  EXPECT_FALSE(window.TextView().LineNumbersShown());
  EXPECT_FALSE(window.TextView().LineEndMarksShown());
  desk.Press(u"{Tab}");
  EXPECT_EQ(desk.Row(), "\t‸") << "without the subclass tabs stay";
  desk.Run("MenV", 5);
  EXPECT_TRUE(window.TextView().LineNumbersShown());
  EXPECT_EQ(Kept(u"Setting", u"SubClass"), u"1");
}

TEST_F(Life, UnknownColourWordFallsBackToTheDefaultScheme) {
  desk.Set(u"Setting", u"ColorLabel", u"01. 茶．黒");
  const QImage shown = desk.Open().TextView().viewport()->grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() - 5), QColor(0, 0, 0));
}

TEST_F(Life, TopMostReachesTheWindow) {
  HTMLfrm& window = desk.Open();
  desk.Run("MenV", 3);
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint) ||
              window.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(window.Commands().Checked(*FindCommand("MenV", 3)));
}

TEST_F(Life, InputModeOfTheMenuTurnsWhatTheInputMethodCommits) {
  desk.Open();
  desk.Run("MenIMES", 4);
  desk.Press(u"{ime:ひらがな}");
  EXPECT_EQ(desk.Row(), "ヒラガナ‸");
  EXPECT_TRUE(desk.window->Commands().Checked(*FindCommand("MenIMES", 4)));
}

TEST_F(Life, ReconversionThatIsNotOfferedIsTold) {
  desk.Open();
  desk.Run("MenIMERe", 0);
  ASSERT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_TRUE(desk.boxes.asked[0].text.starts_with(u"再変換が不可能です "));
}

TEST_F(Life, CommandsOfAbsentSubsystemsAreSeenAndDoNothing) {
  HTMLfrm& window = desk.Open();
  desk.Put(u"text‸");
  for (const auto& [array, index] :
       {std::pair{"SearEdit", 0}, {"Setting", 0}, {"mnuCmpl", 0}, {"MenTool", 1}}) {
    const CommandRow& row = *FindCommand(array, index);
    EXPECT_FALSE(window.Commands().MayRun(row)) << array;
    window.Commands().Run(row);
  }
  EXPECT_TRUE(desk.boxes.asked.empty());
  EXPECT_EQ(desk.Row(), "text‸");
}

TEST_F(Life, TemplateKeepsItsCaretMarkThroughAnEdit) {
  desk.folder.Write("DataFiles/NewData2.fmtdat", "<TITLE>\t</TITLE>\r\n");
  desk.Open();
  desk.Run("TmpLEdit", 2);
  EXPECT_EQ(desk.Row(), "‸<TITLE>\t</TITLE>");
  desk.Press(u"{Tab}{Backspace}x{Ctrl+S}");
  EXPECT_EQ(desk.folder.Read("DataFiles/NewData2.fmtdat"), "x<TITLE>\t</TITLE>\r\n");
  desk.Press(u"{Ctrl+N}");
  EXPECT_EQ(desk.Row(), "x<TITLE>‸</TITLE>");
  desk.Press(u"{Tab}");
  EXPECT_EQ(desk.Row(), "x<TITLE>    ‸</TITLE>") << "other documents have blanks again";
}

TEST_F(Life, MissingTemplateBeginsEmptyUnderItsName) {
  desk.Open();
  desk.Run("TmpLEdit", 7);
  EXPECT_EQ(desk.Row(), "‸");
  EXPECT_EQ(desk.state.currentFile, u"NewData7.fmtdat");
}

TEST_F(Life, ReportsCanBeReadWhole) {
  desk.Open();
  desk.Put(u"あいう‸");
  desk.Run("SearEdit", 6);
  QApplication::processEvents();
  std::vector<const StatusPane*> panes;
  for (const QWidget* child : desk.window->Panes().findChildren<QWidget*>()) {
    if (const auto* pane = dynamic_cast<const StatusPane*>(child)) panes.push_back(pane);
  }
  for (const StatusPane* pane : panes) {
    if (pane->Text().startsWith(QStringLiteral("現在の"))) {
      EXPECT_GE(pane->width(), pane->WidthOf(pane->Text()));
    }
  }
  EXPECT_EQ(std::count_if(panes.begin(), panes.end(),
                          [](const StatusPane* pane) { return pane->Text().startsWith(u"現在の"); }),
            1);
}

TEST_F(Life, UnusableNumbersAreBroughtIntoReach) {
  desk.Set(u"Setting", u"FontSize", u"-5");
  desk.Set(u"Bar", u"StatusBarHeight", u"9999999");
  const auto settings = LoadWindowSettings(*desk.common, desk.state);
  ASSERT_TRUE(settings.has_value());
  EXPECT_EQ(settings->fontSize, 4);
  EXPECT_EQ(settings->statusBarHeight, 1500);
}

TEST_F(Life, SubmenuTitleTakesTheHintOfTheItemBeforeAway) {
  HTMLfrm& window = desk.Open();
  window.Commands().Menu(TopMenu::File);
  window.Commands().Action(*FindCommand("MenFileM", 0))->hover();
  window.Commands().Submenu(u"最近使用したﾌｧｲﾙを開く").menuAction()->hover();
  EXPECT_EQ(desk.Pane(StatusPanes::kMessage), "");
}

TEST_F(Life, OnlyTheFirstTenOfTheHistoryHaveADigitToPress) {
  for (int i = 10; i < 12; ++i)
    desk.Set(u"FileReg", u"FileReg" + FormatZeros(i, 2), u"/d/file" + ToText(i) + u".htm");
  desk.Open();
  EXPECT_TRUE(desk.window->CommandTarget().HistoryCaption(9).starts_with(u"&9"));
  EXPECT_TRUE(desk.window->CommandTarget().HistoryCaption(10).starts_with(u"10 ： "));
}

TEST_F(Life, MaximizedCloseKeepsTheEarlierRectangle) {
  desk.Set(u"Setting", u"StartUpWindow", u"NAW");
  desk.Set(u"Setting", u"HTMLfrmWidth", u"6000");
  HTMLfrm& window = desk.Open();
  window.setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
  window.close();
  EXPECT_EQ(Kept(u"Setting", u"HTMLfrmWidth"), u"6000");
}

TEST_F(Life, ASavedTemplateLandsWhereTemplatesAreLookedFor) {
  desk.Open();
  desk.Run("TmpLEdit", 7);
  desk.Press(u"x{Ctrl+S}");
  ASSERT_EQ(desk.dialogs.saves.size(), 1u);
  EXPECT_EQ(desk.dialogs.saves[0].fileName, desk.folder.Text(u"DataFiles/NewData7.fmtdat"));
}

TEST_F(Life, AMarkOfTheToolkitInAFileNameShowsAsItStands) {
  desk.folder.Write("a[*].htm", "x\r\n");
  desk.Open();
  ASSERT_TRUE(desk.window->OpenDocument(desk.folder.Text(u"a[*].htm")));
  EXPECT_TRUE(desk.window->windowTitle().startsWith(QStringLiteral("a[*][*].htm - ")));
}

TEST_F(Life, OtherWindowsAreOpenedWithoutTheReadOnlyBox) {
  desk.Open();
  desk.Run("MenFileOpenEx", 1);
  ASSERT_EQ(desk.dialogs.opens.size(), 1u);
  EXPECT_TRUE((desk.dialogs.opens[0].flags & kHideReadOnly) != 0);
}

TEST_F(Life, ACommandFromTheMenuTakesWhatIsBeingComposedWithIt) {
  desk.folder.Write("page.htm", "x\r\n");
  desk.Open();
  ASSERT_TRUE(desk.window->OpenDocument(desk.folder.Text(u"page.htm")));
  QInputMethodEvent composing(QStringLiteral("にほん"), {});
  QApplication::sendEvent(&desk.window->TextView(), &composing);
  ASSERT_TRUE(desk.window->TextView().Composing());
  desk.Run("MenFileM", 3);
  EXPECT_FALSE(desk.window->TextView().Composing());
  EXPECT_EQ(desk.folder.Read("page.htm"), code_page::Encode(u"にほんx\r\n"));
}

TEST_F(Life, ACloseAsksForWhatIsBeingComposedToo) {
  desk.Open();
  QInputMethodEvent composing(QStringLiteral("に"), {});
  QApplication::sendEvent(&desk.window->TextView(), &composing);
  desk.boxes.answers = {MessageAnswer::Cancel};
  desk.window->close();
  EXPECT_EQ(desk.Row(), "に‸");
  EXPECT_TRUE(desk.window->isVisible());
}

TEST_F(Life, TheAnswerAtTheSessionsEndCountsForTheCloseBehindIt) {
  desk.Open();
  desk.Press(u"x");
  desk.boxes.answers = {MessageAnswer::No};
  EXPECT_TRUE(desk.window->AgreesToEnd());
  desk.window->close();
  EXPECT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_FALSE(desk.window->isVisible());
}

TEST_F(Life, WhatIsTypedAfterTheAnswerAtTheSessionsEndIsAskedFor) {
  desk.Open();
  desk.Press(u"x");
  desk.boxes.answers = {MessageAnswer::No, MessageAnswer::Cancel};
  EXPECT_TRUE(desk.window->AgreesToEnd());
  desk.Press(u"y");
  desk.window->close();
  EXPECT_EQ(desk.boxes.asked.size(), 2u);
  EXPECT_TRUE(desk.window->isVisible());
}

TEST_F(Life, WhoStaysAtTheSessionsEndIsAskedAgainByTheNextClose) {
  desk.Open();
  desk.Press(u"x");
  desk.boxes.answers = {MessageAnswer::Cancel, MessageAnswer::Cancel};
  EXPECT_FALSE(desk.window->AgreesToEnd());
  desk.window->close();
  EXPECT_EQ(desk.boxes.asked.size(), 2u);
  EXPECT_TRUE(desk.window->isVisible());
}

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
