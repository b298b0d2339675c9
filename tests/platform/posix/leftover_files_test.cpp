// What a killed save leaves behind is cleared away by a later one, and nothing else is.
#include "platform/posix/leftover_files.hpp"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

using fakes::TemporaryFolder;
using testing::SizeIs;
using testing::UnorderedElementsAre;

constexpr const char* kName = ".kestrile-0123456789abcdef";

void MakeOld(const std::string& path) {
  const timespec times[] = {{1044072306, 0}, {1044072306, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW), 0);
}

void WriteOld(const TemporaryFolder& folder, const std::string& name) {
  folder.Write(name, "half");
  MakeOld(folder.Path(name));
}

bool Save(const TemporaryFolder& folder, const std::u16string& name) {
  return PosixFileSystem().Replace(folder.Text(name), [](const auto& write) { return write("new"); });
}

TEST(LeftoverFiles, ASaveRemovesAnOldOne) {
  const TemporaryFolder folder;
  WriteOld(folder, kName);
  EXPECT_TRUE(Save(folder, u"a.htm"));
  EXPECT_THAT(folder.Names(), UnorderedElementsAre("a.htm"));
}

TEST(LeftoverFiles, AYoungOneStays) {
  const TemporaryFolder folder;
  folder.Write(kName, "half");
  EXPECT_TRUE(Save(folder, u"a.htm"));
  EXPECT_THAT(folder.Names(), UnorderedElementsAre("a.htm", kName));
}

TEST(LeftoverFiles, OneThatAProcessHoldsStays) {
  const TemporaryFolder folder;
  WriteOld(folder, kName);
  const int held = ::open(folder.Path(kName).c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(::flock(held, LOCK_EX | LOCK_NB), 0);
  posix::RemoveLeftovers(folder.Path());
  EXPECT_THAT(folder.Names(), SizeIs(1));
  ::close(held);
  posix::RemoveLeftovers(folder.Path());
  EXPECT_THAT(folder.Names(), SizeIs(0));
}

TEST(LeftoverFiles, WhatOnlyLooksLikeOneStays) {
  const TemporaryFolder folder;
  for (const char* name :
       {".kestrile-0123456789abcde", ".kestrile-0123456789abcdef.htm", ".kestrile-0123456789ABCDEF",
        ".kestrile-recovery", "a.kestrile-recovery", "kestrile-0123456789abcdef"}) {
    WriteOld(folder, name);
  }
  std::filesystem::create_directory(folder.Path(".kestrile-0000000000000001"));
  MakeOld(folder.Path(".kestrile-0000000000000001"));
  std::filesystem::create_symlink("a.kestrile-recovery", folder.Path(".kestrile-0000000000000002"));
  WriteOld(folder, ".kestrile-0000000000000003");
  std::filesystem::create_hard_link(folder.Path(".kestrile-0000000000000003"), folder.Path("page.htm"));
  const auto before = folder.Names().size();
  posix::RemoveLeftovers(folder.Path());
  EXPECT_THAT(folder.Names(), SizeIs(before));
}

TEST(LeftoverFiles, AnUnsyncedWriteDoesNotLook) {
  const TemporaryFolder folder;
  WriteOld(folder, kName);
  PosixFileSystem files;
  EXPECT_TRUE(files.ReplaceUnsynced(folder.Text(u"a"), [](const auto& write) { return write("new"); }));
  EXPECT_THAT(folder.Names(), UnorderedElementsAre("a", kName));
}

TEST(LeftoverFiles, AHugeFolderIsNotLookedThroughToItsEnd) {
  const TemporaryFolder folder(TemporaryFolder::Medium::Memory);
  constexpr std::size_t kMore = 100;
  for (std::size_t i = 0; i < posix::kMostEntriesLookedAt + kMore; ++i) {
    char name[32];
    std::snprintf(name, sizeof name, ".kestrile-%016zx", i);
    WriteOld(folder, name);
  }
  posix::RemoveLeftovers(folder.Path());
  const std::size_t left = folder.Names().size();
  EXPECT_GE(left, kMore);
  EXPECT_LE(left, kMore + 2);  // "." and ".." were looked at as well
}

// A save that has written half when it stops.
class HalfASave {
 public:
  explicit HalfASave(const TemporaryFolder& folder) {
    int ready[2];
    if (::pipe(ready) != 0 || ::pipe(go_) != 0) return;
    process_ = ::fork();
    if (process_ == 0) {
      ::close(go_[1]);
      const bool saved = PosixFileSystem().Replace(folder.Text(u"page.htm"), [&](const auto& write) {
        char byte = 0;
        const bool half = write(std::string(300'000, 'n')) && ::write(ready[1], "r", 1) == 1;
        [[maybe_unused]] const auto ended = ::read(go_[0], &byte, 1);
        return half && write("end");
      });
      ::_exit(saved ? 0 : 1);
    }
    char byte = 0;
    EXPECT_EQ(::read(ready[0], &byte, 1), 1);
  }
  void Kill() {
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
  }
  int GoOn() {
    ::close(go_[1]);
    int status = -1;
    ::waitpid(process_, &status, 0);
    return status;
  }

 private:
  int go_[2] = {-1, -1};
  pid_t process_ = -1;
};

std::string StagingName(const TemporaryFolder& folder) {
  for (const std::string& name : folder.Names()) {
    if (name.starts_with(".kestrile-")) return name;
  }
  return "(none)";
}

TEST(LeftoverFiles, ThoseOfAKilledSaveGoWithTheNext) {
  const TemporaryFolder folder;
  folder.Write("page.htm", "old");
  HalfASave save(folder);
  save.Kill();
  MakeOld(folder.Path(StagingName(folder)));
  EXPECT_EQ(folder.Read("page.htm"), "old");
  EXPECT_TRUE(Save(folder, u"page.htm"));
  EXPECT_THAT(folder.Names(), UnorderedElementsAre("page.htm"));
}

TEST(LeftoverFiles, AHangingSaveKeepsItsFileAndEnds) {
  const TemporaryFolder folder;
  folder.Write("page.htm", "old");
  HalfASave save(folder);
  MakeOld(folder.Path(StagingName(folder)));
  EXPECT_TRUE(Save(folder, u"other.htm"));
  EXPECT_EQ(save.GoOn(), 0);
  EXPECT_EQ(folder.Read("page.htm"), std::string(300'000, 'n') + "end");
  EXPECT_THAT(folder.Names(), UnorderedElementsAre("page.htm", "other.htm"));
}

}  // namespace
}  // namespace kestri
