#include <gtest/gtest.h>

#include "tests/shell/common/class_common_world.hpp"

namespace kestri {
namespace {

using fakes::PosixWorld;

class IniAccess : public testing::Test, protected PosixWorld {
 protected:
  ClassCommon common_ = Common();
};

TEST_F(IniAccess, PathsByMode) {
  EXPECT_EQ(common_.IniPath(0, u"Kestri"), folder.Text(u"program/Kestri.ini"));
  EXPECT_EQ(common_.IniPath(1, u"DataFiles/Param.lib"), folder.Text(u"program/DataFiles/Param.lib"));
  EXPECT_EQ(common_.IniPath(2, u"/x/y.INI"), u"/x/y.INI");
}

TEST_F(IniAccess, AnAbsentFileGivesDefaultsAndIsNotCreated) {
  EXPECT_EQ(common_.GetINI(u"Kestri", u"Setting", u"HTMLfrmLeft", u"1000"), u"1000");
  EXPECT_EQ(common_.GetINIex(2, folder.Text(u"no.ini"), u"S", u"k", u""), u"");
  EXPECT_FALSE(std::filesystem::exists(folder.Path("program/Kestri.ini")));
}

TEST_F(IniAccess, SettingsLieBesideTheExecutable) {
  EXPECT_TRUE(common_.SetINI(u"Kestri", u"Setting", u"Act", u"1"));
  EXPECT_EQ(folder.Read("program/Kestri.ini"), "[Setting]\r\nAct=1\r\n");
  EXPECT_EQ(common_.GetINI(u"Kestri", u"setting", u"ACT", u"0"), u"1");
}

TEST_F(IniAccess, AValueOf255BytesSurvivesALongerOneIsCut) {
  const std::u16string value(255, u'x');
  common_.SetINI(u"Kestri", u"S", u"a", value);
  common_.SetINI(u"Kestri", u"S", u"b", value + u"y");
  EXPECT_EQ(common_.GetINI(u"Kestri", u"S", u"a", u""), value);
  EXPECT_EQ(common_.GetINI(u"Kestri", u"S", u"b", u""), value);
  EXPECT_EQ(common_.GetINIex(0, u"Kestri", u"S", u"b", u""), value + u"y");
}

TEST_F(IniAccess, TheLongCallCutsAt1023Bytes) {
  common_.SetINI(u"Kestri", u"S", u"a", std::u16string(2000, u'x'));
  EXPECT_EQ(common_.GetINIex(0, u"Kestri", u"S", u"a", u"").size(), 1023u);
}

TEST_F(IniAccess, NoCharacterIsCutInHalf) {
  common_.SetINI(u"Kestri", u"S", u"a", std::u16string(200, u'日'));
  EXPECT_EQ(common_.GetINI(u"Kestri", u"S", u"a", u""), std::u16string(127, u'日'));
}

TEST_F(IniAccess, AnEmptyValueDeletesTheKey) {
  folder.Write("program/Kestri.ini", "[S]\r\na=1\r\nb=2\r\n");
  EXPECT_TRUE(common_.SetINI(u"Kestri", u"S", u"a", u""));
  EXPECT_EQ(folder.Read("program/Kestri.ini"), "[S]\r\nb=2\r\n");
}

TEST_F(IniAccess, AnEmptyKeyAndValueDeleteTheSection) {
  folder.Write("program/Kestri.ini", "[S]\r\na=1\r\n[T]\r\nb=2\r\n");
  EXPECT_TRUE(common_.SetINIex(0, u"Kestri", u"S", u"", u""));
  EXPECT_EQ(folder.Read("program/Kestri.ini"), "[T]\r\nb=2\r\n");
}

TEST_F(IniAccess, AKeyThatBeginsWithABlankIsFoundAgain) {
  EXPECT_TRUE(common_.SetINI(u"Kestri", u"Wall", u" WallHScroll", u"1"));
  EXPECT_EQ(common_.GetINI(u"Kestri", u"Wall", u" WallHScroll", u"0"), u"1");
  EXPECT_TRUE(common_.SetINI(u"Kestri", u"Wall", u" WallHScroll", u""));
  EXPECT_EQ(common_.GetINI(u"Kestri", u"Wall", u" WallHScroll", u"0"), u"0");
}

TEST_F(IniAccess, TheDefaultMayHoldWhatTheCodePageCannot) {
  EXPECT_EQ(common_.GetINI(u"Kestri", u"Path", u"TempText", u"/home/é/Tmp.htm"), u"/home/é/Tmp.htm");
}

TEST_F(IniAccess, ResultsEndAtANul) {
  folder.Write("program/Kestri.ini", std::string("[S]\r\na=12\0003\r\n", 13));
  EXPECT_EQ(common_.GetINI(u"Kestri", u"S", u"a", u""), u"12");
}

TEST_F(IniAccess, AReadOnlyFolderRemembersNothing) {
  environment.executable = folder.Text(u"missing/Kestri");
  const ClassCommon common = Common();
  EXPECT_FALSE(common.SetINI(u"Kestri", u"S", u"a", u"1"));
  EXPECT_EQ(common.GetINI(u"Kestri", u"S", u"a", u"0"), u"0");
}

TEST_F(IniAccess, ProgramsComeFromWinIniFirst) {
  folder.Write("paint", "");
  folder.Write("state/WIN.INI",
               "[embedding]\r\nPBrush=Picture,Picture, " + folder.Path("paint") + " ,picture\r\n");
  EXPECT_EQ(common_.GetWindowsAppPathForWinINI(1), folder.Text(u"paint"));
  EXPECT_EQ(common_.GetWindowsAppPathForWinINI(2), u"");
}

TEST_F(IniAccess, ProgramsComeFromTheDesktopOtherwise) {
  shell.programs = {{"image/bmp", u"/usr/bin/paint"}, {"application/rtf", u"/usr/bin/words"}};
  EXPECT_EQ(common_.GetWindowsAppPathForWinINI(1), u"/usr/bin/paint");
  EXPECT_EQ(common_.GetWindowsAppPathForWinINI(2), u"/usr/bin/words");
  EXPECT_EQ(common_.GetWindowsAppPathForWinINI(3), u"");
  EXPECT_EQ(common_.GetWindowsAppPathForWinINI(0), u"");
}

}  // namespace
}  // namespace kestri
