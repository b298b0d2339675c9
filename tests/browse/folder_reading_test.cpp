// The folder tree and the file list on a real disk.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "browse/dir_tree_file.hpp"
#include "browse/directory_tree.hpp"
#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/common_world.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

// Nothing is unreadable for the superuser.
class WithoutPrivileges {
 public:
  WithoutPrivileges() {
    constexpr uid_t kNobody = 65534;
    if (user_ == 0) Become(kNobody);
  }
  ~WithoutPrivileges() {
    if (user_ == 0) Become(0);
  }
  WithoutPrivileges(const WithoutPrivileges&) = delete;
  WithoutPrivileges& operator=(const WithoutPrivileges&) = delete;

 private:
  static void Become(uid_t user) { ASSERT_EQ(::seteuid(user), 0); }

  uid_t user_ = ::geteuid();
};

class FolderReading : public ::testing::Test, public fakes::CommonWorld<PosixFileSystem> {
 protected:
  void MakeFolder(const std::string& name) { fs::create_directories(folder.Path(name)); }
  std::vector<std::u16string> NamesBelow(const std::u16string& path) {
    std::vector<std::u16string> names;
    const DirectoryNode* node = tree.Find(path);
    if (node == nullptr) return {u"(no node)"};
    for (const auto& child : node->Folders()) names.push_back(child->Text());
    return names;
  }

  fakes::TemporaryFolder folder{fakes::TemporaryFolder::Medium::Memory};
  DirectoryTree tree{common};
};

TEST_F(FolderReading, FoldersAndLinksToThemAreFoldersAllElseIsAFile) {
  MakeFolder("real");
  folder.Write("a.txt", "x");
  fs::create_symlink("real", folder.Path("linked"));
  fs::create_symlink("a.txt", folder.Path("b.txt"));
  fs::create_symlink("nowhere", folder.Path("dangling"));
  std::vector<std::u16string> names;
  for (const FolderEntry& entry : files.Folders(folder.Text())) names.push_back(entry.name);
  EXPECT_THAT(names, UnorderedElementsAre(u"real", u"linked"));
  EXPECT_THAT(files.FileNames(folder.Text()), UnorderedElementsAre(u"a.txt", u"b.txt"));
  EXPECT_TRUE(files.HasFolder(folder.Text()));
  EXPECT_FALSE(files.HasFolder(folder.Text(u"real")));
  EXPECT_FALSE(files.HasFolder(folder.Text(u"a.txt")));
  EXPECT_FALSE(files.HasFolder(u""));
}

TEST_F(FolderReading, AttributesAreThoseThatStatusTells) {
  MakeFolder(".hidden");
  MakeFolder("locked");
  MakeFolder("plain");
  fs::permissions(folder.Path("locked"), fs::perms::owner_read | fs::perms::owner_exec);
  fs::create_symlink("locked", folder.Path("linked"));
  for (const FolderEntry& entry : files.Folders(folder.Text()))
    EXPECT_EQ(entry.attributes, files.Status(folder.Text(entry.name))->attributes) << ToUtf8(entry.name);
  tree.SetPath(folder.Text());
  EXPECT_EQ(tree.Find(folder.Text(u"locked"))->Color(), NodeColor::ReadOnly);
  EXPECT_EQ(tree.Find(folder.Text(u".hidden"))->Color(), NodeColor::Hidden);
  fs::permissions(folder.Path("locked"), fs::perms::owner_all);
}

TEST_F(FolderReading, LinksThatRunInACircleEndByThemselves) {
  MakeFolder("loop");
  fs::create_directory_symlink("..", folder.Path("loop/up"));
  fs::create_directory_symlink("self", folder.Path("loop/self"));
  tree.SetPath(folder.Text(u"loop/up/loop/up/loop"));
  EXPECT_EQ(tree.SelectPath(), folder.Text(u"loop/up/loop/up/loop"));
  EXPECT_THAT(NamesBelow(folder.Text(u"loop/up/loop/up/loop")), ElementsAre(u"up"));
}

TEST_F(FolderReading, NamesThatAreNoCharactersLeadToTheirFolders) {
  MakeFolder("\x93\xfa\x8b\x4c/below");  // a name in the old code page
  MakeFolder("two\nlines/below");
  MakeFolder("\"quoted\"/below");
  MakeFolder(std::string(255, 'n') + "/below");
  tree.SetPath(folder.Text());
  const auto& folders = tree.Selected()->Folders();
  ASSERT_EQ(folders.size(), 4u);
  for (const auto& odd : folders) {
    tree.Expand(*odd);
    EXPECT_THAT(NamesBelow(tree.Key(*odd)), ElementsAre(u"below")) << ToUtf8(odd->Text());
  }
}

TEST_F(FolderReading, UnreadableFolderIsEmpty) {
  MakeFolder("closed/below");
  fs::permissions(folder.Path(""), fs::perms(0755));
  fs::permissions(folder.Path("closed"), fs::perms::none);
  const WithoutPrivileges ordinary;
  tree.SetPath(folder.Text(u"closed"));
  EXPECT_THAT(NamesBelow(folder.Text(u"closed")), IsEmpty());
  EXPECT_THAT(files.FileNames(folder.Text(u"closed")), IsEmpty());
}

TEST_F(FolderReading, AFolderThatOpensAgainIsReadAnew) {
  MakeFolder("closed/below");
  fs::permissions(folder.Path(""), fs::perms(0755));
  fs::permissions(folder.Path("closed"), fs::perms::none);
  {
    const WithoutPrivileges ordinary;
    tree.SetPath(folder.Text(u"closed"));
  }
  fs::permissions(folder.Path("closed"), fs::perms(0755));
  tree.DeletePath(folder.Text(u"closed"));
  tree.CreateTree();
  EXPECT_THAT(NamesBelow(folder.Text(u"closed")), ElementsAre(u"below"));
}

TEST_F(FolderReading, TenThousandFoldersAndFilesAreListedInOrder) {
  constexpr int kMany = 10000;
  for (int i = 0; i < kMany; ++i) MakeFolder("many/page" + std::to_string(i));
  for (int i = 0; i < kMany; ++i) folder.Write("many/page" + std::to_string(i) + ".htm", "");
  tree.SetPath(folder.Text(u"many"));
  ASSERT_EQ(tree.Selected()->Folders().size(), static_cast<std::size_t>(kMany));
  DirTreeFile list(common);
  list.SetPattern(u"*.htm");
  list.SetPath(folder.Text(u"many"));
  ASSERT_EQ(list.Names().size(), static_cast<std::size_t>(kMany));
  for (int i = 0; i < kMany; i += 777) {
    const auto row = static_cast<std::size_t>(i);
    EXPECT_EQ(tree.Selected()->Folders()[row]->Text(), u"page" + ToText(i));
    EXPECT_EQ(tree.Selected()->Folders()[row]->Row(), row);
    EXPECT_EQ(list.Names()[row], u"page" + ToText(i) + u".htm");
  }
}

TEST_F(FolderReading, RenamingAndMakingFoldersReachTheDisk) {
  MakeFolder("pages/img");
  tree.SetPath(folder.Text(u"pages"));
  ASSERT_TRUE(tree.AfterLabelEdit(u"日記"));
  EXPECT_TRUE(fs::is_directory(folder.Path("日記/img")));
  ASSERT_TRUE(tree.CreateNewDirectory());
  EXPECT_TRUE(fs::is_directory(folder.Path("日記/新しいフォルダ")));
  EXPECT_EQ(tree.SelectPath(), folder.Text(u"日記/新しいフォルダ"));
  EXPECT_FALSE(tree.AfterLabelEdit(u"img"));
  EXPECT_FALSE(tree.AfterLabelEdit(std::u16string(300, u'長')));
  EXPECT_EQ(services.beeps, 2);
}

}  // namespace
}  // namespace kestri
