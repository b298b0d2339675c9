#include "browse/file_list.hpp"

#include <gtest/gtest.h>

#include "tests/browse/file_list_desk.hpp"

namespace kestri {
namespace {

constexpr FileListStart kRecent{.view = FileListView::Recent};
constexpr FileListStart kNew{.view = FileListView::New};

class FileListTest : public ::testing::Test, protected FileListDesk {
 protected:
  std::vector<std::string> Cells(FileListView view, std::size_t row) const {
    std::vector<std::string> cells;
    for (const std::u16string& cell : list.Rows(view)[row].cells) cells.push_back(ToUtf8(cell));
    return cells;
  }
  using Texts = std::vector<std::string>;
};

TEST_F(FileListTest, RecentFilesStandNewestFirstWithTypeSizeAndPath) {
  PutRecent(u"/home/author/old.htm", 0);
  PutRecent(u"/home/author/日記.htm", 1234567);
  list.Load(kRecent);
  ASSERT_EQ(list.Rows(FileListView::Recent).size(), 2u);
  EXPECT_EQ(Cells(FileListView::Recent, 0),
            (Texts{"日記.htm", "HTML 文書", "1,234.57KB", "/home/author/日記.htm"}));
  EXPECT_EQ(Cells(FileListView::Recent, 1),
            (Texts{"old.htm", "HTML 文書", "0.00KB", "/home/author/old.htm"}));
  EXPECT_EQ(list.Rows(FileListView::Recent)[0].iconName, u"text-html");
}

TEST_F(FileListTest, SizesAreDecimalKilobytes) {
  PutRecent(u"/a", 999);
  PutRecent(u"/b", 1024);
  list.Load(kRecent);
  EXPECT_EQ(Cells(FileListView::Recent, 0)[2], "1.02KB");
  EXPECT_EQ(Cells(FileListView::Recent, 1)[2], "1.00KB");
}

TEST_F(FileListTest, MissingFileHasARowWithQuestionMarks) {
  FileHistory(common).RegisterHistory(u"/home/author/gone.htm");
  list.Load(kRecent);
  EXPECT_EQ(Cells(FileListView::Recent, 0), (Texts{"gone.htm", "???", "???KB", "/home/author/gone.htm"}));
  EXPECT_EQ(list.Rows(FileListView::Recent)[0].iconName, u"");
}

TEST_F(FileListTest, FreePlacesHaveNoRow) {
  common.SetINI(common.ExeName(), u"FileReg", u"FileReg00", u"Empty!!");
  common.SetINI(common.ExeName(), u"FileReg", u"FileReg02", u"/c");
  list.Load(kRecent);
  ASSERT_EQ(list.Rows(FileListView::Recent).size(), 1u);
  EXPECT_EQ(Cells(FileListView::Recent, 0)[3], "/c");
}

TEST_F(FileListTest, TheTwentiethRecentFileIsShownAndAnOlderOneIsNot) {
  for (int i = 0; i <= 20; ++i) PutRecent(u"/file" + ToText(i), 1);
  list.Load(kRecent);
  ASSERT_EQ(list.Rows(FileListView::Recent).size(), 20u);
  EXPECT_EQ(Cells(FileListView::Recent, 19)[3], "/file1");
}

TEST_F(FileListTest, FifteenKindsOfNewDocuments) {
  PutTemplate(3);
  PutTemplate(14);
  list.Load(kNew);
  const std::vector<Texts> rows = {
      {"白紙", "(なし)", "ｻｲｽﾞ 0 の 空ﾌｧｲﾙ", "×"},
      {"ﾃｷｽﾄ型", "txt", "ﾃｷｽﾄﾌｧｲﾙ", "×"},
      {"HTML型", "htm", "基本設定", "×"},
      {"HTML型", "htm", "詳細設定済み", "◯"},
      {"CSS型", "css", "ｶｽｹｰﾄﾞ ｽﾀｲﾙ ｼｰﾄ", "×"},
      {"Cｿｰｽ型", "c", "C言語ｿｰｽﾌｧｲﾙ", "×"},
      {"Cﾍｯﾀﾞｰ型", "h", "C言語ﾍｯﾀﾞｰﾌｧｲﾙ", "×"},
      {"ﾊﾞｯﾁ型", "bat", "DOSﾊﾞｯﾁﾌｧｲﾙ", "×"},
      {"INI型", "ini", "設定ﾌｧｲﾙ", "×"},
      {"JAVA型", "java", "JAVAｿｰｽﾌｧｲﾙ", "×"},
      {"クリップファイル型", "clped", "クリップファイル", "×"},
      {"ﾕｰｻﾞｰ定義型", "(指定)", "ﾕｰｻﾞｰが拡張子を定義します", "×"},
      {"VBScript型", "vbs", "VBScript ﾌｧｲﾙ", "×"},
      {"ReadMe型", "txt", "ReadMeﾌｧｲﾙ", "×"},
      {"AsciiArt下書き型", "aat", "AsciiArt下書きﾌｧｲﾙ", "◯"},
  };
  ASSERT_EQ(list.Rows(FileListView::New).size(), rows.size());
  for (std::size_t row = 0; row < rows.size(); ++row)
    EXPECT_EQ(Cells(FileListView::New, row), rows[row]) << row;
}

TEST_F(FileListTest, FolderInATemplatesPlaceIsNoTemplate) {
  files.contents[TemplatePath(common, 2) + u"/inside"] = "x";
  list.Load(kNew);
  EXPECT_EQ(Cells(FileListView::New, 2)[3], "×");
}

TEST_F(FileListTest, ColumnsAndCaptionsOfBothViews) {
  using Names = std::array<std::u16string_view, 4>;
  EXPECT_EQ(FileList::Columns(FileListView::Recent),
            (Names{u"FileName", u"FileType", u"FileSize", u"FilePath"}));
  EXPECT_EQ(FileList::Columns(FileListView::New), (Names{u"新規作成", u"拡張子", u"ｺﾒﾝﾄ", u"ﾃﾝﾌﾟﾚｰﾄ"}));
  EXPECT_EQ(ToUtf8(FileList::Caption(FileListView::Recent)), "最近使用したﾌｧｲﾙ");
  EXPECT_EQ(ToUtf8(FileList::Caption(FileListView::New)), "新規作成");
}

TEST_F(FileListTest, EachViewFillsOnceADialogAndAnewInTheNext) {
  PutRecent(u"/a", 1);
  list.Load(kRecent);
  EXPECT_TRUE(list.Rows(FileListView::New).empty());
  list.Choose(FileListView::New);
  EXPECT_EQ(list.Rows(FileListView::New).size(), 15u);
  PutRecent(u"/b", 1);
  PutTemplate(0);
  list.Choose(FileListView::Recent);
  EXPECT_EQ(list.Rows(FileListView::Recent).size(), 1u);
  list.Choose(FileListView::New);
  EXPECT_EQ(Cells(FileListView::New, 0)[3], "×");
  list.Load(kRecent);
  EXPECT_EQ(list.Rows(FileListView::Recent).size(), 2u);
  list.Choose(FileListView::New);
  EXPECT_EQ(Cells(FileListView::New, 0)[3], "◯");
}

TEST_F(FileListTest, ChoosingARecentFileOpensItAndClosesUnlessNothingWasOpened) {
  PutRecent(u"/a", 1);
  PutRecent(u"/b", 1);
  list.Load(kRecent);
  EXPECT_EQ(list.OK(1), FileList::Outcome::Closes);
  answer = false;
  EXPECT_EQ(list.OK(0), FileList::Outcome::Stays);
  EXPECT_EQ(opened, (std::vector<std::u16string>{u"/a", u"/b"}));
  EXPECT_EQ(services.beeps, 0);
}

TEST_F(FileListTest, ChoosingAKindMakesItAndClosesUnlessTheUserCancelled) {
  list.Load(kNew);
  EXPECT_EQ(list.OK(14), FileList::Outcome::Closes);
  answer = false;
  EXPECT_EQ(list.OK(11), FileList::Outcome::Stays);
  EXPECT_EQ(made, (std::vector<std::int16_t>{14, 11}));
}

TEST_F(FileListTest, WithoutASelectedRowItBeepsAndStays) {
  for (const FileListStart start : {kRecent, kNew}) {
    list.Load(start);
    EXPECT_EQ(list.OK(std::nullopt), FileList::Outcome::Stays);
  }
  EXPECT_EQ(services.beeps, 2);
  EXPECT_TRUE(opened.empty() && made.empty());
}

TEST_F(FileListTest, BoxesTakeTheirSettings) {
  list.Load(kRecent);
  EXPECT_EQ(list.Check1(), FileList::StartBox::Off);
  EXPECT_FALSE(list.Check2());
  Set(u"WinF", u"1");
  Set(u"ViweS", u"1");
  list.Load(kRecent);
  EXPECT_EQ(list.Check1(), FileList::StartBox::On);
  EXPECT_TRUE(list.Check2());
}

TEST_F(FileListTest, BoxesGoToTheirSettings) {
  list.Load(kRecent);
  list.SetCheck1(FileList::StartBox::On);
  list.SetCheck2(true);
  list.Unload();
  EXPECT_EQ(Setting(u"WinF"), u"1");
  EXPECT_EQ(Setting(u"ViweS"), u"1");
  list.SetCheck1(FileList::StartBox::Off);
  list.SetCheck2(false);
  list.Unload();
  EXPECT_EQ(Setting(u"WinF"), u"0");
  EXPECT_EQ(Setting(u"ViweS"), u"0");
}

TEST_F(FileListTest, GreyStartBoxIsNotWritten) {
  Set(u"WinF", u"1");
  list.Load({.view = FileListView::New, .startBoxGrey = true});
  EXPECT_EQ(list.Check1(), FileList::StartBox::Grey);
  list.Unload();
  EXPECT_EQ(Setting(u"WinF"), u"1");
  list.SetCheck1(FileList::StartBox::Off);
  list.Unload();
  EXPECT_EQ(Setting(u"WinF"), u"0");
}

}  // namespace
}  // namespace kestri
