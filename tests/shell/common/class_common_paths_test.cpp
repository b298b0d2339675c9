#include <gtest/gtest.h>

#include "tests/shell/common/class_common_world.hpp"

namespace kestri {
namespace {

using fakes::PosixWorld;
using fakes::WindowsWorld;

class WindowsPaths : public testing::Test, protected WindowsWorld {
 protected:
  ClassCommon common_ = Common();
};

class PosixPaths : public testing::Test, protected PosixWorld {
 protected:
  ClassCommon common_ = Common();
};

TEST_F(WindowsPaths, ProgramFolderAndNameComeFromTheProcess) {
  EXPECT_EQ(common_.ProgramFolder(), u"C:\\Kestrile");
  EXPECT_EQ(common_.ExeName(), u"Kestri");
}

TEST_F(PosixPaths, ProgramFolderAndNameComeFromTheProcess) {
  EXPECT_EQ(common_.ProgramFolder(), folder.Text(u"program"));
  EXPECT_EQ(common_.ExeName(), u"Kestri");
}

TEST_F(WindowsPaths, AppPathRemovesOneTrailingBackslash) {
  EXPECT_EQ(common_.AppPath(u"C:\\x\\"), u"C:\\x");
  EXPECT_EQ(common_.AppPath(u"C:\\"), u"C:");
  EXPECT_EQ(common_.AppPath(u"C:\\x\\\\"), u"C:\\x\\");
  EXPECT_EQ(common_.AppPath(u"C:\\x"), u"C:\\x");
  EXPECT_EQ(common_.AppPath(u""), u"");
}

TEST_F(PosixPaths, AppPathWithASlashBehindReachesEveryFolder) {
  EXPECT_EQ(common_.AppPath(u"/a/"), u"/a");
  EXPECT_EQ(common_.AppPath(u"/") + u"/name", u"/name");
  EXPECT_EQ(common_.AppPath(u"/a") + u"/name", u"/a/name");
}

TEST_F(WindowsPaths, AppPath2NormalisesAFolder) {
  EXPECT_EQ(common_.AppPath2(u"C:"), u"C:\\");
  EXPECT_EQ(common_.AppPath2(u"C:\\"), u"C:\\");
  EXPECT_EQ(common_.AppPath2(u"C:\\x\\"), u"C:\\x");
  EXPECT_EQ(common_.AppPath2(u"C:\\x"), u"C:\\x");
  EXPECT_EQ(common_.AppPath2(u""), u"");
}

TEST_F(PosixPaths, AppPath2NormalisesAFolder) {
  EXPECT_EQ(common_.AppPath2(u"/"), u"/");
  EXPECT_EQ(common_.AppPath2(u"/a/"), u"/a");
  EXPECT_EQ(common_.AppPath2(u"/a"), u"/a");
  EXPECT_EQ(common_.AppPath2(u"ab"), u"ab");
}

TEST_F(WindowsPaths, JoinPutsOneSeparator) {
  EXPECT_EQ(common_.Join(u"C:\\", u"a"), u"C:\\a");
  EXPECT_EQ(common_.Join(u"C:\\x", u"a"), u"C:\\x\\a");
}

TEST_F(PosixPaths, JoinPutsOneSeparator) {
  EXPECT_EQ(common_.Join(u"/", u"a"), u"/a");
  EXPECT_EQ(common_.Join(u"/x", u"a"), u"/x/a");
}

TEST_F(WindowsPaths, CRootOfADrive) {
  EXPECT_EQ(common_.CRoot(u" C:\\x\\y ", 0), u"C:\\");
  EXPECT_EQ(common_.CRoot(u"C:\\x", 1), u"C");
  EXPECT_EQ(common_.CRoot(u"C:x", 0), u"");
  EXPECT_EQ(common_.CRoot(u"C:", 0), u"");
  EXPECT_EQ(common_.CRoot(u"x\\y", 1), u"");
}

TEST_F(WindowsPaths, CRootOfAUncPathEndsBehindTheServer) {
  EXPECT_EQ(common_.CRoot(u"\\\\server\\share\\x", 0), u"\\\\server");
  EXPECT_EQ(common_.CRoot(u"\\\\server\\share", 1), u"server");
  EXPECT_EQ(common_.CRoot(u"\\\\server", 0), u"");
}

TEST_F(PosixPaths, CRootIsTheOneRoot) {
  EXPECT_EQ(common_.CRoot(u" /a/b", 0), u"/");
  EXPECT_EQ(common_.CRoot(u"/a/b", 1), u"/");
  EXPECT_EQ(common_.CRoot(u"a/b", 0), u"");
  EXPECT_EQ(common_.CRoot(u"", 0), u"");
}

TEST_F(WindowsPaths, CPathOfAnExistingFolderIgnoresTheMode) {
  files.folders = {u"C:\\x"};
  for (const int mode : {-998, -1, 1, 2, 3, 4, 5, 6, -2}) {
    EXPECT_EQ(common_.CPath(u" C:\\x\\a.htm ", mode), u"C:\\x") << mode;
  }
}

TEST_F(WindowsPaths, CPathOfAMissingFolderFollowsTheMode) {
  struct Row {
    int mode;
    std::u16string folder;
  };
  const Row rows[] = {{-998, u""},
                      {-1, u" C:\\x\\a.htm"},
                      {1, u"C:\\WINDOWS"},
                      {2, u"C:\\Documents"},
                      {3, u"C:\\Kestrile"},
                      {4, u"C:\\WINDOWS\\system32"},
                      {5, u"C:\\Program Files"},
                      {6, u"C:\\Desktop"},
                      {-2, u"C:\\x"},
                      {7, u"C:\\x"}};
  for (const Row& row : rows) EXPECT_EQ(common_.CPath(u" C:\\x\\a.htm", row.mode), row.folder) << row.mode;
}

TEST_F(WindowsPaths, CPathOfAUncMarkAloneStaysWhole) {
  EXPECT_EQ(common_.CPath(u"\\\\server", -2), u"\\\\server");
  EXPECT_EQ(common_.CPath(u"\\\\server\\share", -2), u"\\\\server");
}

TEST_F(WindowsPaths, CPathWithoutABackslashHasNoFolder) {
  EXPECT_EQ(common_.CPath(u"a.htm", -2), u"");
  EXPECT_EQ(common_.CPath(u"a.htm", -1), u"a.htm");
}

TEST_F(PosixPaths, CPathOfAFileBelowTheRootIsTheRoot) {
  EXPECT_EQ(common_.CPath(u"/a.htm", -2), u"/");
  EXPECT_EQ(common_.CPath(u"/", -2), u"/");
}

TEST_F(PosixPaths, CPathFollowsTheModeOnlyWhenTheFolderIsMissing) {
  EXPECT_EQ(common_.CPath(folder.Text(u"a.htm"), 2), folder.Text());
  EXPECT_EQ(common_.CPath(folder.Text(u"no/a.htm"), 2), folder.Text(u"documents"));
  EXPECT_EQ(common_.CPath(folder.Text(u"no/a.htm"), 3), folder.Text(u"program"));
  EXPECT_EQ(common_.CPath(folder.Text(u"no/a.htm"), -2), folder.Text(u"no"));
}

TEST_F(WindowsPaths, CFileGivesNameBaseAndExtension) {
  EXPECT_EQ(common_.CFile(u" C:\\x.y\\a.b.c ", 0), u"a.b.c");
  EXPECT_EQ(common_.CFile(u"a.b.c", 1), u"a.b");
  EXPECT_EQ(common_.CFile(u"a.b.c", 2), u"c");
  EXPECT_EQ(common_.CFile(u"abc", 1), u"abc");
  EXPECT_EQ(common_.CFile(u"abc", 2), u"abc");
  EXPECT_EQ(common_.CFile(u"C:\\x.y\\abc", 2), u"abc");
  EXPECT_EQ(common_.CFile(u"C:\\x\\", 0), u"");
}

TEST_F(PosixPaths, CFileGivesNameBaseAndExtension) {
  EXPECT_EQ(common_.CFile(u"/x.y/a.b.c", 0), u"a.b.c");
  EXPECT_EQ(common_.CFile(u"/x.y/a.b.c", 1), u"a.b");
  EXPECT_EQ(common_.CFile(u"/x.y/abc", 2), u"abc");
  EXPECT_EQ(common_.CFile(u"/x/back\\slash.htm", 1), u"back\\slash");
}

TEST_F(WindowsPaths, CFile2KeepsTheRootAndTheLastTwoComponents) {
  EXPECT_EQ(common_.CFile2(u"C:\\a\\b\\c\\d.htm"), u"C:\\...\\c\\d.htm");
  EXPECT_EQ(common_.CFile2(u"C:\\a\\b\\c.htm"), u"C:\\...\\b\\c.htm");
}

TEST_F(WindowsPaths, CFile2LeavesShortPathsAlone) {
  for (const std::u16string path : {u"C:\\", u"C:\\a.htm", u"C:\\a\\b.htm", u"ab", u""}) {
    EXPECT_EQ(common_.CFile2(path), path);
  }
}

TEST_F(PosixPaths, CFile2KeepsTheRootAndTheLastTwoComponents) {
  EXPECT_EQ(common_.CFile2(u"/home/author/site/index.htm"), u"/.../site/index.htm");
  EXPECT_EQ(common_.CFile2(u"/a/b/c"), u"/.../b/c");
  EXPECT_EQ(common_.CFile2(u"/b/c"), u"/b/c");
  EXPECT_EQ(common_.CFile2(u"/"), u"/");
}

TEST_F(WindowsPaths, CDirIsTheLastFolder) {
  EXPECT_EQ(common_.CDir(u"C:\\x\\y\\a.htm", 0), u"y");
  EXPECT_EQ(common_.CDir(u"C:\\x\\y", 1), u"y");
  EXPECT_EQ(common_.CDir(u"C:\\a.htm", 0), u"C:");
}

TEST_F(PosixPaths, CDirIsTheLastFolder) {
  EXPECT_EQ(common_.CDir(u"/x/y/a.htm", 0), u"y");
  EXPECT_EQ(common_.CDir(u"/x/y", 1), u"y");
  EXPECT_EQ(common_.CDir(u"/a.htm", 0), u"");
}

TEST_F(WindowsPaths, RelaPathInOneFolder) {
  EXPECT_EQ(common_.RelaPath(u"C:\\s\\a.htm", u"C:\\s\\b.htm", u"\\"), u".\\b.htm");
  EXPECT_EQ(common_.RelaPath(u"C:\\s\\a.htm", u"C:\\s\\img\\b.png", u"\\"), u".\\img\\b.png");
}

TEST_F(WindowsPaths, RelaPathGoesUpForEachFolderLeft) {
  EXPECT_EQ(common_.RelaPath(u"C:\\s\\t\\a.htm", u"C:\\s\\b.htm", u"\\"), u"..\\.\\b.htm");
  EXPECT_EQ(common_.RelaPath(u"C:\\s\\t\\u\\a.htm", u"C:\\s\\v\\b.htm", u"\\"), u"..\\..\\.\\v\\b.htm");
}

TEST_F(WindowsPaths, RelaPathWithAnotherSeparator) {
  EXPECT_EQ(common_.RelaPath(u"C:\\s\\t\\a.htm", u"C:\\s\\v\\b.htm", u"/"), u".././v/b.htm");
  EXPECT_EQ(common_.RelaPath(u"C:\\s\\t\\a.htm", u"C:\\s\\v\\b.htm", u"//"), u"..\\.\\v\\b.htm");
}

TEST_F(WindowsPaths, RelaPathNeedsTheSameRoot) {
  EXPECT_EQ(common_.RelaPath(u"C:\\s\\a.htm", u"D:\\s\\b.htm", u"\\"), u"");
  EXPECT_EQ(common_.RelaPath(u"c:\\s\\a.htm", u"C:\\b.htm", u"\\"), u"..\\..\\.\\C:\\b.htm");
}

TEST_F(WindowsPaths, RelaPathTakesACaseDifferenceForAnotherFolder) {
  EXPECT_EQ(common_.RelaPath(u"C:\\Site\\a.htm", u"C:\\site\\b.htm", u"\\"), u"..\\.\\site\\b.htm");
}

TEST_F(WindowsPaths, RelaPathComparesWholeFolders) {
  EXPECT_EQ(common_.RelaPath(u"C:\\site\\a.htm", u"C:\\site2\\b.htm", u"\\"), u"..\\.\\site2\\b.htm");
}

TEST_F(PosixPaths, RelaPathGivesDotForms) {
  EXPECT_EQ(common_.RelaPath(u"/s/a.htm", u"/s/b.htm", u"/"), u"./b.htm");
  EXPECT_EQ(common_.RelaPath(u"/s/t/a.htm", u"/s/v/b.htm", u"/"), u".././v/b.htm");
  EXPECT_EQ(common_.RelaPath(u"/a.htm", u"/v/b.htm", u"/"), u"./v/b.htm");
  EXPECT_EQ(common_.RelaPath(u"/s/a.htm", u"/s/v/b.htm", u"\\"), u".\\v\\b.htm");
}

TEST_F(WindowsPaths, FileTypeGoesByTheExtension) {
  struct Row {
    std::u16string path;
    std::int32_t code;
  };
  const Row rows[] = {{u"a.txt", 1001}, {u"a.htm", 1002}, {u"a.Html", 1002},   {u"", 1002},
                      {u"a.", 1002},    {u"a.c", 1004},   {u"a.h", 1004},      {u"a.cpp", 1004},
                      {u"a.bas", 1005}, {u"a.frm", 1005}, {u"a.cls", 1005},    {u"a.ctr", 1005},
                      {u"a.aat", 1007}, {u"a.css", 9999}, {u"a.htm.bak", 9999}};
  for (const Row& row : rows) EXPECT_EQ(common_.FileTypeReturn(row.path), row.code) << ToUtf8(row.path);
}

}  // namespace
}  // namespace kestri
