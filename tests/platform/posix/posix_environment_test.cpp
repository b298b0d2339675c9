#include "platform/posix/posix_environment.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/posix/posix_clock.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

using fakes::ScopedVariable;
using fakes::TemporaryFolder;
using testing::ElementsAre;

TEST(PosixEnvironment, KnowsTheExecutableAndItsLibraryFolder) {
  PosixEnvironment environment;
  const std::u16string executable = environment.ExecutablePath();
  EXPECT_TRUE(executable.ends_with(u"/posix_environment_test"));
  const std::u16string folder = executable.substr(0, executable.rfind(u'/'));
  EXPECT_EQ(environment.Folder(SystemFolder::System), folder + u"/lib");
}

TEST(PosixEnvironment, WindowsFolderIsMadeInTheStateFolder) {
  const TemporaryFolder folder;
  const ScopedVariable state("XDG_STATE_HOME", folder.Path("deep/state"));
  PosixEnvironment environment;
  EXPECT_EQ(environment.Folder(SystemFolder::Windows), folder.Text(u"deep/state/kestrile"));
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path("deep/state/kestrile")));
}

TEST(PosixEnvironment, RelativeBaseFoldersAreIgnored) {
  const TemporaryFolder folder;
  const ScopedVariable home("HOME", folder.Path());
  const ScopedVariable state("XDG_STATE_HOME", "relative/state");
  const ScopedVariable data("XDG_DATA_HOME", "");
  PosixEnvironment environment;
  EXPECT_EQ(environment.Folder(SystemFolder::Windows), folder.Text(u".local/state/kestrile"));
  EXPECT_EQ(environment.Folder(SystemFolder::SendTo), folder.Text(u".local/share/Thunar/sendto"));
}

TEST(PosixEnvironment, WindowsFolderThatCannotBeMadeIsEmpty) {
  const TemporaryFolder folder;
  folder.Write("file", "");
  const ScopedVariable state("XDG_STATE_HOME", folder.Path("file"));
  PosixEnvironment environment;
  EXPECT_EQ(environment.Folder(SystemFolder::Windows), u"");
}

class UserFolders : public testing::Test {
 protected:
  std::u16string Documents() { return PosixEnvironment().Folder(SystemFolder::Documents); }
  TemporaryFolder home_;
  ScopedVariable homeVariable_{"HOME", home_.Path()};
  ScopedVariable configVariable_{"XDG_CONFIG_HOME", home_.Path()};
};

TEST_F(UserFolders, ComeFromTheUsersFile) {
  home_.Write(
      "user-dirs.dirs",
      "# comment\nXDG_DESKTOP_DIR=\"$HOME/デスクトップ\"\n  XDG_DOCUMENTS_DIR=\"$HOME/a \\\"b\\\"/\"\n");
  EXPECT_EQ(Documents(), home_.Text(u"a \"b\""));
  EXPECT_EQ(PosixEnvironment().Folder(SystemFolder::Desktop), home_.Text(u"デスクトップ"));
  EXPECT_TRUE(std::filesystem::is_directory(home_.Path("デスクトップ")));
}

TEST_F(UserFolders, AbsolutePathsCountRelativeOnesDoNot) {
  home_.Write("user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"" + home_.Path("d") + "\"\nXDG_DOCUMENTS_DIR=\"rel\"\n");
  EXPECT_EQ(Documents(), home_.Text(u"d"));
}

TEST_F(UserFolders, FallBackToTheUsualFolderThenHome) {
  EXPECT_EQ(Documents(), home_.Text());
  std::filesystem::create_directory(home_.Path("Documents"));
  EXPECT_EQ(Documents(), home_.Text(u"Documents"));
}

TEST(PosixEnvironment, TemporaryFolderMustExist) {
  const TemporaryFolder folder;
  PosixEnvironment environment;
  {
    const ScopedVariable temporary("TMPDIR", folder.Path() + "/");
    EXPECT_EQ(environment.Folder(SystemFolder::Temporary), folder.Text());
  }
  const ScopedVariable temporary("TMPDIR", folder.Path("missing"));
  EXPECT_EQ(environment.Folder(SystemFolder::Temporary), u"/tmp");
}

TEST(PosixEnvironment, AnUnknownFolderNumberIsEmpty) {
  EXPECT_EQ(PosixEnvironment().Folder(static_cast<SystemFolder>(7)), u"");
}

TEST(PosixEnvironment, DrivesAreTheRootAndWhatTheUserMounts) {
  const std::string table =
      "proc /proc proc rw 0 0\n/dev/sdb1 /media/user/USB\\040DISK vfat rw 0 0\n"
      "/dev/sda1 / ext4 rw 0 0\n/dev/sdc1 /mnt/data ext4 rw 0 0\n/dev/sdc1 /mnt/data ext4 rw 0 0\n"
      "/dev/sdd1 /run/media/user/cd iso9660 ro 0 0\ntmpfs /run tmpfs rw 0 0\n/dev/x /mntx ext4 rw 0 0\n";
  EXPECT_THAT(posix::UserMounts(table),
              ElementsAre("/", "/media/user/USB DISK", "/mnt/data", "/run/media/user/cd"));
  EXPECT_EQ(PosixEnvironment().Drives().front(), u"/");
}

TEST(PosixEnvironment, ListsItsOwnProcess) {
  PosixEnvironment environment;
  EXPECT_THAT(environment.ProcessExecutables(), testing::Contains(environment.ExecutablePath()));
  EXPECT_EQ(environment.ProcessId(), static_cast<std::uint32_t>(::getpid()));
  EXPECT_NE(environment.UserName(), u"");
}

TEST(PosixEnvironment, ChangesItsFolder) {
  const auto before = std::filesystem::current_path();
  const TemporaryFolder folder;
  PosixEnvironment environment;
  EXPECT_TRUE(environment.ChangeFolder(folder.Text()));
  EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), folder.Path()));
  EXPECT_FALSE(environment.ChangeFolder(folder.Text(u"missing")));
  std::filesystem::current_path(before);
}

TEST(PosixClock, RandomSinglesLieBelowOneAndDiffer) {
  PosixClock clock;
  const float first = clock.RandomSingle();
  bool differ = false;
  for (int i = 0; i < 1000; ++i) {
    const float next = clock.RandomSingle();
    ASSERT_GE(next, 0.0f);
    ASSERT_LT(next, 1.0f);
    differ |= next != first;
  }
  EXPECT_TRUE(differ);
}

TEST(PosixClock, LocalTimeFollowsTheZone) {
  const ScopedVariable zone("TZ", "JST-9");
  ::tzset();
  const std::tm time = PosixClock().LocalTime(0);
  EXPECT_EQ(time.tm_hour, 9);
  EXPECT_EQ(time.tm_year, 70);
  EXPECT_GE(PosixClock().Now().tm_year, 120);
}

}  // namespace
}  // namespace kestri
