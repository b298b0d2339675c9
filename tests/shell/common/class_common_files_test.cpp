#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/shell/common/class_common_world.hpp"

namespace kestri {
namespace {

using fakes::PosixWorld;
using fakes::WindowsWorld;
using Operation = ClassCommon::FileOperation;

class FileFacts : public testing::Test, protected WindowsWorld {
 protected:
  std::u16string SizeOf(std::size_t bytes) {
    files.contents[u"C:\\a"] = std::string(bytes, 'x');
    return common_.GetFileSizeFormat(u"C:\\a");
  }
  ClassCommon common_ = Common();
};

class RealFiles : public testing::Test, protected PosixWorld {
 protected:
  ClassCommon common_ = Common();
};

TEST_F(FileFacts, SizesBelowAMillionBytesAreKilobytesOfAThousand) {
  EXPECT_EQ(SizeOf(999'999), u"1,000.00 KB  (999,999 byte)");
  EXPECT_EQ(SizeOf(1024), u"1.02 KB  (1,024 byte)");
  EXPECT_EQ(SizeOf(0), u"0.00 KB  (0 byte)");
}

TEST_F(FileFacts, SizesFromAMillionBytesAreMegabytes) {
  EXPECT_EQ(SizeOf(1'000'000), u"1.00 MB  (1,000,000 byte)");
  EXPECT_EQ(SizeOf(12'345'678), u"12.35 MB  (12,345,678 byte)");
}

TEST_F(FileFacts, AMissingFileHasNoFacts) {
  EXPECT_EQ(common_.GetFileSizeFormat(u"C:\\no"), u"");
  EXPECT_EQ(common_.GetFileType(u"C:\\no"), u"");
  EXPECT_EQ(common_.GetFileDateTimeFormat(u"C:\\no"), u"");
  EXPECT_EQ(common_.GetFileAttribute(u"C:\\no"), u"");
  EXPECT_FALSE(common_.IsFileAttribute(u"C:\\no", 0xFFFF));
  EXPECT_FALSE(common_.KillFile(u"C:\\no"));
}

TEST_F(FileFacts, AttributesAreNamedInTheirOrderWithoutTheLastTwoCharacters) {
  constexpr std::uint32_t kAll =
      kAttributeReadOnly | kAttributeHidden | kAttributeSystem | kAttributeDirectory | kAttributeArchive;
  const std::pair<std::uint32_t, const char16_t*> rows[] = {
      {kAll, u"Archive  Directory & System  Hidden  ReadOnly"},
      {kAttributeArchive, u"Archive"},
      {kAttributeDirectory, u"Directory "},
      {kAttributeSystem, u"System"},
      {kAttributeHidden, u"Hidden"},
      {kAttributeReadOnly, u"ReadOnly"},
      {kAttributeReadOnly | kAttributeArchive, u"Archive  ReadOnly"},
      {kAttributeHidden | kAttributeSystem, u"System  Hidden"},
      {kAttributeHidden | kAttributeDirectory, u"Directory & Hidden"},
      {kAttributeSystem | kAttributeArchive, u"Archive  System"},
      {0, u"Normal"}};
  for (const auto& [attributes, words] : rows) {
    files.attributes[u"C:\\a"] = attributes;
    EXPECT_EQ(ToUtf8(common_.GetFileAttribute(u"C:\\a")), ToUtf8(words)) << attributes;
  }
}

TEST_F(FileFacts, TypeAndIconComeFromTheDesktop) {
  files.contents[u"C:\\a.htm"] = "";
  EXPECT_EQ(common_.GetFileType(u"C:\\a.htm"), u"HTML 文書");
  EXPECT_EQ(common_.GetFileIcon(u"C:\\a.htm", 0), u"text-html");
}

TEST_F(RealFiles, AFolderIsAsLargeAsItsFiles) {
  std::filesystem::create_directories(folder.Path("d/e"));
  folder.Write("d/a", std::string(1500, 'x'));
  folder.Write("d/e/b", std::string(500, 'x'));
  EXPECT_EQ(common_.GetFileSizeFormat(folder.Text(u"d")), u"2.00 KB  (2,000 byte)");
}

TEST_F(RealFiles, DateIsWrittenYearFirst) {
  folder.Write("a", "");
  const timespec times[] = {{1044072306, 0}, {1044072306, 0}};
  ::utimensat(AT_FDCWD, folder.Path("a").c_str(), times, 0);
  EXPECT_EQ(common_.GetFileDateTimeFormat(folder.Text(u"a")), u"2003/02/01 04:05:06");
}

TEST_F(RealFiles, AttributesAreTestedByTheirBits) {
  folder.Write("a", "");
  EXPECT_TRUE(common_.IsFileAttribute(folder.Text(), kAttributeDirectory));
  EXPECT_FALSE(common_.IsFileAttribute(folder.Text(u"a"), kAttributeDirectory));
}

TEST_F(RealFiles, AttributesInWordsLoseTheLastTwoCharacters) {
  folder.Write("a", "");
  folder.Write(".b", "");
  ::chmod(folder.Path(".b").c_str(), 0444);
  EXPECT_EQ(common_.GetFileAttribute(folder.Text(u"a")), u"Normal");
  EXPECT_EQ(common_.GetFileAttribute(folder.Text(u".b")), u"Hidden  ReadOnly");
  EXPECT_EQ(common_.GetFileAttribute(folder.Text()), u"Directory ");
}

TEST_F(RealFiles, KillFileDeletes) {
  folder.Write("a", "");
  EXPECT_TRUE(common_.KillFile(folder.Text(u"a")));
  EXPECT_FALSE(std::filesystem::exists(folder.Path("a")));
}

TEST_F(RealFiles, CopyTakesFilesAndWholeFolders) {
  std::filesystem::create_directories(folder.Path("d/e"));
  folder.Write("d/e/b", "text");
  EXPECT_TRUE(common_.FileEdit(Operation::Copy, folder.Text(u"d/e/b"), folder.Text(u"c")));
  EXPECT_EQ(folder.Read("c"), "text");
  EXPECT_TRUE(common_.FileEdit(Operation::Copy, folder.Text(u"d/"), folder.Text(u"f")));
  EXPECT_EQ(folder.Read("f/e/b"), "text");
  EXPECT_FALSE(common_.FileEdit(Operation::Copy, folder.Text(u"no"), folder.Text(u"g")));
}

TEST_F(RealFiles, AFolderIsNeverCopiedIntoItself) {
  std::filesystem::create_directories(folder.Path("d"));
  EXPECT_FALSE(common_.FileEdit(Operation::Copy, folder.Text(u"d"), folder.Text(u"d/e")));
  EXPECT_FALSE(common_.FileEdit(Operation::Move, folder.Text(u"d"), folder.Text(u"d/e")));
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("d")));
}

TEST_F(RealFiles, LinksInAFolderAreCopiedAsLinksAlsoWhenTheyRunInALoop) {
  std::filesystem::create_directories(folder.Path("d/e"));
  folder.Write("d/e/b", "text");
  std::filesystem::create_directory_symlink("..", folder.Path("d/e/up"));
  std::filesystem::create_symlink("self", folder.Path("d/self"));
  std::filesystem::create_symlink("e/b", folder.Path("d/file"));
  for (int copy = 0; copy < 2; ++copy) {  // the second one finds the links of the first
    EXPECT_TRUE(
        common_.FileEdit(Operation::Copy, folder.Text(u"d"), folder.Text(u"f"), kMultipleDestinations));
    EXPECT_EQ(folder.Read("f/e/b"), "text");
    EXPECT_EQ(std::filesystem::read_symlink(folder.Path("f/e/up")), "..");
    EXPECT_EQ(std::filesystem::read_symlink(folder.Path("f/self")), "self");
    EXPECT_EQ(std::filesystem::read_symlink(folder.Path("f/file")), "e/b");
  }
}

TEST_F(RealFiles, ALinkThatIsCopiedItselfGivesWhatItPointsTo) {
  folder.Write("a", "text");
  std::filesystem::create_symlink("a", folder.Path("link"));
  EXPECT_TRUE(common_.FileEdit(Operation::Copy, folder.Text(u"link"), folder.Text(u"c")));
  EXPECT_FALSE(std::filesystem::is_symlink(folder.Path("c")));
  EXPECT_EQ(folder.Read("c"), "text");
}

TEST_F(RealFiles, AFolderIsNotCopiedIntoItselfThroughALink) {
  std::filesystem::create_directories(folder.Path("d/e"));
  folder.Write("d/a", "text");
  std::filesystem::create_directory_symlink("d", folder.Path("link"));
  std::filesystem::create_directory_symlink("d/e", folder.Path("inner"));
  EXPECT_FALSE(common_.FileEdit(Operation::Copy, folder.Text(u"d"), folder.Text(u"link/new")));
  EXPECT_FALSE(
      common_.FileEdit(Operation::Copy, folder.Text(u"d"), folder.Text(u"inner"), kMultipleDestinations));
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("d/e")));
  EXPECT_FALSE(std::filesystem::exists(folder.Path("d/new")));
}

TEST_F(RealFiles, AFolderTakesInWhatIsCopiedOrMovedThere) {
  std::filesystem::create_directories(folder.Path("d"));
  folder.Write("a", "1");
  folder.Write("b", "2");
  EXPECT_TRUE(common_.FileEdit(Operation::Copy, folder.Text(u"a"), folder.Text(u"d/")));
  EXPECT_TRUE(common_.FileEdit(Operation::Move, folder.Text(u"b"), folder.Text(u"d")));
  EXPECT_EQ(folder.Read("a"), "1");
  EXPECT_EQ(folder.Read("d/a"), "1");
  EXPECT_EQ(folder.Read("d/b"), "2");
  EXPECT_FALSE(std::filesystem::exists(folder.Path("b")));
}

TEST_F(RealFiles, WithMultipleDestinationsTheTargetIsTheNewPathItself) {
  std::filesystem::create_directories(folder.Path("d"));
  folder.Write("a", "1");
  EXPECT_FALSE(
      common_.FileEdit(Operation::Copy, folder.Text(u"a"), folder.Text(u"d"), kMultipleDestinations));
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path("d")));
}

TEST_F(RealFiles, ListsOfPathsAreSeparatedByNuls) {
  std::filesystem::create_directories(folder.Path("d"));
  folder.Write("a", "1");
  folder.Write("b", "2");
  const std::u16string both = folder.Text(u"a") + u'\0' + folder.Text(u"b") + u'\0';
  EXPECT_TRUE(common_.FileEdit(Operation::Copy, both, folder.Text(u"d")));
  EXPECT_EQ(folder.Read("d/a") + folder.Read("d/b"), "12");
  const std::u16string names = folder.Text(u"x") + u'\0' + folder.Text(u"y");
  EXPECT_FALSE(common_.FileEdit(Operation::Copy, both, names));
  EXPECT_FALSE(common_.FileEdit(Operation::Copy, both, folder.Text(u"x"), kMultipleDestinations));
  EXPECT_FALSE(common_.FileEdit(Operation::Copy, both, folder.Text(u"x")));
  EXPECT_FALSE(std::filesystem::exists(folder.Path("x")));
  EXPECT_TRUE(common_.FileEdit(Operation::Copy, both, names, kMultipleDestinations));
  EXPECT_EQ(folder.Read("x") + folder.Read("y"), "12");
  EXPECT_TRUE(common_.FileEdit(Operation::Delete, both, u""));
  EXPECT_FALSE(std::filesystem::exists(folder.Path("a")) || std::filesystem::exists(folder.Path("b")));
}

TEST_F(RealFiles, RenameOnCollisionNumbersTheNewNameAndKeepsTheOld) {
  folder.Write("a.b.htm", "1");
  folder.Write("c.htm", "2");
  folder.Write("c (2).htm", "3");
  folder.Write(".hidden", "4");
  EXPECT_TRUE(
      common_.FileEdit(Operation::Copy, folder.Text(u"a.b.htm"), folder.Text(u"c.htm"), kRenameOnCollision));
  EXPECT_EQ(folder.Read("c.htm") + folder.Read("c (2).htm") + folder.Read("c (3).htm"), "231");
  EXPECT_TRUE(common_.FileEdit(Operation::Move, folder.Text(u"c (3).htm"), folder.Text(u".hidden"),
                               kRenameOnCollision));
  EXPECT_EQ(folder.Read(".hidden") + folder.Read(".hidden (2)"), "41");
  EXPECT_TRUE(
      common_.FileEdit(Operation::Rename, folder.Text(u"c.htm"), folder.Text(u"free"), kRenameOnCollision));
  EXPECT_EQ(folder.Read("free"), "2");
  EXPECT_TRUE(common_.FileEdit(Operation::Copy, folder.Text(u"a.b.htm"), folder.Text(), kRenameOnCollision));
  EXPECT_EQ(folder.Read("a.b (2).htm"), "1");
}

TEST_F(RealFiles, FlagsForWindowsAndQuestionsChangeNothing) {
  constexpr std::uint32_t kSilentNoQuestionsUndo = 4 | 16 | 64 | 128 | 256;
  folder.Write("a", "1");
  EXPECT_TRUE(
      common_.FileEdit(Operation::Rename, folder.Text(u"a"), folder.Text(u"b"), kSilentNoQuestionsUndo));
  EXPECT_EQ(folder.Read("b"), "1");
}

TEST_F(RealFiles, MoveAndRenameLeaveNothingBehindAndOverwriteNothing) {
  folder.Write("a", "1");
  folder.Write("b", "2");
  EXPECT_FALSE(common_.FileEdit(Operation::Rename, folder.Text(u"a"), folder.Text(u"b")));
  EXPECT_FALSE(common_.FileEdit(Operation::Move, folder.Text(u"a"), folder.Text(u"b")));
  EXPECT_TRUE(common_.FileEdit(Operation::Rename, folder.Text(u"a"), folder.Text(u"c")));
  EXPECT_TRUE(common_.FileEdit(Operation::Move, folder.Text(u"c"), folder.Text(u"d")));
  EXPECT_EQ(folder.Read("d"), "1");
  EXPECT_EQ(folder.Read("b"), "2");
  EXPECT_FALSE(std::filesystem::exists(folder.Path("a")));
}

TEST_F(RealFiles, DeleteTakesAFolderWithAllInItButNoLinkTarget) {
  std::filesystem::create_directories(folder.Path("d/e"));
  std::filesystem::create_directories(folder.Path("kept"));
  folder.Write("d/e/b", "");
  folder.Write("kept/a", "1");
  std::filesystem::create_directory_symlink(folder.Path("kept"), folder.Path("d/link"));
  EXPECT_TRUE(common_.FileEdit(Operation::Delete, folder.Text(u"d"), u""));
  EXPECT_FALSE(std::filesystem::exists(folder.Path("d")));
  EXPECT_EQ(folder.Read("kept/a"), "1");
  EXPECT_FALSE(common_.FileEdit(Operation::Delete, folder.Text(u"d"), u""));
  EXPECT_FALSE(common_.FileEdit(Operation::Delete, u"", u""));
}

TEST_F(FileFacts, TheRootIsNeverEdited) {
  EXPECT_FALSE(common_.FileEdit(Operation::Delete, u"C:\\", u""));
}

TEST_F(FileFacts, AShortcutOnDrivePathsIsALink) {
  EXPECT_TRUE(common_.CreateShortcut(u"C:\\a.exe", u"C:\\SendTo\\", u"_KSL a"));
  ASSERT_EQ(files.links.size(), 1u);
  EXPECT_EQ(files.links[0].first, u"C:\\a.exe");
  EXPECT_EQ(files.links[0].second, u"C:\\SendTo\\_KSL a.lnk");
}

TEST_F(RealFiles, AShortcutIsADesktopEntry) {
  EXPECT_TRUE(common_.CreateShortcut(u"/opt/a b/100%/\"x\"$", folder.Text(), u"_KSL 圧縮"));
  EXPECT_EQ(common_.ShortcutPath(folder.Text(), u"_KSL 圧縮"), folder.Text(u"_KSL 圧縮.desktop"));
  EXPECT_EQ(folder.Read("_KSL 圧縮.desktop"),
            "[Desktop Entry]\nVersion=1.0\nName=_KSL 圧縮\nType=Application\n"
            "Exec=\"/opt/a b/100%%/\\\\\"x\\\\\"\\\\$\" %F\n");
}

TEST_F(RealFiles, AShortcutToAFolderIsALinkEntry) {
  std::filesystem::create_directory(folder.Path("写真 1"));
  EXPECT_TRUE(common_.CreateShortcut(folder.Text(u"写真 1"), folder.Text(), u"p"));
  EXPECT_NE(
      folder.Read("p.desktop").find("Type=Link\nURL=file://" + folder.Path() + "/%E5%86%99%E7%9C%9F%201\n"),
      std::string::npos);
}

TEST_F(RealFiles, AShortcutThatCannotBeWrittenIsFalse) {
  EXPECT_FALSE(common_.CreateShortcut(u"/opt/a", folder.Text(u"missing"), u"x"));
  EXPECT_FALSE(common_.CreateShortcut(u"/opt/a\nExec=b", folder.Text(), u"x"));
}

}  // namespace
}  // namespace kestri
