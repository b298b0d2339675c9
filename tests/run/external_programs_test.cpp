#include "run/external_programs.hpp"

#include <gtest/gtest.h>

#include "platform/posix/posix_file_system.hpp"
#include "shell/common/text.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

fakes::FakeEnvironment RunningIn(const fakes::TemporaryFolder& folder) {
  fakes::FakeEnvironment environment;
  environment.executable = folder.Text(u"Kestri");
  environment.folders[SystemFolder::Windows] = folder.Text();
  return environment;
}

class Programs : public ::testing::Test {
 protected:
  Programs() { state.currentFile = u"/home/a b/表.htm"; }
  void Register(int index, std::u16string_view commandLine) {
    common.SetINI(u"Kestri", u"PrgReg", u"PrgReg" + ToText(index), commandLine);
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
  ExternalPrograms programs{common, state, boxes};
};

TEST_F(Programs, PathAndFolderOfTheCurrentFileAreFilledInAsTheyStand) {
  Register(0, u"viewer %PATH% --in %DIR% \"%PATH%\"");
  programs.MenOPg(0);
  EXPECT_EQ(shell.commandLines,
            std::vector<std::u16string>{u"viewer /home/a b/表.htm --in /home/a b/ \"/home/a b/表.htm\""});
}

TEST_F(Programs, CaptionIsTheProgramsNameWithoutFolderAndArguments) {
  Register(0, u"/usr/bin/viewer %PATH%");
  Register(1, u"\"/opt/my tools/show it\" %DIR%");
  EXPECT_EQ(programs.Caption(0), u"viewer");
  EXPECT_EQ(programs.Caption(1), u"show it");
}

TEST_F(Programs, WhatIsNotRegisteredSaysSo) {
  Register(1, u"(なし)");
  for (int index : {0, 1}) {
    EXPECT_FALSE(programs.Registered(index));
    EXPECT_EQ(programs.Caption(index), u"(未登録)");
    programs.MenOPg(index);
    EXPECT_EQ(boxes.asked.back().text, u"外部ﾂｰﾙ(" + ToText(index) + u")は 登録されていません");
  }
  EXPECT_TRUE(shell.commandLines.empty());
}

TEST_F(Programs, ProgramThatDoesNotStartIsNamed) {
  Register(2, u"nothing %PATH%");
  shell.startsCommandLines = false;
  programs.MenOPg(2);
  ASSERT_EQ(boxes.asked.size(), 1u);
  EXPECT_EQ(boxes.asked[0].caption, u"ﾌｧｲﾙ実行ｴﾗｰ Kestrile");
  EXPECT_EQ(boxes.asked[0].text, u"\"nothing /home/a b/表.htm\"\r\n・実行ﾌｧｲﾙではありません!!");
  EXPECT_EQ(boxes.asked[0].icon, MessageIcon::Exclamation);
}

TEST_F(Programs, WordAndPaintAreTheSettingsProgramsOrTheDesktops) {
  shell.programs["image/bmp"] = u"/usr/bin/paint";
  common.SetINI(u"Kestri", u"Path", u"WordPath", u"/usr/bin/word");
  programs.MenOPgWord();
  programs.MenOPgPaint();
  ASSERT_EQ(shell.opened.size(), 2u);
  EXPECT_EQ(shell.opened[0], std::make_pair(std::u16string(u"/usr/bin/word"), state.currentFile));
  EXPECT_EQ(shell.opened[1], std::make_pair(std::u16string(u"/usr/bin/paint"), state.currentFile));
}

TEST_F(Programs, MachineWithoutAPaintProgramIsTold) {
  programs.MenOPgPaint();
  ASSERT_EQ(boxes.asked.size(), 1u);
  EXPECT_TRUE(shell.opened.empty());
}

}  // namespace
}  // namespace kestri
