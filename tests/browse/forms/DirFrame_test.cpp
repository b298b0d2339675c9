#include "browse/forms/DirFrame.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QTest>
#include <QWindow>

#include "platform/qt/qt_text.hpp"
#include "tests/browse/folder_world.hpp"
#include "tests/fakes/screens.hpp"

namespace kestri {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

QPalette DarkPalette() {
  QPalette dark(QColor(0x30, 0x30, 0x34));
  dark.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x20));
  dark.setColor(QPalette::Text, QColor(0xE6, 0xE6, 0xE6));
  return dark;
}

class DirFrameTest : public ::testing::Test, protected FolderDesk {
 protected:
  DirFrameTest() : FolderDesk(PathStyle::Posix) {
    environment.drives = {u"/", u"/media/author/USBﾒﾓﾘ"};
    files.AddFolder(u"/media/author/USBﾒﾓﾘ/写真");
    files.AddFolder(u"/home/author/pages/.git/objects", kAttributeHidden);
    files.folders[u"/home/author/pages/.git"] |= kAttributeHidden;
    files.AddFolder(u"/home/author/pages/css", kAttributeReadOnly);
    for (const char16_t* name :
         {u"index.htm", u"日記.htm", u"album.html", u"memo.txt", u"style.css", u".htaccess"})
      AddFile(u"/home/author/pages/" + std::u16string(name));
    frame = new DirFrame({common, state, boxes, host});
    owner.setCentralWidget(frame);
    owner.resize(240, 520);
    owner.show();
    QApplication::setActiveWindow(&owner);
  }

  void Start() {
    frame->Start(u"/home/author/pages");
    QApplication::processEvents();
  }
  QModelIndex IndexOf(const std::u16string& path) const {
    const DirectoryNode* node = frame->Bar().directoryTree1.Find(path);
    EXPECT_NE(node, nullptr) << ToUtf8(path);
    return Tree().Model().IndexOf(node);
  }
  DirectoryTreeControl& Tree() const { return frame->DirectoryTree1(); }
  DirTreeFileControl& List() const { return frame->DirTreeFile(); }
  std::u16string CurrentPath() const { return frame->Bar().directoryTree1.SelectPath(); }
  void Key(QWidget& to, Qt::Key key) {
    to.setFocus();
    QTest::keyClick(&to, key);
    QApplication::processEvents();
  }
  void ClickOn(QAbstractItemView& view, const QModelIndex& index, Qt::KeyboardModifiers keys = {}) {
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, view.visualRect(index).center());
  }
  void ChooseFile(const QString& name) {
    for (int row = 0; row < List().model()->rowCount(); ++row) {
      const QModelIndex index = List().model()->index(row, 0);
      if (index.data().toString() == name) return List().setCurrentIndex(index);
    }
    ADD_FAILURE() << name.toStdString();
  }
  static QStringList Texts(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions())
      texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
    return texts;
  }
  static QAction* Find(const QMenu& menu, const QString& text) {
    for (QAction* action : menu.actions()) {
      if (action->text() == text) return action;
      if (QAction* below = action->menu() == nullptr ? nullptr : Find(*action->menu(), text)) return below;
    }
    return nullptr;
  }
  static QMenu* OpenMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

  QMainWindow owner;
  DirFrame* frame = nullptr;
};

TEST_F(DirFrameTest, ReadsNothingBeforeItStarts) {
  QApplication::processEvents();
  EXPECT_EQ(files.statusCalls + files.fileLists + files.subFolderTests, 0);
  EXPECT_EQ(Tree().model()->rowCount(), 0);
  EXPECT_EQ(frame->FileExtCombo().count(), 0);
  EXPECT_FALSE(frame->Started());
}

TEST_F(DirFrameTest, StartShowsTheFolderItsFilesAndTheirKinds) {
  QAbstractItemModelTester tester(Tree().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  Start();
  EXPECT_EQ(Tree().currentIndex(), IndexOf(u"/home/author/pages"));
  EXPECT_TRUE(Tree().isExpanded(IndexOf(u"/home/author")));
  EXPECT_TRUE(Tree().isExpanded(IndexOf(u"/home/author/pages")));
  EXPECT_GT(frame->FileExtCombo().count(), 10);
  EXPECT_EQ(List().model()->rowCount(), 4);
  frame->FileExtCombo().setCurrentIndex(3);
  EXPECT_EQ(List().model()->index(0, 0).data().toString(), QStringLiteral("style.css"));
}

TEST_F(DirFrameTest, ClickOnAFolderShowsItsFiles) {
  Start();
  AddFile(u"/home/author/empty/a.txt");
  ClickOn(Tree(), IndexOf(u"/home/author/empty"));
  EXPECT_EQ(CurrentPath(), u"/home/author/empty");
  EXPECT_EQ(List().model()->index(0, 0).data().toString(), QStringLiteral("a.txt"));
}

TEST_F(DirFrameTest, ArrowKeysWalkAndOpenTheTree) {
  QAbstractItemModelTester tester(Tree().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  Start();
  Key(Tree(), Qt::Key_Left);
  EXPECT_FALSE(Tree().isExpanded(IndexOf(u"/home/author/pages")));
  Key(Tree(), Qt::Key_Return);
  EXPECT_TRUE(Tree().isExpanded(IndexOf(u"/home/author/pages")));
  Key(Tree(), Qt::Key_Down);
  EXPECT_EQ(CurrentPath(), u"/home/author/pages/.git");
  Key(Tree(), Qt::Key_Right);
  EXPECT_TRUE(Tree().isExpanded(IndexOf(u"/home/author/pages/.git")));
  Key(Tree(), Qt::Key_Backspace);
  EXPECT_EQ(CurrentPath(), u"/home/author/pages");
  EXPECT_EQ(Tree().currentIndex(), IndexOf(u"/home/author/pages"));
}

TEST_F(DirFrameTest, CollapsingAroundTheCurrentFolderTakesTheSelectionAlong) {
  Start();
  Tree().collapse(IndexOf(u"/home"));
  EXPECT_EQ(CurrentPath(), u"/home");
  EXPECT_EQ(Tree().currentIndex(), IndexOf(u"/home"));
}

TEST_F(DirFrameTest, BranchThatIsEmptyAfterAllLosesItsPlusSign) {
  Start();
  const QModelIndex index = IndexOf(u"/home/author/pages/.git");
  files.RemoveTree(u"/home/author/pages/.git/objects");
  EXPECT_TRUE(Tree().model()->hasChildren(index));
  Tree().expand(index);
  EXPECT_FALSE(Tree().model()->hasChildren(index));
  EXPECT_FALSE(Tree().isExpanded(index));
}

TEST_F(DirFrameTest, F2RenamesTheFolder) {
  Start();
  Key(Tree(), Qt::Key_F2);
  auto* editor = Tree().findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->text(), QStringLiteral("pages"));
  editor->setText(QStringLiteral("ﾎｰﾑﾍﾟｰｼﾞ"));
  QTest::keyClick(editor, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([this] { return CurrentPath() != u"/home/author/pages"; }));
  EXPECT_EQ(CurrentPath(), u"/home/author/ﾎｰﾑﾍﾟｰｼﾞ");
  EXPECT_TRUE(Tree().isExpanded(Tree().currentIndex()));
  EXPECT_EQ(Tree().currentIndex().data().toString(), QStringLiteral("ﾎｰﾑﾍﾟｰｼﾞ"));
}

TEST_F(DirFrameTest, EscapeLeavesTheNameAsItWas) {
  Start();
  Key(Tree(), Qt::Key_F2);
  auto* editor = Tree().findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  editor->setText(QStringLiteral("other"));
  QTest::keyClick(editor, Qt::Key_Escape);
  QApplication::processEvents();
  EXPECT_EQ(CurrentPath(), u"/home/author/pages");
}

TEST_F(DirFrameTest, DriveAndMyDocumentsCannotBeRenamed) {
  frame->Start(u"/home/author/Documents");
  Key(Tree(), Qt::Key_F2);
  EXPECT_EQ(Tree().findChild<QLineEdit*>(), nullptr);
  Tree().setCurrentIndex(IndexOf(u"/"));
  Key(Tree(), Qt::Key_F2);
  EXPECT_EQ(Tree().findChild<QLineEdit*>(), nullptr);
}

TEST_F(DirFrameTest, NewFolderIsEditedAtOnce) {
  Start();
  const auto menu = frame->DirTreeMenu();
  Find(*menu, QStringLiteral("新しいﾃﾞｨﾚｸﾄﾘを作成(&N)"))->trigger();
  QApplication::processEvents();
  EXPECT_EQ(CurrentPath(), u"/home/author/pages/新しいフォルダ");
  auto* editor = Tree().findChild<QLineEdit*>();
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(editor->text(), QStringLiteral("新しいフォルダ"));
}

TEST_F(DirFrameTest, F5ReadsTheFolderAnewAndKeepsTheChosenFile) {
  Start();
  ChooseFile(QStringLiteral("memo.txt"));
  AddFile(u"/home/author/pages/a.txt");
  files.AddFolder(u"/home/author/pages/new");
  Key(List(), Qt::Key_F5);
  EXPECT_EQ(List().model()->rowCount(), 5);
  EXPECT_EQ(List().currentIndex().data().toString(), QStringLiteral("memo.txt"));
  EXPECT_TRUE(IndexOf(u"/home/author/pages/new").isValid());
  EXPECT_TRUE(List().hasFocus());
}

TEST_F(DirFrameTest, DeleteKeyDeletesNothing) {
  Start();
  ChooseFile(QStringLiteral("memo.txt"));
  Key(List(), Qt::Key_Delete);
  Key(Tree(), Qt::Key_Delete);
  EXPECT_TRUE(files.Status(u"/home/author/pages/memo.txt").has_value());
  EXPECT_TRUE(files.Status(u"/home/author/pages").has_value());
}

TEST_F(DirFrameTest, EnterAndDoubleClickOpenTheFile) {
  Start();
  ChooseFile(QStringLiteral("memo.txt"));
  Key(List(), Qt::Key_Return);
  ChooseFile(QStringLiteral("日記.htm"));
  const QPoint at = List().visualRect(List().currentIndex()).center();
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, at);
  EXPECT_THAT(host.opened, ElementsAre(Pair(u"/home/author/pages/memo.txt", false),
                                       Pair(u"/home/author/pages/日記.htm", false)));
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, QPoint(20, List().viewport()->height() - 2));
  EXPECT_EQ(host.opened.size(), 2u);
}

TEST_F(DirFrameTest, EscapeGoesBackToTheText) {
  Start();
  Key(List(), Qt::Key_Escape);
  Key(Tree(), Qt::Key_Escape);
  EXPECT_EQ(host.focused, 2);
}

TEST_F(DirFrameTest, KeysOfTheBarAreStrongerThanCommandsOfTheWindow) {
  Start();
  int commands = 0;
  for (const Qt::Key key : {Qt::Key_F5, Qt::Key_Delete, Qt::Key_Return}) {
    auto* command = new QAction(&owner);
    command->setShortcut(key);
    owner.addAction(command);
    QObject::connect(command, &QAction::triggered, [&commands] { ++commands; });
  }
  ChooseFile(QStringLiteral("memo.txt"));
  for (const Qt::Key key : {Qt::Key_F5, Qt::Key_Delete, Qt::Key_Return}) {
    List().setFocus();
    QTest::keyClick(owner.windowHandle(), key);
  }
  EXPECT_EQ(commands, 0);
  EXPECT_EQ(host.opened.size(), 1u);
}

TEST_F(DirFrameTest, BackspaceInTheListGoesToTheFolderAbove) {
  Start();
  Key(List(), Qt::Key_Backspace);
  EXPECT_EQ(CurrentPath(), u"/home/author");
}

TEST_F(DirFrameTest, ClicksTellAboutTheFileByTheirKeys) {
  Start();
  host.offered = {FolderBarTool::FileInformation};
  const QModelIndex first = List().model()->index(0, 0);
  ClickOn(List(), first);
  ClickOn(List(), first, Qt::ShiftModifier);
  ClickOn(List(), first, Qt::ControlModifier);
  const std::u16string path = u"/home/author/pages/album.html";
  EXPECT_THAT(host.informed, ElementsAre(Pair(path, ShowFileView::No), Pair(path, ShowFileView::Yes)));
}

TEST_F(DirFrameTest, ListAndKindsAreOffWhileTheFolderIsMissing) {
  Start();
  List().setFocus();
  files.RemoveTree(u"/home/author/pages/img");
  frame->Bar().directoryTree1.NodeClick(*frame->Bar().directoryTree1.Find(u"/home/author/pages/img"));
  EXPECT_FALSE(List().isEnabled());
  EXPECT_FALSE(frame->FileExtCombo().isEnabled());
  EXPECT_EQ(List().model()->rowCount(), 0);
  EXPECT_TRUE(Tree().hasFocus());
  ClickOn(Tree(), IndexOf(u"/home/author/pages"));
  EXPECT_TRUE(List().isEnabled());
  EXPECT_TRUE(frame->FileExtCombo().isEnabled());
  EXPECT_EQ(List().model()->rowCount(), 4);
}

TEST_F(DirFrameTest, TreeMenuShowsAllItsRows) {
  Start();
  const auto menu = frame->DirTreeMenu();
  EXPECT_EQ(Texts(*menu),
            (QStringList{"再試行(&Y)\tF5", "ﾃﾞｨﾚｸﾄﾘの再構築(&P)", "-", "このﾃﾞｨﾚｸﾄﾘから開く(&A)...",
                         "このﾃﾞｨﾚｸﾄﾘに名前をつけて保存(&A)...", "-", "&Grep検索開始...", "-", "ﾂｰﾙ(&T)", "-",
                         "新しいﾃﾞｨﾚｸﾄﾘを作成(&N)", "ﾃﾞｨﾚｸﾄﾘの名前を変更(&M)\tF2", "ﾌﾟﾛﾊﾟﾃｨ(&R)...", "-",
                         "ﾏｲ ﾄﾞｷｭﾒﾝﾄへ移動", "ﾃﾞｽｸﾄｯﾌﾟへ移動"}));
  EXPECT_FALSE(Find(*menu, QStringLiteral("&Grep検索開始..."))->isEnabled());
  EXPECT_FALSE(Find(*menu, QStringLiteral("&PicPeek"))->isEnabled());
  EXPECT_TRUE(Find(*menu, QStringLiteral("ｴｸｽﾌﾟﾛｰﾗｰ(&E)"))->isEnabled());
  Find(*menu, QStringLiteral("ﾃﾞｽｸﾄｯﾌﾟへ移動"))->trigger();
  EXPECT_EQ(CurrentPath(), u"/home/author/Desktop");
}

TEST_F(DirFrameTest, FileMenuShowsAllItsRowsAndItsCheck) {
  Start();
  ChooseFile(QStringLiteral("memo.txt"));
  state.showInfoOnSelect = -1;
  const auto menu = frame->DirTreeFileMenu();
  EXPECT_EQ(Texts(*menu), (QStringList{"開く(&O)", "新しいｳｨﾝﾄﾞｳで開く(&W)", "HTMLに変換して開く(&C)...", "-",
                                       "関連付けて開く(&E)", "-", "ﾂｰﾙ(&T)", "-", "設定", "ﾌﾟﾛﾊﾟﾃｨ(&R)...",
                                       "ﾌｧｲﾙ情報(I&)...\tShift+ｸﾘｯｸ"}));
  QAction* setting = Find(*menu, QStringLiteral("ﾌｧｲﾙを選択した時に ﾌｧｲﾙ情報を表示する(&I)"));
  EXPECT_TRUE(setting->isChecked());
  setting->trigger();
  EXPECT_EQ(state.showInfoOnSelect, 0);
  EXPECT_FALSE(Find(*menu, QStringLiteral("解凍する(&Z)..."))->isEnabled());
  Find(*menu, QStringLiteral("新しいｳｨﾝﾄﾞｳで開く(&W)"))->trigger();
  EXPECT_THAT(host.did, ElementsAre(Pair(u"new instance", u"/home/author/pages/memo.txt")));
}

TEST_F(DirFrameTest, RightButtonSelectsTheFolderUnderItAndOpensTheMenu) {
  Start();
  const QRect place = Tree().visualRect(IndexOf(u"/home/author/empty"));
  QContextMenuEvent event(QContextMenuEvent::Mouse, place.center(),
                          Tree().viewport()->mapToGlobal(place.center()));
  QApplication::sendEvent(Tree().viewport(), &event);
  ASSERT_NE(OpenMenu(), nullptr);
  EXPECT_EQ(CurrentPath(), u"/home/author/empty");
  EXPECT_EQ(OpenMenu()->actions().front()->text(), QStringLiteral("再試行(&Y)\tF5"));
  OpenMenu()->close();
}

TEST_F(DirFrameTest, MenuKeyOpensTheFilesMenu) {
  Start();
  ChooseFile(QStringLiteral("日記.htm"));
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QApplication::sendEvent(List().viewport(), &event);
  QMenu* menu = OpenMenu();
  ASSERT_NE(menu, nullptr);
  QTest::keyClick(menu, Qt::Key_O);
  EXPECT_THAT(host.opened, ElementsAre(Pair(u"/home/author/pages/日記.htm", false)));
}

TEST_F(DirFrameTest, SavedFileAppearsInTheList) {
  frame->RefreshFiles();
  EXPECT_EQ(files.fileLists, 0);
  Start();
  AddFile(u"/home/author/pages/new.htm");
  frame->RefreshFiles();
  EXPECT_EQ(List().model()->rowCount(), 5);
}

TEST_F(DirFrameTest, PropertiesAreKeptWithinTheirBounds) {
  QStringList changed;
  QObject::connect(&Tree(), &DirectoryTreeControl::PropertyChanged,
                   [&](const QString& name) { changed << name; });
  EXPECT_EQ(Tree().FontSize(), 9);
  EXPECT_EQ(Tree().Indentation(), 150);
  EXPECT_FALSE(Tree().XPStyle());
  Tree().SetFontSize(0);
  Tree().SetIndentation(-5);
  Tree().SetXPStyle(true);
  Tree().SetEnabled(false);
  EXPECT_EQ(Tree().FontSize(), 1);
  EXPECT_EQ(Tree().Indentation(), 1);
  EXPECT_TRUE(Tree().XPStyle());
  EXPECT_FALSE(Tree().Enabled());
  EXPECT_EQ(changed, (QStringList{"FontSize", "Indentation", "XPStyle", "Enabled"}));
}

TEST_F(DirFrameTest, ColorsCanBeReadOnLightAndDark) {
  const QPalette light(Qt::white);
  EXPECT_EQ(FolderColor(NodeColor::Hidden, light), QColor(150, 150, 150));
  EXPECT_EQ(FolderColor(NodeColor::ReadOnly, light), QColor(0, 150, 0));
  EXPECT_EQ(FolderColor(NodeColor::Hidden, DarkPalette()), QColor(150, 150, 150));
  EXPECT_GT(FolderColor(NodeColor::ReadOnly, DarkPalette()).lightness(), 130);
  Start();
  const QModelIndex css = IndexOf(u"/home/author/pages/css");
  EXPECT_EQ(css.data(Qt::ForegroundRole).value<QColor>(), QColor(0, 150, 0));
  Tree().setPalette(DarkPalette());
  EXPECT_EQ(css.data(Qt::ForegroundRole).value<QColor>(), FolderColor(NodeColor::ReadOnly, DarkPalette()));
}

TEST_F(DirFrameTest, StrangeNamesShowInOneLineAndAreEditedAsTheyAre) {
  files.AddFolder(u"/home/author/pages/two\nlines");
  Start();
  const QModelIndex odd = IndexOf(u"/home/author/pages/two\nlines");
  EXPECT_EQ(odd.data().toString(), QStringLiteral("two\u240Alines"));
  EXPECT_EQ(odd.data(Qt::EditRole).toString(), QStringLiteral("two\nlines"));
  EXPECT_EQ(Tree().visualRect(odd).height(), Tree().visualRect(IndexOf(u"/home")).height());
  EXPECT_TRUE(odd.data(Qt::ToolTipRole).toString().startsWith(u'/'));
}

TEST_F(DirFrameTest, TipsShowNamesAsTheyStand) {
  AddFile(u"/home/author/pages/<b>&.txt");
  AddFile(u"/home/author/pages/a<b.txt");
  Start();
  QStringList tips;
  for (int row = 0; row < List().model()->rowCount(); ++row)
    tips << List().model()->index(row, 0).data(Qt::ToolTipRole).toString();
  EXPECT_TRUE(tips.contains(QStringLiteral("<p>&lt;b&gt;&amp;.txt</p>"))) << tips.join(u' ').toStdString();
  EXPECT_TRUE(tips.contains(QStringLiteral("a<b.txt")));
}

TEST_F(DirFrameTest, KindsDropDownAsWideAsTheirCaptions) {
  Start();
  owner.resize(120, 400);
  frame->FileExtCombo().showPopup();
  EXPECT_GE(frame->FileExtCombo().view()->width(), frame->FileExtCombo().view()->sizeHintForColumn(0));
  EXPECT_LE(frame->width(), 140);
  frame->FileExtCombo().hidePopup();
}

TEST_F(DirFrameTest, EveryPartHasANameForTheScreenReader) {
  for (const QWidget* part : {static_cast<QWidget*>(&Tree()), static_cast<QWidget*>(&List()),
                              static_cast<QWidget*>(&frame->FileExtCombo()), static_cast<QWidget*>(frame)})
    EXPECT_FALSE(part->accessibleName().isEmpty());
}

TEST_F(DirFrameTest, Pictures) {
  AddFile(u"/home/author/pages/とても長い名前のﾍﾟｰｼﾞ-2003年の夏休みの思い出.html");
  Start();
  frame->FileExtCombo().setCurrentIndex(frame->FileExtCombo().count() - 1);
  ChooseFile(QStringLiteral("日記.htm"));
  Tree().setFocus();
  QApplication::processEvents();
  const QString size = owner.devicePixelRatio() > 1 ? QStringLiteral("-200") : QString();
  fakes::SavePicture(owner.grab().toImage(), QStringLiteral("DirFrame") + size);
  const QPalette before = QApplication::palette();
  QApplication::setPalette(DarkPalette());
  QApplication::processEvents();
  fakes::SavePicture(owner.grab().toImage(), QStringLiteral("DirFrame-dark") + size);
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  return RUN_ALL_TESTS();
}
