#include "document/file_filters.hpp"

#include <utility>

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kFixedOpenRows =
    u"ﾃｷｽﾄ 文書 (*.txt)|*.txt|"
    u"HTML 文書 (*.htm;*.html)|*.htm;*.html|"
    u"ｽﾀｲﾙｼｰﾄ (*.css)|*.css|"
    u"JAVAｿｰｽﾌｧｲﾙ (*.java)|*.java|"
    u"Cﾌｧｲﾙ (*.c;*.h)|*.c;*.h;*.cpp|"
    u"Visual Basicﾌｧｲﾙ (*.vbs;*.bas;*.cls;*.frm;*.ctl)|*.vbs;*.bas;*.cls;*.frm;*.ctl|"
    u"設定ﾌｧｲﾙ (*.ini)|*.ini|"
    u"Dosﾊﾞｯﾁﾌｧｲﾙ (*.bat)|*.bat|"
    u"クリップファイル (*.ced;*.clped)|*.ced;*.clped|"
    u"AsciiArt下書きﾌｧｲﾙ (*.aat)|*.aat|"
    u"対応ｲﾒｰｼﾞﾌｧｲﾙ (*.bmp;*.gif;*.jpg;*.ico)|*.bmp;*.gif;*.jpg;*.ico";

constexpr std::u16string_view kSaveRows =
    u"ﾃｷｽﾄ 文書 (*.txt)|*.txt|"
    u"HTM 文書 (*.htm)|*.htm|"
    u"HTML 文書 (*.html)|*.html|"
    u"ｽﾀｲﾙｼｰﾄ (*.css)|*.css|"
    u"JAVAｿｰｽﾌｧｲﾙ (*.java)|*.java|"
    u"Cｿｰｽﾌｧｲﾙ (*.c)|*.c|"
    u"Cﾍｯﾀﾞﾌｧｲﾙ (*.h)|*.h|"
    u"VBScriptﾌｧｲﾙ (*.vbs)|*.vbs|"
    u"設定ﾌｧｲﾙ (*.ini)|*.ini|"
    u"Dosﾊﾞｯﾁﾌｧｲﾙ (*.bat)|*.bat|"
    u"クリップファイル (*.clped)|*.clped|"
    u"クリップファイル (*.ced)|*.ced|"
    u"AsciiArt下書きﾌｧｲﾙ (*.aat)|*.aat|"
    u"URLﾘｽﾄﾌｧｲﾙ (*.lst)|*.lst|"
    u"すべてのﾌｧｲﾙ (*.*)|*.*";

using FileFilters = DocumentTest;

TEST_F(FileFilters, OpenDialogHasTwelveRowsAndAllFilesByDefault) {
  const auto rows = OpenFilterRows(*common);
  EXPECT_EQ(rows.size(), 13U);
  std::u16string expected =
      u"ﾕｰｻﾞｰ定義 (*.txt;*.htm;*.html;*.jpg;*.gif;*.bmp)|*.txt;*.htm;*.html;*.jpg;*.gif;*.bmp|";
  expected.append(kFixedOpenRows).append(u"|すべてのﾌｧｲﾙ (*.*)|*.*");
  EXPECT_EQ(ToUtf8(FilterText(rows)), ToUtf8(expected));
}

TEST_F(FileFilters, UserExtFillsTheFirstRowAndArchivesStandBeforeAllFiles) {
  Set(u"Setting", u"UserExt", u"*.xml");
  Set(u"Setting", u"FileArcOpen", u"1");
  std::u16string expected = u"ﾕｰｻﾞｰ定義 (*.xml)|*.xml|";
  expected.append(kFixedOpenRows)
      .append(u"|対応書庫ﾌｧｲﾙ (*.lzh;*.zip;*.cab;*.rar)|*.lzh;*.zip;*.cab;*.rar")
      .append(u"|すべてのﾌｧｲﾙ (*.*)|*.*");
  EXPECT_EQ(ToUtf8(FilterText(OpenFilterRows(*common))), ToUtf8(expected));
}

TEST_F(FileFilters, SaveAsHasItsFifteenRows) {
  EXPECT_EQ(SaveFilterRows().size(), 15U);
  EXPECT_EQ(ToUtf8(FilterText(SaveFilterRows())), ToUtf8(kSaveRows));
}

TEST_F(FileFilters, ExtensionSelectsTheSaveAsRow) {
  const std::pair<const char16_t*, int> rows[] = {
      {u"txt", 1},  {u"htm", 2},  {u"html", 3}, {u"css", 4},  {u"java", 5},   {u"c", 6},
      {u"h", 7},    {u"vbs", 8},  {u"ini", 9},  {u"bat", 10}, {u"clped", 11}, {u"ced", 12},
      {u"aat", 13}, {u"lst", 14}, {u"cpp", 15}, {u"", 15},    {u"HTML", 3},   {u"text", 15},
  };
  for (const auto& [extension, row] : rows) EXPECT_EQ(SaveFilterIndex(extension), row) << ToUtf8(extension);
}

TEST_F(FileFilters, OpenDialogAsksWithItsTitleTableFolderAndFlags) {
  EXPECT_FALSE(document->OpenFileDialog(u""));
  ASSERT_EQ(dialogs.opens.size(), 1U);
  const FileDialogRequest& request = dialogs.opens[0];
  EXPECT_EQ(ToUtf8(request.title), "ﾌｧｲﾙを開く");
  EXPECT_EQ(request.flags, 6144U);
  EXPECT_EQ(request.filterIndex, 1);
  EXPECT_EQ(request.folder, Whole("work"));
  EXPECT_TRUE(request.fileName.empty());
  EXPECT_EQ(request.filter, FilterText(OpenFilterRows(*common)));
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(FileFilters, OpenDialogStartsInMyDocumentsWhenTheFolderIsGone) {
  document->OpenFileDialog(Whole("no such folder"));
  state.currentFolder = Whole("gone");
  document->OpenFileDialog(u"");
  document->OpenFileDialog(Whole("state"));
  EXPECT_EQ(dialogs.opens[0].folder, Whole("documents"));
  EXPECT_EQ(dialogs.opens[1].folder, Whole("documents"));
  EXPECT_EQ(dialogs.opens[2].folder, Whole("state"));
}

TEST_F(FileFilters, RememberedRowIsUsedOnlyWhenAskedForAndWhenItExists) {
  Set(u"Setting", u"ExtIndexNo", u"3");
  document->OpenFileDialog(u"");
  Set(u"Setting", u"ExtIndex", u"1");
  document->OpenFileDialog(u"");
  Set(u"Setting", u"ExtIndexNo", u"14");  // all files, as long as archives have a row
  document->OpenFileDialog(u"");
  EXPECT_EQ(dialogs.opens[0].filterIndex, 1);
  EXPECT_EQ(dialogs.opens[1].filterIndex, 3);
  EXPECT_EQ(dialogs.opens[2].filterIndex, 1);
}

TEST_F(FileFilters, OpenDialogStoresItsRowAndOpensTheFile) {
  const auto path = MakeFile("a.txt", "text\r\n");
  dialogs.answers.push_back(FileDialogAnswer{path, 2, false});
  EXPECT_TRUE(document->OpenFileDialog(u""));
  EXPECT_EQ(Get(u"Setting", u"ExtIndexNo"), u"2");
  EXPECT_EQ(state.currentFile, path);
  EXPECT_FALSE(control.Locked());
}

TEST_F(FileFilters, ReadOnlyBoxOfTheOpenDialogLocksTheText) {
  dialogs.answers.push_back(FileDialogAnswer{MakeFile("a.txt", "text\r\n"), 1, true});
  EXPECT_TRUE(document->OpenFileDialog(u""));
  EXPECT_TRUE(control.Locked());
}

TEST_F(FileFilters, SaveAsSuggestsTheNameWithoutExtensionInAKnownRow) {
  ASSERT_TRUE(Open(MakeFile("page.HTM", "x\r\n")));
  EXPECT_FALSE(document->SaveAsDialog(u""));
  const FileDialogRequest& request = dialogs.saves.at(0);
  EXPECT_EQ(ToUtf8(request.title), "名前を付けて保存");
  EXPECT_EQ(request.flags, 36870U);
  EXPECT_EQ(request.filterIndex, 2);
  EXPECT_EQ(request.folder, Whole("work"));
  EXPECT_EQ(request.fileName, Work("page"));
  EXPECT_EQ(ToUtf8(request.filter), ToUtf8(kSaveRows));
}

TEST_F(FileFilters, SaveAsSuggestsTheWholeNameInTheRowOfAllFiles) {
  ASSERT_TRUE(Open(MakeFile("main.cpp", "x\r\n")));
  document->SaveAsDialog(Whole("state"));
  EXPECT_EQ(dialogs.saves.at(0).filterIndex, 15);
  EXPECT_EQ(dialogs.saves.at(0).fileName, Whole("state/main.cpp"));
}

}  // namespace
}  // namespace kestri
