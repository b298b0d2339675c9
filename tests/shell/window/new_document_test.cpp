#include "shell/window/new_document.hpp"

#include <gtest/gtest.h>
#include <unistd.h>

#include <utility>

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class ScriptedInputBox : public InputBox {
 public:
  std::optional<std::u16string> Ask(const std::u16string& prompt, const std::u16string& title,
                                    const std::u16string& defaultText) override {
    asked = {prompt, title, defaultText};
    return answer;
  }
  std::vector<std::u16string> asked;
  std::optional<std::u16string> answer;
};

class NewDocument : public DocumentTest {
 protected:
  NewDocument() { std::filesystem::create_directories(Path("")); }

  std::string Path(const std::string& name) const { return ToUtf8(Whole("program/DataFiles")) + "/" + name; }
  void PutTemplate(int kind, std::u16string_view text) const { PutBytes(kind, Encoded(text)); }
  void PutBytes(int kind, const std::string& bytes) const {
    std::ofstream(Path("NewData" + std::to_string(kind) + ".fmtdat"), std::ios::binary) << bytes;
  }
  bool New(std::int16_t kind, UseTemplate useTemplate = UseTemplate::Yes) {
    return NewText(kind, *common, *document, window, state, box, useTemplate);
  }
  std::string Text() const { return ToUtf8(control.Text()); }
  std::string LastMessage() const {
    return window.messages.empty() ? std::string() : ToUtf8(window.messages.back());
  }

  ScriptedInputBox box;
};

TEST_F(NewDocument, ExtensionAndStatusFollowTheKind) {
  const std::pair<int, const char*> kinds[] = {
      {0, ""},      {1, ".txt"},    {2, ".htm"}, {3, ".htm"},  {4, ".css"},  {5, ".c"},
      {6, ".h"},    {7, ".bat"},    {8, ".ini"}, {9, ".java"}, {12, ".vbs"}, {13, ".txt"},
      {14, ".aat"}, {10, ".clped"}, {15, ""},    {-1, ""},
  };
  for (const auto& [kind, extension] : kinds) {
    ASSERT_TRUE(New(static_cast<std::int16_t>(kind)));
    const std::string shown = *extension == '\0' ? "白紙" : extension;
    EXPECT_EQ(LastMessage(), "新規作成 (" + shown + ")") << kind;
    const std::string name = *extension == '\0' ? "無題." : std::string("無題") + extension;
    EXPECT_EQ(ToUtf8(state.currentFile), name) << kind;
    EXPECT_EQ(ToUtf8(window.panes[3]), "CR+LF");
  }
}

TEST_F(NewDocument, UserDefinedKindAsksForItsExtension) {
  box.answer = u"xml";
  ASSERT_TRUE(New(11));
  EXPECT_EQ(box.asked, (std::vector<std::u16string>{u"拡張子を指定して下さい",
                                                    u"新規作成 (拡張子のﾕｰｻﾞｰ指定)", u".txt"}));
  EXPECT_EQ(ToUtf8(state.currentFile), "無題.xml");
  EXPECT_EQ(LastMessage(), "新規作成 (.xml)");
  box.answer = u".log";
  ASSERT_TRUE(New(11));
  EXPECT_EQ(ToUtf8(state.currentFile), "無題.log");
}

TEST_F(NewDocument, WhatNoNameMayHoldIsDroppedFromTheAskedExtension) {
  const std::pair<std::u16string, const char*> answers[] = {{u"../../etc/x", "....etcx"},
                                                            {u"..\\a\\b", "..ab"},
                                                            {u"\tht\r\nm\x7F\x85l", ".html"},
                                                            {u"表計算", ".表計算"}};
  for (const auto& [answer, extension] : answers) {
    box.answer = answer;
    EXPECT_EQ(ToUtf8(AskExtension(box).value_or(u"(none)")), extension);
  }
}

TEST_F(NewDocument, NothingButDotsAndSeparatorsIsACancel) {
  for (const std::u16string_view answer : {u".", u"..", u"/", u"./\\", u"\t"}) {
    box.answer = answer;
    EXPECT_EQ(AskExtension(box), std::nullopt) << ToUtf8(answer);
  }
}

TEST_F(NewDocument, EmptyAnswerOrCancelLeavesTheDocumentAsItWas) {
  MakeFile("a.txt", "abc\r\n");
  ASSERT_TRUE(Open(Work("a.txt")));
  PutTemplate(11, u"template");
  for (const std::optional<std::u16string>& answer : {std::optional<std::u16string>(u""), {}}) {
    box.answer = answer;
    EXPECT_FALSE(New(11));
    EXPECT_EQ(Text(), "abc");
    EXPECT_EQ(state.currentFile, Work("a.txt"));
    EXPECT_EQ(window.textFocuses, 0);
  }
}

TEST_F(NewDocument, TemplateOfTheKindsNumberBecomesTheText) {
  PutTemplate(2, u"<html>\r\n日本語\r\n</html>\r\n");
  PutTemplate(3, u"other\r\n");
  ASSERT_TRUE(New(2));
  EXPECT_EQ(Text(), "<html>\r\n日本語\r\n</html>");
  EXPECT_EQ(control.SelStart(), 0);
  EXPECT_EQ(LastMessage(), "新規作成 (.htm)");
  ASSERT_TRUE(New(3));
  EXPECT_EQ(Text(), "other");
  EXPECT_EQ(state.modified, 0);
  EXPECT_FALSE(control.EM_CANUNDO());
}

TEST_F(NewDocument, ClipFileHasNoTemplate) {
  PutTemplate(10, u"clip");
  ASSERT_TRUE(New(10));
  EXPECT_EQ(Text(), "");
}

TEST_F(NewDocument, TemplateIsLeftAsideWhenTheCallerSaysSo) {
  PutTemplate(2, u"<html>");
  ASSERT_TRUE(New(2, UseTemplate::No));
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(LastMessage(), "新規作成 (.htm)");
}

TEST_F(NewDocument, CaretStandsAtTheLastTabWhichIsNoText) {
  PutTemplate(2, u"<title>\t</title>\r\n<body>\r\n");
  ASSERT_TRUE(New(2));
  EXPECT_EQ(Text(), "<title></title>\r\n<body>");
  EXPECT_EQ(control.SelStart(), 7);
  EXPECT_EQ(control.SelLength(), 0);
}

TEST_F(NewDocument, TabsBeforeTheMarkBecomeBlanksAndTheCaretStaysAtTheMark) {
  state.tabSpaceCount = 2;
  PutTemplate(5, u"int main()\r\n\tx\r\n\t;");
  ASSERT_TRUE(New(5));
  EXPECT_EQ(Text(), "int main()\r\n        x\r\n;");
  EXPECT_EQ(control.SelStart(), control.Find(u";", 0));
  state.tabSpaceCount = 0;
  ASSERT_TRUE(New(5));
  EXPECT_EQ(Text(), "int main()\r\n\tx\r\n;");
  EXPECT_EQ(control.SelStart(), control.Find(u";", 0));
}

TEST_F(NewDocument, MarkAtTheTemplatesEndPutsTheCaretBehindAllText) {
  PutTemplate(1, u"a\r\n\t\r\n");
  ASSERT_TRUE(New(1));
  EXPECT_EQ(Text(), "a\r\n");
  EXPECT_EQ(control.SelStart(), 3);
}

TEST_F(NewDocument, TemplateWithLoneLineFeedsGetsCrLf) {
  PutTemplate(1, u"a\n\tb\nc\n");
  ASSERT_TRUE(New(1));
  EXPECT_EQ(Text(), "a\r\nb\r\nc\r\n");
  EXPECT_EQ(control.SelStart(), 3);
}

TEST_F(NewDocument, SameTextStaysAndTheOldDocumentCannotBeUndoneIntoTheNewOne) {
  Type(u"x");
  control.EM_SETSEL(0, -1);
  control.WM_CLEAR();
  ASSERT_TRUE(control.EM_CANUNDO());
  const int refreshes = window.statusRefreshes;
  ASSERT_TRUE(New(2));
  EXPECT_EQ(window.statusRefreshes, refreshes);
  EXPECT_FALSE(control.EM_CANUNDO());
  EXPECT_EQ(state.modified, 0);
}

TEST_F(NewDocument, SameTextStillPutsTheCaretAtTheMark) {
  PutTemplate(1, u"ab\tcd");
  Type(u"abcd");
  ASSERT_TRUE(New(1));
  EXPECT_EQ(control.SelStart(), 2);
}

TEST_F(NewDocument, KeysGoToTheText) {
  ASSERT_TRUE(New(2));
  EXPECT_EQ(window.textFocuses, 1);
}

TEST_F(NewDocument, UnreadableTemplateGivesABlankDocumentAndSaysSo) {
  std::filesystem::create_directory(Path("NewData1.fmtdat"));
  PutBytes(2, "bin\x1A\ry");
  PutTemplate(3, u"secret");
  const bool canHide = ::geteuid() != 0;
  if (canHide) std::filesystem::permissions(Path("NewData3.fmtdat"), std::filesystem::perms::none);
  for (const int kind : {1, 2, 3}) {
    if (kind == 3 && !canHide) continue;  // nothing is hidden from root
    Type(u"old");
    ASSERT_TRUE(New(static_cast<std::int16_t>(kind)));
    EXPECT_EQ(Text(), "") << kind;
    EXPECT_EQ(LastMessage(), "新規作成 (白紙)") << kind;
  }
}

TEST_F(NewDocument, NameIsTheFirstFreeOneInTheCurrentFolder) {
  MakeFile("無題.htm", "");
  MakeFile("無題1.htm", "");
  ASSERT_TRUE(New(2));
  EXPECT_EQ(ToUtf8(state.currentFile), "無題2.htm");
}

TEST_F(NewDocument, LostFolderGivesWayToTheUsersDocuments) {
  state.currentFolder = Whole("gone");
  ASSERT_TRUE(New(2));
  EXPECT_EQ(state.currentFolder, Whole("documents"));
}

TEST_F(NewDocument, TextLongerThanTheControlTakesLeavesTheDocumentAsItWas) {
  PutTemplate(2, u"long");
  Type(u"old");
  state.currentFile = u"old.txt";
  document->LimitText(3);
  EXPECT_FALSE(New(2));
  EXPECT_EQ(Text(), "old");
  EXPECT_EQ(state.currentFile, u"old.txt");
}

}  // namespace
}  // namespace kestri
