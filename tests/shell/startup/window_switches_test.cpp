// "/SL", "/CI", "/CL", "/DA", "/AC": their arguments, their windows, and what happens without them.
#include "tests/shell/startup/startup_desk.hpp"

namespace kestri {
namespace {

using fakes::Steps;

class WindowSwitches : public fakes::StartupDesk<fakes::AllRecordedWindows> {
 protected:
  WindowSwitches() {
    folder.Write("a b.lzh", "x");
    files.CreateFolder(folder.Text(u"写真 1"));
  }
  std::int32_t StartWith(std::u16string_view prefix, std::u16string_view argument) {
    return Start(std::u16string(prefix).append(argument));
  }
};

// Image slides.

TEST_F(WindowSwitches, SlidesAreShownByTheSiblingViewer) {
  EXPECT_EQ(StartWith(u"/SL ", folder.Text(u"写真 1")), ClassMain::kDone);
  ASSERT_EQ(shell.opened.size(), 1u);
  EXPECT_EQ(shell.opened[0], std::pair(folder.Text(u"PicPeek.exe"), folder.Text(u"写真 1")));
  EXPECT_EQ(windows.steps, Steps{});
  EXPECT_FALSE(services.busy);
}

TEST_F(WindowSwitches, AViewerWithoutExtensionIsFoundToo) {
  folder.Write("PicPeek", "x");
  StartWith(u"/SL ", folder.Text());
  EXPECT_EQ(shell.opened.at(0).first, folder.Text(u"PicPeek"));
  folder.Write("PicPeek.exe", "x");
  StartWith(u"/SL ", folder.Text());
  EXPECT_EQ(shell.opened.at(1).first, folder.Text(u"PicPeek.exe"));
}

TEST_F(WindowSwitches, SlidesOfAMissingFolderAreRefusedButEndInGoodOrder) {
  EXPECT_EQ(Start(u"/SL /no such"), ClassMain::kDone);
  ExpectBox(MessageIcon::Critical, u"Kestrile", u"ﾌｫﾙﾀﾞ \"/no such\" は 存在しません");
  EXPECT_TRUE(shell.opened.empty());
}

TEST_F(WindowSwitches, SlidesOfAFileAreRefused) {
  EXPECT_EQ(StartWith(u"/SL ", folder.Text(u"a b.lzh")), ClassMain::kDone);
  ExpectBox(MessageIcon::Critical, u"Kestrile",
            u"ﾌｫﾙﾀﾞ \"" + folder.Text(u"a b.lzh") + u"\" は 存在しません");
}

TEST_F(WindowSwitches, SlidesOfNothingAreRefused) {
  EXPECT_EQ(Start(u"/SL "), ClassMain::kDone);
  ExpectBox(MessageIcon::Critical, u"Kestrile", u"ﾌｫﾙﾀﾞ \"\" は 存在しません");
}

TEST_F(WindowSwitches, AViewerThatDoesNotStartIsTold) {
  shell.opens = false;
  EXPECT_EQ(StartWith(u"/SL ", folder.Text()), ClassMain::kDone);
  ExpectBox(MessageIcon::Critical, u"Kestrile", u"\"PicPeek.exe\" を開けません");
}

// Image conversion.

TEST_F(WindowSwitches, ConversionOfAFolderWorksThere) {
  EXPECT_EQ(StartWith(u"/CI ", folder.Text(u"写真 1")), ClassMain::kLive);
  EXPECT_EQ(state.currentFolder, folder.Text(u"写真 1"));
  EXPECT_EQ(state.currentFile, u"");
  EXPECT_EQ(windows.steps, Steps{"IMGCFrm"});
  EXPECT_FALSE(services.busy);
}

TEST_F(WindowSwitches, ConversionOfAFileWorksInItsFolder) {
  EXPECT_EQ(StartWith(u"/CI ", folder.Text(u"a b.lzh")), ClassMain::kLive);
  EXPECT_EQ(state.currentFolder, folder.Text());
  EXPECT_EQ(state.currentFile, folder.Text(u"a b.lzh"));
}

TEST_F(WindowSwitches, ConversionOfAMissingFileWorksWhereTheUserLastWas) {
  Set(u"Setting", u"NawPath", u"/last/folder/");
  EXPECT_EQ(Start(u"/CI /no/such.bmp"), ClassMain::kLive);
  EXPECT_EQ(state.currentFolder, u"/last/folder");
  EXPECT_EQ(state.currentFile, u"");
  EXPECT_TRUE(boxes.asked.empty());
}

// Compile.

TEST_F(WindowSwitches, CompileOpensForAFileThatDoesNotExist) {
  EXPECT_EQ(Start(u"/CL \"/no/such page.htm\""), ClassMain::kLive);
  EXPECT_EQ(state.currentFile, u"/no/such page.htm");
  EXPECT_EQ(windows.steps, Steps{"ComplForm"});
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(WindowSwitches, CompileKeepsTheHandleOfTheWindowItDisabled) {
  Start(u"/CL x");
  EXPECT_EQ(state.startupState[0], 815);
}

// Archives.

TEST_F(WindowSwitches, AnArchiveIsOpened) {
  EXPECT_EQ(StartWith(u"/DA ", folder.Text(u"a b.lzh")), ClassMain::kLive);
  EXPECT_EQ(windows.steps, Steps{"ArchiverFrm " + Path("a b.lzh")});
}

TEST_F(WindowSwitches, AFolderIsPacked) {
  EXPECT_EQ(StartWith(u"/AC ", folder.Text(u"写真 1")), ClassMain::kLive);
  EXPECT_EQ(windows.steps, Steps{"ArchiverZFrm " + Path("写真 1")});
}

TEST_F(WindowSwitches, QuotesAndBlanksAroundAnArgumentGo) {
  StartWith(u"/DA ", u"  \"" + folder.Text(u"a b.lzh") + u"\" ");
  EXPECT_EQ(windows.steps, Steps{"ArchiverFrm " + Path("a b.lzh")});
}

TEST_F(WindowSwitches, MissingArchivesAreRefused) {
  for (const char16_t* prefix : {u"/DA ", u"/AC "}) {
    boxes.asked.clear();
    EXPECT_EQ(StartWith(prefix, u"/no such.lzh"), ClassMain::kEnd);
    ExpectBox(MessageIcon::Critical, u"Kestrile", u"\"/no such.lzh\" は 存在しません");
    EXPECT_EQ(windows.steps, Steps{"box"});
  }
}

TEST_F(WindowSwitches, AQuoteAroundTheWholeLineMakesItNoSwitchOfAWindow) {
  Start(u"\"/DA x\"");
  ExpectBox(MessageIcon::Exclamation, u"ｽｲｯﾁｴﾗｰ Kestrile", u"\"/DA x\" は無効なｽｲｯﾁです");
}

// A program that comes without these windows.

class WithoutTheWindows : public fakes::StartupDesk<fakes::RecordedWindows> {};

TEST_F(WithoutTheWindows, TheUserIsToldWhichIsMissing) {
  const std::pair<std::u16string, const char16_t*> rows[] = {
      {u"/CI " + folder.Text(), u"IMGCFrm"},
      {u"/CL " + folder.Text(), u"ComplForm"},
      {u"/DA " + folder.Text(), u"ArchiverFrm"},
      {u"/AC " + folder.Text(), u"ArchiverZFrm"},
  };
  for (const auto& [line, name] : rows) {
    boxes.asked.clear();
    EXPECT_EQ(Start(line), ClassMain::kEnd);
    ExpectBox(MessageIcon::Exclamation, u"Kestrile",
              std::u16string(u"この機能はまだ組み込まれていません\r\n") + name);
    EXPECT_FALSE(services.busy);
  }
}

TEST_F(WithoutTheWindows, AMissingArchiveIsToldFirst) {
  EXPECT_EQ(Start(u"/DA /no such.lzh"), ClassMain::kEnd);
  ExpectBox(MessageIcon::Critical, u"Kestrile", u"\"/no such.lzh\" は 存在しません");
}

// The pointer.

TEST_F(WindowSwitches, ThePointerIsBusyFirstAndNormalAtTheEndOfEveryPath) {
  const std::u16string file = folder.Text(u"a b.lzh");
  const std::u16string lines[] = {u"",
                                  file,
                                  u"/SN",
                                  u"/SF",
                                  u"/x",
                                  u"/?",
                                  u"/SL " + folder.Text(),
                                  u"/SL /no such",
                                  u"/CI " + file,
                                  u"/CL " + file,
                                  u"/DA " + file,
                                  u"/DA /no such",
                                  u"/AC " + file,
                                  u"/AC /no such"};
  for (const std::u16string& line : lines) {
    Start(line);
    ASSERT_FALSE(services.shown.empty()) << ToUtf8(line);
    EXPECT_TRUE(services.shown.front()) << ToUtf8(line);
    EXPECT_FALSE(services.busy) << ToUtf8(line);
  }
}

TEST_F(WindowSwitches, NoRefusalStandsUnderTheWaitingPointer) {
  for (const char16_t* line : {u"/SL /no such", u"/DA /no such", u"/AC /no such"}) {
    Start(line);
    EXPECT_EQ(windows.steps, Steps{"box"}) << ToUtf8(line);
    EXPECT_EQ(windows.busyAt, std::vector<bool>{false}) << ToUtf8(line);
  }
}

}  // namespace
}  // namespace kestri
