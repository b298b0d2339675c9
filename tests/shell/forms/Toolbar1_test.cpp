// The floating window of the tool bar: it docks, it comes back where it was, and it never takes the keys.
#include "shell/forms/Toolbar1.hpp"

#include <gtest/gtest.h>

#include <QtTest/qtestspontaneevent.h>
#include <QCloseEvent>
#include <QMenu>
#include <QScreen>
#include <QToolButton>

#include "tests/fakes/screens.hpp"
#include "tests/shell/forms/editor_desk.hpp"

namespace kestri {
namespace {

using fakes::EditorDesk;

class Toolbar1Test : public testing::Test {
 protected:
  void Open() {
    HTMLfrm& window = desk.Open();
    form = window.findChild<Toolbar1*>(QStringLiteral("Toolbar1"));
    bar = window.findChild<ToolBar*>(QStringLiteral("ToolBar"));
    ASSERT_NE(form, nullptr);
    ASSERT_NE(bar, nullptr);
  }
  void OpenFloating() {
    desk.Set(u"Bar", u"Dkg", u"0");
    Open();
  }
  void Toggle() {
    desk.Run("MenV", 6);
    QApplication::processEvents();
  }
  void CloseAsTheUserDoes() {
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(form, &event);
  }
  std::u16string Written(std::u16string_view key) const {
    return desk.common->GetINI(u"Kestri", u"Bar", key, u"");
  }
  std::string DockingEntry() const {
    for (QAction* action : bar->actions()) {
      if (action->objectName() != QStringLiteral("Tool")) continue;
      Q_EMIT action->menu()->aboutToShow();
      return action->menu()->actions().last()->text().toStdString();
    }
    return {};
  }
  bool InWindow() const { return desk.window->toolBarArea(bar) == Qt::TopToolBarArea; }

  EditorDesk desk;
  Toolbar1* form = nullptr;
  ToolBar* bar = nullptr;
};

TEST_F(Toolbar1Test, TheFirstStartHasTheBarInTheWindow) {
  Open();
  EXPECT_TRUE(form->Docked());
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(InWindow());
  EXPECT_TRUE(bar->isVisible());
}

TEST_F(Toolbar1Test, AFloatingBarStartsAtItsPosition) {
  desk.Set(u"Bar", u"Dkg_Left", u"1500");
  desk.Set(u"Bar", u"Dkg_Top", u"2250");
  OpenFloating();
  EXPECT_TRUE(form->isVisible());
  EXPECT_TRUE(bar->isVisible());
  EXPECT_EQ(bar->window(), form);
  EXPECT_EQ(form->pos(), QPoint(100, 150));
  EXPECT_EQ(form->windowTitle(), QStringLiteral("ToolBar for Kestrile (e07)"));
}

TEST_F(Toolbar1Test, APositionBeyondTheScreenIsBroughtBack) {
  for (const auto& [left, top] : {std::pair{u"90000", u"90000"}, std::pair{u"-90000", u"-90000"}}) {
    desk.Set(u"Bar", u"Dkg_Left", left);
    desk.Set(u"Bar", u"Dkg_Top", top);
    OpenFloating();
    EXPECT_TRUE(form->screen()->availableGeometry().contains(form->frameGeometry()));
    desk.window.reset();
  }
}

TEST_F(Toolbar1Test, TheCommandTakesTheBarOutAndBringsItBack) {
  Open();
  EXPECT_EQ(DockingEntry(), "ﾂｰﾙﾊﾞｰの切り離し");
  Toggle();
  EXPECT_TRUE(form->isVisible());
  EXPECT_FALSE(InWindow());
  EXPECT_EQ(DockingEntry(), "ﾂｰﾙﾊﾞｰのﾄﾞｯｷﾝｸﾞ");
  Toggle();
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(InWindow());
  EXPECT_TRUE(bar->isVisible());
}

TEST_F(Toolbar1Test, TheCloseOfTheEditorRemembersStateAndPosition) {
  Open();
  Toggle();
  form->move(200, 120);
  EXPECT_EQ(Written(u"Dkg"), u"");
  desk.window->close();
  EXPECT_EQ(Written(u"Dkg"), u"0");
  EXPECT_EQ(Written(u"Dkg_Left"), u"3000");
  EXPECT_EQ(Written(u"Dkg_Top"), u"1800");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(Toolbar1Test, DockingWritesThePositionAtOnce) {
  OpenFloating();
  form->move(90, 60);
  Toggle();
  EXPECT_EQ(Written(u"Dkg_Left"), u"1350");
  EXPECT_EQ(Written(u"Dkg_Top"), u"900");
  desk.window->close();
  EXPECT_EQ(Written(u"Dkg"), u"1");
}

TEST_F(Toolbar1Test, TheUsersCloseDocksTheBar) {
  OpenFloating();
  CloseAsTheUserDoes();
  QApplication::processEvents();
  EXPECT_TRUE(form->Docked());
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(InWindow());
  EXPECT_TRUE(bar->isVisible());
  EXPECT_TRUE(QTest::qWaitFor([&] { return desk.window->TextView().hasFocus(); }));
}

TEST_F(Toolbar1Test, TheUsersCloseLaysTheBarsOutAsTheSettingsStandByThen) {
  for (const auto& [toolBarShown, statusBarShown] : {std::pair{false, true}, {true, false}, {false, false}}) {
    desk.Set(u"Bar", u"ToolBarShow0", u"1");
    desk.Set(u"Bar", u"StatusBar0", u"1");
    OpenFloating();
    ASSERT_FALSE(desk.window->Panes().isHidden());
    // Another process changes them.
    desk.Set(u"Bar", u"ToolBarShow0", toolBarShown ? u"1" : u"0");
    desk.Set(u"Bar", u"StatusBar0", statusBarShown ? u"1" : u"0");
    CloseAsTheUserDoes();
    EXPECT_TRUE(form->Docked());
    EXPECT_EQ(bar->isVisible(), toolBarShown);
    EXPECT_EQ(desk.window->Panes().isVisible(), statusBarShown);
    desk.window.reset();
  }
}

TEST_F(Toolbar1Test, TheUsersCloseBringsBarsBackThatTheSettingsShowAgain) {
  desk.Set(u"Bar", u"StatusBar0", u"0");
  OpenFloating();
  ASSERT_TRUE(desk.window->Panes().isHidden());
  desk.Set(u"Bar", u"StatusBar0", u"");
  CloseAsTheUserDoes();
  EXPECT_TRUE(desk.window->Panes().isVisible());
}

TEST_F(Toolbar1Test, HidingTheBarHidesItsWindowAndShowingBringsItBack) {
  OpenFloating();
  desk.Run("MenV", 0);
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(form->BarShown());
  desk.Run("MenV", 0);
  EXPECT_TRUE(form->isVisible());
  EXPECT_TRUE(bar->isVisible());
}

TEST_F(Toolbar1Test, AHiddenBarStaysHiddenWhereverItStands) {
  desk.Set(u"Bar", u"ToolBarShow0", u"0");
  OpenFloating();
  EXPECT_FALSE(form->isVisible());
  Toggle();
  EXPECT_FALSE(bar->isVisible());
  Toggle();
  EXPECT_FALSE(form->isVisible());
}

TEST_F(Toolbar1Test, ItGoesAndComesWithTheEditor) {
  OpenFloating();
  desk.window->showMinimized();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !form->isVisible(); }));
  desk.window->showNormal();
  EXPECT_TRUE(QTest::qWaitFor([&] { return form->isVisible(); }));
  desk.window->hide();
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(form->Docked());
}

TEST_F(Toolbar1Test, ItNeverTakesTheKeysFromTheText) {
  Open();
  ASSERT_TRUE(QTest::qWaitForWindowActive(desk.window.get()));
  desk.Put(u"‸x");
  Toggle();
  EXPECT_TRUE(form->testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_TRUE(form->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_FALSE(form->isActiveWindow() && form->focusWidget() != nullptr);
  desk.Press(u"a{Ctrl+S}");
  EXPECT_EQ(desk.Row(), "a‸x");
  EXPECT_EQ(desk.dialogs.saves.size(), 1u) << "keys of commands work as before";
}

TEST_F(Toolbar1Test, AButtonOfTheFloatingBarRuns) {
  OpenFloating();
  desk.Put(u"‸x");
  desk.Press(u"a");
  bar->RefreshStates();
  for (QAction* action : bar->actions()) {
    if (action->objectName() == QStringLiteral("Undo"))
      QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
  }
  EXPECT_EQ(desk.Row(), "‸x");
}

TEST_F(Toolbar1Test, TheWindowIsAsLargeAsTheBar) {
  OpenFloating();
  EXPECT_EQ(form->size(), bar->sizeHint());
  for (QAction* action : bar->actions()) EXPECT_TRUE(bar->widgetForAction(action)->isVisible());
  QIcon::setThemeSearchPaths({QStringLiteral("/usr/share/icons")});
  QIcon::setThemeName(QStringLiteral("Tango"));
  bar->AddIcons(ToolBar::MenuIcons::With);
  QApplication::processEvents();
  const QString scale = QString::number(qRound(bar->devicePixelRatioF() * 100));
  fakes::SavePicture(form->grab().toImage(), QStringLiteral("Toolbar1-") + scale);
}

// On a screen that is narrower than the bar.
TEST_F(Toolbar1Test, TheRestOfACutBarIsInTheMenuOfItsArrow) {
  OpenFloating();
  bar->RefreshStates();
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  const int widest = form->screen()->availableGeometry().width();
  ASSERT_TRUE(QTest::qWaitFor([&] { return form->width() == widest; }));
  auto* arrow = bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
  ASSERT_NE(arrow, nullptr);
  ASSERT_TRUE(arrow->isVisible());
  ASSERT_NE(arrow->menu(), nullptr);
  QAction* lineNumbers = nullptr;
  for (QAction* action : arrow->menu()->actions()) {
    if (action->objectName() == QStringLiteral("LineNo")) lineNumbers = action;
  }
  ASSERT_NE(lineNumbers, nullptr);
  EXPECT_TRUE(lineNumbers->isChecked());
  lineNumbers->trigger();
  EXPECT_FALSE(lineNumbers->isChecked());
}

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
