#include "platform/posix/file_locks.hpp"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <thread>

#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

using fakes::ScopedVariable;
using fakes::TemporaryFolder;
using std::chrono::milliseconds;

TEST(FileLocks, TheSameKeyIsHeldOnce) {
  const TemporaryFolder folder;
  const auto held = posix::LockByKey(folder.Path(), "a", milliseconds(10));
  ASSERT_TRUE(held);
  EXPECT_FALSE(posix::LockByKey(folder.Path(), "a", milliseconds(10)));
  EXPECT_TRUE(posix::LockByKey(folder.Path(), "b", milliseconds(10)));
}

TEST(FileLocks, AReleasedLockIsFree) {
  const TemporaryFolder folder;
  posix::LockByKey(folder.Path(), "a", milliseconds(10)).reset();
  EXPECT_TRUE(posix::LockByKey(folder.Path(), "a", milliseconds(10)));
}

TEST(FileLocks, AWaiterGetsTheLockWhenItIsReleased) {
  const TemporaryFolder folder;
  auto held = posix::LockByKey(folder.Path(), "a", milliseconds(10));
  std::thread release([&] {
    std::this_thread::sleep_for(milliseconds(30));
    held.reset();
  });
  EXPECT_TRUE(posix::LockByKey(folder.Path(), "a", milliseconds(4000)));
  release.join();
}

TEST(FileLocks, ADeadProcessHoldsNothing) {
  const TemporaryFolder folder;
  const pid_t child = ::fork();
  if (child == 0) {
    const auto held = posix::LockByKey(folder.Path(), "a", milliseconds(10));
    ::_exit(held ? 0 : 1);
  }
  int status = -1;
  ::waitpid(child, &status, 0);
  ASSERT_EQ(status, 0);
  EXPECT_TRUE(posix::LockByKey(folder.Path(), "a", milliseconds(10)));
}

TEST(FileLocks, WithoutALockFolderThereIsNone) {
  EXPECT_FALSE(posix::LockByKey("/nonexistent-folder", "a", milliseconds(10)));
}

TEST(FileLocks, OneFileHasOneLockUnderAllItsNames) {
  const TemporaryFolder folder;
  const ScopedVariable runtime("XDG_RUNTIME_DIR", folder.Path("run"));
  std::filesystem::create_directory(folder.Path("run"));
  std::filesystem::create_directory(folder.Path("docs"));
  std::filesystem::create_symlink("docs", folder.Path("linked"));
  PosixFileSystem files;
  auto held = files.Lock(folder.Text(u"docs/not-yet.ini"));
  ASSERT_TRUE(held);
  std::atomic<bool> isHeldTwice = false;
  std::thread other([&] { isHeldTwice = files.Lock(folder.Text(u"linked/./not-yet.ini")) != nullptr; });
  std::this_thread::sleep_for(milliseconds(50));
  EXPECT_FALSE(isHeldTwice);
  held.reset();
  other.join();
  EXPECT_TRUE(isHeldTwice);
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("docs")));
}

}  // namespace
}  // namespace kestri
