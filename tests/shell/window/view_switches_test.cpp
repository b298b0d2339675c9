#include "shell/window/view_switches.hpp"

#include <gtest/gtest.h>

#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"
#include "tests/fakes/window_ports.hpp"

namespace kestri {
namespace {

fakes::FakeEnvironment RunningIn(const fakes::TemporaryFolder& folder) {
  fakes::FakeEnvironment environment;
  environment.executable = folder.Text(u"Kestri");
  environment.processes = {folder.Text(u"Kestri")};
  environment.folders[SystemFolder::Windows] = folder.Text();
  return environment;
}

struct RecordingWindow : SwitchedWindow {
  bool ToolBarVisible() const override { return toolBar; }
  void ShowToolBar(bool visible) override { toolBar = visible; }
  bool ToolBarDocked() const override { return docked; }
  void DockToolBar(bool dock) override { docked = dock; }
  bool StatusBarVisible() const override { return statusBar; }
  void ShowStatusBar(bool visible) override { statusBar = visible; }
  bool FolderBarVisible() const override { return folderBar; }
  void ShowFolderBar(bool visible) override { folderBar = visible; }
  int FolderBarWidth() const override { return 2400; }
  void ShowGuideLines(bool visible) override { guideLines = visible; }
  bool LineNumbersVisible() const override { return lineNumbers; }
  void ShowLineNumbers(bool visible) override { lineNumbers = visible; }
  void ApplyTopMost() override { ++topMostCalls; }
  bool toolBar = true, docked = true, statusBar = true, folderBar = true, guideLines = false,
       lineNumbers = true;
  int topMostCalls = 0;
};

class Switches : public ::testing::Test {
 protected:
  void StartAnother() { environment.processes.push_back(folder.Text(u"Kestri")); }
  std::u16string Kept(std::u16string_view section, std::u16string_view key) {
    return common.GetINI(u"Kestri", section, key, u"(unset)");
  }

  fakes::TemporaryFolder folder;
  PosixFileSystem files;
  fakes::FakeEnvironment environment = RunningIn(folder);
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
  fakes::FakeMessageBox boxes;
  ClassCommon common{{files, environment, shell, clock, services}, PathStyle::Posix};
  ApplicationState state;
  fakes::FakeUiEffects effects;
  RecordingWindow window;
  ViewSwitches views{common, state, boxes, effects, window};
};

TEST_F(Switches, SingleProcessRemembersAtOnceWithoutAQuestion) {
  views.ToggleToolBar();
  views.ToggleStatusBar();
  views.ToggleLineNumbers();
  EXPECT_FALSE(window.toolBar);
  EXPECT_FALSE(window.statusBar);
  EXPECT_FALSE(window.lineNumbers);
  EXPECT_EQ(Kept(u"Bar", u"ToolBarShow0"), u"0");
  EXPECT_EQ(Kept(u"Bar", u"StatusBar0"), u"0");
  EXPECT_EQ(Kept(u"Setting", u"SubClass"), u"0");
  EXPECT_TRUE(boxes.asked.empty());
  views.ToggleToolBar();
  EXPECT_TRUE(window.toolBar);
  EXPECT_EQ(Kept(u"Bar", u"ToolBarShow0"), u"1");
}

TEST_F(Switches, SeveralProcessesAskHowFarTheChangeGoes) {
  StartAnother();
  boxes.answers = {MessageAnswer::Yes};
  views.ToggleStatusBar();
  ASSERT_EQ(boxes.asked.size(), 1u);
  EXPECT_TRUE(boxes.asked[0].text.ends_with(u"が複数起動されている場合"));
  EXPECT_FALSE(window.statusBar);
  EXPECT_EQ(Kept(u"Bar", u"StatusBar0"), u"0");
}

TEST_F(Switches, NoChangesThisWindowAlone) {
  StartAnother();
  boxes.answers = {MessageAnswer::No};
  views.ToggleStatusBar();
  EXPECT_FALSE(window.statusBar);
  EXPECT_EQ(Kept(u"Bar", u"StatusBar0"), u"(unset)");
}

TEST_F(Switches, CancelledQuestionChangesNothing) {
  StartAnother();
  boxes.answers = {MessageAnswer::Cancel};
  views.ToggleToolBar();
  EXPECT_TRUE(window.toolBar);
  EXPECT_EQ(Kept(u"Bar", u"ToolBarShow0"), u"(unset)");
}

TEST_F(Switches, TheFolderBarIsRememberedWithItsWidth) {
  views.ToggleFolderBar();
  EXPECT_FALSE(window.folderBar);
  EXPECT_EQ(Kept(u"Bar", u"DirTree"), u"0");
  EXPECT_EQ(Kept(u"Bar", u"DirectoryTreeWidth"), u"2400");
}

TEST_F(Switches, TheFolderBarOfThisWindowAloneLeavesTheSettings) {
  StartAnother();
  boxes.answers = {MessageAnswer::No};
  views.ToggleFolderBar();
  EXPECT_FALSE(window.folderBar);
  EXPECT_EQ(Kept(u"Bar", u"DirTree"), u"(unset)");
  EXPECT_EQ(Kept(u"Bar", u"DirectoryTreeWidth"), u"(unset)");
}

TEST_F(Switches, TopMostGoesBetweenItsTwoModesAndReachesEveryForm) {
  views.ToggleTopMost();
  EXPECT_EQ(state.topMost, -1);
  EXPECT_TRUE(views.TopMost());
  views.ToggleTopMost();
  EXPECT_EQ(state.topMost, -2);
  EXPECT_EQ(window.topMostCalls, 2);
}

TEST_F(Switches, MenuAnimationReachesMenusAndComboBoxes) {
  views.ToggleMenuAnimation();
  using Calls = std::vector<std::pair<std::int16_t, std::int32_t>>;
  EXPECT_EQ(effects.calls, (Calls{{1, UiEffects::kMenus}, {1, UiEffects::kComboBoxes}}));
  EXPECT_TRUE(views.MenuAnimated());
}

TEST_F(Switches, DockingCaptionNamesTheOtherState) {
  EXPECT_EQ(views.DockingCaption(), u"ﾂｰﾙﾊﾞｰの切り離し");
  views.ToggleDocked();
  EXPECT_EQ(views.DockingCaption(), u"ﾂｰﾙﾊﾞｰのﾄﾞｯｷﾝｸﾞ");
}

TEST_F(Switches, GuideLinesFollowTheState) {
  views.ToggleGuideLines();
  EXPECT_TRUE(window.guideLines);
  EXPECT_EQ(state.gLine, 1);
}

}  // namespace
}  // namespace kestri
