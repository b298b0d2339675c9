// What start-up tests, shows and refuses before the editor stands.
#include "shell/startup/class_main.hpp"

#include "tests/shell/startup/startup_desk.hpp"

namespace kestri {
namespace {

using fakes::Steps;

class ClassMainTest : public fakes::StartupDesk<fakes::RecordedWindows> {};

TEST_F(ClassMainTest, AnEmptyLineOpensTheEditorAlone) {
  EXPECT_EQ(Start(u""), ClassMain::kLive);
  EXPECT_EQ(windows.steps, (Steps{"editor", "loaded", "active"}));
  EXPECT_EQ(windows.modeAtLoad, 0);
}

TEST_F(ClassMainTest, ResultsAreTheNumbersThatTheEntryKnows) {
  EXPECT_EQ(ClassMain::kEnd, -1);
  EXPECT_EQ(ClassMain::kDone, 0);
  EXPECT_EQ(ClassMain::kLive, 1);
}

TEST_F(ClassMainTest, TheSharedStateBeginsAnew) {
  state.currentFile = u"/old/page.htm";
  state.currentFolder = u"/old";
  state.thirdPath = u"/old/third";
  state.topMost = -1;
  state.modified = -1;
  state.startupState = {7, 8, 9};
  Start(u"");
  EXPECT_EQ(state.currentFile, u"");
  EXPECT_EQ(state.currentFolder, u"");
  EXPECT_EQ(state.thirdPath, u"");
  EXPECT_EQ(state.topMost, -2);
  EXPECT_EQ(state.modified, 0);
  EXPECT_EQ(state.osType, -99);
  EXPECT_EQ(windows.splashAtLoad, 0);
  EXPECT_EQ(state.startupState, (std::array<std::int64_t, 3>{}));
}

TEST_F(ClassMainTest, ThePointerIsNormalAgainAtTheEnd) {
  services.busy = true;
  Start(u"");
  EXPECT_FALSE(services.busy);
}

TEST_F(ClassMainTest, ThePointerWaitsThroughEveryStepOfTheLoad) {
  Set(u"Setting", u"TopWinShow", u"1");
  Start(u"page.htm");
  EXPECT_EQ(windows.busyAt, std::vector<bool>(windows.steps.size(), true));
  EXPECT_FALSE(services.busy);
}

TEST_F(ClassMainTest, ThePointerWaitsAgainBehindTheWarning) {
  Set(u"RunArt", u"RunArt", u"0");
  Start(u"");
  ASSERT_EQ(windows.steps.front(), "warning");
  EXPECT_EQ(windows.busyAt, (std::vector<bool>{false, true, true, true}));
}

// The warning of the system.

TEST_F(ClassMainTest, AnotherSystemIsWarnedAboutUntilTheUserKnows) {
  Set(u"RunArt", u"RunArt", u"0");
  EXPECT_EQ(Start(u""), ClassMain::kLive);
  EXPECT_EQ(windows.osWarnings,
            (std::vector<std::u16string>{u"『 Windows98 Me 2000 XP』 以外のOSでの動作は保証しません"}));
  EXPECT_EQ(windows.steps, (Steps{"warning", "editor", "loaded", "active"}));
}

TEST_F(ClassMainTest, WithoutASavedAnswerTheWarningComes) {
  Set(u"RunArt", u"RunArt", u"");
  Start(u"");
  EXPECT_EQ(windows.osWarnings.size(), 1u);
}

TEST_F(ClassMainTest, TheWarningComesBeforeTheSplash) {
  Set(u"RunArt", u"RunArt", u"0");
  Set(u"Setting", u"TopWinShow", u"1");
  Start(u"");
  EXPECT_EQ((Steps{windows.steps.begin(), windows.steps.begin() + 2}), (Steps{"warning", "splash"}));
}

// The splash.

TEST_F(ClassMainTest, TheSplashTellsEachStepAndGoesBeforeTheEditorIsFree) {
  Set(u"Setting", u"TopWinShow", u"1");
  EXPECT_EQ(Start(u"page.htm"), ClassMain::kLive);
  EXPECT_EQ(windows.steps,
            (Steps{"splash", "progress ", "progress ｺﾏﾝﾄﾞﾗｲﾝ解析中...", "progress 設定 復元開始...",
                   "editor, disabled", "progress HTMLﾂｰﾙ 復元中...", "popup", "splash away", "loaded",
                   "open page.htm", "active"}));
  EXPECT_EQ(windows.splashAtLoad, 1);
  EXPECT_EQ(state.startupState[0], 0);
}

TEST_F(ClassMainTest, TheSplashIsShownUnlessTheSettingsSayOtherwise) {
  const std::pair<const char16_t*, bool> rows[] = {{u"", true}, {u"1", true}, {u"0", false}, {u"2", false}};
  for (const auto& [value, shown] : rows) {
    Set(u"Setting", u"TopWinShow", value);
    Start(u"");
    EXPECT_EQ(windows.steps.front(), shown ? "splash" : "editor") << ToUtf8(value);
  }
}

TEST_F(ClassMainTest, WithoutASplashNothingIsDisabledAndNoProgressIsTold) {
  Start(u"page.htm");
  EXPECT_EQ(windows.steps, (Steps{"editor", "loaded", "open page.htm", "active"}));
}

TEST_F(ClassMainTest, SwitchesOfOtherWindowsShowNoSplash) {
  Set(u"Setting", u"TopWinShow", u"1");
  for (const char16_t* line : {u"/SL x", u"/CL x", u"/DA x", u"/AC x", u"/CI x"}) {
    Start(line);
    EXPECT_EQ(std::count(windows.steps.begin(), windows.steps.end(), "splash"), 0) << ToUtf8(line);
  }
}

TEST_F(ClassMainTest, ASwitchInLowerCaseIsUnknownAndComesWithTheSplash) {
  Set(u"Setting", u"TopWinShow", u"1");
  EXPECT_EQ(Start(u"/sl C:\\x"), ClassMain::kLive);
  EXPECT_EQ(windows.steps.front(), "splash");
  EXPECT_EQ((Steps{windows.steps.end() - 4, windows.steps.end()}),
            (Steps{"splash away", "loaded", "box", "active"}));
  ExpectBox(MessageIcon::Exclamation, u"ｽｲｯﾁｴﾗｰ Kestrile", u"\"/sl C:\\x\" は無効なｽｲｯﾁです");
}

// Refusals.

class Refusal : public ClassMainTest {
 protected:
  void ExpectRefused(std::u16string_view text) {
    EXPECT_EQ(Start(u""), ClassMain::kEnd);
    EXPECT_EQ(windows.steps, Steps{"box"});
    ExpectBox(MessageIcon::Critical, u"Kestrile", text);
    EXPECT_EQ(windows.busyAt, std::vector<bool>{false});
    EXPECT_FALSE(services.busy);

    Set(u"Setting", u"TopWinShow", u"1");
    EXPECT_EQ(Start(u""), ClassMain::kEnd);
    EXPECT_EQ(windows.steps, (Steps{"splash", "splash away", "box"}));
    EXPECT_EQ(windows.busyAt, (std::vector<bool>{true, true, false}));
    EXPECT_EQ(state.startupState[0], 0);
  }
};

TEST_F(Refusal, WithoutTheFileServicesNothingStarts) {
  environment.executable = u"/opt/gone/Kestri";  // no settings there: the splash is on and the warning comes
  EXPECT_EQ(Start(u""), ClassMain::kEnd);
  EXPECT_EQ(windows.steps, (Steps{"warning", "splash", "splash away", "box"}));
  ExpectBox(MessageIcon::Critical, u"Kestrile",
            u"\"Scripting.FileSystemObject\"ｵﾌﾞｼﾞｪｸﾄ の生成に失敗しました");
}

TEST_F(Refusal, FailuresOfTheEnvironmentAreCollectedInOneBox) {
  environment.folders[SystemFolder::Windows] = u"";
  environment.folders[SystemFolder::System] = u"/";
  ExpectRefused(
      u"\r\n・ｼｽﾃﾑﾃﾞｨﾚｸﾄﾘが取得できません(不明なｴﾗｰです)"
      u"\r\n・SYSTEMﾌｫﾙﾀﾞがﾙｰﾄに設定されている時は起動できません");
}

TEST_F(Refusal, AProgramInTheRootIsToldSo) {
  environment.executable = u"/Kestri";
  EXPECT_EQ(Start(u""), ClassMain::kEnd);
  ExpectBox(MessageIcon::Critical, u"Kestrile", u"\r\n・ﾙｰﾄでは起動できません");
}

TEST_F(Refusal, ANameThatEndsInABlankIsOpenedWhole) {
  folder.Write("trail.txt ", "x\r\n");
  EXPECT_EQ(Start(folder.Text(u"trail.txt ")), ClassMain::kLive);
  EXPECT_TRUE(boxes.asked.empty());
  EXPECT_EQ(std::count(windows.steps.begin(), windows.steps.end(), "open " + Path("trail.txt ")), 1);
}

TEST_F(Refusal, OneProcessTooManyIsRefused) {
  environment.processes.assign(6, environment.executable);
  ExpectRefused(u"\"Kestri\"は 5個以上起動できないように設定されています");
}

TEST_F(ClassMainTest, AsManyProcessesAsTheLimitSaysMayRun) {
  environment.processes.assign(5, environment.executable);
  EXPECT_EQ(Start(u""), ClassMain::kLive);
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(Refusal, TheLimitComesFromTheSettings) {
  Set(u"Setting", u"AppECount", u"1");
  environment.processes.assign(2, environment.executable);
  ExpectRefused(u"\"Kestri\"は 1個以上起動できないように設定されています");
}

TEST_F(ClassMainTest, OtherProgramsDoNotCount) {
  environment.processes.assign(50, u"/usr/bin/cat");
  EXPECT_EQ(Start(u""), ClassMain::kLive);
}

TEST_F(ClassMainTest, TheLimitHoldsForTheSwitchesToo) {
  environment.processes.assign(6, environment.executable);
  EXPECT_EQ(Start(u"/SL /tmp"), ClassMain::kEnd);
  EXPECT_TRUE(shell.opened.empty());
}

TEST_F(ClassMainTest, DamagedSettingsAreToldBehindTheSplashAndEndTheProcess) {
  windows.settingsUsable = false;
  Set(u"Setting", u"TopWinShow", u"1");
  EXPECT_EQ(Start(u"page.htm"), ClassMain::kEnd);
  EXPECT_EQ((Steps{windows.steps.end() - 3, windows.steps.end()}),
            (Steps{"editor, disabled", "splash away", "box"}));
  ExpectBox(MessageIcon::Critical, u"起動ｴﾗｰ Kestrile",
            u"INIのﾃﾞｰﾀが壊れています\r\nINIを削除してからこのﾌﾟﾛｸﾞﾗﾑを再起動して下さい");
}

TEST_F(ClassMainTest, DamagedSettingsWithoutASplashEndTheProcessToo) {
  windows.settingsUsable = false;
  EXPECT_EQ(Start(u"page.htm"), ClassMain::kEnd);
  EXPECT_EQ(windows.steps, (Steps{"editor", "box"}));
}

// Numbers that are none.

constexpr const char16_t* kUnusable[] = {u"abc", u"99999999999", u"40000", u"1x"};

class DamagedNumber : public ClassMainTest {
 protected:
  void ExpectDamageTold(std::u16string_view line, const Steps& steps) {
    boxes.asked.clear();
    EXPECT_EQ(Start(line), ClassMain::kEnd);
    EXPECT_EQ(windows.steps, steps);
    EXPECT_FALSE(windows.busyAt.back());
    ExpectBox(MessageIcon::Critical, u"起動ｴﾗｰ Kestrile",
              u"INIのﾃﾞｰﾀが壊れています\r\nINIを削除してからこのﾌﾟﾛｸﾞﾗﾑを再起動して下さい");
  }
};

TEST_F(DamagedNumber, OfTheWarningIsToldInItsPlace) {
  for (const char16_t* value : kUnusable) {
    Set(u"RunArt", u"RunArt", value);
    ExpectDamageTold(u"", {"box"});
  }
  EXPECT_TRUE(windows.osWarnings.empty());
}

TEST_F(DamagedNumber, OfTheSplashIsToldWithoutASplashOnEveryLine) {
  for (const char16_t* value : kUnusable) {
    Set(u"Setting", u"TopWinShow", value);
    for (const char16_t* line : {u"", u"page.htm", u"/SN", u"/CI x"}) ExpectDamageTold(line, {"box"});
  }
}

TEST_F(DamagedNumber, OfTheProcessLimitIsToldBehindTheSplash) {
  Set(u"Setting", u"TopWinShow", u"1");
  for (const char16_t* value : kUnusable) {
    Set(u"Setting", u"AppECount", value);
    ExpectDamageTold(u"page.htm", {"splash", "splash away", "box"});
  }
}

TEST_F(DamagedNumber, OfTheListAtTheStartIsToldBeforeTheEditorStands) {
  for (const char16_t* value : kUnusable) {
    Set(u"Setting", u"WinF", value);
    ExpectDamageTold(u"", {"box"});
  }
}

TEST_F(DamagedNumber, OfTheListAtTheStartIsReadOnlyWhenTheListIsInQuestion) {
  Set(u"Setting", u"WinF", u"abc");
  for (const char16_t* line : {u"page.htm", u"/SN", u"/SF"}) {
    EXPECT_EQ(Start(line), ClassMain::kLive) << ToUtf8(line);
    EXPECT_EQ(windows.steps.front(), "editor") << ToUtf8(line);
  }
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(ClassMainTest, ARefusalWritesNoSettings) {
  environment.processes.assign(6, environment.executable);
  const std::string before = folder.Read("Kestri.ini");
  Start(u"");
  EXPECT_EQ(folder.Read("Kestri.ini"), before);
}

}  // namespace
}  // namespace kestri
