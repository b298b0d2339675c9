// What the main window restores from the settings, and what its close writes back.
#include "shell/window/window_settings.hpp"

#include <gtest/gtest.h>

#include "document/trp_string.hpp"
#include "platform/posix/posix_file_system.hpp"
#include "shell/common/text.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

fakes::FakeEnvironment RunningIn(const fakes::TemporaryFolder& folder) {
  fakes::FakeEnvironment environment;
  environment.executable = folder.Text(u"Kestri");
  environment.folders[SystemFolder::Documents] = folder.Text(u"documents");
  return environment;
}

class Settings : public ::testing::Test {
 protected:
  WindowSettings Load() { return LoadWindowSettings(common, state).value(); }
  void Save(const WindowSettings& settings, WindowState windowState = WindowState::Normal) {
    SaveWindowSettings(common, state, settings, windowState);
  }
  void Set(std::u16string_view section, std::u16string_view key, std::u16string_view value) {
    common.SetINI(u"Kestri", section, key, value);
  }
  std::u16string Kept(std::u16string_view section, std::u16string_view key) {
    return common.GetINI(u"Kestri", section, key, u"(unset)");
  }

  fakes::TemporaryFolder folder;
  PosixFileSystem files;
  fakes::FakeEnvironment environment = RunningIn(folder);
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
  ClassCommon common{{files, environment, shell, clock, services}, PathStyle::Posix};
  ApplicationState state;
};

TEST_F(Settings, AbsentFileGivesEveryDefault) {
  const WindowSettings settings = Load();
  EXPECT_EQ(settings.fontName, u"ＭＳ ゴシック");
  EXPECT_EQ(settings.fontSize, 14);
  EXPECT_EQ(settings.colorLabel, u"00. ﾃﾞﾌｫﾙﾄ");
  EXPECT_EQ(settings.eofMark, 1);
  EXPECT_EQ(settings.eofMarkType, 0);
  EXPECT_EQ(settings.subClass, 1);
  EXPECT_EQ(settings.menIcon, 1);
  EXPECT_EQ(settings.toolBarShow, 1);
  EXPECT_EQ(settings.statusBarShow, 1);
  EXPECT_EQ(settings.statusBarHeight, 300);
  EXPECT_EQ(settings.directoryTreeWidth, 3000);
  EXPECT_EQ(settings.timerPeriod, 101);
  EXPECT_EQ(settings.startUpWindow, u"DEFAULT");
  EXPECT_EQ(settings.rectangle, (WindowRectangle{1000, 1000, 9500, 7200}));
  EXPECT_EQ(settings.hintCharacter.shown, 0);
  EXPECT_EQ(settings.hintCharacter.picture, folder.Text(u"DataFiles/HintFig_B.bmp"));
  EXPECT_EQ(settings.hintCharacter.fontSize, 9);
  EXPECT_EQ(settings.hintCharacter.fontStyle, 0);
  EXPECT_EQ(settings.hintCharacter.left, 150);
  EXPECT_EQ(settings.hintCharacter.top, 300);
  EXPECT_EQ(settings.hintCharacter.wrap, 50);
  EXPECT_EQ(state.tabASeT, 1);
  EXPECT_EQ(state.tabSpaceCount, 1);
  EXPECT_EQ(state.htmlNAV, 1);
  EXPECT_EQ(state.htmlNAVkeyB, 0);
  EXPECT_EQ(state.htmlNAVkeyB_AUTO, 1);
  EXPECT_EQ(state.textTrp, 1);
  EXPECT_EQ(state.trpString, DefaultTrpString());
  EXPECT_EQ(state.dragModeTrue, 1);
  EXPECT_EQ(state.menuHints, 1);
  EXPECT_EQ(state.popUpMen, 1);
  EXPECT_EQ(state.gLine, 0);
  EXPECT_EQ(state.menuAnimation, 0);
  EXPECT_EQ(state.showInfoOnSelect, 0);
  EXPECT_EQ(state.currentFolder, folder.Text(u"documents")) << "without a last folder";
}

struct KeptKey {
  const char16_t* section;
  const char16_t* key;
  const char16_t* value;
};

class KeptKeys : public Settings, public ::testing::WithParamInterface<KeptKey> {};

TEST_P(KeptKeys, SurviveALoadAndAClose) {
  const auto& [section, key, value] = GetParam();
  Set(u"Setting", u"StartUpWindow", u"NAW");
  Set(section, key, value);
  const WindowSettings settings = Load();
  common.SetINI(u"Kestri", section, key, u"");
  Save(settings);
  EXPECT_EQ(Kept(section, key), value) << ToUtf8(key);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, KeptKeys,
    ::testing::Values(KeptKey{u"Setting", u"FontName", u"ＭＳ 明朝"}, KeptKey{u"Setting", u"FontSize", u"11"},
                      KeptKey{u"Setting", u"htmlNAVkeyB_AUTO", u"0"},
                      KeptKey{u"Setting", u"htmlNAVkeyB", u"1"}, KeptKey{u"Setting", u"htmlNAV", u"0"},
                      KeptKey{u"Setting", u"TabSpaceCount", u"3"}, KeptKey{u"Setting", u"TextTrp", u"0"},
                      KeptKey{u"Setting", u"TrpString", u"、。"}, KeptKey{u"Setting", u"DragModeTrue", u"0"},
                      KeptKey{u"Setting", u"MenuHints", u"0"}, KeptKey{u"Setting", u"PopUpMen", u"0"},
                      KeptKey{u"Setting", u"GLine", u"1"}, KeptKey{u"Setting", u"MenuAnimation", u"1"},
                      KeptKey{u"Setting", u"TabASeT", u"0"}, KeptKey{u"Setting", u"HTMLfrmLeft", u"-300"},
                      KeptKey{u"Setting", u"HTMLfrmTop", u"45"},
                      KeptKey{u"Setting", u"HTMLfrmWidth", u"6000"},
                      KeptKey{u"Setting", u"HTMLfrmHeight", u"4500"}, KeptKey{u"Bar", u"FileInfo", u"1"},
                      KeptKey{u"Bar", u"DirectoryTreeWidth", u"4200"}, KeptKey{u"IMGTint", u"IMGTint", u"1"},
                      KeptKey{u"IMGTint", u"IMGPath", u"/own/picture.bmp"},
                      KeptKey{u"IMGTint", u"FontSize", u"12"}, KeptKey{u"IMGTint", u"FontStyle", u"2"},
                      KeptKey{u"IMGTint", u"LEFT", u"30"}, KeptKey{u"IMGTint", u"TOP", u"60"},
                      KeptKey{u"IMGTint", u"Worp", u"20"}));

TEST_F(Settings, StandardHintPictureIsNotWrittenSoThatTheFolderCanMove) {
  Save(Load());
  EXPECT_EQ(Kept(u"IMGTint", u"IMGPath"), u"(unset)");
}

TEST_F(Settings, LastFolderIsTakenWhileItExists) {
  files.CreateFolder(folder.Text(u"pages"));
  Set(u"Setting", u"NawPath", folder.Text(u"pages"));
  Load();
  EXPECT_EQ(state.currentFolder, folder.Text(u"pages"));
  Set(u"Setting", u"NawPath", folder.Text(u"gone"));
  Load();
  EXPECT_EQ(state.currentFolder, folder.Text(u"documents"));
}

TEST_F(Settings, FolderThatTheFileCannotHoldLeavesTheOneBefore) {
  Set(u"Setting", u"NawPath", u"/before");
  WindowSettings settings = Load();
  state.currentFolder = u"/k한국";
  Save(settings);
  EXPECT_EQ(Kept(u"Setting", u"NawPath"), u"/before");
  state.currentFolder = u"/日本";
  Save(settings);
  EXPECT_EQ(Kept(u"Setting", u"NawPath"), u"/日本");
}

TEST_F(Settings, RandomPlacementLastsForOneStart) {
  Set(u"Setting", u"StartUpWindow", u"RAND");
  Save(Load());
  EXPECT_EQ(Kept(u"Setting", u"StartUpWindow"), u"DEFAULT");
}

TEST_F(Settings, MaximizedCloseKeepsModeAndRectangleForLater) {
  Set(u"Setting", u"StartUpWindow", u"NAW");
  Set(u"Setting", u"HTMLfrmWidth", u"6000");
  WindowSettings settings = Load();
  settings.rectangle = {0, 0, 19200, 13500};
  Save(settings, WindowState::Maximized);
  EXPECT_EQ(Kept(u"Setting", u"StartUpWindow"), u"NAW_MAX");
  EXPECT_EQ(Kept(u"Setting", u"HTMLfrmWidth"), u"6000");
}

TEST_F(Settings, StartsAreCountedUpToTheLargestNumber) {
  CountStart(common);
  CountStart(common);
  EXPECT_EQ(Kept(u"Setting", u"Act"), u"2");
  Set(u"Setting", u"Act", u"2147483647");
  CountStart(common);
  EXPECT_EQ(Kept(u"Setting", u"Act"), u"2147483647");
}

TEST_F(Settings, TimerFollowsTheReactionSpeed) {
  Set(u"Setting", u"ClTimer", u"5");
  EXPECT_EQ(Load().timerPeriod, 251);
  Set(u"Setting", u"ClTimer", u"0");
  EXPECT_EQ(Load().timerPeriod, 51);
}

class DamagedNumbers : public Settings, public ::testing::WithParamInterface<const char16_t*> {};

TEST_P(DamagedNumbers, MakeTheWholeFileDamaged) {
  Set(u"Setting", GetParam(), u"abc");
  EXPECT_FALSE(LoadWindowSettings(common, state).has_value());
}

INSTANTIATE_TEST_SUITE_P(Keys, DamagedNumbers,
                         ::testing::Values(u"FontSize", u"Act", u"TabSpaceCount", u"HTMLfrmLeft", u"ClTimer",
                                           u"SubClass", u"EofMark"));

TEST_F(Settings, AFractionIsRoundedHalfToEven) {
  for (const auto& [written, size] :
       {std::pair{u"10.5", 10}, {u"11.5", 12}, {u"11.25", 11}, {u" +14.0 ", 14}}) {
    Set(u"Setting", u"FontSize", written);
    EXPECT_EQ(Load().fontSize, size) << ToUtf8(written);
  }
  Set(u"Setting", u"ClTimer", u"2.4");
  EXPECT_EQ(Load().timerPeriod, 101);
}

TEST_F(Settings, ANumberBeyondItsRangeIsDamage) {
  for (const char16_t* written : {u"40000", u"99999999999", u"1e400", u"."}) {
    Set(u"Setting", u"EofMark", written);
    EXPECT_FALSE(LoadWindowSettings(common, state)) << ToUtf8(written);
  }
}

TEST_F(Settings, TheFolderBarStaysBetweenUsableWidths) {
  EXPECT_EQ(Load().folderBarShow, 1);
  for (const auto& [written, width] : {std::pair{u"3000", 3000}, {u"0", 900}, {u"99999", 15000}}) {
    Set(u"Bar", u"DirectoryTreeWidth", written);
    EXPECT_EQ(Load().directoryTreeWidth, width);
  }
}

}  // namespace
}  // namespace kestri
