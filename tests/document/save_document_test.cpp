#include <fcntl.h>
#include <sys/stat.h>

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class SaveDocument : public DocumentTest {
 protected:
  std::u16string OpenAndType(const std::string& name, std::string_view bytes, std::u16string_view typed) {
    auto path = MakeFile(name, bytes);
    EXPECT_TRUE(Open(path));
    Type(typed);
    return path;
  }
};

// WriteDocument

TEST_F(SaveDocument, WriteAddsOneFinalLineEndAndTellsTheWindow) {
  control.SetText(u"表\r\nb");
  state.modified = -1;
  EXPECT_TRUE(document->WriteDocument(Work("a.htm")));
  EXPECT_EQ(Bytes(Work("a.htm")), "\x95\x5C\r\nb\r\n");
  EXPECT_EQ(state.modified, 0);
  EXPECT_EQ(state.currentFile, Work("a.htm"));
  EXPECT_EQ(window.caption, u"a.htm - tail");
  EXPECT_EQ(ToUtf8(window.messages.back()), "保存完了");
  EXPECT_EQ(window.tagViewRefreshes, 1);
  EXPECT_FALSE(services.busy);
  EXPECT_FALSE(control.Locked());
}

TEST_F(SaveDocument, MissingFolderIsMade) {
  EXPECT_TRUE(document->WriteDocument(Work("new/deep/a.txt")));
  EXPECT_EQ(Bytes(Work("new/deep/a.txt")), "\r\n");
}

TEST_F(SaveDocument, FolderThatCannotBeMadeGivesTheCriticalBox) {
  const auto file = MakeFile("file", "");
  EXPECT_FALSE(document->WriteDocument(file + u"/folder/a.txt"));
  ExpectBox(OnlyBox(), u"Kestrile", u"指定した場所にﾌｧｲﾙを作成できませんでした", MessageIcon::Critical,
            MessageButtons::Ok, 1);
}

TEST_F(SaveDocument, LineEndKindDecidesWhatIsWritten) {
  struct Row {
    const char16_t* kind;
    const char* bytes;
  };
  for (const Row& row : {Row{u"CR+LF", "a\r\nb\r\n"}, Row{u"CR", "a\rb\r\n"}, Row{u"LF", "a\nb\r\n"}}) {
    control.SetText(u"a\r\nb");
    state.lineEnd = row.kind;
    EXPECT_TRUE(document->WriteDocument(Work("a.txt")));
    EXPECT_EQ(Bytes(Work("a.txt")), row.bytes);
    EXPECT_EQ(state.lineEnd, row.kind);
    EXPECT_EQ(window.panes[3], row.kind);
  }
}

TEST_F(SaveDocument, LineEndAcrossTheGapIsStillOne) {
  state.lineEnd = u"LF";
  control.SetText(u"ab\r\ncd");
  control.SetSelStart(2);
  Type(u"X");  // the gap lies behind X, in front of CR LF
  EXPECT_TRUE(document->WriteDocument(Work("a.txt")));
  EXPECT_EQ(Bytes(Work("a.txt")), "abX\ncd\r\n");
}

TEST_F(SaveDocument, UnconvertedTextIsNamedByItsOwnLineEnds) {
  for (const auto& [text, kind] : {std::pair(u"a\rb", u"CR"), std::pair(u"a\nb", u"LF"),
                                   std::pair(u"a\nb\rc", u"(不明)"), std::pair(u"a", u"CR+LF")}) {
    state.lineEnd = u"CR+LF";
    control.SetText(text);
    EXPECT_TRUE(document->WriteDocument(Work("a.txt")));
    EXPECT_EQ(window.panes[3], kind);
  }
}

TEST_F(SaveDocument, FailedWriteGivesBoxAndLogAndTheDocumentStaysModified) {
  const auto path = OpenAndType("a.txt", "old\r\n", u"new ");
  files.faultyReplace = path;
  EXPECT_FALSE(document->WriteDocument(path));
  ExpectBox(OnlyBox(), u"ﾌｧｲﾙ書き込みｴﾗｰ Kestrile",
            u"ﾌｧｲﾙが 保存できません!!\r\n・ReadOnlyﾌｧｲﾙである\r\n・他で開いている\r\n・ﾗｲﾄﾌﾟﾛﾃｸﾄ\r\n"
            u"・容量に余裕が無い",
            MessageIcon::Exclamation, MessageButtons::Ok, 1);
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 ﾌｧｲﾙが 保存できません!! \"" + path + u"\"\r\n"));
  EXPECT_EQ(Bytes(path), "old\r\n");
  EXPECT_EQ(state.modified, -1);
  EXPECT_EQ(control.Text(), u"new old");
  EXPECT_EQ(window.caption, u"a.txt(変更) - tail");
  EXPECT_FALSE(services.busy);
}

TEST_F(SaveDocument, ReadOnlyFileIsNotWrittenOver) {
  const auto path = MakeFile("a.txt", "old\r\n");
  MakeReadOnly(path);
  control.SetText(u"new");
  EXPECT_FALSE(document->WriteDocument(path));
  EXPECT_EQ(ToUtf8(OnlyBox().caption), "ﾌｧｲﾙ書き込みｴﾗｰ Kestrile");
  EXPECT_EQ(Bytes(path), "old\r\n");
}

TEST_F(SaveDocument, FolderUnderTheNameIsNotWrittenOver) {
  EXPECT_FALSE(document->WriteDocument(Whole("state")));
  EXPECT_EQ(ToUtf8(OnlyBox().caption), "ﾌｧｲﾙ書き込みｴﾗｰ Kestrile");
}

TEST_F(SaveDocument, ScrollPositionsAreRememberedWhenAsked) {
  const auto path = OpenAndType("a.txt", "abc\r\n", u"x");
  window.scroll = {30, 2};
  ASSERT_TRUE(document->WriteDocument(path));
  EXPECT_EQ(Get(u"SelStartPos", path), u"(none)");
  Set(u"Setting", u"TextScrollPos", u"1");
  ASSERT_TRUE(document->WriteDocument(path));
  EXPECT_EQ(Get(u"HScrollPos", path), u"30");
  EXPECT_EQ(Get(u"VScrollPos", path), u"2");
  EXPECT_EQ(Get(u"SelStartPos", path), u"1");
}

TEST_F(SaveDocument, PathThatCannotBeAKeyLeavesTheSettingsWhole) {
  Set(u"Setting", u"TextScrollPos", u"1");
  for (const char* name : {"a=b.txt", "é.txt", "line\n[Setting]\nTextScrollPos=0.txt"}) {
    SCOPED_TRACE(name);
    EXPECT_TRUE(document->WriteDocument(Work(name)));
    EXPECT_EQ(Get(u"Setting", u"TextScrollPos"), u"1");
    EXPECT_EQ(Bytes(Whole("program/Kestri.ini")).find("SelStartPos"), std::string::npos);
  }
  EXPECT_TRUE(document->WriteDocument(Work("a]b;[c].txt")));
  EXPECT_EQ(Get(u"SelStartPos", Work("a]b;[c].txt")), u"0");
}

TEST_F(SaveDocument, OddFileNamesAreSaved) {
  for (const char* name :
       {"a b.txt", "\"quoted\".txt", "line\nbreak.txt", "é 😀.txt", "'$(x)'.txt", "*.txt"}) {
    SCOPED_TRACE(name);
    control.SetText(u"text");
    EXPECT_TRUE(document->WriteDocument(Work(name)));
    EXPECT_EQ(Bytes(Work(name)), "text\r\n");
    EXPECT_EQ(state.currentFile, Work(name));
  }
}

TEST_F(SaveDocument, SymbolicLinkIsFollowed) {
  const auto target = MakeFile("target.txt", "old\r\n");
  std::filesystem::create_symlink(ToUtf8(target), ToUtf8(Work("link.txt")));
  ASSERT_TRUE(Open(Work("link.txt")));
  Type(u"x");
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(target), "xold\r\n");
  EXPECT_TRUE(std::filesystem::is_symlink(ToUtf8(Work("link.txt"))));
}

// OverwriteSave

TEST_F(SaveDocument, OverwriteWritesAChangedDocument) {
  const auto path = OpenAndType("a.txt", "old\r\n", u"new ");
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "new old\r\n");
  EXPECT_TRUE(boxes.asked.empty());
  EXPECT_TRUE(dialogs.saves.empty());
}

TEST_F(SaveDocument, UnchangedDocumentIsNotWritten) {
  const auto path = MakeFile("a.txt", "no final line end");
  ASSERT_TRUE(Open(path));
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "no final line end");
}

TEST_F(SaveDocument, NewDocumentGoesToSaveAs) {
  document->ApplyOpenedFile(Work("無題.htm"), ReadOnly::No, u"CR+LF");
  Type(u"x");
  EXPECT_FALSE(document->OverwriteSave());
  ASSERT_EQ(dialogs.saves.size(), 1U);
  EXPECT_EQ(dialogs.saves[0].filterIndex, 2);
  EXPECT_EQ(dialogs.saves[0].fileName, Work("無題"));
  EXPECT_EQ(state.modified, -1);
  dialogs.answers.push_back(FileDialogAnswer{Work("first.htm"), 2, false});
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(Work("first.htm")), "x\r\n");
}

TEST_F(SaveDocument, NewDocumentNeverOverwritesAFileThatAppearedUnderItsName) {
  document->ApplyOpenedFile(Work("無題.htm"), ReadOnly::No, u"CR+LF");
  MakeFile("無題.htm", "somebody else's");
  Type(u"x");
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(dialogs.saves.size(), 1U);
  EXPECT_EQ(Bytes(Work("無題.htm")), "somebody else's");
}

TEST_F(SaveDocument, VanishedFileGoesToSaveAs) {
  const auto path = OpenAndType("a.txt", "old\r\n", u"x");
  std::filesystem::remove(ToUtf8(path));
  dialogs.answers.push_back(FileDialogAnswer{Work("b.txt"), 1, false});
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(Work("b.txt")), "xold\r\n");
  EXPECT_FALSE(Exists(path));
}

TEST_F(SaveDocument, ReadOnlyAttributeStopsSaveButNotSaveAs) {
  Set(u"Setting", u"ReadOnlyCheck", u"1");
  const auto path = MakeFile("a.txt", "old\r\n");
  MakeReadOnly(path);
  ASSERT_TRUE(Open(path));
  Type(u"x");
  EXPECT_FALSE(document->OverwriteSave());
  ExpectBox(OnlyBox(), u"上書き保存ｴﾗｰ Kestrile",
            u"ReadOnlyﾌｧｲﾙを上書きすることはできません\r\n別のﾌｧｲﾙ名を指定して下さい",
            MessageIcon::Exclamation, MessageButtons::Ok, 1);
  EXPECT_EQ(Bytes(path), "old\r\n");
  dialogs.answers.push_back(FileDialogAnswer{Work("b.txt"), 1, false});
  EXPECT_TRUE(document->SaveAsDialog(u""));
  EXPECT_EQ(Bytes(Work("b.txt")), "xold\r\n");
}

TEST_F(SaveDocument, LockedDocumentIsNotOverwritten) {
  const auto path = MakeFile("a.txt", "old\r\n");
  ASSERT_TRUE(document->OpenDocument(path, ReadOnly::Yes));
  EXPECT_FALSE(document->OverwriteSave());
  ExpectBox(OnlyBox(), u"上書き保存ｴﾗｰ Kestrile",
            u"読み取り専用で開かれたﾌｧｲﾙを 上書保存することはできません\r\n別のﾌｧｲﾙ名を指定して下さい",
            MessageIcon::Exclamation, MessageButtons::Ok, 1);
}

TEST_F(SaveDocument, SaveAsUnderANewNameTakesTheLockOff) {
  ASSERT_TRUE(document->OpenDocument(MakeFile("a.txt", "old\r\n"), ReadOnly::Yes));
  dialogs.answers.push_back(FileDialogAnswer{Work("b.txt"), 1, false});
  EXPECT_TRUE(document->SaveAsDialog(u""));
  EXPECT_FALSE(control.Locked());
  EXPECT_EQ(window.caption, u"b.txt - tail");
}

TEST_F(SaveDocument, FailedOverwriteFallsToSaveAs) {
  const auto path = OpenAndType("a.txt", "old\r\n", u"x");
  files.faultyReplace = path;
  dialogs.answers.push_back(FileDialogAnswer{Work("b.txt"), 1, false});
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(boxes.asked.size(), 1U);
  EXPECT_EQ(Bytes(path), "old\r\n");
  EXPECT_EQ(Bytes(Work("b.txt")), "xold\r\n");
  EXPECT_EQ(state.currentFile, Work("b.txt"));
}

TEST_F(SaveDocument, SecondSaveKeepsTheLineEndKind) {
  Set(u"Setting", u"CRLFCheck", u"1");
  const auto path = OpenAndType("a.txt", "a\rb", u"x");
  ASSERT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "xa\rb\r\n");
  Type(u"y\r\n");
  ASSERT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "xy\ra\rb\r\n");
  EXPECT_TRUE(boxes.asked.empty());
}

// What is asked before something is lost.

constexpr std::u16string_view kForeignChange =
    u"\"a.txt\"\r\nこのﾌｧｲﾙは 開いた後に他のﾌﾟﾛｸﾞﾗﾑで変更されています\r\n"
    u"上書きすると その変更は失われます\r\n上書き保存しますか？";

TEST_F(SaveDocument, FileChangedBySomebodyElseIsOverwrittenOnlyAfterYes) {
  const auto path = OpenAndType("a.txt", "old\r\n", u"mine ");
  ChangeBehindTheBack(path, "theirs, and longer\r\n");
  EXPECT_FALSE(document->OverwriteSave());
  ExpectBox(OnlyBox(), u"上書き保存の確認 Kestrile", kForeignChange, MessageIcon::Exclamation,
            MessageButtons::YesNo, 2);
  EXPECT_EQ(Bytes(path), "theirs, and longer\r\n");
  EXPECT_EQ(state.modified, -1);
  EXPECT_TRUE(dialogs.saves.empty());
  boxes.answers.push_back(MessageAnswer::Yes);
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "mine old\r\n");
  Type(u"x");
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(boxes.asked.size(), 2U);
}

TEST_F(SaveDocument, ChangeOfTheSameLengthIsSeenByItsTime) {
  const auto path = OpenAndType("a.txt", "old\r\n", u"x");
  ChangeBehindTheBack(path, "new\r\n");
  std::filesystem::last_write_time(ToUtf8(path),
                                   std::filesystem::last_write_time(ToUtf8(path)) + std::chrono::seconds(5));
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(boxes.asked.size(), 1U);
}

void SetTime(std::u16string_view path, timespec time) {
  const timespec times[] = {time, time};
  ASSERT_EQ(::utimensat(AT_FDCWD, ToUtf8(path).c_str(), times, 0), 0);
}

TEST_F(SaveDocument, ChangeOfTheSameLengthWithinASecondIsSeen) {
  const auto path = MakeFile("a.txt", "old\r\n");
  SetTime(path, {1044072306, 1000});
  ASSERT_TRUE(Open(path));
  Type(u"x");
  ChangeBehindTheBack(path, "new\r\n");
  SetTime(path, {1044072306, 2000});
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(ToUtf8(OnlyBox().text), ToUtf8(kForeignChange));
  EXPECT_EQ(Bytes(path), "new\r\n");
}

TEST_F(SaveDocument, AnotherFileOfTheSameLengthAndTimeIsSeen) {
  const auto path = MakeFile("a.txt", "old\r\n");
  SetTime(path, {1044072306, 1000});
  ASSERT_TRUE(Open(path));
  Type(u"x");
  const auto other = MakeFile("other.txt", "new\r\n");
  SetTime(other, {1044072306, 1000});
  std::filesystem::rename(ToUtf8(other), ToUtf8(path));
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(ToUtf8(OnlyBox().text), ToUtf8(kForeignChange));
  EXPECT_EQ(Bytes(path), "new\r\n");
}

TEST_F(SaveDocument, OwnSavesAreNoForeignChange) {
  const auto path = OpenAndType("a.txt", "old\r\n", u"x");
  for (int save = 0; save < 3; ++save) {
    EXPECT_TRUE(document->OverwriteSave());
    Type(u"y");
  }
  EXPECT_TRUE(boxes.asked.empty());
  EXPECT_EQ(Bytes(path), "xyyold\r\n");
}

TEST_F(SaveDocument, UnreadableBytesAreOverwrittenOnlyAfterYes) {
  const auto path = OpenAndType("a.txt", "a\x81", u"x");
  EXPECT_FALSE(document->OverwriteSave());
  ExpectBox(OnlyBox(), u"上書き保存の確認 Kestrile",
            u"\"a.txt\"\r\nこのﾌｧｲﾙには ｼﾌﾄJISとして読めないﾃﾞｰﾀが含まれていました\r\n"
            u"上書きすると その部分は「・」に置き換わり 元に戻せません\r\n上書き保存しますか？",
            MessageIcon::Exclamation, MessageButtons::YesNo, 2);
  EXPECT_EQ(Bytes(path), "a\x81");
  boxes.answers.push_back(MessageAnswer::Yes);
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "xa\x81\x45\r\n");
  Type(u"y");
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(boxes.asked.size(), 2U);
}

TEST_F(SaveDocument, AUtf8FileThatWouldComeBackChangedIsOverwrittenOnlyAfterYes) {
  const std::string korean = "<p>\xED\x95\x9C\xEA\xB8\x80</p>\r\n";
  const auto path = OpenAndType("a.htm", korean, u"x");
  EXPECT_EQ(ToUtf8(window.messages.back()), "UTF-8のﾌｧｲﾙを ｼﾌﾄJISとして開きました");
  EXPECT_FALSE(document->OverwriteSave());
  ExpectBox(OnlyBox(), u"上書き保存の確認 Kestrile",
            u"\"a.htm\"\r\nこのﾌｧｲﾙは UTF-8で書かれています\r\n"
            u"上書きすると 一部のﾃﾞｰﾀが別のｺｰﾄﾞに置き換わり 元に戻せません\r\n上書き保存しますか？",
            MessageIcon::Exclamation, MessageButtons::YesNo, 2);
  EXPECT_EQ(Bytes(path), korean);
}

TEST_F(SaveDocument, WhatComesBackAsItWasIsNotAskedFor) {
  for (const std::string& bytes : {std::string("\xED\x40 \x87\x90 \xFA\x54\r\n"),  // twins of other codes
                                   std::string("\xB1\xB2\xB3\r\n"),                // half-width kana
                                   std::string("plain\r\n"), std::string("\xC3\xA9\r\n")}) {
    OpenAndType("a.txt", bytes, u"x");
    EXPECT_TRUE(document->OverwriteSave());
  }
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(SaveDocument, AnotherNameOfTheSameFileIsAskedForAsItselfIs) {
  const auto path = OpenAndType("a.txt", "a\x81", u"x");
  std::filesystem::create_symlink(ToUtf8(path), ToUtf8(Work("link.txt")));
  std::filesystem::create_hard_link(ToUtf8(path), ToUtf8(Work("hard.txt")));
  for (const char* other : {"link.txt", "hard.txt", "./a.txt"}) {
    EXPECT_FALSE(document->WriteDocument(Work(other))) << other;
    EXPECT_EQ(boxes.asked.back().caption, u"上書き保存の確認 Kestrile");
  }
  EXPECT_EQ(Bytes(path), "a\x81");
  EXPECT_EQ(boxes.asked.size(), 3U);
}

TEST_F(SaveDocument, UnreadableBytesOfAnEarlierFileAreForgotten) {
  ASSERT_TRUE(Open(MakeFile("a.txt", "a\x81")));
  OpenAndType("b.txt", "b\r\n", u"x");
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(SaveDocument, CharactersOutsideTheCodePageAreSavedOnlyAfterYes) {
  const auto path = OpenAndType("a.txt", "one\r\ntwo\r\n", u"表\r\n😀");
  EXPECT_FALSE(document->OverwriteSave());
  ExpectBox(OnlyBox(), u"保存の確認 Kestrile",
            u"\"a.txt\"\r\nｼﾌﾄJISで保存できない文字が含まれています (2行目 「😀」)\r\n"
            u"保存すると その文字は「?」などに置き換わります\r\nこのまま保存しますか？",
            MessageIcon::Exclamation, MessageButtons::YesNo, 2);
  EXPECT_EQ(Bytes(path), "one\r\ntwo\r\n");
  EXPECT_EQ(state.modified, -1);
  EXPECT_TRUE(dialogs.saves.empty());
  boxes.answers.push_back(MessageAnswer::Yes);
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "\x95\x5C\r\n??one\r\ntwo\r\n");
}

TEST_F(SaveDocument, EndOfFileMarkIsAskedAboutAndTheSavedFileOpensAgain) {
  const auto path = OpenAndType("a.txt", "one\r\n", u"x\x1A");
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_NE(ToUtf8(OnlyBox().text).find("(1行目 「U+001A」)"), std::string::npos);
  EXPECT_EQ(Bytes(path), "one\r\n");
  boxes.answers.push_back(MessageAnswer::Yes);
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "x?one\r\n");
  EXPECT_TRUE(Open(path));
}

TEST_F(SaveDocument, FolderThatTookTheFilesPlaceIsNotBackedUp) {
  std::filesystem::create_directory(ToUtf8(Whole("backup")));
  Set(u"Path", u"UserBackUp", Whole("backup"));
  const auto path = OpenAndType("a.txt", "one\r\n", u"x");
  std::filesystem::remove(ToUtf8(path));
  std::filesystem::create_directory(ToUtf8(path));
  std::ofstream(ToUtf8(path) + "/inner.txt") << "inner";
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(ToUtf8(OnlyBox().caption), "ﾌｧｲﾙ書き込みｴﾗｰ Kestrile");
  EXPECT_TRUE(std::filesystem::is_empty(ToUtf8(Whole("backup"))));
  EXPECT_EQ(dialogs.saves.size(), 1U);
  EXPECT_EQ(state.modified, -1);
}

TEST_F(SaveDocument, LossyCharacterIsNamedWhereverItStands) {
  for (int position = 0; position <= 9; ++position) {
    control.SetText(u"0123\r\n678");
    control.SetSelStart(3);
    Type(u"x");
    control.SetSelStart(position);
    if (control.SelStart() != position) continue;  // between CR and LF
    Type(u"é");
    boxes.asked.clear();
    EXPECT_FALSE(document->WriteDocument(Work("a.txt")));
    const std::string line = position <= 5 ? "(1行目 「é」)" : "(2行目 「é」)";
    EXPECT_NE(ToUtf8(OnlyBox().text).find(line), std::string::npos) << position;
  }
}

TEST_F(SaveDocument, LossIsAskedOncePerDocument) {
  OpenAndType("a.txt", "", u"é");
  boxes.answers.push_back(MessageAnswer::Yes);
  ASSERT_TRUE(document->OverwriteSave());
  Type(u"é");
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(boxes.asked.size(), 1U);
  OpenAndType("b.txt", "", u"é");
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(boxes.asked.size(), 2U);
}

TEST_F(SaveDocument, CharactersTypedAfterAYesAreAskedAboutAgain) {
  const auto path = OpenAndType("a.txt", "", u"é");
  boxes.answers.push_back(MessageAnswer::Yes);
  ASSERT_TRUE(document->OverwriteSave());
  const auto before = Bytes(path);
  Type(u"\r\né😀");
  EXPECT_FALSE(document->OverwriteSave());
  ASSERT_EQ(boxes.asked.size(), 2U);
  EXPECT_NE(ToUtf8(boxes.asked.back().text).find("(2行目 「😀」)"), std::string::npos);
  EXPECT_EQ(Bytes(path), before);
  EXPECT_EQ(state.modified, -1);
  boxes.answers.push_back(MessageAnswer::Yes);
  EXPECT_TRUE(document->OverwriteSave());
  Type(u"é😀");
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(boxes.asked.size(), 3U);
}

TEST_F(SaveDocument, AYesForOneFileDoesNotCountForAnother) {
  OpenAndType("a.txt", "", u"é");
  boxes.answers.push_back(MessageAnswer::Yes);
  ASSERT_TRUE(document->OverwriteSave());
  dialogs.answers.push_back(FileDialogAnswer{Work("b.txt"), 1, false});
  EXPECT_FALSE(document->SaveAsDialog(u""));
  EXPECT_EQ(boxes.asked.size(), 2U);
  EXPECT_FALSE(Exists(Work("b.txt")));
}

TEST_F(SaveDocument, AfterANoTheSameCharactersAreAskedAboutAgain) {
  OpenAndType("a.txt", "", u"é");
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(boxes.asked.size(), 2U);
}

TEST_F(SaveDocument, DeclinedLossInSaveAsWritesNothing) {
  control.SetText(u"é");
  dialogs.answers.push_back(FileDialogAnswer{Work("b.txt"), 1, false});
  EXPECT_FALSE(document->SaveAsDialog(u""));
  EXPECT_FALSE(Exists(Work("b.txt")));
}

TEST_F(SaveDocument, SaveAsOverTheFileItselfAsksTheSameQuestions) {
  const auto path = OpenAndType("a.txt", "a\x81", u"x");
  EXPECT_FALSE(document->WriteDocument(path));
  EXPECT_EQ(boxes.asked.size(), 1U);
  EXPECT_EQ(Bytes(path), "a\x81");
  EXPECT_TRUE(document->WriteDocument(Work("b.txt")));
  EXPECT_EQ(boxes.asked.size(), 1U);
}

TEST_F(SaveDocument, ASlotOverTheTextLeavesTheFilesUnreadableBytesToBeAskedFor) {
  OpenAndType("a.txt", "a\x81", u"x");
  ASSERT_TRUE(document->SetDocumentText(u"snapshot", KeepModified::Yes));
  EXPECT_FALSE(document->OverwriteSave());
  EXPECT_EQ(boxes.asked.size(), 1U);
}

}  // namespace
}  // namespace kestri
