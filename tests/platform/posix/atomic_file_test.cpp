#include "platform/posix/atomic_file.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>

#include "tests/fakes/temporary_folder.hpp"
#include "tests/platform/posix/failing_calls.hpp"

namespace kestri::posix {
namespace {

using fakes::FailingCalls;
using fakes::TemporaryFolder;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

const std::string kOld(270'000, 'o');
const std::string kNew(290'001, 'n');

bool SaveIn(PosixCalls& calls, const TemporaryFolder& folder, const std::string& name,
            const std::string& bytes, Durability durability = Durability::Synced) {
  AtomicFile file(calls, folder.Path("recovery"), durability);
  return file.Replace(folder.Path(name), [&](const FileSystem::ByteConsumer& write) {
    const std::string_view all = bytes;
    return write(all.substr(0, all.size() / 3)) && write(all.substr(all.size() / 3));
  });
}

bool Save(const TemporaryFolder& folder, const std::string& name, const std::string& bytes) {
  PosixCalls calls;
  return SaveIn(calls, folder, name, bytes);
}

struct stat StatusOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
  return status;
}

TEST(AtomicFile, MakesANewFileUnderTheUsersMask) {
  const TemporaryFolder folder;
  const mode_t old = ::umask(027);
  EXPECT_TRUE(Save(folder, "a.htm", kNew));
  ::umask(old);
  EXPECT_EQ(folder.Read("a.htm"), kNew);
  EXPECT_EQ(StatusOf(folder.Path("a.htm")).st_mode & 07777, 0640u);
  EXPECT_THAT(folder.Names(), ElementsAre("a.htm"));
}

TEST(AtomicFile, ReplacesContentAndKeepsMode) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kOld);
  ::chmod(folder.Path("a.htm").c_str(), 0604);
  EXPECT_TRUE(Save(folder, "a.htm", kNew));
  EXPECT_EQ(folder.Read("a.htm"), kNew);
  EXPECT_EQ(StatusOf(folder.Path("a.htm")).st_mode & 07777, 0604u);
  EXPECT_THAT(folder.Names(), ElementsAre("a.htm"));
}

TEST(AtomicFile, KeepsOwnerAndGroup) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kOld);
  // Only the superuser may give the file away; anybody else keeps its own.
  if (::geteuid() == 0) {
    ASSERT_EQ(::chown(folder.Path("a.htm").c_str(), 1234, 4321), 0);
  }
  const struct stat before = StatusOf(folder.Path("a.htm"));
  EXPECT_TRUE(Save(folder, "a.htm", kNew));
  EXPECT_EQ(StatusOf(folder.Path("a.htm")).st_uid, before.st_uid);
  EXPECT_EQ(StatusOf(folder.Path("a.htm")).st_gid, before.st_gid);
}

TEST(AtomicFile, KeepsExtendedAttributes) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kOld);
  // A volume without attributes has none to keep, before and after.
  const bool given = ::setxattr(folder.Path("a.htm").c_str(), "user.note", "mine", 4, 0) == 0;
  EXPECT_TRUE(Save(folder, "a.htm", kNew));
  char value[8] = {};
  EXPECT_EQ(::getxattr(folder.Path("a.htm").c_str(), "user.note", value, sizeof value), given ? 4 : -1);
  EXPECT_STREQ(value, given ? "mine" : "");
}

// One user, 1234, may do everything with what is made in the folder from now on. A volume without access
// lists has none to hand on.
void LetAnotherUserIn(const std::string& folder) {
  constexpr unsigned char kList[] = {2,    0, 0, 0,                           // version
                                     1,    0, 7, 0, 0xFF, 0xFF, 0xFF, 0xFF,   // owner rwx
                                     2,    0, 7, 0, 0xD2, 0x04, 0,    0,      // user 1234 rwx
                                     4,    0, 5, 0, 0xFF, 0xFF, 0xFF, 0xFF,   // group r-x
                                     0x10, 0, 7, 0, 0xFF, 0xFF, 0xFF, 0xFF,   // mask rwx
                                     0x20, 0, 5, 0, 0xFF, 0xFF, 0xFF, 0xFF};  // others r-x
  ::setxattr(folder.c_str(), "system.posix_acl_default", kList, sizeof kList, 0);
}

TEST(AtomicFile, AFoldersAccessListOpensNoFileThatWasClosed) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kOld);
  ASSERT_EQ(::chmod(folder.Path("a.htm").c_str(), 0640), 0);
  LetAnotherUserIn(folder.Path());
  EXPECT_TRUE(Save(folder, "a.htm", kNew));
  EXPECT_EQ(::getxattr(folder.Path("a.htm").c_str(), "system.posix_acl_access", nullptr, 0), -1);
  EXPECT_EQ(StatusOf(folder.Path("a.htm")).st_mode & 07777, 0640u);
}

TEST(AtomicFile, WritesThroughASymbolicLink) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path("real"));
  folder.Write("real/page.htm", kOld);
  std::filesystem::create_symlink("real/page.htm", folder.Path("inner.htm"));
  std::filesystem::create_symlink(folder.Path("inner.htm"), folder.Path("outer.htm"));
  EXPECT_TRUE(Save(folder, "outer.htm", kNew));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("outer.htm")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("inner.htm")));
  EXPECT_EQ(folder.Read("real/page.htm"), kNew);
}

TEST(AtomicFile, CreatesTheTargetOfADanglingLink) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink("later.htm", folder.Path("link.htm"));
  EXPECT_TRUE(Save(folder, "link.htm", kNew));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link.htm")));
  EXPECT_EQ(folder.Read("later.htm"), kNew);
}

TEST(AtomicFile, RefusesLinksThatRunInACircle) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink("b", folder.Path("a"));
  std::filesystem::create_symlink("a", folder.Path("b"));
  EXPECT_FALSE(Save(folder, "a", kNew));
}

TEST(AtomicFile, AllHardLinksGetTheNewContent) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kOld);
  std::filesystem::create_hard_link(folder.Path("a.htm"), folder.Path("b.htm"));
  EXPECT_TRUE(Save(folder, "a.htm", kNew));
  EXPECT_EQ(folder.Read("b.htm"), kNew);
  EXPECT_EQ(StatusOf(folder.Path("a.htm")).st_nlink, 2u);
  EXPECT_THAT(folder.Names(), UnorderedElementsAre("a.htm", "b.htm"));
}

TEST(AtomicFile, AFileMountedAtItsPlaceIsWrittenInPlace) {
  for (const int error : {EBUSY, EXDEV}) {
    const TemporaryFolder folder;
    folder.Write("a.htm", kOld);
    const ino_t before = StatusOf(folder.Path("a.htm")).st_ino;
    FailingCalls calls;
    calls.RefuseRenames(error);
    EXPECT_TRUE(SaveIn(calls, folder, "a.htm", kNew));
    EXPECT_EQ(folder.Read("a.htm"), kNew);
    EXPECT_EQ(StatusOf(folder.Path("a.htm")).st_ino, before);
    EXPECT_THAT(folder.Names(), ElementsAre("a.htm"));
  }
}

TEST(AtomicFile, ARenameThatFailsOtherwiseIsAFailedSave) {
  for (const char* name : {"a.htm", "new.htm"}) {
    for (const int error : {EIO, ENOSPC, EBUSY}) {
      if (error == EBUSY && std::string(name) == "a.htm") continue;
      const TemporaryFolder folder;
      folder.Write("a.htm", kOld);
      FailingCalls calls;
      calls.RefuseRenames(error);
      EXPECT_FALSE(SaveIn(calls, folder, name, kNew));
      EXPECT_EQ(folder.Read("a.htm"), kOld);
      EXPECT_THAT(folder.Names(), ElementsAre("a.htm"));
    }
  }
}

TEST(AtomicFile, HardLinkedFileMayShrink) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kNew);
  std::filesystem::create_hard_link(folder.Path("a.htm"), folder.Path("b.htm"));
  EXPECT_TRUE(Save(folder, "a.htm", "x"));
  EXPECT_EQ(folder.Read("b.htm"), "x");
}

TEST(AtomicFile, RefusesFoldersPipesAndDevices) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path("folder"));
  ::mkfifo(folder.Path("pipe").c_str(), 0666);
  std::filesystem::create_symlink("/dev/null", folder.Path("device"));
  EXPECT_FALSE(Save(folder, "folder", kNew));
  EXPECT_FALSE(Save(folder, "pipe", kNew));
  EXPECT_FALSE(Save(folder, "device", kNew));
  EXPECT_FALSE(Save(folder, "missing/a.htm", kNew));
  EXPECT_TRUE(std::filesystem::is_fifo(folder.Path("pipe")));
}

TEST(AtomicFile, RefusesAFileWithoutWriteBits) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kOld);
  ::chmod(folder.Path("a.htm").c_str(), 0444);
  EXPECT_FALSE(Save(folder, "a.htm", kNew));
  EXPECT_EQ(folder.Read("a.htm"), kOld);
}

// The calls that decide what a power failure leaves, in their order.
class OrderOfCalls : public PosixCalls {
 public:
  int Sync(int file) override {
    struct stat status {};
    ::fstat(file, &status);
    order += S_ISDIR(status.st_mode) ? "folder " : "sync ";
    return PosixCalls::Sync(file);
  }
  int SyncData(int file) override {
    order += "data ";
    return PosixCalls::SyncData(file);
  }
  int Rename(const std::string& from, const std::string& to) override {
    order += "rename ";
    return PosixCalls::Rename(from, to);
  }
  std::string order;
};

TEST(AtomicFile, TheContentIsOnTheDiskBeforeItTakesTheOldOnesPlace) {
  struct Row {
    Durability durability;
    const char* order;
  };
  for (const Row& row : {Row{Durability::Synced, "sync rename folder "},
                         Row{Durability::Ordered, "data rename "}, Row{Durability::Renamed, "rename "}}) {
    const TemporaryFolder folder;
    folder.Write("a.htm", kOld);
    OrderOfCalls calls;
    EXPECT_TRUE(SaveIn(calls, folder, "a.htm", kNew, row.durability));
    EXPECT_EQ(calls.order, row.order);
  }
}

TEST(AtomicFile, AProducerThatGivesUpLeavesTheOldContent) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kOld);
  PosixCalls calls;
  AtomicFile file(calls, folder.Path("recovery"), Durability::Synced);
  EXPECT_FALSE(file.Replace(folder.Path("a.htm"), [](const FileSystem::ByteConsumer& write) {
    write("half");
    return false;
  }));
  EXPECT_EQ(folder.Read("a.htm"), kOld);
  EXPECT_THAT(folder.Names(), ElementsAre("a.htm"));
}

TEST(AtomicFile, FileInAClosedFolderIsWrittenInPlace) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path("closed"));
  folder.Write("closed/a.htm", kOld);
  FailingCalls calls;
  calls.CloseFolder(folder.Path("closed"), EACCES);
  const auto inode = StatusOf(folder.Path("closed/a.htm")).st_ino;
  EXPECT_TRUE(SaveIn(calls, folder, "closed/a.htm", kNew));
  EXPECT_EQ(folder.Read("closed/a.htm"), kNew);
  EXPECT_EQ(StatusOf(folder.Path("closed/a.htm")).st_ino, inode);
  EXPECT_THAT(calls.removed, testing::Contains(folder.Path("recovery/a.htm.kestrile-recovery")));
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("recovery")));
}

TEST(AtomicFile, ANewFileInAClosedFolderFails) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path("closed"));
  FailingCalls calls;
  calls.CloseFolder(folder.Path("closed"), EACCES);
  EXPECT_FALSE(SaveIn(calls, folder, "closed/a.htm", kNew));
  EXPECT_FALSE(std::filesystem::exists(folder.Path("closed/a.htm")));
}

TEST(AtomicFile, AFullDiskLeavesTheOldContentAndNoLitter) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kOld);
  FailingCalls calls;
  calls.CloseFolder(folder.Path(), ENOSPC);
  EXPECT_FALSE(SaveIn(calls, folder, "a.htm", kNew));
  EXPECT_EQ(folder.Read("a.htm"), kOld);
  EXPECT_THAT(folder.Names(), ElementsAre("a.htm"));
}

TEST(AtomicFile, ShortWritesAreContinued) {
  const TemporaryFolder folder;
  FailingCalls calls;
  calls.LimitWrites(1000);
  EXPECT_TRUE(SaveIn(calls, folder, "a.htm", kNew));
  EXPECT_EQ(folder.Read("a.htm"), kNew);
}

TEST(AtomicFile, ALongNameGetsAShortRecoveryName) {
  const TemporaryFolder folder;
  const std::string name(250, 'x');
  folder.Write(name, kOld);
  std::filesystem::create_hard_link(folder.Path(name), folder.Path("other"));
  EXPECT_TRUE(Save(folder, name, kNew));
  EXPECT_EQ(folder.Read("other"), kNew);
}

TEST(AtomicFile, AnOldRecoveryCopyIsNeverOverwritten) {
  const TemporaryFolder folder;
  folder.Write("a.htm", kOld);
  folder.Write("a.htm.kestrile-recovery", "rescued");
  std::filesystem::create_hard_link(folder.Path("a.htm"), folder.Path("b.htm"));
  EXPECT_TRUE(Save(folder, "a.htm", kNew));
  EXPECT_EQ(folder.Read("a.htm.kestrile-recovery"), "rescued");
}

// A file system, how the file lies in it, and how many system calls its save makes.
struct Layout {
  const char* name;
  int hardLinks;
  bool isClosed;
  Durability durability;
  bool isMounted = false;
};

class FailureAtEveryCall : public testing::TestWithParam<Layout> {
 protected:
  void Prepare(const TemporaryFolder& folder) {
    std::filesystem::create_directory(folder.Path("f"));
    folder.Write("f/a.htm", kOld);
    for (int link = 0; link < GetParam().hardLinks; ++link) {
      std::filesystem::create_hard_link(folder.Path("f/a.htm"), folder.Path("f/link" + std::to_string(link)));
    }
  }

  bool SaveWith(FailingCalls& calls, const TemporaryFolder& folder) {
    if (GetParam().isClosed) calls.CloseFolder(folder.Path("f"), EACCES);
    if (GetParam().isMounted) calls.RefuseRenames(EBUSY);
    return SaveIn(calls, folder, "f/a.htm", kNew, GetParam().durability);
  }

  int CallsOfOneSave() {
    const TemporaryFolder folder(TemporaryFolder::Medium::Memory);
    Prepare(folder);
    FailingCalls calls;
    EXPECT_TRUE(SaveWith(calls, folder));
    return calls.Made();
  }
};

TEST_P(FailureAtEveryCall, LeavesTheWholeOldOrTheWholeNewContentAndSaysWhich) {
  const int count = CallsOfOneSave();
  ASSERT_GT(count, 4);
  for (int number = 1; number <= count; ++number) {
    const TemporaryFolder folder(TemporaryFolder::Medium::Memory);
    Prepare(folder);
    FailingCalls calls(number);
    const bool saved = SaveWith(calls, folder);
    EXPECT_TRUE(folder.Read("f/a.htm") == (saved ? kNew : kOld)) << "call " << number << " of " << count;
  }
}

TEST_P(FailureAtEveryCall, ADiskThatDiesLosesNothingThatCannotBeFound) {
  const int count = CallsOfOneSave();
  for (int number = 1; number <= count; ++number) {
    const TemporaryFolder folder(TemporaryFolder::Medium::Memory);
    Prepare(folder);
    FailingCalls calls(number, FailingCalls::Spread::AllFrom);
    const bool saved = SaveWith(calls, folder);
    const std::string content = folder.Read("f/a.htm");
    const std::string beside = folder.Read("f/a.htm.kestrile-recovery");
    const std::string elsewhere = folder.Read("recovery/a.htm.kestrile-recovery");
    const bool isWhole = content == kOld || content == kNew;
    EXPECT_TRUE(isWhole || beside == kNew || elsewhere == kNew) << "call " << number << " of " << count;
    EXPECT_TRUE(!saved || content == kNew);
  }
}

INSTANTIATE_TEST_SUITE_P(Layouts, FailureAtEveryCall,
                         testing::Values(Layout{"Plain", 0, false, Durability::Synced},
                                         Layout{"Ordered", 0, false, Durability::Ordered},
                                         Layout{"Unsynced", 0, false, Durability::Renamed},
                                         Layout{"HardLinked", 1, false, Durability::Synced},
                                         Layout{"ClosedFolder", 0, true, Durability::Synced},
                                         Layout{"Mounted", 0, false, Durability::Synced, true},
                                         Layout{"MountedUnsynced", 0, false, Durability::Renamed, true}),
                         [](const auto& layout) { return std::string(layout.param.name); });

}  // namespace
}  // namespace kestri::posix
