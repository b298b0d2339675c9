#include "shell/window/tool_bar_place.hpp"

#include <gtest/gtest.h>

#include <memory>

#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

ToolBarPlace Read(std::string text) {
  SettingsReader reader{ProfileContent(std::move(text))};
  const ToolBarPlace place = ReadToolBarPlace(reader);
  EXPECT_FALSE(reader.Damaged());
  return place;
}

TEST(ToolBarPlace, TheFirstStartShowsTheBarInTheWindow) {
  EXPECT_EQ(Read(""), (ToolBarPlace{.state = BarState::Docked, .left = 1000, .top = 1000}));
}

TEST(ToolBarPlace, ZeroFloatsAndAnythingElseDocks) {
  EXPECT_EQ(Read("[Bar]\r\nDkg=0\r\n").state, BarState::Floating);
  EXPECT_EQ(Read("[Bar]\r\nDkg=1\r\n").state, BarState::Docked);
  EXPECT_EQ(Read("[Bar]\r\nDkg=-1\r\n").state, BarState::Docked);
}

TEST(ToolBarPlace, ReadsThePositionOfTheFloatingWindow) {
  EXPECT_EQ(Read("[Bar]\r\nDkg=0\r\nDkg_Left=-300\r\nDkg_Top=4500\r\n"),
            (ToolBarPlace{.state = BarState::Floating, .left = -300, .top = 4500}));
}

TEST(ToolBarPlace, AnUnusableNumberMarksTheSettingsAsDamaged) {
  for (const char* key : {"Dkg", "Dkg_Left", "Dkg_Top"}) {
    SettingsReader reader{ProfileContent("[Bar]\r\n" + std::string(key) + "=left\r\n")};
    ReadToolBarPlace(reader);
    EXPECT_TRUE(reader.Damaged()) << key;
  }
}

class WrittenPlace : public testing::Test {
 protected:
  WrittenPlace() {
    environment.executable = folder.Text(u"Kestri");
    environment.folders[SystemFolder::Windows] = folder.Text();
    common =
        std::make_unique<ClassCommon>(Ports{files, environment, shell, clock, services}, PathStyle::Posix);
  }
  ToolBarPlace Written() const {
    SettingsReader reader(common->Profiles().Load(common->IniPath(0, common->ExeName())));
    return ReadToolBarPlace(reader);
  }

  fakes::TemporaryFolder folder;
  PosixFileSystem files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
  std::unique_ptr<ClassCommon> common;
};

TEST_F(WrittenPlace, TheStateComesBack) {
  for (const BarState state : {BarState::Floating, BarState::Docked}) {
    WriteBarState(*common, state);
    EXPECT_EQ(Written().state, state);
  }
  EXPECT_EQ(common->GetINI(u"Kestri", u"Bar", u"Dkg", u""), u"1");
}

TEST_F(WrittenPlace, ThePositionComesBackAndLeavesTheStateAlone) {
  WriteFloatingPosition(*common, {.state = BarState::Floating, .left = 1515, .top = -30});
  EXPECT_EQ(Written(), (ToolBarPlace{.state = BarState::Docked, .left = 1515, .top = -30}));
}

TEST(FloatingBar, IsNamedByTheProgramAndTheTailOfItsVersion) {
  EXPECT_EQ(FloatingBarCaption(), u"ToolBar for Kestrile (e07)");
}

}  // namespace
}  // namespace kestri
