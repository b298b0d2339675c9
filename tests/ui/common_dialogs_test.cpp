// The dialog objects over scripted ports.
#include "ui/common_dialogs.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <stdexcept>

#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/common_world.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

class FailingFileDialog : public fakes::FakeFileDialog {
 public:
  std::optional<FileDialogAnswer> AskOpen(const FileDialogRequest&) override {
    throw std::runtime_error("no dialog");
  }
};

struct FileDialogObject : testing::Test {
  fakes::FakeFileDialog dialogs;
  ClassCommonDialogFile dialog{dialogs};
};

TEST_F(FileDialogObject, AsksForAllFilesUnlessToldOtherwise) {
  dialog.ShowOpen();
  EXPECT_EQ(dialogs.opens.at(0).filter, u"All Files (*.*)|*.*");
  EXPECT_EQ(dialogs.opens.at(0).filterIndex, 1);
  EXPECT_EQ(dialogs.opens.at(0).flags, 0U);
}

TEST_F(FileDialogObject, PassesItsPropertiesOn) {
  dialog.SetFilter(u"ﾃｷｽﾄ 文書 (*.txt)|*.txt|すべてのﾌｧｲﾙ (*.*)|*.*");
  dialog.SetFilterIndex(2);
  dialog.SetFileName(u"/home/author/memo.txt");
  dialog.SetDialogTitle(u"開く ");
  dialog.SetFlags(kHideReadOnly | kFileMustExist);
  dialog.ShowSave();
  ASSERT_EQ(dialogs.saves.size(), 1U);
  const FileDialogRequest& asked = dialogs.saves[0];
  EXPECT_EQ(asked.filter, u"ﾃｷｽﾄ 文書 (*.txt)|*.txt|すべてのﾌｧｲﾙ (*.*)|*.*");
  EXPECT_EQ(asked.filterIndex, 2);
  EXPECT_EQ(asked.fileName, u"/home/author/memo.txt");
  EXPECT_EQ(asked.title, u"開く ");
  EXPECT_EQ(asked.flags, kHideReadOnly | kFileMustExist);
}

TEST_F(FileDialogObject, TakesFieldsSeparatedByNulCharactersAsWell) {
  dialog.SetFilter(std::u16string_view(u"Text\0*.txt\0All\0*.*\0\0", 20));
  EXPECT_EQ(dialog.Filter(), u"Text|*.txt|All|*.*");
}

TEST_F(FileDialogObject, LeavesTheChosenPathAndRow) {
  dialogs.answers = {FileDialogAnswer{u"/home/author/a.htm", 3, true}};
  EXPECT_TRUE(dialog.ShowOpen());
  EXPECT_EQ(dialog.FileName(), u"/home/author/a.htm");
  EXPECT_EQ(dialog.FilterIndex(), 3);
  EXPECT_EQ(dialog.Flags(), kOpenedReadOnly);
}

TEST_F(FileDialogObject, CancellingChangesNothing) {
  dialog.SetFileName(u"memo.txt");
  dialog.SetFilterIndex(2);
  EXPECT_FALSE(dialog.ShowOpen());
  EXPECT_FALSE(dialog.ShowSave());
  EXPECT_EQ(dialog.FileName(), u"memo.txt");
  EXPECT_EQ(dialog.FilterIndex(), 2);
}

TEST_F(FileDialogObject, TheOwnerIsActiveAgainAfterwards) {
  QWidget owner;
  QWidget other;
  owner.show();
  other.show();
  other.activateWindow();
  QApplication::processEvents();
  ASSERT_NE(QApplication::activeWindow(), &owner);
  dialog.SetOwnerhWnd(&owner);
  dialog.ShowOpen();
  QApplication::processEvents();
  EXPECT_EQ(QApplication::activeWindow(), &owner);
}

TEST(FileDialogFailure, IsReportedUnderTheNameOfTheDialogAndEndsAsACancel) {
  static QString reported;
  const auto previous = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& message) { reported = message; });
  FailingFileDialog dialogs;
  ClassCommonDialogFile dialog(dialogs);
  EXPECT_FALSE(dialog.ShowOpen());
  qInstallMessageHandler(previous);
  EXPECT_EQ(reported, QStringLiteral("CommonDialogBox: no dialog"));
}

struct FolderDialogObject : testing::Test, fakes::CommonWorld<PosixFileSystem> {
  FolderDialogObject() { dialog.SetDialogTitle(u"ﾌｫﾙﾀﾞの選択"); }
  void Answer(std::u16string_view path) {
    dialogs.answers.emplace_back(FileDialogAnswer{.fileName = std::u16string(path)});
  }

  fakes::TemporaryFolder folder;
  fakes::FakeMessageBox boxes;
  fakes::FakeFileDialog dialogs;
  ClassCommonDialogFolder dialog{dialogs, boxes, common};
};

TEST_F(FolderDialogObject, TheChosenFolderIsInPath) {
  Answer(folder.Text());
  EXPECT_TRUE(dialog.Show());
  EXPECT_EQ(dialog.Path(), folder.Text());
  EXPECT_EQ(dialogs.folderTitles.at(0), u"ﾌｫﾙﾀﾞの選択");
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(FolderDialogObject, CancellingGivesTheEmptyPath) {
  dialog.SetPath(folder.Text());
  EXPECT_FALSE(dialog.Show());
  EXPECT_EQ(dialog.Path(), u"");
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(FolderDialogObject, AFolderThatCannotBeEnteredIsToldAndAnotherOneAskedFor) {
  Answer(folder.Text(u"gone"));
  Answer(folder.Text());
  EXPECT_TRUE(dialog.Show());
  ASSERT_EQ(boxes.asked.size(), 1U);
  EXPECT_EQ(ToUtf8(boxes.asked[0].text), "ﾌｫﾙﾀﾞの参照 \"gone\"\r\nにｱｸｾｽできませんでした");
  EXPECT_EQ(dialog.Path(), folder.Text());
}

TEST_F(FolderDialogObject, AFileIsNoFolder) {
  folder.Write("memo.txt", "memo");
  Answer(folder.Text(u"memo.txt"));
  EXPECT_FALSE(dialog.Show());
  EXPECT_EQ(boxes.asked.size(), 1U);
  EXPECT_EQ(dialog.Path(), u"");
}

TEST_F(FolderDialogObject, StartsInPathOrWhereTheCallbackSays) {
  struct RecordingDialog : fakes::FakeFileDialog {
    std::optional<std::u16string> AskFolder(const std::u16string&, const std::u16string& start) override {
      starts.push_back(start);
      return std::nullopt;
    }
    std::vector<std::u16string> starts;
  } recording;
  ClassCommonDialogFolder asked(recording, boxes, common);
  asked.SetPath(u"/one");
  asked.SetCallBackProc([] { return std::u16string(u"/two"); });
  asked.Show();
  asked.FleeCallBackProc();
  asked.SetPath(u"/three");
  asked.Show();
  EXPECT_EQ(recording.starts, (std::vector<std::u16string>{u"/two", u"/three"}));
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
