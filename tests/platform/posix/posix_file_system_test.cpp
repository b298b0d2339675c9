#include "platform/posix/posix_file_system.hpp"

#include <errno.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <ctime>
#include <fstream>
#include <sstream>

#include "platform/posix/native_path.hpp"
#include "tests/fakes/temporary_folder.hpp"
#include "tests/platform/posix/failing_calls.hpp"

namespace kestri {
namespace {

using fakes::FailingCalls;
using fakes::ScopedVariable;
using fakes::TemporaryFolder;
using testing::UnorderedElementsAre;

std::string ReadAll(PosixFileSystem& files, std::u16string_view path) {
  std::string bytes;
  EXPECT_TRUE(files.Read(path, [&](std::string_view piece) {
    EXPECT_LE(piece.size(), 1024u * 1024u);
    bytes += piece;
    return true;
  }));
  return bytes;
}

bool Refuses(PosixFileSystem& files, std::u16string_view path) {
  return !files.Read(path, [](std::string_view) { return true; });
}

TEST(PosixFileSystem, ReadsAFileInPieces) {
  const TemporaryFolder folder;
  std::string bytes;
  for (int i = 0; i < 3'000'000; ++i) bytes += static_cast<char>(i * 7);
  folder.Write("big", bytes);
  folder.Write("empty", "");
  PosixFileSystem files;
  EXPECT_TRUE(ReadAll(files, folder.Text(u"big")) == bytes);
  EXPECT_EQ(ReadAll(files, folder.Text(u"empty")), "");
}

TEST(PosixFileSystem, StopsReadingWhenTheConsumerHasEnough) {
  const TemporaryFolder folder;
  folder.Write("big", std::string(2'000'000, 'x'));
  PosixFileSystem files;
  int pieces = 0;
  EXPECT_TRUE(files.Read(folder.Text(u"big"), [&](std::string_view) {
    ++pieces;
    return false;
  }));
  EXPECT_EQ(pieces, 1);
}

TEST(PosixFileSystem, ReadsNoFolderPipeDeviceOrMissingFile) {
  const TemporaryFolder folder;
  ::mkfifo(folder.Path("pipe").c_str(), 0666);
  PosixFileSystem files;
  EXPECT_TRUE(Refuses(files, folder.Text()));
  EXPECT_TRUE(Refuses(files, folder.Text(u"pipe")));
  EXPECT_TRUE(Refuses(files, u"/dev/zero"));
  EXPECT_TRUE(Refuses(files, folder.Text(u"missing")));
  EXPECT_TRUE(Refuses(files, u""));
}

TEST(PosixFileSystem, APathWithANulNamesNothing) {
  const TemporaryFolder folder;
  folder.Write("a", "1");
  const std::u16string path = folder.Text(u"a") + u'\0' + u"b";
  PosixFileSystem files;
  EXPECT_FALSE(files.Status(path));
  EXPECT_FALSE(files.Remove(path));
  EXPECT_EQ(folder.Read("a"), "1");
}

TEST(PosixFileSystem, TellsAttributesSizeAndTime) {
  const TemporaryFolder folder;
  folder.Write("a.htm", "12345");
  folder.Write(".hidden", "");
  ::chmod(folder.Path(".hidden").c_str(), 0444);
  PosixFileSystem files;
  const auto file = files.Status(folder.Text(u"a.htm"));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->attributes, 0u);
  EXPECT_EQ(file->size, 5u);
  EXPECT_NEAR(static_cast<double>(file->modified), static_cast<double>(std::time(nullptr)), 60);
  EXPECT_EQ(files.Status(folder.Text(u".hidden"))->attributes, kAttributeHidden | kAttributeReadOnly);
  EXPECT_EQ(files.Status(folder.Text())->attributes, kAttributeDirectory);
  EXPECT_EQ(files.Status(folder.Text())->size, 0u);
  EXPECT_FALSE(files.Status(folder.Text(u"missing")));
}

TEST(PosixFileSystem, AByteThatIsNoUtf8KeepsItsName) {
  const TemporaryFolder folder;
  const std::string name = "\x93\xFA\x96{.htm";  // a name in Shift-JIS
  folder.Write(name, "text");
  PosixFileSystem files;
  const auto names = files.List(folder.Text());
  ASSERT_EQ(names.size(), 1u);
  EXPECT_EQ(names[0], u"\xDC93\xDCFA\xDC96{.htm");
  EXPECT_EQ(ReadAll(files, folder.Text(names[0])), "text");
  EXPECT_TRUE(files.Replace(folder.Text(names[0]), [](const auto& write) { return write("new"); }));
  EXPECT_EQ(folder.Read(name), "new");
}

TEST(PosixFileSystem, AppendsAndCreates) {
  const TemporaryFolder folder;
  const ScopedVariable runtime("XDG_RUNTIME_DIR", folder.Path("run"));
  PosixFileSystem files;
  EXPECT_TRUE(files.Append(folder.Text(u"a.log"), "one\r\n"));
  EXPECT_TRUE(files.Append(folder.Text(u"a.log"), "two\r\n"));
  EXPECT_EQ(folder.Read("a.log"), "one\r\ntwo\r\n");
  EXPECT_FALSE(files.Append(folder.Text(), "x"));
  EXPECT_FALSE(files.Append(u"/dev/null", "x"));
}

TEST(PosixFileSystem, AFailedAppendTakesBackWhatItWrote) {
  const TemporaryFolder folder;
  const ScopedVariable runtime("XDG_RUNTIME_DIR", folder.Path("run"));
  folder.Write("a.log", "one");
  FailingCalls calls(1);
  PosixFileSystem files(calls);
  EXPECT_FALSE(files.Append(folder.Text(u"a.log"), "two two two"));
  EXPECT_EQ(folder.Read("a.log"), "one");
}

// A disk that fills up in the middle of a line while another program, which knows of no lock, writes a line.
class CrowdedDisk : public posix::PosixCalls {
 public:
  explicit CrowdedDisk(std::string path) : path_(std::move(path)) {}
  ssize_t Write(int file, const void* data, std::size_t size) override {
    if (PosixCalls::Write(file, data, size / 2) < 0) return -1;
    std::ofstream(path_, std::ios::app) << "theirs\r\n";
    errno = ENOSPC;
    return -1;
  }

 private:
  std::string path_;
};

TEST(PosixFileSystem, AFailedAppendNeverCutsAnothersLine) {
  const TemporaryFolder folder;
  const ScopedVariable runtime("XDG_RUNTIME_DIR", folder.Path("run"));
  folder.Write("a.log", "one\r\n");
  CrowdedDisk calls(folder.Path("a.log"));
  PosixFileSystem files(calls);
  EXPECT_FALSE(files.Append(folder.Text(u"a.log"), "two two\r\n"));
  EXPECT_EQ(folder.Read("a.log"), "one\r\ntwo theirs\r\n");
}

TEST(PosixFileSystem, LinesOfManyProcessesStayWhole) {
  constexpr int kProcesses = 8;
  constexpr int kLines = 100;
  const TemporaryFolder folder;
  const ScopedVariable runtime("XDG_RUNTIME_DIR", folder.Path("run"));
  std::vector<pid_t> children;
  for (int process = 0; process < kProcesses; ++process) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      const std::string line = std::string(200, static_cast<char>('a' + process)) + "\n";
      PosixFileSystem files;
      bool all = true;
      for (int i = 0; i < kLines; ++i) all = files.Append(folder.Text(u"a.log"), line) && all;
      ::_exit(all ? 0 : 1);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) {
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  std::istringstream log(folder.Read("a.log"));
  int lines = 0;
  for (std::string line; std::getline(log, line); ++lines) EXPECT_EQ(line, std::string(200, line.front()));
  EXPECT_EQ(lines, kProcesses * kLines);
}

TEST(PosixFileSystem, StatusTellsAFileReplacedByAnotherOfTheSameTime) {
  const TemporaryFolder folder;
  const timespec times[] = {{1000000000, 7}, {1000000000, 7}};
  for (const char* name : {"a", "b"}) {
    folder.Write(name, "1");
    ::utimensat(AT_FDCWD, folder.Path(name).c_str(), times, 0);
  }
  PosixFileSystem files;
  const auto before = files.Status(folder.Text(u"a"));
  std::filesystem::rename(folder.Path("b"), folder.Path("a"));
  const auto after = files.Status(folder.Text(u"a"));
  ASSERT_TRUE(before && after);
  EXPECT_EQ(before->modifiedNanoseconds, 7);
  EXPECT_EQ(after->modifiedNanoseconds, 7);
  EXPECT_NE(after->inode, before->inode);
}

// What others could read of a copy while it was made, and whether it was on the disk in the end.
class CopyWatch : public posix::PosixCalls {
 public:
  ssize_t Write(int file, const void* data, std::size_t size) override {
    opened |= ModeOf(file);
    return PosixCalls::Write(file, data, size);
  }
  int Sync(int file) override {
    if ((ModeOf(file) & S_IFMT) == S_IFREG) synced.push_back(ModeOf(file) & 07777);
    return PosixCalls::Sync(file);
  }
  int Rename(const std::string& from, const std::string& to) override {
    syncedBeforeRename = !synced.empty();
    return PosixCalls::Rename(from, to);
  }
  mode_t opened = 0;
  std::vector<mode_t> synced;
  bool syncedBeforeRename = false;

 private:
  static mode_t ModeOf(int file) {
    struct stat status {};
    ::fstat(file, &status);
    return status.st_mode;
  }
};

TEST(PosixFileSystem, ACopyIsOpenToNobodyUntilItIsWholeAndOnTheDisk) {
  const TemporaryFolder folder;
  folder.Write("a.htm", std::string(1'000'000, 'x'));
  ::chmod(folder.Path("a.htm").c_str(), 0640);
  folder.Write("taken.htm", "old");
  ::chmod(folder.Path("taken.htm").c_str(), 0666);
  const mode_t mask = ::umask(0);
  for (const char16_t* name : {u"new.htm", u"taken.htm"}) {
    CopyWatch calls;
    PosixFileSystem files(calls);
    EXPECT_TRUE(files.Copy(folder.Text(u"a.htm"), folder.Text(name)));
    EXPECT_EQ(calls.opened & 077, 0u) << ToUtf8(name);
    EXPECT_THAT(calls.synced, testing::ElementsAre(0640u));
    EXPECT_TRUE(calls.syncedBeforeRename);
    struct stat status {};
    ::stat(ToUtf8(folder.Text(name)).c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
  }
  ::umask(mask);
}

TEST(PosixFileSystem, ACopyOntoAFileWithSeveralNamesGetsTheModeAsWell) {
  const TemporaryFolder folder;
  folder.Write("a.htm", "text");
  ::chmod(folder.Path("a.htm").c_str(), 0600);
  folder.Write("b.htm", "old");
  std::filesystem::create_hard_link(folder.Path("b.htm"), folder.Path("c.htm"));
  PosixFileSystem files;
  EXPECT_TRUE(files.Copy(folder.Text(u"a.htm"), folder.Text(u"b.htm")));
  struct stat status {};
  ::stat(folder.Path("c.htm").c_str(), &status);
  EXPECT_EQ(folder.Read("c.htm"), "text");
  EXPECT_EQ(status.st_mode & 07777, 0600u);
}

TEST(PosixFileSystem, ACopyHasNoSetIdBits) {
  const TemporaryFolder folder;
  folder.Write("a", "text");
  ::chmod(folder.Path("a").c_str(), 06755);
  PosixFileSystem files;
  EXPECT_TRUE(files.Copy(folder.Text(u"a"), folder.Text(u"b")));
  struct stat status {};
  ::stat(folder.Path("b").c_str(), &status);
  EXPECT_EQ(status.st_mode & 07777, 0755u);
}

TEST(PosixFileSystem, LinkTextTellsWhatALinkSays) {
  const TemporaryFolder folder;
  folder.Write("a", "");
  PosixFileSystem files;
  ASSERT_TRUE(files.CreateLink(u"../表", folder.Text(u"link")));
  EXPECT_EQ(files.LinkText(folder.Text(u"link")), u"../表");
  EXPECT_FALSE(files.LinkText(folder.Text(u"a")));
  EXPECT_FALSE(files.LinkText(folder.Text(u"missing")));
}

TEST(PosixFileSystem, CopyKeepsModeAndTime) {
  const TemporaryFolder folder;
  folder.Write("a.htm", "text");
  ::chmod(folder.Path("a.htm").c_str(), 0640);
  const timespec times[] = {{1000000000, 0}, {1000000000, 500}};
  ::utimensat(AT_FDCWD, folder.Path("a.htm").c_str(), times, 0);
  PosixFileSystem files;
  EXPECT_TRUE(files.Copy(folder.Text(u"a.htm"), folder.Text(u"b.htm")));
  struct stat status {};
  ::stat(folder.Path("b.htm").c_str(), &status);
  EXPECT_EQ(folder.Read("b.htm"), "text");
  EXPECT_EQ(status.st_mode & 07777, 0640u);
  EXPECT_EQ(status.st_mtim.tv_sec, 1000000000);
}

TEST(PosixFileSystem, CopyOntoItselfOrFromNothingFails) {
  const TemporaryFolder folder;
  folder.Write("a.htm", "text");
  std::filesystem::create_symlink("a.htm", folder.Path("link"));
  PosixFileSystem files;
  EXPECT_FALSE(files.Copy(folder.Text(u"a.htm"), folder.Text(u"a.htm")));
  EXPECT_FALSE(files.Copy(folder.Text(u"a.htm"), folder.Text(u"link")));
  EXPECT_FALSE(files.Copy(folder.Text(u"missing"), folder.Text(u"b")));
  EXPECT_FALSE(files.Copy(folder.Text(), folder.Text(u"b")));
  EXPECT_EQ(folder.Read("a.htm"), "text");
  EXPECT_FALSE(std::filesystem::exists(folder.Path("b")));
}

TEST(PosixFileSystem, RenameNeverOverwrites) {
  const TemporaryFolder folder;
  folder.Write("a", "1");
  folder.Write("b", "2");
  PosixFileSystem files;
  EXPECT_FALSE(files.Rename(folder.Text(u"a"), folder.Text(u"b")));
  EXPECT_EQ(folder.Read("b"), "2");
  EXPECT_TRUE(files.Rename(folder.Text(u"a"), folder.Text(u"c")));
  EXPECT_EQ(folder.Read("c"), "1");
}

TEST(PosixFileSystem, MakesAndRemovesFoldersLinksAndFiles) {
  const TemporaryFolder folder;
  PosixFileSystem files;
  EXPECT_TRUE(files.CreateFolder(folder.Text(u"f")));
  EXPECT_FALSE(files.CreateFolder(folder.Text(u"f")));
  EXPECT_FALSE(files.CreateFolder(folder.Text(u"x/y")));
  EXPECT_FALSE(files.Remove(folder.Text(u"f")));
  folder.Write("f/a", "12");
  EXPECT_FALSE(files.RemoveFolder(folder.Text(u"f")));
  EXPECT_TRUE(files.CreateLink(folder.Text(u"f"), folder.Text(u"link")));
  EXPECT_EQ(files.Canonical(folder.Text(u"link/../link/a")), files.Canonical(folder.Text(u"f/a")));
  EXPECT_EQ(files.Canonical(folder.Text(u"missing")), u"");
  EXPECT_THAT(files.List(folder.Text()), UnorderedElementsAre(u"f", u"link"));
  EXPECT_TRUE(files.Remove(folder.Text(u"f/a")));
  EXPECT_TRUE(files.RemoveFolder(folder.Text(u"f")));
}

TEST(PosixFileSystem, FolderSizeCountsTheTreeButFollowsNoLink) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.Path("t/u"));
  folder.Write("t/a", std::string(100, 'x'));
  folder.Write("t/u/b", std::string(23, 'x'));
  std::filesystem::create_symlink("..", folder.Path("t/u/up"));
  PosixFileSystem files;
  EXPECT_EQ(files.FolderSize(folder.Text(u"t")), 123u);
}

TEST(PosixFileSystem, AnExceptionInTheProducerIsAFailedSave) {
  const TemporaryFolder folder;
  folder.Write("a", "old");
  PosixFileSystem files;
  EXPECT_FALSE(files.Replace(folder.Text(u"a"), [](const auto& write) -> bool {
    write("half");
    throw std::bad_alloc();
  }));
  EXPECT_EQ(folder.Read("a"), "old");
  EXPECT_EQ(folder.Names().size(), 1u);
}

TEST(NativePath, FolderAndName) {
  EXPECT_EQ(posix::FolderOf("/a"), "/");
  EXPECT_EQ(posix::FolderOf("/a/b"), "/a");
  EXPECT_EQ(posix::FolderOf("b"), ".");
  EXPECT_EQ(posix::NameOf("/a/b"), "b");
  EXPECT_EQ(posix::NameOf("b"), "b");
}

}  // namespace
}  // namespace kestri
