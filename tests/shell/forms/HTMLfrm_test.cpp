// The editor window by its keys, menus and messages.
#include "shell/forms/HTMLfrm.hpp"

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include "shell/common/code_page.hpp"
#include "tests/fakes/screens.hpp"
#include "tests/shell/forms/editor_desk.hpp"

namespace kestri {
namespace {

using fakes::EditorDesk;

class HTMLfrmTest : public testing::Test {
 protected:
  void OpenPage(std::u16string_view text) {
    desk.folder.Write("page.htm", code_page::Encode(text));
    desk.Open();
    ASSERT_TRUE(desk.window->OpenDocument(desk.folder.Text(u"page.htm")));
  }
  std::string Title() const { return desk.window->windowTitle().toStdString(); }

  EditorDesk desk;
};

TEST_F(HTMLfrmTest, OpensWithANewPageNamedUntitled) {
  desk.Open();
  EXPECT_EQ(Title(), "無題.htm - Kestrile (Version 1.0.0e07)  #01");
  EXPECT_EQ(desk.Pane(StatusPanes::kLineEnd), "CR+LF");
  EXPECT_EQ(desk.Pane(StatusPanes::kFileKind), "HTML");
  EXPECT_TRUE(desk.window->TextView().hasFocus());
}

TEST_F(HTMLfrmTest, TheRoadOfOneTagEndsOnDisk) {
  OpenPage(u"本文\r\n");
  desk.Press(u"<a{Enter} hr{Tab}=l{Enter}{Ctrl+S}");
  EXPECT_EQ(desk.folder.Read("page.htm"), code_page::Encode(u"<A href=\"left\">本文\r\n"));
  EXPECT_TRUE(desk.Pane(StatusPanes::kMessage).starts_with("保存完了 ["));
  EXPECT_TRUE(desk.boxes.asked.empty());
}

TEST_F(HTMLfrmTest, TheFirstChangeIsMarkedAndASaveTakesTheMarkAway) {
  OpenPage(u"x\r\n");
  desk.Press(u"a");
  EXPECT_TRUE(Title().starts_with("page.htm(変更) - ")) << Title();
  EXPECT_EQ(desk.Pane(StatusPanes::kState), "変更あり");
  desk.Press(u"{Ctrl+S}");
  EXPECT_TRUE(Title().starts_with("page.htm - ")) << Title();
  EXPECT_EQ(desk.Pane(StatusPanes::kState), "");
}

TEST_F(HTMLfrmTest, ControlSpaceOpensTheCandidatesThatFitTheCaret) {
  desk.Open();
  const std::pair<const char16_t*, const char*> rows[] = {{u"‸", "<A‸>"},
                                                          {u"<p‸>", "<P‸>"},
                                                          {u"<p al‸>", "<p align‸>"},
                                                          {u"<p align=c‸>", "<p align=\"center\"‸>"}};
  for (const auto& [before, after] : rows) {
    desk.Put(before);
    desk.Press(u"{Ctrl+ }");
    EXPECT_TRUE(desk.window->Popup().Visible()) << ToUtf8(before);
    desk.Press(u"{Enter}");
    EXPECT_EQ(desk.Row(), after) << ToUtf8(before);
  }
}

TEST_F(HTMLfrmTest, UndoTakesAnAcceptedTagBackInOneStepAndRedoBringsItAgain) {
  desk.Open();
  desk.Press(u"<a{Enter}");
  EXPECT_EQ(desk.Row(), "<A‸>");
  desk.Press(u"{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "<a‸");
  desk.Press(u"{Ctrl+Y}");
  EXPECT_EQ(desk.Row(), "<A‸>");
}

TEST_F(HTMLfrmTest, CutCopyPasteAndSelectAllWorkByTheirKeys) {
  desk.Open();
  desk.Put(u"あ⟦い⟧う");
  desk.Press(u"{Ctrl+X}");
  EXPECT_EQ(desk.Row(), "あ‸う");
  desk.Press(u"{End}{Ctrl+V}");
  EXPECT_EQ(desk.Row(), "あうい‸");
  desk.Press(u"{Ctrl+A}{Ctrl+C}{Ctrl+V}{Ctrl+V}");
  EXPECT_EQ(desk.Row(), "あういあうい‸");
}

TEST_F(HTMLfrmTest, AReadOnlyPageAnswersEditCommandsWithABeepAndAMessage) {
  OpenPage(u"x\r\n");
  desk.window->Control().SetLocked(true);
  desk.services.beeps = 0;
  desk.Press(u"<a");
  EXPECT_EQ(ToUtf8(desk.window->Control().Text()), "x");
  desk.window->Control().EM_SETSEL(0, 1);
  int answers = 0;
  for (const auto& [array, index] : {std::pair{"Edit", 0},
                                     {"Edit", 1},
                                     {"Edit", 2},
                                     {"Edit", 3},
                                     {"MenUNDO", 0},
                                     {"HighEdit", 0},
                                     {"HighEdit", 4},
                                     {"KakkoMenu", 1},
                                     {"LineCode", 2},
                                     {"Day", 0}}) {
    desk.Run(array, index);
    EXPECT_EQ(desk.services.beeps, ++answers) << array << index;
  }
  EXPECT_EQ(ToUtf8(desk.window->Control().Text()), "x");
  EXPECT_TRUE(desk.Pane(StatusPanes::kMessage).starts_with("読み取り専用で開かれています ["));
}

TEST_F(HTMLfrmTest, ClosingAChangedPageAsksAndCancelKeepsItOpen) {
  OpenPage(u"x\r\n");
  desk.Press(u"a");
  desk.boxes.answers = {MessageAnswer::Cancel, MessageAnswer::Yes};
  EXPECT_FALSE(desk.window->close());
  EXPECT_EQ(desk.boxes.asked.at(0).text, u"ﾃﾞｰﾀが変更されています  上書き保存をしますか?\r\n\"page.htm\"");
  EXPECT_EQ(desk.boxes.asked.at(0).caption, u"終了  Kestrile");
  EXPECT_TRUE(desk.window->close());
  EXPECT_EQ(desk.folder.Read("page.htm"), "ax\r\n");
}

TEST_F(HTMLfrmTest, NewAsksBeforeAChangedPageIsLeft) {
  OpenPage(u"x\r\n");
  desk.Press(u"a");
  desk.boxes.answers = {MessageAnswer::Cancel};
  desk.Press(u"{Ctrl+N}");
  EXPECT_EQ(desk.Row(), "a‸x");
  desk.boxes.answers = {MessageAnswer::No};
  desk.Press(u"{Ctrl+N}");
  EXPECT_EQ(desk.Row(), "‸");
  EXPECT_TRUE(Title().starts_with("無題.htm - ")) << Title();
  EXPECT_TRUE(desk.Pane(StatusPanes::kMessage).starts_with("新規作成 (.htm) ["));
}

TEST_F(HTMLfrmTest, OpenAndSaveAsGoThroughTheirDialogs) {
  desk.folder.Write("other.txt", "abc\r\n");
  desk.Open();
  desk.dialogs.answers = {FileDialogAnswer{.fileName = desk.folder.Text(u"other.txt")},
                          FileDialogAnswer{.fileName = desk.folder.Text(u"copy.txt")}};
  desk.Press(u"{Ctrl+O}");
  EXPECT_EQ(desk.Row(), "‸abc");
  desk.Press(u"z{Ctrl+Shift+S}");
  EXPECT_EQ(desk.folder.Read("copy.txt"), "zabc\r\n");
  EXPECT_TRUE(Title().starts_with("copy.txt - ")) << Title();
}

TEST_F(HTMLfrmTest, ThePopupClosesWhenAnotherPageComes) {
  OpenPage(u"x\r\n");
  desk.Press(u"<");
  EXPECT_TRUE(desk.window->Popup().Visible());
  desk.boxes.answers = {MessageAnswer::No};
  desk.Press(u"{Ctrl+N}");
  EXPECT_FALSE(desk.window->Popup().Visible());
}

TEST_F(HTMLfrmTest, ACompositionOpensNoPopupAndItsKeysBelongToTheInputMethod) {
  desk.Open();
  desk.Press(u"<");
  ASSERT_TRUE(desk.window->Popup().Visible());
  QInputMethodEvent composing(QStringLiteral("にほん"), {});
  QApplication::sendEvent(&desk.window->TextView(), &composing);
  EXPECT_FALSE(desk.window->Popup().Visible());
  desk.Press(u"{Enter}{Tab} {Esc}{Left}<");
  EXPECT_EQ(desk.Row(), "<‸");
  EXPECT_FALSE(desk.window->Popup().Visible());
  desk.Press(u"{ime:日本}");
  EXPECT_EQ(desk.Row(), "<日本‸");
}

TEST_F(HTMLfrmTest, TheWindowRestoresFontSchemeAndBars) {
  desk.Set(u"Setting", u"FontSize", u"20");
  desk.Set(u"Bar", u"ToolBarShow0", u"0");
  HTMLfrm& window = desk.Open();
  EXPECT_EQ(window.TextView().Style().font.pixelSize() > 20, true);
  EXPECT_FALSE(window.findChild<ToolBar*>(QStringLiteral("ToolBar"))->isVisible());
}

TEST_F(HTMLfrmTest, ACloseRemembersTheRectangleOnlyInTheModeThatWantsIt) {
  desk.Set(u"Setting", u"StartUpWindow", u"NAW");
  desk.Open().resize(700, 500);
  desk.window->close();
  EXPECT_EQ(desk.common->GetINI(u"Kestri", u"Setting", u"HTMLfrmWidth", u""), u"10500");
  EXPECT_EQ(desk.common->GetINI(u"Kestri", u"Setting", u"HTMLfrmHeight", u""), u"7500");
  EXPECT_EQ(desk.common->GetINI(u"Kestri", u"Setting", u"NawPath", u""), desk.folder.Text());
}

TEST_F(HTMLfrmTest, DamagedSettingsAreNoticed) {
  desk.Set(u"Setting", u"FontSize", u"large");
  EXPECT_FALSE(LoadWindowSettings(*desk.common, desk.state).has_value());
}

TEST_F(HTMLfrmTest, MenusShowTheStatesOnlyWhileOpenSoThatNoShortcutIsLost) {
  desk.Open();
  QMenu* edit = &desk.window->Commands().Menu(TopMenu::Edit);
  QAction* undo = desk.window->Commands().Action(*FindCommand("MenUNDO", 0));
  Q_EMIT edit->aboutToShow();
  EXPECT_FALSE(undo->isEnabled());
  Q_EMIT edit->aboutToHide();
  QApplication::processEvents();
  EXPECT_TRUE(undo->isEnabled());
  desk.Press(u"a{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "‸");
}

TEST_F(HTMLfrmTest, TheHistoryMenuShowsTheFilesInUseAndOpensThem) {
  OpenPage(u"x\r\n");
  desk.folder.Write("b.txt", "b\r\n");
  desk.window->OpenDocument(desk.folder.Text(u"b.txt"));
  const CommandRow& newest = *FindCommand("OpenFileReg", 0);
  QAction* action = desk.window->Commands().Action(newest);
  QMenu* menu = &desk.window->Commands().Submenu(u"最近使用したﾌｧｲﾙを開く");
  Q_EMIT menu->aboutToShow();
  EXPECT_TRUE(action->text().endsWith(QStringLiteral("b.txt"))) << action->text().toStdString();
  EXPECT_TRUE(action->text().startsWith(QStringLiteral("&0 ： ")));
  EXPECT_TRUE(desk.window->Commands().Action(*FindCommand("OpenFileReg", 1))->isVisible());
  EXPECT_FALSE(desk.window->Commands().Action(*FindCommand("OpenFileReg", 2))->isVisible());
  desk.Run("OpenFileReg", 1);
  EXPECT_EQ(desk.Row(), "‸x");
  desk.Run("OpenFileReg", 23);
  Q_EMIT menu->aboutToShow();
  EXPECT_EQ(action->text(), QStringLiteral("&0 ： (なし)"));
}

TEST_F(HTMLfrmTest, AnEmptyPlaceOfTheHistoryTellsThatThereIsNothingToOpen) {
  desk.Open();
  desk.Run("OpenFileReg", 0);
  ASSERT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_EQ(desk.boxes.asked[0].caption, u"FileName = NULL  Kestrile");
}

TEST_F(HTMLfrmTest, TheViewMenuSwitchesBarsAndGuideLinesAndShowsTheirMarks) {
  desk.Open();
  ToolBar* bar = desk.window->findChild<ToolBar*>(QStringLiteral("ToolBar"));
  desk.Run("MenV", 0);
  EXPECT_FALSE(bar->isVisible());
  EXPECT_EQ(desk.common->GetINI(u"Kestri", u"Bar", u"ToolBarShow0", u""), u"0");
  desk.Run("MenV", 0);
  EXPECT_TRUE(bar->isVisible());
  desk.Run("MenV", 4);
  EXPECT_EQ(desk.state.gLine, 1);
  EXPECT_TRUE(desk.window->Commands().Checked(*FindCommand("MenV", 4)));
}

TEST_F(HTMLfrmTest, TransformsOfTheEditMenuChangeTheSelectionInOneStep) {
  desk.Open();
  desk.Put(u"⟦abc⟧");
  desk.Run("HighEdit", 6);
  EXPECT_EQ(desk.Row(), "⟦ａｂｃ⟧");
  desk.Run("KakkoMenu", 1);
  EXPECT_EQ(desk.Row(), "⟦(ａｂｃ)⟧");
  desk.Press(u"{Ctrl+Z}{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "⟦abc⟧");
}

TEST_F(HTMLfrmTest, TheChosenLineEndIsWrittenOnSave) {
  OpenPage(u"a\r\nb\r\n");
  desk.Run("LineCode", 2);
  EXPECT_EQ(desk.Pane(StatusPanes::kLineEnd), "LF");
  EXPECT_TRUE(Title().starts_with("page.htm(変更)")) << Title();
  desk.Press(u"{Ctrl+S}");
  EXPECT_EQ(desk.folder.Read("page.htm"), "a\nb\r\n");
}

TEST_F(HTMLfrmTest, ASlotKeepsTheTextAndBringsItBackUnsaved) {
  OpenPage(u"first\r\n");
  desk.Press(u"{Ctrl+3}");
  EXPECT_TRUE(desk.Pane(StatusPanes::kMessage).starts_with("Slot(3).Change ["));
  desk.Run("DefSlotSave", 0);
  EXPECT_TRUE(desk.Pane(StatusPanes::kMessage).starts_with("Slot(3).Save ["));
  desk.Press(u"{Ctrl+A}x");
  desk.Run("LoadSlot", 3);
  EXPECT_EQ(ToUtf8(desk.window->Control().Text()), "first");
  EXPECT_TRUE(Title().starts_with("page.htm(変更)")) << Title();
  EXPECT_FALSE(desk.window->Commands().MayRun(*FindCommand("LoadSlot", 4)))
      << "an empty slot cannot be loaded";
}

TEST_F(HTMLfrmTest, TheSearchMenuReportsIndexAndBytes) {
  desk.Open();
  desk.Put(u"あいう‸");
  desk.Run("SearEdit", 5);
  EXPECT_EQ(desk.Pane(StatusPanes::kState), "3(ｲﾝﾃﾞｯｸｽ) / 3(総ｲﾝﾃﾞｯｸｽ)");
  desk.Run("SearEdit", 6);
  const std::string report = desk.Pane(StatusPanes::kMessage) + desk.Pane(StatusPanes::kState);
  EXPECT_NE(report.find("現在のﾃｷｽﾄの総ｻｲｽﾞは 0.01ｷﾛﾊﾞｲﾄ (6ﾊﾞｲﾄ) です"), std::string::npos) << report;
}

TEST_F(HTMLfrmTest, TheLogOfInstancesForgetsAClosedWindow) {
  OpenPage(u"x\r\n");
  EXPECT_EQ(desk.folder.Read("Kestri_TEMP_FileLog.INI").find("001FILE=") != std::string::npos, true);
  desk.window->close();
  EXPECT_EQ(desk.folder.Read("Kestri_TEMP_FileLog.INI"), "") << "the last window takes the log along";
}

TEST_F(HTMLfrmTest, AShortcutClosesThePopupAndRuns) {
  desk.Open();
  desk.Press(u"x<a");
  ASSERT_TRUE(desk.window->Popup().Visible());
  desk.Press(u"{Ctrl+Z}");
  EXPECT_FALSE(desk.window->Popup().Visible());
  EXPECT_EQ(desk.Row(), "‸");
}

TEST_F(HTMLfrmTest, ThePopupClosesWhenTheTextLosesTheFocus) {
  desk.Open();
  desk.Press(u"<");
  ASSERT_TRUE(desk.window->Popup().Visible());
  desk.window->menuBar()->setFocus();
  EXPECT_FALSE(desk.window->Popup().Visible());
}

TEST_F(HTMLfrmTest, EnterOnTheLastRowInSightScrolls) {
  desk.Open();
  for (int i = 0; i < 60; ++i) desk.Press(u"a{Enter}");
  QApplication::processEvents();
  EXPECT_NE(desk.window->TextView().GetCaretPixel(), QPoint(-9999, -9999));
}

TEST_F(HTMLfrmTest, TheDialogsOfTheInsertMenusStandOverTheEditor) {
  desk.Open();
  desk.Run("MenTool", 0);
  auto* form = desk.window->findChild<EditSubFrm*>();
  ASSERT_NE(form, nullptr);
  for (const int menu : {1, 2}) {
    QWidget* owner = nullptr;
    QTimer::singleShot(100, [&owner] {
      QWidget* dialog = QApplication::activeModalWidget();
      ASSERT_NE(dialog, nullptr);
      owner = dialog->parentWidget();
      dialog->close();
    });
    form->findChild<QMenuBar*>()->actions().at(menu)->menu()->actions().back()->trigger();
    EXPECT_EQ(owner, desk.window.get());
  }
}

TEST_F(HTMLfrmTest, TheTextsOwnMenuOffersTheFreeIndentWhichNoOtherMenuRepeats) {
  desk.Open();
  QStringList shown;
  QTimer::singleShot(100, [&shown] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (const QAction* action : menu->actions()) shown += action->objectName();
    menu->close();
  });
  QContextMenuEvent rightClick(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(desk.window->TextView().viewport(), &rightClick);
  EXPECT_EQ(shown.count(QStringLiteral("mnuFreeInd0")), 1);
  EXPECT_EQ(FindCommand("mnuFreeInd", 0)->caption, FindCommand("HighEdit", 2)->caption);
  for (const QAction* top : desk.window->menuBar()->actions()) {
    Q_EMIT top->menu()->aboutToShow();
    for (const QAction* action : top->menu()->actions())
      EXPECT_NE(action->objectName(), QStringLiteral("mnuFreeInd0"));
  }
}

TEST_F(HTMLfrmTest, TheLineEndMenuNamesThePresentKind) {
  desk.Open();
  desk.Run("LineCode", 1);
  EXPECT_EQ(SubmenuCaption(u"改行ｺｰﾄﾞ(&E)", desk.window->CommandTarget()), u"改行ｺｰﾄﾞ  [CR](&E)");
}

TEST_F(HTMLfrmTest, AltAndAnArrowOpenTheAdvancedMenusAtTheCaret) {
  desk.Open();
  desk.Press(u"{Alt+Left}");
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->title(), QStringLiteral("高度な操作1(Ex&1)\tAlt+←"));
  menu->close();
  desk.Press(u"{Alt+Right}");
  menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QStringList captions;
  for (const QAction* action : menu->actions()) captions << action->text();
  EXPECT_EQ(captions, (QStringList{QStringLiteral("ｶｯｺで囲む(&K)"), QStringLiteral("改行ｺｰﾄﾞ  [CR + LF](&E)"),
                                   QStringLiteral("日付と時刻の挿入(&I)")}));
  menu->close();
}

TEST_F(HTMLfrmTest, WithoutTheSubclassTheTextIsBare) {
  desk.Set(u"Setting", u"SubClass", u"0");
  desk.Open();
  EXPECT_FALSE(desk.window->TextView().LineNumbers().isVisible());
  EXPECT_FALSE(desk.window->TextView().LineEndMarksShown());
}

TEST_F(HTMLfrmTest, PictureOfTheWindowWithItsPopup) {
  desk.folder.Write("page.htm",
                    code_page::Encode(u"<HTML>\r\n<BODY>\r\n<P>こんにちは。</P>\r\n</BODY>\r\n</HTML>\r\n"));
  HTMLfrm& window = desk.Open();
  window.OpenDocument(desk.folder.Text(u"page.htm"));
  window.FinishLoading();
  QApplication::processEvents();
  fakes::SavePicture(window.grab().toImage(), QStringLiteral("HTMLfrm"));
}

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
