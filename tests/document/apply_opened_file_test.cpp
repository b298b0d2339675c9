#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class ApplyOpenedFile : public DocumentTest {
 protected:
  void Apply(const std::u16string& path, ReadOnly readOnly = ReadOnly::No,
             std::u16string_view kind = u"CR+LF") {
    document->ApplyOpenedFile(path, readOnly, kind);
  }
};

TEST_F(ApplyOpenedFile, NamesFileFolderAndKind) {
  const auto path = MakeFile("a.htm", "");
  Apply(path);
  EXPECT_EQ(state.currentFile, path);
  EXPECT_EQ(state.currentFolder, Whole("work"));
  EXPECT_EQ(environment.currentFolder, Whole("work"));
  EXPECT_EQ(state.fileKind, kFileTypeHtml);
  EXPECT_EQ(window.documentChanges, 1);
}

TEST_F(ApplyOpenedFile, PaneFourTellsHtmlAndAsciiArt) {
  Apply(MakeFile("a.html", ""));
  EXPECT_EQ(window.panes[4], u"HTML");
  Apply(MakeFile("a.aat", ""));
  EXPECT_EQ(window.panes[4], u"AA");
  Apply(MakeFile("a.txt", ""));
  EXPECT_EQ(window.panes[4], u"");
}

TEST_F(ApplyOpenedFile, IconIsTheFilesOwnAndTheDefaultForANewDocument) {
  Apply(Work("無題.htm"));
  EXPECT_EQ(window.icon, u"");
  Apply(MakeFile("a.htm", ""));
  EXPECT_EQ(window.icon, u"text-html");
}

TEST_F(ApplyOpenedFile, CaptionShowsTheNameOrTheWholePath) {
  const auto path = MakeFile("a.htm", "");
  Apply(path);
  EXPECT_EQ(window.caption, u"a.htm - tail");
  Set(u"Setting", u"CaptionFilePath", u"1");
  Apply(path);
  EXPECT_EQ(window.caption, path + u" - tail");
  Apply(Work("無題.htm"));
  EXPECT_EQ(window.caption, u"無題.htm - tail");
}

TEST_F(ApplyOpenedFile, NewDocumentHasOnlyAName) {
  Apply(MakeFile("a.htm", ""));
  state.modified = -1;
  Apply(Whole("state/無題.txt"));
  EXPECT_EQ(state.currentFile, u"無題.txt");
  EXPECT_EQ(state.currentFolder, Whole("work"));
  EXPECT_EQ(state.modified, 0);
  EXPECT_EQ(window.messages.back(), u"");
}

TEST_F(ApplyOpenedFile, FirstChangeMarksTheCaption) {
  Apply(MakeFile("a.htm", ""));
  Type(u"x");
  EXPECT_EQ(state.modified, -1);
  EXPECT_EQ(window.caption, u"a.htm(変更) - tail");
}

TEST_F(ApplyOpenedFile, ReadOnlyBoxLocksWithMarkAndMessage) {
  Apply(MakeFile("a.htm", ""), ReadOnly::Yes);
  EXPECT_TRUE(control.Locked());
  EXPECT_EQ(window.caption, u"a.htm(読取) - tail");
  EXPECT_EQ(ToUtf8(window.messages.back()), "読み取り専用で開きました");
}

TEST_F(ApplyOpenedFile, ReadOnlyAttributeIsHonouredByDefault) {
  const auto path = MakeFile("a.htm", "");
  MakeReadOnly(path);
  Apply(path);
  EXPECT_TRUE(control.Locked());
  EXPECT_EQ(window.caption, u"a.htm(読取) - tail");
  EXPECT_EQ(ToUtf8(window.messages.back()), "読み取り専用で開きました");
}

TEST_F(ApplyOpenedFile, ReadOnlyCheckOpensAReadOnlyFileForWriting) {
  const auto path = MakeFile("a.htm", "");
  MakeReadOnly(path);
  Set(u"Setting", u"ReadOnlyCheck", u"1");
  Apply(path);
  EXPECT_FALSE(control.Locked());
  EXPECT_EQ(window.caption, u"a.htm - tail");
  EXPECT_EQ(ToUtf8(window.messages.back()), "読み取り専用を解除して開きました");
}

TEST_F(ApplyOpenedFile, NextWritableFileTakesTheLockOff) {
  Apply(MakeFile("a.htm", ""), ReadOnly::Yes);
  Apply(MakeFile("b.htm", ""));
  EXPECT_FALSE(control.Locked());
  EXPECT_EQ(window.messages.back(), u"");
}

TEST_F(ApplyOpenedFile, NewDocumentIsNeverLocked) {
  Apply(Work("無題.htm"), ReadOnly::Yes);
  EXPECT_FALSE(control.Locked());
  EXPECT_EQ(window.caption, u"無題.htm - tail");
  EXPECT_EQ(window.messages.back(), u"");
}

TEST_F(ApplyOpenedFile, PaneTwoTellsANewLineEndKindOnce) {
  const auto path = MakeFile("a.htm", "");
  Apply(path, ReadOnly::No, u"LF");
  EXPECT_EQ(window.panes[2], u"LF");
  EXPECT_EQ(window.panes[3], u"LF");
  window.panes[2] = u"変更あり";
  Apply(path, ReadOnly::No, u"LF");
  EXPECT_EQ(window.panes[2], u"");
  EXPECT_EQ(window.panes[3], u"LF");
  EXPECT_EQ(state.lineEnd, u"LF");
}

TEST_F(ApplyOpenedFile, TagToolsFollowTheKindUnlessTheyAreOnEverywhere) {
  Apply(MakeFile("a.txt", ""));
  EXPECT_FALSE(window.htmlTools);
  Apply(MakeFile("a.htm", ""));
  EXPECT_TRUE(window.htmlTools);
  state.htmlNAV = 0;
  Apply(MakeFile("b.txt", ""));
  EXPECT_TRUE(window.htmlTools);
}

TEST_F(ApplyOpenedFile, DesktopsRecentListIsFilledOnlyWhenAsked) {
  const auto path = MakeFile("a.txt", "");
  Apply(path);
  EXPECT_TRUE(shell.recent.empty());
  Set(u"Setting", u"WINDOWS_Favorites", u"1");
  Apply(path);
  Apply(Work("無題.htm"));
  EXPECT_EQ(shell.recent, std::vector<std::u16string>{path});
}

class UnreachableFolders : public fakes::FakeEnvironment {
 public:
  bool ChangeFolder(std::u16string_view folder) override {
    tried.emplace_back(folder);
    return folder == folders[SystemFolder::Documents];
  }
  std::vector<std::u16string> tried;
};

TEST_F(ApplyOpenedFile, UnreachableFolderFallsBackToMyDocuments) {
  UnreachableFolders unreachable;
  unreachable.executable = environment.executable;
  unreachable.folders = environment.folders;
  const ClassCommon other(Ports{files, unreachable, shell, clock, services}, PathStyle::Posix);
  Document onOther(control, state, other, boxes, dialogs, window, fallbacks);
  onOther.ApplyOpenedFile(MakeFile("a.txt", ""), ReadOnly::No, u"CR+LF");
  EXPECT_EQ(unreachable.tried, (std::vector<std::u16string>{Whole("work"), Whole("documents")}));
}

}  // namespace
}  // namespace kestri
