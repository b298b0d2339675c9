#include "browse/folder_bar.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "browse/folder_bar_menu.hpp"
#include "tests/browse/folder_world.hpp"

namespace kestri {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using Menu = FolderBarMenu;

class FolderBarTest : public ::testing::TestWithParam<PathStyle>, protected FolderDesk {
 protected:
  FolderBarTest() : FolderDesk(GetParam()) {
    for (const char16_t* name : {u"index.htm", u"style.css", u"Album.HTML", u"memo.txt", u"Makefile"})
      AddFile(P(u"/home/author/pages/" + std::u16string(name)));
    AddFile(P(u"/home/author/pages/locked.txt"), kAttributeReadOnly);
  }
  void Start() { bar.Start(P(u"/home/author/pages")); }
  void Choose(std::u16string_view name) {
    const auto& names = bar.dirTreeFile.Names();
    const auto found = std::find(names.begin(), names.end(), name);
    ASSERT_NE(found, names.end()) << ToUtf8(name);
    bar.dirTreeFile.SetListIndex(static_cast<std::size_t>(found - names.begin()));
  }
  void ShowAllFiles() {
    bar.fileExtCombo.SetListIndex(static_cast<int>(bar.fileExtCombo.Captions().size()) - 1);
  }
  static const FolderBarRow& Row(Menu menu, int index) {
    return RowsOf(menu)[static_cast<std::size_t>(index)];
  }
  void Run(Menu menu, int index) { Row(menu, index).run(bar); }
  bool Enabled(Menu menu, int index) {
    const FolderBarRow& row = Row(menu, index);
    return row.enabled == nullptr || row.enabled(bar);
  }
  std::u16string InPages(std::u16string_view name) { return common.Join(P(u"/home/author/pages"), name); }

  FolderBar bar{{common, state, boxes, host}};
};

INSTANTIATE_TEST_SUITE_P(Styles, FolderBarTest, ::testing::Values(PathStyle::Posix, PathStyle::Windows),
                         [](const auto& tested) {
                           return tested.param == PathStyle::Posix ? "Posix" : "Windows";
                         });

TEST_P(FolderBarTest, TouchesNoDiskBeforeItStarts) {
  EXPECT_EQ(files.reads + files.statusCalls + files.fileLists + files.subFolderTests, 0);
  EXPECT_THAT(bar.fileExtCombo.Captions(), IsEmpty());
}

TEST_P(FolderBarTest, StartsInTheGivenFolderWithTheFirstKindOfFile) {
  Start();
  EXPECT_EQ(bar.directoryTree1.Path(), P(u"/home/author/pages"));
  EXPECT_EQ(bar.fileExtCombo.ListIndex(), 0);
  EXPECT_EQ(bar.dirTreeFile.Pattern(), u"*.txt;*.htm;*.html;*.jpg;*.gif;*.bmp");
  EXPECT_THAT(bar.dirTreeFile.Names(), ElementsAre(u"Album.HTML", u"index.htm", u"locked.txt", u"memo.txt"));
}

TEST_P(FolderBarTest, StartsInMyDocumentsWhenTheFolderOrItsDriveIsGone) {
  bar.Start(P(u"/home/nobody"));
  EXPECT_EQ(bar.directoryTree1.Path(), P(u"/home/author/Documents"));
  bar.Start(InPages(u"index.htm"));
  EXPECT_EQ(bar.directoryTree1.Path(), P(u"/home/author/Documents"));
  if (style == PathStyle::Posix) return;
  FolderBar other({common, state, boxes, host});
  files.AddFolder(u"X:\\pages");
  other.Start(u"X:\\pages");
  EXPECT_EQ(other.directoryTree1.Path(), P(u"/home/author/Documents"));
}

TEST_P(FolderBarTest, ShowsTheDrivesWhenThereIsNoFolderAtAll) {
  files.RemoveTree(P(u"/home"));
  bar.Start(u"");
  EXPECT_EQ(bar.directoryTree1.Drives().size(), 1u);
  EXPECT_EQ(bar.directoryTree1.Selected(), nullptr);
  EXPECT_THAT(bar.dirTreeFile.Names(), IsEmpty());
}

TEST_P(FolderBarTest, StartsOnTheRememberedKindOfFileWhenAskedTo) {
  Set(u"ExtIndexNo", u"4");
  Start();
  EXPECT_EQ(bar.fileExtCombo.ListIndex(), 0);
  Set(u"ExtIndex", u"1");
  FolderBar second({common, state, boxes, host});
  second.Start(P(u"/home/author/pages"));
  EXPECT_EQ(second.fileExtCombo.ListIndex(), 3);
  EXPECT_THAT(second.dirTreeFile.Names(), ElementsAre(u"style.css"));
  Set(u"ExtIndexNo", u"99");
  FolderBar third({common, state, boxes, host});
  third.Start(P(u"/home/author/pages"));
  EXPECT_EQ(third.fileExtCombo.ListIndex(), 0);
}

TEST_P(FolderBarTest, PatternIsTheTextBetweenTheFirstBracketAndTheLastCharacter) {
  EXPECT_EQ(FileExtCombo::PatternOf(u"HTML 文書 (*.htm;*.html)"), u"*.htm;*.html");
  EXPECT_EQ(FileExtCombo::PatternOf(u"a (b) (c)"), u"b) (c");
  EXPECT_EQ(FileExtCombo::PatternOf(u"none"), u"");
  EXPECT_EQ(FileExtCombo::PatternOf(u"("), u"");
  EXPECT_EQ(FileExtCombo::PatternOf(u"()"), u"");
  EXPECT_EQ(FileExtCombo::PatternOf(u""), u"");
}

TEST_P(FolderBarTest, ChosenKindOfFileFiltersTheList) {
  Start();
  bar.fileExtCombo.SetListIndex(2);
  EXPECT_THAT(bar.dirTreeFile.Names(), ElementsAre(u"Album.HTML", u"index.htm"));
  ShowAllFiles();
  EXPECT_EQ(bar.dirTreeFile.Names().size(), 6u);
  bar.fileExtCombo.SetListIndex(99);
  EXPECT_EQ(bar.dirTreeFile.Names().size(), 6u);
}

TEST_P(FolderBarTest, MissingFolderEmptiesTheListAndAGoodOneBringsItBack) {
  Start();
  bar.fileExtCombo.SetListIndex(2);
  bar.directoryTree1.NodeClick(*bar.directoryTree1.Find(P(u"/home/author")));
  files.RemoveTree(P(u"/home/author/pages"));
  bar.directoryTree1.NodeClick(*bar.directoryTree1.Find(P(u"/home/author/pages")));
  EXPECT_EQ(bar.dirTreeFile.Pattern(), u"＿＿NOT_FOUND_DIR_絶対に選択されません_ERROR_STIRNG___");
  EXPECT_EQ(bar.dirTreeFile.Path(), P(u"/home/author"));
  EXPECT_THAT(bar.dirTreeFile.Names(), IsEmpty());
  EXPECT_FALSE(bar.dirTreeFile.Enabled());
  EXPECT_FALSE(bar.fileExtCombo.Enabled());

  AddFile(P(u"/home/author/a.htm"));
  bar.directoryTree1.NodeClick(*bar.directoryTree1.Find(P(u"/home/author")));
  EXPECT_TRUE(bar.dirTreeFile.Enabled());
  EXPECT_TRUE(bar.fileExtCombo.Enabled());
  EXPECT_EQ(bar.dirTreeFile.Pattern(), u"*.htm;*.html");
  EXPECT_THAT(bar.dirTreeFile.Names(), ElementsAre(u"a.htm"));
}

TEST_P(FolderBarTest, DoubleClickOpensAndRemembersTheKindOfFile) {
  Start();
  bar.fileExtCombo.SetListIndex(2);
  Choose(u"index.htm");
  bar.OpenSelectedFile();
  EXPECT_THAT(host.verbs, ElementsAre(u"開く"));
  EXPECT_THAT(host.opened, ElementsAre(Pair(InPages(u"index.htm"), false)));
  EXPECT_EQ(Setting(u"ExtIndexNo"), u"3");
  EXPECT_EQ(host.focused, 1);
}

TEST_P(FolderBarTest, RefusedPromptOpensNothing) {
  Start();
  Choose(u"index.htm");
  host.confirms = false;
  bar.OpenSelectedFile();
  EXPECT_THAT(host.opened, IsEmpty());
  EXPECT_EQ(Setting(u"ExtIndexNo"), u"(none)");
}

TEST_P(FolderBarTest, FailedOpenRemembersNothing) {
  Start();
  Choose(u"index.htm");
  host.opens = false;
  bar.OpenSelectedFile();
  EXPECT_EQ(Setting(u"ExtIndexNo"), u"(none)");
  EXPECT_EQ(host.focused, 0);
}

TEST_P(FolderBarTest, NothingIsOpenedWithoutASelection) {
  Start();
  bar.OpenSelectedFile();
  EXPECT_THAT(host.verbs, IsEmpty());
}

TEST_P(FolderBarTest, ReadingAgainKeepsTheSelectedFile) {
  Start();
  Choose(u"memo.txt");
  AddFile(InPages(u"a.txt"));
  Run(Menu::DirTreeSubMenu, 0);
  EXPECT_EQ(bar.dirTreeFile.FileName(), u"memo.txt");
  EXPECT_EQ(bar.dirTreeFile.Names().front(), u"a.txt");
  files.contents.erase(InPages(u"memo.txt"));
  bar.dirTreeFile.Refresh();
  EXPECT_FALSE(bar.HasFile());
}

TEST_P(FolderBarTest, PlainAndShiftClicksTellAboutTheFile) {
  Start();
  Choose(u"memo.txt");
  bar.FileListMouseUp(FolderBar::Shift::None);
  EXPECT_THAT(host.informed, IsEmpty());  // nobody is there to tell it
  host.offered = {FolderBarTool::FileInformation};
  bar.FileListMouseUp(FolderBar::Shift::None);
  bar.FileListMouseUp(FolderBar::Shift::Shift);
  bar.FileListMouseUp(FolderBar::Shift::Other);
  state.showInfoOnSelect = -1;
  bar.FileListMouseUp(FolderBar::Shift::None);
  const std::u16string path = InPages(u"memo.txt");
  EXPECT_THAT(host.informed, ElementsAre(Pair(path, ShowFileView::No), Pair(path, ShowFileView::Yes),
                                         Pair(path, ShowFileView::Yes)));
}

TEST_P(FolderBarTest, TipGoesWhenTheMouseLeavesTheSelectedFile) {
  Start();
  bar.dirTreeFile.SetListIndex(1);
  bar.FileListMouseMove(1);
  EXPECT_EQ(host.tipsDismissed, 0);
  bar.FileListMouseMove(0);
  bar.FileListMouseMove(std::nullopt);
  EXPECT_EQ(host.tipsDismissed, 2);
}

struct CaptionRow {
  Menu menu;
  int index;
  const char16_t* caption;
};

TEST_P(FolderBarTest, MenusHaveTheirCaptionsAndIndices) {
  const CaptionRow rows[] = {
      {Menu::DirTreeSubMenu, 0, u"再試行(&Y)"},
      {Menu::DirTreeSubMenu, 1, u"ﾃﾞｨﾚｸﾄﾘの再構築(&P)"},
      {Menu::DirTreeSubMenu, 3, u"このﾃﾞｨﾚｸﾄﾘから開く(&A)..."},
      {Menu::DirTreeSubMenu, 4, u"このﾃﾞｨﾚｸﾄﾘに名前をつけて保存(&A)..."},
      {Menu::DirTreeSubMenu, 6, u"&Grep検索開始..."},
      {Menu::DirTreeSubMenu, 8, u"ﾂｰﾙ(&T)"},
      {Menu::DirTreeSubMenu, 10, u"新しいﾃﾞｨﾚｸﾄﾘを作成(&N)"},
      {Menu::DirTreeSubMenu, 11, u"ﾃﾞｨﾚｸﾄﾘの名前を変更(&M)"},
      {Menu::DirTreeSubMenu, 12, u"ﾌﾟﾛﾊﾟﾃｨ(&R)..."},
      {Menu::DirTreeSubSubMenu, 0, u"ｴｸｽﾌﾟﾛｰﾗｰ(&E)"},
      {Menu::DirTreeSubSubMenu, 1, u"ﾃﾞｨﾚｸﾄﾘ内のBMPをJPEGｺﾝﾊﾞｰﾄ(&B)..."},
      {Menu::DirTreeSubSubMenu, 2, u"圧縮する(&A)..."},
      {Menu::DirTreeSubSubMenu, 3, u"&PicPeek"},
      {Menu::DirTreeBookMenu, 1, u"ﾏｲ ﾄﾞｷｭﾒﾝﾄへ移動"},
      {Menu::DirTreeBookMenu, 2, u"ﾃﾞｽｸﾄｯﾌﾟへ移動"},
      {Menu::DirTreeFileSubMenu, 0, u"開く(&O)"},
      {Menu::DirTreeFileSubMenu, 1, u"新しいｳｨﾝﾄﾞｳで開く(&W)"},
      {Menu::DirTreeFileSubMenu, 2, u"HTMLに変換して開く(&C)..."},
      {Menu::DirTreeFileSubMenu, 4, u"関連付けて開く(&E)"},
      {Menu::DirTreeFileSubMenu, 6, u"ﾂｰﾙ(&T)"},
      {Menu::DirTreeFileSubMenu, 8, u"設定"},
      {Menu::DirTreeFileSubMenu, 9, u"ﾌﾟﾛﾊﾟﾃｨ(&R)..."},
      {Menu::DirTreeFileSubMenu, 10, u"ﾌｧｲﾙ情報(I&)...\tShift+ｸﾘｯｸ"},
      {Menu::DirTreeFileSubSubMenu, 0, u"&URLの抽出..."},
      {Menu::DirTreeFileSubSubMenu, 1, u"解凍する(&Z)..."},
      {Menu::DirTreeFileSubSubMenu, 2, u"圧縮する(&A)..."},
      {Menu::DirTreeFileSubSubMenu, 3, u"開いているﾌｧｲﾙとの相対ﾊﾟｽを貼り付け"},
      {Menu::DirTreeFileSubSubSettingMenu, 0, u"ﾌｧｲﾙを選択した時に ﾌｧｲﾙ情報を表示する(&I)"},
  };
  std::size_t captions = 0;
  for (const Menu menu :
       {Menu::DirTreeSubMenu, Menu::DirTreeSubSubMenu, Menu::DirTreeBookMenu, Menu::DirTreeFileSubMenu,
        Menu::DirTreeFileSubSubMenu, Menu::DirTreeFileSubSubSettingMenu}) {
    int index = 0;
    for (const FolderBarRow& row : RowsOf(menu)) {
      EXPECT_EQ(row.index, index++);
      EXPECT_EQ(row.menu, menu);
      if (row.IsSeparator()) continue;
      ++captions;
      EXPECT_NE(row.run == nullptr, row.submenu == nullptr) << ToUtf8(row.caption);
    }
  }
  EXPECT_EQ(captions, std::size(rows));
  for (const CaptionRow& row : rows) EXPECT_EQ(Row(row.menu, row.index).caption, row.caption);
}

TEST_P(FolderBarTest, CommandsOfMissingPartsAreDisabled) {
  Start();
  Choose(u"memo.txt");
  const std::pair<Menu, int> others[] = {
      {Menu::DirTreeSubMenu, 6},        {Menu::DirTreeSubSubMenu, 1},     {Menu::DirTreeSubSubMenu, 2},
      {Menu::DirTreeFileSubMenu, 10},   {Menu::DirTreeFileSubSubMenu, 0}, {Menu::DirTreeFileSubSubMenu, 1},
      {Menu::DirTreeFileSubSubMenu, 2},
  };
  for (const auto& [menu, index] : others)
    EXPECT_FALSE(Enabled(menu, index)) << ToUtf8(Row(menu, index).caption);
  host.offered = {FolderBarTool::Grep,   FolderBarTool::ImageConversion, FolderBarTool::Pack,
                  FolderBarTool::Unpack, FolderBarTool::UrlExtraction,   FolderBarTool::FileInformation};
  for (const auto& [menu, index] : others)
    EXPECT_TRUE(Enabled(menu, index)) << ToUtf8(Row(menu, index).caption);
  for (const auto& [menu, index] : others) Run(menu, index);
  const std::u16string folder = P(u"/home/author/pages");
  const std::u16string file = InPages(u"memo.txt");
  EXPECT_THAT(host.ran,
              ElementsAre(Pair(FolderBarTool::Grep, folder), Pair(FolderBarTool::ImageConversion, folder),
                          Pair(FolderBarTool::Pack, folder), Pair(FolderBarTool::UrlExtraction, file),
                          Pair(FolderBarTool::Unpack, file), Pair(FolderBarTool::Pack, file)));
  EXPECT_THAT(host.informed, ElementsAre(Pair(file, ShowFileView::Yes)));
  EXPECT_THAT(host.verbs, ElementsAre(u"URLの抽出"));
}

TEST_P(FolderBarTest, CommandsOnAFileNeedOne) {
  Start();
  for (const int index : {0, 1, 2, 4, 9}) EXPECT_FALSE(Enabled(Menu::DirTreeFileSubMenu, index)) << index;
  Choose(u"memo.txt");
  for (const int index : {0, 1, 2, 4, 9}) EXPECT_TRUE(Enabled(Menu::DirTreeFileSubMenu, index)) << index;
}

TEST_P(FolderBarTest, CommandsOnTheFolderRefuseOneThatIsGone) {
  Start();
  files.RemoveTree(P(u"/home/author/pages"));
  host.offered = {FolderBarTool::Grep};
  for (const int index : {0, 1, 3, 4, 6, 10, 11, 12}) Run(Menu::DirTreeSubMenu, index);
  ASSERT_EQ(boxes.asked.size(), 8u);
  EXPECT_EQ(boxes.asked[0].text, u"\"" + P(u"/home/author/pages") + u"\" は準備されていません");
  EXPECT_EQ(boxes.asked[0].icon, MessageIcon::Critical);
  EXPECT_THAT(host.did, IsEmpty());
  EXPECT_THAT(host.ran, IsEmpty());
  EXPECT_THAT(shell.properties, IsEmpty());
}

TEST_P(FolderBarTest, TreeCommandsDoTheirWorkInTheFolder) {
  Start();
  const std::u16string folder = P(u"/home/author/pages");
  Run(Menu::DirTreeSubMenu, 3);
  Run(Menu::DirTreeSubMenu, 4);
  Run(Menu::DirTreeSubMenu, 12);
  EXPECT_THAT(host.verbs, ElementsAre(u"開く"));
  EXPECT_THAT(host.did, ElementsAre(Pair(u"open at", folder), Pair(u"save at", folder)));
  EXPECT_THAT(shell.properties, ElementsAre(folder));
  host.confirms = false;
  Run(Menu::DirTreeSubMenu, 3);
  EXPECT_EQ(host.did.size(), 2u);
}

TEST_P(FolderBarTest, RetryAndRebuildReadTheDiskAnew) {
  Start();
  files.AddFolder(P(u"/home/author/pages/new"));
  Run(Menu::DirTreeSubMenu, 0);
  EXPECT_NE(bar.directoryTree1.Find(P(u"/home/author/pages/new")), nullptr);
  files.AddFolder(P(u"/home/author/later"));
  Run(Menu::DirTreeSubMenu, 1);
  EXPECT_NE(bar.directoryTree1.Find(P(u"/home/author/later")), nullptr);
  EXPECT_EQ(bar.directoryTree1.SelectPath(), P(u"/home/author/pages"));
}

TEST_P(FolderBarTest, NewFolderIsMadeAndItsNameEdited) {
  struct Screen : DirectoryTreeScreen {
    void EditLabel(const DirectoryNode& node) override { edited = node.Text(); }
    std::u16string edited;
  } screen;
  bar.directoryTree1.SetScreen(&screen);
  Start();
  Run(Menu::DirTreeSubMenu, 10);
  EXPECT_EQ(screen.edited, u"新しいフォルダ");
  files.refuseWrites = true;
  screen.edited.clear();
  Run(Menu::DirTreeSubMenu, 10);
  EXPECT_EQ(screen.edited, u"");
  EXPECT_EQ(services.beeps, 1);
  bar.directoryTree1.SetScreen(nullptr);
}

TEST_P(FolderBarTest, ExplorerShowsTheFolder) {
  Start();
  Run(Menu::DirTreeSubSubMenu, 0);
  const std::u16string folder = P(u"/home/author/pages");
  if (style == PathStyle::Posix) {
    EXPECT_THAT(shell.explored, ElementsAre(folder));
  } else {
    EXPECT_THAT(shell.opened, ElementsAre(Pair(u"C:\\state\\EXPLORER.EXE", u"/e,\"" + folder + u"\"")));
  }
}

TEST_P(FolderBarTest, ImagesOfAFolderThatIsGoneAreThoseOfMyDocuments) {
  Start();
  files.RemoveTree(P(u"/home/author/pages"));
  Run(Menu::DirTreeSubSubMenu, 1);
  EXPECT_THAT(host.ran, ElementsAre(Pair(FolderBarTool::ImageConversion, P(u"/home/author/Documents"))));
}

TEST_P(FolderBarTest, PictureViewerIsThereWhenItLiesBesideTheProgram) {
  Start();
  EXPECT_FALSE(Enabled(Menu::DirTreeSubSubMenu, 3));
  const std::u16string viewer = common.Join(common.ProgramFolder(), u"PicPeek");
  AddFile(viewer);
  EXPECT_TRUE(Enabled(Menu::DirTreeSubSubMenu, 3));
  Run(Menu::DirTreeSubSubMenu, 3);
  EXPECT_THAT(shell.opened, ElementsAre(Pair(viewer, u"\"" + P(u"/home/author/pages") + u"\"")));
}

TEST_P(FolderBarTest, BookmarksGoToMyDocumentsAndTheDesktop) {
  Start();
  Run(Menu::DirTreeBookMenu, 1);
  EXPECT_EQ(bar.directoryTree1.SelectPath(), P(u"/home/author/Documents"));
  Run(Menu::DirTreeBookMenu, 2);
  EXPECT_EQ(bar.directoryTree1.SelectPath(), P(u"/home/author/Desktop"));
  EXPECT_EQ(bar.dirTreeFile.Path(), P(u"/home/author/Desktop"));
}

TEST_P(FolderBarTest, MenuOpensReadOnlyFilesReadOnly) {
  Start();
  Choose(u"locked.txt");
  Run(Menu::DirTreeFileSubMenu, 0);
  Choose(u"memo.txt");
  Run(Menu::DirTreeFileSubMenu, 0);
  host.confirms = false;
  Run(Menu::DirTreeFileSubMenu, 0);
  EXPECT_THAT(host.opened,
              ElementsAre(Pair(InPages(u"locked.txt"), true), Pair(InPages(u"memo.txt"), false)));
  EXPECT_EQ(Setting(u"ExtIndexNo"), u"(none)");
}

TEST_P(FolderBarTest, FileCommandsDoTheirWorkOnTheFile) {
  Start();
  Choose(u"memo.txt");
  const std::u16string path = InPages(u"memo.txt");
  for (const int index : {1, 2, 4, 9}) Run(Menu::DirTreeFileSubMenu, index);
  EXPECT_THAT(host.did, ElementsAre(Pair(u"new instance", path), Pair(u"convert", path)));
  EXPECT_THAT(host.verbs, ElementsAre(u"HTMLに変換して開く"));
  EXPECT_THAT(shell.opened, ElementsAre(Pair(path, u"")));
  EXPECT_THAT(shell.properties, ElementsAre(path));
}

TEST_P(FolderBarTest, RelativePathGoesToTheCaretWithSlashes) {
  Start();
  ShowAllFiles();
  Choose(u"style.css");
  EXPECT_FALSE(Enabled(Menu::DirTreeFileSubSubMenu, 3));
  host.currentFile = u"無題.htm";
  EXPECT_FALSE(Enabled(Menu::DirTreeFileSubSubMenu, 3));
  host.currentFile = P(u"/home/author/pages/img/a.htm");
  EXPECT_TRUE(Enabled(Menu::DirTreeFileSubSubMenu, 3));
  Run(Menu::DirTreeFileSubSubMenu, 3);
  host.currentFile = P(u"/home/author/pages/index.htm");
  Run(Menu::DirTreeFileSubSubMenu, 3);
  ASSERT_EQ(host.did.size(), 2u);
  const std::u16string expected =
      common.RelaPath(P(u"/home/author/pages/img/a.htm"), InPages(u"style.css"), u"/");
  EXPECT_EQ(host.did[0].second, expected);
  EXPECT_EQ(host.did[0].second.find(u'\\'), std::u16string::npos);
  EXPECT_EQ(host.did[1].second, u"./style.css");
  EXPECT_EQ(host.focused, 2);
}

TEST_P(FolderBarTest, SettingFollowsItsCheck) {
  EXPECT_FALSE(Row(Menu::DirTreeFileSubSubSettingMenu, 0).checked(bar));
  Run(Menu::DirTreeFileSubSubSettingMenu, 0);
  EXPECT_EQ(state.showInfoOnSelect, -1);
  EXPECT_TRUE(Row(Menu::DirTreeFileSubSubSettingMenu, 0).checked(bar));
  Run(Menu::DirTreeFileSubSubSettingMenu, 0);
  EXPECT_EQ(state.showInfoOnSelect, 0);
}

}  // namespace
}  // namespace kestri
