// A process that is killed while it saves never leaves half a file behind.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <random>
#include <string>

#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

using fakes::TemporaryFolder;

constexpr int kKills = 200;

// Every save writes one letter over and over; the length tells with it whether the file is whole.
std::string Content(int save) {
  return std::string(40'000 + static_cast<std::size_t>(save % 7) * 30'000, static_cast<char>('a' + save % 7));
}

bool IsWhole(const std::string& bytes) {
  const int save = bytes.empty() ? -1 : bytes.front() - 'a';
  return save >= 0 && save < 7 && bytes == Content(save);
}

[[noreturn]] void SaveForever(const std::u16string& path) {
  PosixFileSystem files;
  for (int save = 0;; ++save) {
    files.Replace(path, [&](const FileSystem::ByteConsumer& write) { return write(Content(save)); });
  }
}

TEST(KilledSave, LeavesTheFileWhole) {
  const TemporaryFolder folder(TemporaryFolder::Medium::Memory);
  folder.Write("page.htm", Content(0));
  std::minstd_rand random(20030201);
  for (int kill = 0; kill < kKills; ++kill) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) SaveForever(folder.Text(u"page.htm"));
    ::usleep(static_cast<useconds_t>(200 + random() % 8000));
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_TRUE(IsWhole(folder.Read("page.htm"))) << "kill " << kill;
  }
}

TEST(KilledSave, WithHardLinksLeavesTheFileOrItsRecoveryCopyWhole) {
  std::minstd_rand random(20030201);
  for (int kill = 0; kill < kKills / 4; ++kill) {
    const TemporaryFolder folder(TemporaryFolder::Medium::Memory);
    folder.Write("page.htm", Content(0));
    std::filesystem::create_hard_link(folder.Path("page.htm"), folder.Path("link.htm"));
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) SaveForever(folder.Text(u"page.htm"));
    ::usleep(static_cast<useconds_t>(200 + random() % 8000));
    ::kill(child, SIGKILL);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child);
    const bool isWhole =
        IsWhole(folder.Read("page.htm")) || IsWhole(folder.Read("page.htm.kestrile-recovery"));
    ASSERT_TRUE(isWhole) << "kill " << kill;
  }
}

}  // namespace
}  // namespace kestri
