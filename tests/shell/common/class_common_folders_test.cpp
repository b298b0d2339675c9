#include <gtest/gtest.h>

#include "tests/shell/common/class_common_world.hpp"

namespace kestri {
namespace {

using fakes::PosixWorld;
using fakes::WindowsWorld;

class WindowsFolders : public testing::Test, protected WindowsWorld {
 protected:
  ClassCommon common_ = Common();
};

class PosixFolders : public testing::Test, protected PosixWorld {
 protected:
  ClassCommon common_ = Common();
};

TEST_F(PosixFolders, PathExistsForFilesAndFolders) {
  folder.Write("a.htm", "");
  EXPECT_TRUE(common_.PathExists(folder.Text(u"a.htm")));
  EXPECT_TRUE(common_.PathExists(folder.Text()));
  EXPECT_FALSE(common_.PathExists(folder.Text(u"*.htm")));
  EXPECT_FALSE(common_.PathExists(u""));
}

TEST_F(WindowsFolders, SystemFoldersAreNormalised) {
  EXPECT_EQ(common_.GetSystemDirectory(153), u"C:\\TEMP");
  EXPECT_EQ(common_.GetSystemDirectory(5), u"C:\\Documents");
  EXPECT_EQ(common_.GetSystemDirectory(99), u"");
}

TEST_F(PosixFolders, LongAndShortFormsExistForExistingPathsOnly) {
  folder.Write("a.htm", "");
  EXPECT_EQ(common_.GetLongPath(folder.Text(u"a.htm")), folder.Text(u"a.htm"));
  EXPECT_EQ(common_.GetShortPath(folder.Text(u"a.htm")), folder.Text(u"a.htm"));
  EXPECT_EQ(common_.GetLongPath(folder.Text(u"b.htm")), u"");
}

TEST_F(PosixFolders, ALibraryIsLookedForBesideTheProgramFirst) {
  folder.Write("program/unlha32.so", "");
  folder.Write("program/lib/unlha32.so", "");
  folder.Write("program/lib/spigate.so", "");
  std::u16string name = u"UNLHA32.DLL";
  EXPECT_TRUE(common_.DLLCheckReturn(name));
  EXPECT_EQ(name, folder.Text(u"program/unlha32.so"));
  name = u"SpiGate.dll";
  EXPECT_TRUE(common_.DLLCheckReturn(name));
  EXPECT_EQ(name, folder.Text(u"program/lib/spigate.so"));
}

TEST_F(PosixFolders, AMissingLibraryLeavesTheName) {
  std::u16string name = u"UNLHA32.DLL";
  EXPECT_FALSE(common_.DLLCheckReturn(name));
  EXPECT_EQ(name, u"UNLHA32.DLL");
  name.clear();
  EXPECT_FALSE(common_.DLLCheckReturn(name));
}

TEST_F(PosixFolders, AWholePathOfALibraryCountsAsItStands) {
  folder.Write("x.so", "");
  std::u16string name = folder.Text(u"x.so");
  EXPECT_TRUE(common_.DLLCheckReturn(name));
  EXPECT_EQ(name, folder.Text(u"x.so"));
  name = folder.Text(u"y.so");
  EXPECT_FALSE(common_.DLLCheckReturn(name));
}

TEST_F(WindowsFolders, ALibraryKeepsItsNameOnDrivePaths) {
  files.contents[u"C:\\WINDOWS\\system32\\UNLHA32.DLL"] = "";
  std::u16string name = u"UNLHA32.DLL";
  EXPECT_TRUE(common_.DLLCheckReturn(name));
  EXPECT_EQ(name, u"C:\\WINDOWS\\system32\\UNLHA32.DLL");
}

TEST_F(PosixFolders, MakeDirectoryMakesEveryFolderOnTheWayToAFile) {
  EXPECT_TRUE(common_.MakeDirectory(folder.Text(u"a/b/c/Dummy.file")));
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path("a/b/c")));
  EXPECT_FALSE(std::filesystem::exists(folder.Path("a/b/c/Dummy.file")));
  EXPECT_TRUE(common_.MakeDirectory(folder.Text(u"a/b/c/Dummy.file")));
}

TEST_F(PosixFolders, MakeDirectoryRefusesRelativePathsAndWaysThroughAFile) {
  folder.Write("file", "");
  EXPECT_FALSE(common_.MakeDirectory(u"relative/x/Dummy.file"));
  EXPECT_FALSE(common_.MakeDirectory(u"Dummy.file"));
  EXPECT_FALSE(common_.MakeDirectory(folder.Text(u"file/x/Dummy.file")));
}

TEST_F(WindowsFolders, MakeDirectoryMakesEveryLevelOfADrivePath) {
  files.folders = {u"C:\\"};
  EXPECT_TRUE(common_.MakeDirectory(u"C:\\a\\b\\Dummy.file"));
  EXPECT_TRUE(files.folders.contains(u"C:\\a"));
  EXPECT_TRUE(files.folders.contains(u"C:\\a\\b"));
}

TEST_F(WindowsFolders, MakeDirectoryOfTheDriveItself) {
  files.folders = {u"C:\\"};
  EXPECT_TRUE(common_.MakeDirectory(u"C:\\Dummy.file"));
  EXPECT_FALSE(common_.MakeDirectory(u"D:\\Dummy.file"));
}

TEST_F(WindowsFolders, MakeDirectoryOfARelativePathFails) {
  EXPECT_FALSE(common_.MakeDirectory(u"a\\b"));
  EXPECT_FALSE(common_.MakeDirectory(u"ab:c\\b"));
}

TEST_F(WindowsFolders, MakeDirectoryMakesEveryLevelBelowAShare) {
  files.folders = {u"\\\\server\\share"};
  EXPECT_TRUE(common_.MakeDirectory(u"\\\\server\\share\\a\\b\\Dummy.file"));
  EXPECT_EQ(files.folders, (std::set<std::u16string>{u"\\\\server\\share", u"\\\\server\\share\\a",
                                                     u"\\\\server\\share\\a\\b"}));
}

TEST_F(WindowsFolders, MakeDirectoryOfTheShareItself) {
  files.folders = {u"\\\\server\\share"};
  EXPECT_TRUE(common_.MakeDirectory(u"\\\\server\\share\\Dummy.file"));
  EXPECT_EQ(files.folders.size(), 1u);
}

TEST_F(WindowsFolders, MakeDirectoryOnAServerThatIsNotThereFails) {
  for (const char16_t* path : {u"\\\\gone\\share\\a\\Dummy.file", u"\\\\gone\\Dummy.file", u"\\\\gone"}) {
    EXPECT_FALSE(common_.MakeDirectory(path)) << ToUtf8(path);
  }
  EXPECT_TRUE(files.folders.empty());
}

TEST_F(WindowsFolders, MakeDirectoryMakesNothingOfWhatIsNeitherDriveNorShare) {
  files.anyFolderCanBeMade = true;
  for (const char16_t* path :
       {u"", u"\\", u"\\\\", u"\\a\\Dummy.file", u"a\\b\\Dummy.file", u"ab:\\c\\Dummy.file",
        u"C:a\\Dummy.file", u"/home/x/Dummy.file", u"Dummy.file"}) {
    EXPECT_FALSE(common_.MakeDirectory(path)) << ToUtf8(path);
  }
  EXPECT_TRUE(files.folders.empty());
}

TEST_F(WindowsFolders, DrivesCompareByTheirLetterWithoutCase) {
  EXPECT_TRUE(common_.DriveExists(u"c"));
  EXPECT_TRUE(common_.DriveExists(u"A:\\"));
  EXPECT_FALSE(common_.DriveExists(u"D:\\"));
  EXPECT_FALSE(common_.DriveExists(u""));
}

TEST_F(PosixFolders, DrivesCompareByTheirPath) {
  environment.drives = {u"/", u"/media/usb"};
  EXPECT_TRUE(common_.DriveExists(u"/"));
  EXPECT_TRUE(common_.DriveExists(u"/media/usb/"));
  EXPECT_FALSE(common_.DriveExists(u"/media"));
}

TEST_F(PosixFolders, SameFileNameOfAnUnusedBaseHasNoNumber) {
  EXPECT_EQ(common_.SameFileName(folder.Text(), u"無題", u"htm"), folder.Text(u"無題.htm"));
}

TEST_F(PosixFolders, SameFileNameCountsUntilAFreeName) {
  folder.Write("無題.htm", "");
  EXPECT_EQ(common_.SameFileName(folder.Text(), u"無題", u"htm"), folder.Text(u"無題1.htm"));
  folder.Write("無題1.htm", "");
  EXPECT_EQ(common_.SameFileName(folder.Text(), u"無題", u"htm"), folder.Text(u"無題2.htm"));
}

TEST_F(WindowsFolders, SameFileNameBelowADriveHasOneBackslash) {
  EXPECT_EQ(common_.SameFileName(u"C:\\", u"a", u"txt"), u"C:\\a.txt");
}

TEST_F(WindowsFolders, RandomFileNameHoldsTheDigitsOfARandomSingle) {
  clock.random = 0.7055475f;
  EXPECT_EQ(common_.RandomDigits(), u"7055475");
  EXPECT_EQ(common_.GetRandomFileName(u"C:\\x\\", u"無題", u"htm"), u"C:\\x\\(無題_7055475).htm");
}

TEST_F(WindowsFolders, RandomDigitsAreDigitsAtTheEndsOfTheRange) {
  clock.random = 0.0f;
  EXPECT_EQ(common_.RandomDigits(), u"0");
  clock.random = 5.9604645e-08f;
  EXPECT_EQ(common_.RandomDigits(), u"000000059604645");
  clock.random = 0.5f;
  EXPECT_EQ(common_.RandomDigits(), u"5");
}

}  // namespace
}  // namespace kestri
