#include "shell/startup/environment_tests.hpp"

#include <gtest/gtest.h>

#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

class EnvironmentTests : public testing::Test {
 protected:
  ClassCommon Common() { return ClassCommon({files, environment, shell, clock, services}, style); }
  std::string Failures() { return ToUtf8(EnvironmentFailures(Common())); }

  EnvironmentTests() {
    environment.folders[SystemFolder::Windows] = u"/home/author/.local/state/kestrile";
    environment.folders[SystemFolder::System] = u"/opt/Kestrile/lib";
  }
  void UseDrives() {
    style = PathStyle::Windows;
    environment.executable = u"C:\\Kestrile\\Kestri.exe";
    environment.folders[SystemFolder::Windows] = u"C:\\WINDOWS";
    environment.folders[SystemFolder::System] = u"C:\\WINDOWS\\system32";
  }

  PathStyle style = PathStyle::Posix;
  fakes::MemoryFileSystem files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
};

constexpr char kAtRoot[] = "\r\n・ﾙｰﾄでは起動できません";
constexpr char kUnknown[] = "\r\n・ｼｽﾃﾑﾃﾞｨﾚｸﾄﾘが取得できません(不明なｴﾗｰです)";
constexpr char kWindowsAtRoot[] = "\r\n・WINDOWSﾌｫﾙﾀﾞがﾙｰﾄに設定されている時は起動できません";
constexpr char kSystemAtRoot[] = "\r\n・SYSTEMﾌｫﾙﾀﾞがﾙｰﾄに設定されている時は起動できません";

TEST_F(EnvironmentTests, AnOrdinaryFolderPasses) {
  EXPECT_EQ(Failures(), "");
  UseDrives();
  EXPECT_EQ(Failures(), "");
}

TEST_F(EnvironmentTests, TheProgramDoesNotStartFromARoot) {
  environment.executable = u"/Kestri";
  EXPECT_EQ(Failures(), kAtRoot);
  UseDrives();
  environment.executable = u"C:\\Kestri.exe";
  EXPECT_EQ(Failures(), kAtRoot);
}

TEST_F(EnvironmentTests, AFolderThatIsNotKnownIsToldForEach) {
  environment.folders.clear();
  EXPECT_EQ(Failures(), std::string(kUnknown) + kUnknown);
}

TEST_F(EnvironmentTests, FoldersAtARootAreToldByName) {
  environment.folders[SystemFolder::Windows] = u"/";
  environment.folders[SystemFolder::System] = u"/";
  EXPECT_EQ(Failures(), std::string(kWindowsAtRoot) + kSystemAtRoot);
  UseDrives();
  environment.folders[SystemFolder::Windows] = u"C:\\";
  EXPECT_EQ(Failures(), kWindowsAtRoot);
}

TEST_F(EnvironmentTests, AllFailuresStandInOneMessage) {
  environment.executable = u"/Kestri";
  environment.folders.clear();
  environment.folders[SystemFolder::System] = u"/";
  EXPECT_EQ(Failures(), std::string(kAtRoot) + kUnknown + kSystemAtRoot);
}

TEST_F(EnvironmentTests, FourSystemsPassWithoutAWarning) {
  for (const int system : {2, 3, 5, 6}) EXPECT_TRUE(IsSupportedSystem(system)) << system;
  for (const int system : {1, 4, 7, 0, -99}) EXPECT_FALSE(IsSupportedSystem(system)) << system;
}

TEST_F(EnvironmentTests, TheFileServicesAnswerForTheProgramsFolder) {
  EXPECT_FALSE(FileServicesAnswer(Common()));
  files.contents[u"/opt/Kestrile/Kestri"] = "x";
  EXPECT_TRUE(FileServicesAnswer(Common()));
}

}  // namespace
}  // namespace kestri
