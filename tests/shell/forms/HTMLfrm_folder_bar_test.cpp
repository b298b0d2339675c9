// The folder bar in the editor window.
#include <gtest/gtest.h>

#include <QSplitter>

#include "browse/forms/DirFrame.hpp"
#include "shell/common/code_page.hpp"
#include "tests/shell/forms/editor_desk.hpp"

namespace kestri {
namespace {

class HTMLfrmFolderBarTest : public testing::Test {
 protected:
  HTMLfrmFolderBarTest() {
    desk.environment.drives = {u"/"};
    desk.files.CreateFolder(desk.folder.Text(u"pages"));
    desk.folder.Write("pages/index.htm", "index\r\n");
    desk.folder.Write("pages/notes.txt", "notes\r\n");
    desk.Set(u"Setting", u"NawPath", desk.folder.Text(u"pages"));
  }

  void Open() {
    desk.Open();
    desk.window->FillFolderBar();
    QApplication::processEvents();
  }
  QSplitter& FrameReSise() const {
    return *desk.window->findChild<QSplitter*>(QStringLiteral("FrameReSise"));
  }
  DirFrame* Bar() const { return desk.window->findChild<DirFrame*>(); }
  std::u16string Kept(std::u16string_view key) {
    return desk.common->GetINI(u"Kestri", u"Bar", key, u"(unset)");
  }
  std::vector<std::u16string> Names() const { return Bar()->Bar().dirTreeFile.Names(); }

  fakes::EditorDesk desk;
};

TEST_F(HTMLfrmFolderBarTest, ShowsTheWorkingFolderOnceTheWindowStands) {
  desk.Open();
  EXPECT_EQ(FrameReSise().sizes().front(), 200);
  EXPECT_EQ(Bar(), nullptr) << "nothing of it delays the first painting";
  desk.window->FillFolderBar();
  ASSERT_NE(Bar(), nullptr);
  EXPECT_TRUE(Bar()->isVisible());
  EXPECT_EQ(Bar()->Bar().directoryTree1.Path(), desk.folder.Text(u"pages"));
  EXPECT_EQ(Names(), (std::vector<std::u16string>{u"index.htm", u"notes.txt"}));
  EXPECT_TRUE(desk.window->TextView().hasFocus());
}

TEST_F(HTMLfrmFolderBarTest, HasTheStoredWidthAndKeepsTheOneItIsDraggedTo) {
  desk.Set(u"Bar", u"DirectoryTreeWidth", u"2250");
  Open();
  EXPECT_EQ(Bar()->width(), 150);
  FrameReSise().setSizes({210, FrameReSise().width() - 210});
  Q_EMIT FrameReSise().splitterMoved(210, 1);
  desk.window->close();
  EXPECT_EQ(Kept(u"DirectoryTreeWidth"), u"3150");
}

TEST_F(HTMLfrmFolderBarTest, KeepsItsWidthWhenTheWindowGrows) {
  Open();
  const int width = Bar()->width();
  EXPECT_EQ(width, 200);
  desk.window->resize(desk.window->width() + 300, desk.window->height());
  QApplication::processEvents();
  EXPECT_EQ(Bar()->width(), width);
}

TEST_F(HTMLfrmFolderBarTest, IsNotMadeWhileItIsSwitchedOff) {
  desk.Set(u"Bar", u"DirTree", u"0");
  Open();
  EXPECT_EQ(Bar(), nullptr);
  EXPECT_FALSE(desk.window->Commands().Checked(*FindCommand("MenV", 2)));
  desk.Run("MenV", 2);
  ASSERT_NE(Bar(), nullptr);
  EXPECT_TRUE(Bar()->isVisible());
  EXPECT_EQ(Names().size(), 2u);
  EXPECT_EQ(Bar()->width(), 200);
  EXPECT_EQ(Kept(u"DirTree"), u"1");
  EXPECT_EQ(Kept(u"DirectoryTreeWidth"), u"3000");
}

TEST_F(HTMLfrmFolderBarTest, ReadsTheFolderAnewWhenItIsShownAgain) {
  Open();
  desk.Run("MenV", 2);
  EXPECT_FALSE(Bar()->isVisible());
  EXPECT_TRUE(desk.window->TextView().hasFocus());
  desk.folder.Write("pages/later.htm", "later\r\n");
  desk.Run("MenV", 2);
  EXPECT_EQ(Names().size(), 3u);
}

TEST_F(HTMLfrmFolderBarTest, TheKeyboardGoesThereAndBack) {
  desk.Set(u"Bar", u"DirTree", u"0");
  Open();
  desk.Run("MenV", 7);
  EXPECT_TRUE(Bar()->isVisible());
  EXPECT_TRUE(Bar()->DirectoryTree1().hasFocus());
  QTest::keyClick(&Bar()->DirectoryTree1(), Qt::Key_Escape);
  EXPECT_TRUE(desk.window->TextView().hasFocus());
}

TEST_F(HTMLfrmFolderBarTest, EnterOpensTheFileAndGoesToTheText) {
  Open();
  Bar()->DirTreeFile().setFocus();
  Bar()->Bar().dirTreeFile.SetListIndex(0);
  QTest::keyClick(&Bar()->DirTreeFile(), Qt::Key_Return);
  EXPECT_EQ(desk.state.currentFile, desk.folder.Text(u"pages/index.htm"));
  EXPECT_EQ(desk.Row(), "‸index");
  EXPECT_TRUE(desk.window->TextView().hasFocus());
}

TEST_F(HTMLfrmFolderBarTest, AnUnsavedDocumentIsAskedForFirst) {
  Open();
  desk.Press(u"x");
  desk.boxes.answers = {MessageAnswer::Cancel};
  Bar()->Bar().dirTreeFile.SetListIndex(0);
  Bar()->Bar().OpenSelectedFile();
  EXPECT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_EQ(desk.Row(), "x‸");
}

TEST_F(HTMLfrmFolderBarTest, ARelativePathIsPutInAtTheCaretInOneStep) {
  desk.folder.Write("top.htm", "\r\n");
  Open();
  ASSERT_TRUE(desk.window->OpenDocument(desk.folder.Text(u"top.htm")));
  Bar()->Bar().dirTreeFile.SetListIndex(1);
  Bar()->Bar().PasteRelativePath();
  EXPECT_EQ(desk.Row(), "./pages/notes.txt‸");
  desk.Press(u"{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "‸");
  desk.window->Control().SetLocked(true);
  Bar()->Bar().PasteRelativePath();
  EXPECT_EQ(desk.Row(), "‸");
}

TEST_F(HTMLfrmFolderBarTest, AReadOnlyFileOpensLocked) {
  const std::string path = ToUtf8(desk.folder.Text(u"pages/index.htm"));
  ::chmod(path.c_str(), 0444);
  Open();
  Bar()->Bar().dirTreeFile.SetListIndex(0);
  Bar()->Bar().OpenFile();
  EXPECT_TRUE(desk.window->Control().Locked());
}

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
