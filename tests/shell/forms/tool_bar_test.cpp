// The tool bar of the editor window: its buttons, their drop-downs, and what they run.
#include "shell/forms/tool_bar.hpp"

#include <gtest/gtest.h>

#include <QMenu>
#include <QToolButton>

#include "shell/common/code_page.hpp"
#include "tests/fakes/screens.hpp"
#include "tests/shell/forms/editor_desk.hpp"

namespace kestri {
namespace {

using fakes::EditorDesk;

QString Name(std::string_view key) {
  return QString::fromLatin1(key.data(), static_cast<qsizetype>(key.size()));
}

class ToolBarTest : public testing::Test {
 protected:
  void Open() { Adopt(desk.Open()); }
  void Adopt(HTMLfrm& window) {
    bar = window.findChild<ToolBar*>(QStringLiteral("ToolBar"));
    ASSERT_NE(bar, nullptr);
    bar->RefreshStates();
  }
  // As the user sees them; without a theme on this system some buttons show their names.
  void ShowIcons() {
    QIcon::setThemeSearchPaths({QStringLiteral("/usr/share/icons")});
    QIcon::setThemeName(QStringLiteral("Tango"));
    bar->AddIcons(ToolBar::MenuIcons::With);
  }
  QAction* Button(std::string_view key) const {
    for (QAction* action : bar->actions()) {
      if (action->objectName() == Name(key)) return action;
    }
    ADD_FAILURE() << key;
    return nullptr;
  }
  void Click(std::string_view key) { QTest::mouseClick(bar->widgetForAction(Button(key)), Qt::LeftButton); }
  // The drop-down as it is at its next opening.
  QList<QAction*> DropDown(std::string_view key) const {
    QMenu* menu = Button(key)->menu();
    Q_EMIT menu->aboutToShow();
    return menu->actions();
  }
  QAction* Entry(std::string_view button, std::string_view key) const {
    for (QAction* action : DropDown(button)) {
      if (action->objectName() == Name(key)) return action;
    }
    ADD_FAILURE() << key;
    return nullptr;
  }
  void Choose(std::string_view button, std::string_view key) { Entry(button, key)->trigger(); }
  std::string Caption(std::string_view button, std::string_view key) const {
    return Entry(button, key)->text().toStdString();
  }
  std::string Title() const { return desk.window->windowTitle().toStdString(); }

  EditorDesk desk;
  ToolBar* bar = nullptr;
};

TEST_F(ToolBarTest, EveryButtonHasANameATipAndItsIcon) {
  Open();
  bar->AddIcons(ToolBar::MenuIcons::With);
  for (const ToolRow& row : ToolRows()) {
    if (row.kind == ToolKind::Separator) continue;
    const QAction* action = Button(row.key);
    ASSERT_NE(action, nullptr) << row.key;
    const QString caption = ToQt(row.caption);
    EXPECT_EQ(bar->widgetForAction(Button(row.key))->accessibleName(), caption) << row.key;
    EXPECT_TRUE(action->toolTip().startsWith(caption)) << row.key;
    const bool ownIcon = row.icon.empty() || row.icon.starts_with("kestrile-");
    EXPECT_TRUE(!ownIcon || !action->icon().isNull()) << row.key;
    EXPECT_EQ(action->menu() != nullptr, !row.entries.empty()) << row.key;
    EXPECT_TRUE(action->shortcut().isEmpty()) << row.key;
  }
}

TEST_F(ToolBarTest, ATipNamesTheKeyOfTheCommand) {
  Open();
  EXPECT_EQ(Button("ReSave")->toolTip(), QStringLiteral("上書き保存 (Ctrl+S)"));
  const QString key = Name(FindCommand("HTMLEdit", 1)->key);
  EXPECT_EQ(Button("Tool")->toolTip(), QStringLiteral("ﾂｰﾙ: ﾀｸﾞ候補一覧[補完] (%1)").arg(key));
  EXPECT_EQ(Button("Tokusyu")->toolTip(), QStringLiteral("特殊文字"));
}

TEST_F(ToolBarTest, TheDropDownsShowTheirRowsAndDisableWhatMayNotRun) {
  Open();
  for (const ToolRow& row : ToolRows()) {
    if (row.entries.empty()) continue;
    const QList<QAction*> shown = DropDown(row.key);
    ASSERT_EQ(static_cast<std::size_t>(shown.size()), row.entries.size()) << row.key;
    for (std::size_t i = 0; i < row.entries.size(); ++i) {
      const ToolEntry& entry = row.entries[i];
      const QAction* action = shown[static_cast<qsizetype>(i)];
      EXPECT_EQ(action->objectName(), Name(entry.key));
      EXPECT_EQ(action->isSeparator(), entry.kind == ToolKind::Separator) << entry.key;
      if (action->isSeparator()) continue;
      const CommandRow& command = *FindCommand(entry.array, entry.index);
      EXPECT_EQ(action->isEnabled(), desk.window->Commands().MayRun(command)) << entry.key;
      const QString caption = entry.caption.empty() ? action->text() : ToQt(entry.caption);
      EXPECT_EQ(action->text(), caption) << entry.key;
    }
  }
}

TEST_F(ToolBarTest, ADropDownMakesANewDocumentOfItsKind) {
  Open();
  const std::pair<const char*, const char*> rows[] = {
      {"New2", "無題.txt - "}, {"New3", "無題.htm - "}, {"New4", "無題.aat - "}};
  for (const auto& [key, title] : rows) {
    Choose("New", key);
    EXPECT_TRUE(Title().starts_with(title)) << key << ' ' << Title();
  }
}

TEST_F(ToolBarTest, OpenAndSaveAskTheirDialogs) {
  Open();
  Click("Open");
  Choose("Open", "Open1");
  Choose("Open", "Open3");
  EXPECT_EQ(desk.dialogs.opens.size(), 3u);
  Choose("ReSave", "Save2");
  EXPECT_EQ(desk.dialogs.saves.size(), 1u);
}

TEST_F(ToolBarTest, SaveWritesTheFile) {
  desk.folder.Write("page.htm", "x\r\n");
  Open();
  ASSERT_TRUE(desk.window->OpenDocument(desk.folder.Text(u"page.htm")));
  desk.Press(u"a");
  Click("ReSave");
  EXPECT_EQ(desk.folder.Read("page.htm"), "ax\r\n");
  desk.Press(u"b");
  Choose("ReSave", "Save1");
  EXPECT_EQ(desk.folder.Read("page.htm"), "abx\r\n");
}

TEST_F(ToolBarTest, CutCopyPasteUndoAndRedoActOnTheText) {
  Open();
  desk.Put(u"a⟦bc⟧d");
  bar->RefreshStates();
  Click("Cut");
  EXPECT_EQ(desk.Row(), "a‸d");
  Click("Past");
  EXPECT_EQ(desk.Row(), "abc‸d");
  Click("Undo");
  EXPECT_EQ(desk.Row(), "a‸d");
  Click("Redo");
  EXPECT_EQ(desk.clipboard.text, u"bc");
  desk.Put(u"⟦x⟧y");
  bar->RefreshStates();
  Click("Copy");
  EXPECT_EQ(desk.clipboard.text, u"x");
}

TEST_F(ToolBarTest, TheToolOpensTheTagCandidatesOfAPageAndTheInsertBarOfAText) {
  Open();
  Click("Tool");
  EXPECT_TRUE(desk.window->Popup().Visible());
  desk.Press(u"{Esc}");
  desk.Run("MenFileMs", 1);
  bar->RefreshStates();
  EXPECT_EQ(Button("Tool")->toolTip(), QStringLiteral("ﾂｰﾙ: MenuBar"));
  Click("Tool");
  EXPECT_FALSE(desk.window->Popup().Visible());
  const auto* insertBar = desk.window->findChild<EditSubFrm*>();
  ASSERT_NE(insertBar, nullptr);
  EXPECT_TRUE(insertBar->isVisible());
}

TEST_F(ToolBarTest, ThePaletteOfADraftIsTheTool) {
  Open();
  desk.Run("MenFileMs", 14);
  bar->RefreshStates();
  EXPECT_EQ(Button("Tool")->toolTip(), QStringLiteral("ﾂｰﾙ: AsciiArtPalette"));
  EXPECT_TRUE(Button("Tool")->isEnabled()) << "the other tools stay in reach";
}

TEST_F(ToolBarTest, TheCandidateListsOpenFromTheDropDown) {
  Open();
  for (const char* key : {"Tool8", "Tool9", "Tool10"}) {
    Choose("Tool", key);
    EXPECT_TRUE(desk.window->Popup().Visible()) << key;
    desk.Press(u"{Esc}");
  }
}

TEST_F(ToolBarTest, ExternalProgramsAreNamedAsRegisteredAtEachOpening) {
  desk.Set(u"PrgReg", u"PrgReg0", u"(なし)");
  desk.Set(u"PrgReg", u"PrgReg1", u"/usr/bin/viewer %DIR%");
  Open();
  EXPECT_EQ(Caption("Tool", "Tool3"), "(なし)");
  EXPECT_FALSE(Entry("Tool", "Tool3")->isEnabled());
  EXPECT_TRUE(Caption("Tool", "Tool4").starts_with("外部ｴﾃﾞｨﾀ(viewer")) << Caption("Tool", "Tool4");
  EXPECT_TRUE(Caption("Tool", "Tool4").ends_with(")..."));
  Choose("Tool", "Tool4");
  EXPECT_EQ(desk.shell.commandLines.size(), 1u);
  EXPECT_EQ(Caption("Tool", "Tool5"), "(なし)");
  desk.Set(u"PrgReg", u"PrgReg2", u"/usr/bin/a&b");
  EXPECT_EQ(Caption("Tool", "Tool5"), "外部ｴﾃﾞｨﾀ(a&&b)...") << "a menu shows && as one";
}

TEST_F(ToolBarTest, ButtonsThatSwitchArePressedInWhileTheirStateIsOn) {
  Open();
  EXPECT_TRUE(Button("LineNo")->isChecked());
  Click("LineNo");
  EXPECT_FALSE(Button("LineNo")->isChecked());
  desk.Run("MenV", 5);
  bar->RefreshStates();
  EXPECT_TRUE(Button("LineNo")->isChecked());
  EXPECT_FALSE(Button("Top")->isChecked());
  Click("Top");
  EXPECT_TRUE(Button("Top")->isChecked());
  EXPECT_EQ(desk.state.topMost, -1);
}

TEST_F(ToolBarTest, ACommandThatAsksLeavesTheSwitchAsItWas) {
  Open();
  desk.environment.processes = {desk.environment.executable, desk.environment.executable};
  Click("LineNo");
  EXPECT_EQ(desk.boxes.asked.size(), 1u) << "answered by cancel";
  EXPECT_TRUE(Button("LineNo")->isChecked());
}

TEST_F(ToolBarTest, AButtonWhoseEntriesMayNotRunIsDisabled) {
  Open();
  for (const ToolRow& row : ToolRows()) {
    if (row.entries.empty()) continue;
    bool any = desk.window->Commands().MayRun(
        *FindCommand(row.key == "Tool" ? "HTMLEdit" : row.array, row.key == "Tool" ? 1 : row.index));
    for (const ToolEntry& entry : row.entries) {
      const CommandRow* command = FindCommand(entry.array, entry.index);
      any = any || (command != nullptr && desk.window->Commands().MayRun(*command));
    }
    EXPECT_EQ(Button(row.key)->isEnabled(), any) << row.key;
  }
}

TEST_F(ToolBarTest, TheTextKeepsTheFocusWhileButtonsArePressed) {
  Open();
  for (const QAction* action : bar->actions()) {
    EXPECT_EQ(bar->widgetForAction(const_cast<QAction*>(action))->focusPolicy(), Qt::NoFocus);
  }
  Click("New");
  EXPECT_TRUE(QTest::qWaitFor([&] { return desk.window->TextView().hasFocus(); }));
}

TEST_F(ToolBarTest, ANarrowWindowOffersTheRestBehindTheArrow) {
  Open();
  ShowIcons();
  desk.window->resize(300, 400);
  QApplication::processEvents();
  auto* arrow = bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
  ASSERT_NE(arrow, nullptr);
  ASSERT_TRUE(arrow->isVisible());
  EXPECT_FALSE(bar->widgetForAction(Button("LineNo"))->isVisible());
  QTest::mouseClick(arrow, Qt::LeftButton);
  QTest::qWait(300);  // it slides open
  ASSERT_TRUE(bar->widgetForAction(Button("LineNo"))->isVisible());
  fakes::SavePicture(desk.window->grab().toImage(), QStringLiteral("ToolBar-narrow"));
  Click("LineNo");
  EXPECT_FALSE(Button("LineNo")->isChecked());
}

TEST_F(ToolBarTest, EveryButtonFitsAWindowOf640Pixels) {
  Open();
  desk.window->resize(640, 400);
  QApplication::processEvents();
  EXPECT_LE(bar->sizeHint().width(), 640);
  for (QAction* action : bar->actions()) EXPECT_TRUE(bar->widgetForAction(action)->isVisible());
}

void UseDarkPalette() {
  QPalette dark;
  for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Button, QPalette::Base})
    dark.setColor(role, QColor(45, 48, 54));
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
    dark.setColor(role, QColor(225, 225, 225));
  QApplication::setPalette(dark);
}

TEST_F(ToolBarTest, PicturesOfTheBarAndItsDropDown) {
  Open();
  ShowIcons();
  desk.window->resize(760, 300);
  QApplication::processEvents();
  const QString scale = QStringLiteral("-%1").arg(qRound(bar->devicePixelRatioF() * 100));
  fakes::SavePicture(bar->grab().toImage(), QStringLiteral("ToolBar") + scale);
  QMenu* menu = Button("Tool")->menu();
  Q_EMIT menu->aboutToShow();
  fakes::SavePicture(menu->grab().toImage(), QStringLiteral("ToolBar-menu") + scale);
  const QPalette light = QApplication::palette();
  UseDarkPalette();
  QApplication::processEvents();
  fakes::SavePicture(bar->grab().toImage(), QStringLiteral("ToolBar-dark") + scale);
  QApplication::setPalette(light);
}

TEST_F(ToolBarTest, WithoutMenuIconsTheDropDownsHaveNoneEither) {
  Open();
  bar->AddIcons(ToolBar::MenuIcons::Without);
  EXPECT_FALSE(Button("Tool")->icon().isNull());
  for (const QAction* action : DropDown("Tool")) EXPECT_TRUE(action->icon().isNull());
  bar->AddIcons(ToolBar::MenuIcons::With);
  const QList<QAction*> shown = DropDown("Tool");
  EXPECT_TRUE(std::any_of(shown.begin(), shown.end(),
                          [](const QAction* action) { return !action->icon().isNull(); }));
}

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
