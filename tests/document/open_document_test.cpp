#include <string>

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

using OpenDocument = DocumentTest;

// Where nothing is opened.

TEST_F(OpenDocument, EmptyNameAndEmptyHistoryPlaceSayThereIsNoData) {
  for (const char16_t* name : {u"", u"Empty!!"}) {
    boxes.asked.clear();
    EXPECT_FALSE(Open(name));
    ExpectBox(OnlyBox(), u"FileName = NULL  Kestrile",
              u"開くﾃﾞｰﾀがありません\r\n開きたいﾌｧｲﾙ名を指定してください", MessageIcon::Exclamation,
              MessageButtons::Ok, 1);
  }
  const std::string line = Encoded(u"2003/02/01 04:05:06 開くﾃﾞｰﾀがありません\r\n");
  EXPECT_EQ(Log(), line + line);
}

TEST_F(OpenDocument, MissingFileIsNamedInBoxAndLog) {
  EXPECT_FALSE(Open(u"/no/such/表.txt"));
  ExpectBox(OnlyBox(), u"開く Kestrile", u"ﾌｧｲﾙ \"/no/such/表.txt\" が見付かりません",
            MessageIcon::Exclamation, MessageButtons::Ok, 1);
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 ﾌｧｲﾙ \"/no/such/表.txt\" が見付かりません\r\n"));
}

TEST_F(OpenDocument, UnknownKindIsOfferedToTheAssociatedProgram) {
  const auto path = MakeFile("a.bin",
                             "abc\x1A"
                             "def");
  boxes.answers.push_back(MessageAnswer::Ok);
  EXPECT_FALSE(Open(path));
  ExpectBox(OnlyBox(), u"開く Kestrile",
            u"不明な理由でﾌｧｲﾙが開けません\r\nﾃｷｽﾄﾌｧｲﾙ以外の可能性があります\r\n"
            u"ﾌｧｲﾙを関連付けて開きますか",
            MessageIcon::Exclamation, MessageButtons::OkCancel, 1);
  ASSERT_EQ(shell.opened.size(), 1U);
  EXPECT_EQ(shell.opened[0].first, path);
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 不明ﾌｧｲﾙを関連付けて開きます \"" + path + u"\"\r\n"));
}

TEST_F(OpenDocument, CancelLeavesTheUnknownKindAlone) {
  const auto path = MakeFile("a.bin", "\x1A\x1A");
  boxes.answers.push_back(MessageAnswer::Cancel);
  EXPECT_FALSE(Open(path));
  EXPECT_TRUE(shell.opened.empty());
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 『Kestrile』では開けません \"" + path + u"\"\r\n"));
}

TEST_F(OpenDocument, EndOfFileMarkInsideAsksPlugInsAndThenArchivers) {
  Set(u"Setting", u"FileArcOpen", u"1");
  const auto path = MakeFile("a.Lzh",
                             "ab\x1A"
                             "cd");
  Open(path);
  EXPECT_EQ(fallbacks.askedExtensions, std::vector<std::u16string>{u"LZH"});
  EXPECT_EQ(fallbacks.askedArchives, std::vector<std::u16string>{path});
  EXPECT_EQ(boxes.asked.size(), 1U);
}

TEST_F(OpenDocument, ArchiversAreNotAskedWhenSwitchedOff) {
  fallbacks.isArchive = true;
  Open(MakeFile("a.lzh",
                "ab\x1A"
                "cd"));
  EXPECT_TRUE(fallbacks.askedArchives.empty());
  EXPECT_TRUE(fallbacks.shownArchives.empty());
}

TEST_F(OpenDocument, PictureGoesToTheSiblingViewer) {
  const auto viewer = Whole("program/PicPeek.exe");
  std::ofstream(ToUtf8(viewer)) << "viewer";
  fallbacks.susieExtension = u"JPG";
  const auto path = MakeFile("a.jpg",
                             "\xFF\xD8\x1A"
                             "x");
  EXPECT_FALSE(Open(path));
  EXPECT_TRUE(boxes.asked.empty());
  ASSERT_EQ(shell.opened.size(), 1U);
  EXPECT_EQ(shell.opened[0], std::make_pair(viewer, path));
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 ｲﾒｰｼﾞを開きます \"" + path + u"\"\r\n"));
}

TEST_F(OpenDocument, PictureGoesToASiblingViewerWithoutExtensionToo) {
  const auto viewer = Whole("program/PicPeek");
  std::ofstream(ToUtf8(viewer)) << "viewer";
  fallbacks.susieExtension = u"JPG";
  const auto path = MakeFile("a.jpg",
                             "\xFF\xD8\x1A"
                             "x");
  EXPECT_FALSE(Open(path));
  ASSERT_EQ(shell.opened.size(), 1U);
  EXPECT_EQ(shell.opened[0], std::make_pair(viewer, path));
}

TEST_F(OpenDocument, PictureGoesToTheDesktopWhenThereIsNoSiblingViewer) {
  fallbacks.susieExtension = u"JPG";
  const auto path = MakeFile("a.jpg",
                             "\xFF\xD8\x1A"
                             "x");
  EXPECT_FALSE(Open(path));
  ASSERT_EQ(shell.opened.size(), 1U);
  EXPECT_EQ(shell.opened[0].first, path);
}

TEST_F(OpenDocument, ArchiveIsShownInItsDialogWithoutBoxOrLog) {
  Set(u"Setting", u"FileArcOpen", u"1");
  fallbacks.isArchive = true;
  const auto path = MakeFile("a.zip",
                             "PK\x1A"
                             "x");
  EXPECT_FALSE(Open(path));
  EXPECT_EQ(fallbacks.shownArchives, std::vector<std::u16string>{path});
  EXPECT_TRUE(boxes.asked.empty());
  EXPECT_TRUE(Log().empty());
}

TEST_F(OpenDocument, TextThatTheControlRefusesIsOfferedToTheWordProcessor) {
  Set(u"Path", u"WordPath", u"/usr/bin/writer.sh");
  document->LimitText(20);
  const auto path = MakeFile("big one.txt", std::string(30, 'x'));
  boxes.answers.push_back(MessageAnswer::Ok);
  EXPECT_FALSE(Open(path));
  ExpectBox(OnlyBox(), u"開く Kestrile",
            u"\"" + path +
                u"\"\r\n\r\nｻｲｽﾞが大きすぎます(30ﾊﾞｲﾄ)\r\n"
                u"『Kestrile』は安全のため 30～60KB以上のﾌｧｲﾙは開けません\r\n\r\n"
                u"\"writer\"で開きますか?",
            MessageIcon::Exclamation, MessageButtons::OkCancel, 1);
  ASSERT_EQ(shell.opened.size(), 1U);
  EXPECT_EQ(shell.opened[0], std::make_pair(std::u16string(u"/usr/bin/writer.sh"), u"\"" + path + u"\""));
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 ｻｲｽﾞが大きすぎます \"" + path + u"\"\r\n"));
}

TEST_F(OpenDocument, FileFarTooLargeForTheControlIsNotEvenRead) {
  document->LimitText(20);
  const auto path = MakeFile("big.txt", std::string(30, 'x') + '\x1A' + std::string(30, 'x'));
  EXPECT_FALSE(Open(path));
  EXPECT_TRUE(shell.opened.empty());
  EXPECT_TRUE(fallbacks.askedExtensions.empty());
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 ｻｲｽﾞが大きすぎます \"" + path + u"\"\r\n"));
}

TEST_F(OpenDocument, FileWithoutEndIsReadNoFurtherThanTheControlHolds) {
  document->LimitText(5000);
  const auto path = MakeFile("endless", "");
  files.endless = path;
  EXPECT_FALSE(Open(path));
  EXPECT_LT(files.piecesRead, 10);
  EXPECT_TRUE(shell.opened.empty());
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 ｻｲｽﾞが大きすぎます \"" + path + u"\"\r\n"));
}

TEST_F(OpenDocument, TextOfExactlyTheLimitIsTaken) {
  document->LimitText(5);
  EXPECT_TRUE(Open(MakeFile("a.txt", "12345\r\n")));
  EXPECT_EQ(control.Text(), u"12345");
  EXPECT_FALSE(Open(MakeFile("b.txt", "123456\r\n")));
  EXPECT_EQ(control.Text(), u"12345");
}

TEST_F(OpenDocument, TextThatFindsNoMemoryIsTooLargeAndNotOfUnknownKind) {
  const auto path = MakeFile("a.txt", "a\r\n");
  files.tooMuch = path;
  EXPECT_FALSE(Open(path));
  EXPECT_TRUE(fallbacks.askedExtensions.empty());
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 ｻｲｽﾞが大きすぎます \"" + path + u"\"\r\n"));
}

TEST_F(OpenDocument, FileThatVanishesUnderTheQuestionBecomesANewDocument) {
  struct : MessageBox {
    MessageAnswer Ask(const MessageRequest&) override {
      std::filesystem::remove(ToUtf8(path));
      return MessageAnswer::Yes;
    }
    std::u16string path;
  } vanishing;
  vanishing.path = MakeFile("long.txt", std::string(40'000, 'x'));
  document.emplace(control, state, *common, vanishing, dialogs, window, fallbacks);
  ASSERT_TRUE(Open(vanishing.path));
  EXPECT_EQ(state.currentFile, u"long.txt");
  state.modified = -1;
  EXPECT_FALSE(document->ConfirmDiscard(u""));  // the save asks for a name
  ASSERT_EQ(dialogs.saves.size(), 1U);
  MakeFile("long.txt", "somebody else's");
  state.currentFile = vanishing.path;
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(Bytes(vanishing.path), "somebody else's");
}

TEST_F(OpenDocument, FolderShowsTheOpenDialogInIt) {
  EXPECT_FALSE(Open(Whole("state")));
  ASSERT_EQ(dialogs.opens.size(), 1U);
  EXPECT_EQ(dialogs.opens[0].folder, Whole("state"));
  EXPECT_TRUE(boxes.asked.empty());
  EXPECT_TRUE(Log().empty());
}

TEST_F(OpenDocument, FileChosenInTheFoldersDialogCountsAsOpened) {
  const auto path = MakeFile("a.txt", "a\r\n");
  dialogs.answers.push_back(FileDialogAnswer{path, 1, false});
  EXPECT_TRUE(Open(Whole("work")));
  EXPECT_EQ(state.currentFile, path);
}

TEST_F(OpenDocument, MoreThan32000BytesAsksWithNoAsDefault) {
  const auto path = MakeFile("a.txt", std::string(32001, 'x'));
  EXPECT_FALSE(Open(path));
  ExpectBox(OnlyBox(), u"Kestrile",
            path +
                u"\r\n32KB以上のﾃｷｽﾄが貼り付けられようとしています\r\n"
                u"Kestrile は 32KB以上のﾃｷｽﾄを編集する事を推奨していません\r\n"
                u"そのまま作業を進めますか？",
            MessageIcon::Exclamation, MessageButtons::YesNo, 2);
  EXPECT_EQ(control.Length(), 0);
  EXPECT_TRUE(Log().empty());
}

TEST_F(OpenDocument, YesOpensTheLongText) {
  boxes.answers.push_back(MessageAnswer::Yes);
  EXPECT_TRUE(Open(MakeFile("a.txt", std::string(32001, 'x'))));
  EXPECT_EQ(control.Length(), 32001);
}

TEST_F(OpenDocument, Exactly32000BytesOpenWithoutQuestion) {
  EXPECT_TRUE(Open(MakeFile("a.txt", std::string(32000, 'x'))));
  EXPECT_TRUE(Open(MakeFile("b.txt", std::string(32000, 'x') + "\r\n")));  // the last line end is not counted
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(OpenDocument, LimitCountsBytesAndNotCharacters) {
  std::u16string text(15999, u'表');
  EXPECT_TRUE(Open(MakeFile("a.txt", Encoded(text + u"ｱb"))));
  EXPECT_TRUE(boxes.asked.empty());
  EXPECT_FALSE(Open(MakeFile("b.txt", Encoded(text + u"表c"))));
  EXPECT_EQ(boxes.asked.size(), 1U);
}

TEST_F(OpenDocument, DocumentStaysAsItWasWhenAnOpenFails) {
  const auto path = MakeFile("a.txt", "first\r\n");
  ASSERT_TRUE(Open(path));
  Type(u"!");
  const std::u16string caption = window.caption;
  Open(u"/no/such");
  Open(MakeFile("b.bin", "\x1A\x1A"));
  Open(MakeFile("c.txt", std::string(32001, 'x')));
  document->LimitText(3);
  Open(MakeFile("d.txt", "12345"));
  EXPECT_EQ(control.Text(), u"!first");
  EXPECT_EQ(state.currentFile, path);
  EXPECT_EQ(state.modified, -1);
  EXPECT_EQ(window.caption, caption);
  EXPECT_FALSE(services.busy);
}

// Where the text is loaded.

TEST_F(OpenDocument, ZeroLengthFileOpensAsAnEmptyDocument) {
  EXPECT_TRUE(Open(MakeFile("a.txt", "")));
  EXPECT_EQ(control.Text(), u"");
  EXPECT_TRUE(boxes.asked.empty());
  EXPECT_EQ(state.modified, 0);
}

TEST_F(OpenDocument, LoadedTextIsUnmodifiedAndTheChangeEventStaysMuted) {
  ASSERT_TRUE(Open(MakeFile("a.txt", "old\r\n")));
  Type(u"x");
  ASSERT_TRUE(Open(MakeFile("b.txt", "new\r\n")));
  EXPECT_EQ(control.Text(), u"new");
  EXPECT_EQ(state.modified, 0);
  EXPECT_EQ(state.modifiedShown, 0);
  EXPECT_EQ(window.panes[2], u"");
  EXPECT_EQ(window.caption, u"b.txt - tail");
}

TEST_F(OpenDocument, TabBecomesFourTimesTheCountOfBlanks) {
  state.tabSpaceCount = 2;
  ASSERT_TRUE(Open(MakeFile("a.txt", "\ta\t\tb\r\n")));
  EXPECT_EQ(control.Text(), u"        a                b");
}

TEST_F(OpenDocument, TabsStayWhenTheCountIsZeroOrTabsAreKept) {
  state.tabSpaceCount = 0;
  EXPECT_EQ(document->TabsToBlanks(u"\ta"), u"\ta");
  state.tabSpaceCount = 1;
  state.tabASeT = -1;
  EXPECT_EQ(document->TabsToBlanks(u"\ta"), u"\ta");
  state.tabASeT = 1;
  EXPECT_EQ(document->TabsToBlanks(u"\ta"), u"    a");
  EXPECT_EQ(document->TabsToBlanks(u""), u"");
}

TEST_F(OpenDocument, TextWithoutTabsKeepsItsStorage) {
  std::u16string text(1000, u'x');
  const char16_t* const storage = text.data();
  const std::u16string result = document->TabsToBlanks(std::move(text));
  EXPECT_EQ(result.data(), storage);
}

TEST_F(OpenDocument, SetDocumentTextTreatsTabsAndKeepsTheModifiedFlagWhenAsked) {
  ASSERT_TRUE(Open(MakeFile("a.txt", "a\r\n")));
  EXPECT_TRUE(document->SetDocumentText(u"\tslot", KeepModified::Yes));
  EXPECT_EQ(control.Text(), u"    slot");
  EXPECT_EQ(state.modified, -1);
  EXPECT_EQ(window.panes[2], u"変更あり");
  EXPECT_EQ(window.caption, u"a.txt(変更) - tail");
  EXPECT_GT(window.statusRefreshes, 0);
  EXPECT_TRUE(document->SetDocumentText(u"new", KeepModified::No));
  EXPECT_EQ(state.modified, 0);
  EXPECT_EQ(window.caption, u"a.txt - tail");
}

TEST_F(OpenDocument, RefusedTextLeavesTheFlagsAlone) {
  document->LimitText(3);
  EXPECT_FALSE(document->SetDocumentText(u"1234", KeepModified::Yes));
  EXPECT_EQ(state.modified, 0);
  EXPECT_EQ(state.modifiedShown, 0);
}

struct LineEndRow {
  const char* name;
  std::string bytes;
  std::u16string checkedText;
  std::u16string kind;
};

TEST_F(OpenDocument, LineEndsAreConvertedOnlyWhenTheCheckIsOn) {
  const LineEndRow rows[] = {
      {"CR", "a\rb\r", u"a\r\nb\r\n", u"CR"},
      {"LF", "a\nb\n", u"a\r\nb\r\n", u"LF"},
      {"CR LF", "a\r\nb\r\n", u"a\r\nb", u"CR+LF"},
      {"CR LF with lone ones", "a\r\nb\rc\n", u"a\r\nb\rc\n", u"CR+LF"},
      {"lone CR and lone LF", "a\rb\nc", u"a\rb\nc", u"CR+LF"},
      {"none", "a", u"a", u"CR+LF"},
  };
  for (const LineEndRow& row : rows) {
    SCOPED_TRACE(row.name);
    const auto path = MakeFile("a.txt", row.bytes);
    Set(u"Setting", u"CRLFCheck", u"1");
    ASSERT_TRUE(Open(path));
    EXPECT_EQ(control.Text(), row.checkedText);
    EXPECT_EQ(window.panes[3], row.kind);
    EXPECT_EQ(state.lineEnd, row.kind);
    Set(u"Setting", u"CRLFCheck", u"0");
    ASSERT_TRUE(Open(path));
    EXPECT_EQ(Encoded(control.Text()),
              row.bytes.ends_with("\r\n") ? row.bytes.substr(0, row.bytes.size() - 2) : row.bytes);
    EXPECT_EQ(window.panes[3], u"CR+LF");
  }
}

TEST_F(OpenDocument, ScrollPositionsAndCaretComeBack) {
  const auto path = MakeFile("a.txt", "0123456789\r\nabc\r\n");
  Set(u"Setting", u"TextScrollPos", u"1");
  Set(u"HScrollPos", path, u"7");
  Set(u"VScrollPos", path, u"1");
  Set(u"SelStartPos", path, u"4");
  ASSERT_TRUE(Open(path));
  EXPECT_EQ(window.scroll, (ScrollPosition{7, 1}));
  EXPECT_EQ(control.SelStart(), 4);
}

TEST_F(OpenDocument, ScrollPositionsAreLeftAloneWithoutTheSetting) {
  const auto path = MakeFile("a.txt", "0123456789\r\n");
  Set(u"SelStartPos", path, u"4");
  ASSERT_TRUE(Open(path));
  EXPECT_EQ(control.SelStart(), 0);
}

TEST_F(OpenDocument, DamagedOrTooLargePositionsAreHarmless) {
  const auto path = MakeFile("a.txt", "abc\r\n");
  Set(u"Setting", u"TextScrollPos", u"1");
  Set(u"VScrollPos", path, u"many");
  Set(u"SelStartPos", path, u"2000000000");
  ASSERT_TRUE(Open(path));
  EXPECT_EQ(window.scroll, ScrollPosition{});
  EXPECT_EQ(control.SelStart(), 3);
}

TEST_F(OpenDocument, RelativePathBecomesAWholeOne) {
  const auto here = std::filesystem::current_path();
  const auto path = MakeFile("relative.txt", "a\r\n");
  std::filesystem::current_path(std::filesystem::path(folder.Path()) / "work");
  EXPECT_TRUE(Open(u"relative.txt"));
  std::filesystem::current_path(here);
  EXPECT_EQ(state.currentFile, common->GetLongPath(path));
}

TEST_F(OpenDocument, BlanksAtTheEndsOfARelativeNameBelongToIt) {
  const auto here = std::filesystem::current_path();
  MakeFile("trail.txt", "wrong\r\n");
  const auto trailing = MakeFile("trail.txt ", "right\r\n");
  const auto leading = MakeFile(" lead.txt", "right\r\n");
  std::filesystem::current_path(std::filesystem::path(folder.Path()) / "work");
  EXPECT_TRUE(Open(u"trail.txt "));
  EXPECT_EQ(state.currentFile, common->GetLongPath(trailing));
  EXPECT_TRUE(Open(u"./ lead.txt"));
  EXPECT_EQ(state.currentFile, common->GetLongPath(leading));
  std::filesystem::current_path(here);
  EXPECT_EQ(control.Text(), u"right");
}

TEST_F(OpenDocument, OddFileNamesOpen) {
  for (const char* name :
       {"a b.txt", "\"quoted\".txt", "line\nbreak.txt", "é 😀.txt", "表;ソ=[x].txt", "'$(x)'.txt"}) {
    SCOPED_TRACE(name);
    const auto path = MakeFile(name, "text\r\n");
    EXPECT_TRUE(Open(path));
    EXPECT_EQ(state.currentFile, path);
    EXPECT_EQ(control.Text(), u"text");
  }
}

TEST_F(OpenDocument, ReopeningTheCurrentFileThroughItsOwnNameWorks) {
  const auto path = MakeFile("a.txt", "one\r\n");
  ASSERT_TRUE(Open(path));
  ChangeBehindTheBack(path, "two\r\n");
  EXPECT_TRUE(Open(state.currentFile));
  EXPECT_EQ(control.Text(), u"two");
}

TEST_F(OpenDocument, BytesThatAreNoCharactersAreToldInTheStatusBar) {
  for (const char* bytes : {"ab\x81", "a\x81\x20", "\x85\x40 \x81\x45\r\n"}) {
    window.messages.clear();
    ASSERT_TRUE(Open(MakeFile("a.txt", bytes)));
    ASSERT_FALSE(window.messages.empty());
    EXPECT_EQ(ToUtf8(window.messages.back()), "ｼﾌﾄJISとして読めないﾃﾞｰﾀを「・」に置き換えて開きました");
  }
}

TEST_F(OpenDocument, MiddleDotsThatStandInTheFileAreNoReasonToWarn) {
  std::string piece = Encoded(u"・表ソ・ｱ\r\n");
  std::string bytes = "x";  // pairs lie across the pieces of the read
  while (bytes.size() < (std::size_t{1} << 20) + 100) bytes += piece;
  boxes.answers.push_back(MessageAnswer::Yes);
  ASSERT_TRUE(Open(MakeFile("a.txt", bytes)));
  EXPECT_EQ(window.messages, std::vector<std::u16string>{u""});
}

TEST_F(OpenDocument, ReadOnlyAndUnreadableBytesAreToldTogether) {
  ASSERT_TRUE(document->OpenDocument(MakeFile("a.txt", "a\x81"), ReadOnly::Yes));
  EXPECT_EQ(ToUtf8(window.messages.back()),
            "読み取り専用で開きました  ｼﾌﾄJISとして読めないﾃﾞｰﾀを「・」に置き換えて開きました");
  EXPECT_TRUE(control.Locked());
}

TEST_F(OpenDocument, AnErrorAfterTheTextStandsLeavesItUnderItsOwnNameOrNone) {
  const auto old = MakeFile("old.txt", "old\r\n");
  const auto fresh = MakeFile("fresh.txt", "fresh\r\n");
  ASSERT_TRUE(Open(old));
  window.failingIcon = true;
  EXPECT_TRUE(Open(fresh));
  EXPECT_EQ(control.Text(), u"fresh");
  EXPECT_EQ(state.currentFile, fresh);
}

TEST_F(OpenDocument, AnErrorBeforeTheNameStandsLeavesNoNameToSaveUnder) {
  Set(u"Setting", u"TextScrollPos", u"1");
  const auto old = MakeFile("old.txt", "old\r\n");
  ASSERT_TRUE(Open(old));
  window.failingScroll = true;
  EXPECT_TRUE(Open(MakeFile("fresh.txt", "fresh\r\n")));
  EXPECT_EQ(state.currentFile, u"");
  Type(u"x");
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(dialogs.saves.size(), 1U);
  EXPECT_EQ(Bytes(old), "old\r\n");
}

TEST_F(OpenDocument, ARelativeLinkKeepsItsOwnName) {
  MakeFile("page.txt", "text\r\n");
  std::filesystem::create_symlink("page.txt", ToUtf8(Work("index.htm")));
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(ToUtf8(Work(".")));
  EXPECT_TRUE(Open(u"index.htm"));
  std::filesystem::current_path(before);
  EXPECT_EQ(state.currentFile, Work("index.htm"));
  EXPECT_EQ(state.fileKind, kFileTypeHtml);
}

}  // namespace
}  // namespace kestri
