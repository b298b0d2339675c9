#include "shell/startup/splash_picture.hpp"

#include <gtest/gtest.h>

#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

class SplashPictureTest : public testing::Test {
 protected:
  SplashPictureTest() {
    environment.executable = folder.Text(u"Kestri");
    folder.Write("wall.bmp", "x");
  }
  ClassCommon Common() { return ClassCommon({files, environment, shell, clock, services}, PathStyle::Posix); }
  void Set(std::u16string_view key, std::u16string_view value) {
    Common().SetINI(u"Kestri", u"Wall", key, value);
  }
  SplashPicture Picture() { return SplashPictureOf(Common()).value(); }
  bool Paintable() { return SplashPictureOf(Common()).has_value(); }

  fakes::TemporaryFolder folder;
  PosixFileSystem files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
};

TEST_F(SplashPictureTest, WithoutSettingsTheProgramsOwnPictureIsShown) {
  EXPECT_EQ(Picture().path, u"");
  EXPECT_EQ(Picture().fit, PictureFit::Stretched);
}

TEST_F(SplashPictureTest, AMissingPictureFallsBackToTheProgramsOwn) {
  Set(u"Picture", folder.Text(u"gone.bmp"));
  Set(u"WinResize", u"0");
  EXPECT_EQ(Picture().path, u"");
  EXPECT_EQ(Picture().fit, PictureFit::Stretched);
}

TEST_F(SplashPictureTest, ThePictureOfTheUserIsStretchedUnlessToldOtherwise) {
  Set(u"Picture", folder.Text(u"wall.bmp"));
  EXPECT_EQ(Picture().path, folder.Text(u"wall.bmp"));
  const std::pair<const char16_t*, PictureFit> rows[] = {
      {u"1", PictureFit::Stretched}, {u"0", PictureFit::Unscaled}, {u"-1", PictureFit::Unscaled}};
  for (const auto& [value, fit] : rows) {
    Set(u"WinResize", value);
    EXPECT_EQ(Picture().fit, fit) << ToUtf8(value);
  }
}

TEST_F(SplashPictureTest, ScrollPositionsCountOnlyUnscaledAndDefaultToTheCorner) {
  Set(u"Picture", folder.Text(u"wall.bmp"));
  Set(u"WinResize", u"0");
  EXPECT_EQ(Picture().hScroll, 0);
  EXPECT_EQ(Picture().vScroll, 0);
  Set(u" WallHScroll", u"120");
  Set(u" WallVScroll", u"-7");
  EXPECT_EQ(Picture().hScroll, 120);
  EXPECT_EQ(Picture().vScroll, -7);
  Set(u"WinResize", u"1");
  EXPECT_EQ(Picture().hScroll, 0);
}

TEST_F(SplashPictureTest, APictureWithAnUnusableNumberCannotBePainted) {
  Set(u"Picture", folder.Text(u"wall.bmp"));
  for (const char16_t* value : {u"abc", u"99999999999"}) {
    Set(u"WinResize", value);
    EXPECT_FALSE(Paintable()) << ToUtf8(value);
    Set(u"WinResize", u"0");
    for (const char16_t* key : {u" WallHScroll", u" WallVScroll"}) {
      Set(key, value);
      EXPECT_FALSE(Paintable()) << ToUtf8(key);
      Set(key, u"");
    }
    EXPECT_TRUE(Paintable());
  }
}

TEST_F(SplashPictureTest, NumbersThatAreNotAskedForMayBeUnusable) {
  for (const char16_t* key : {u"WinResize", u" WallHScroll", u" WallVScroll"}) Set(key, u"abc");
  EXPECT_TRUE(Paintable()) << "the program's own picture needs none";
  Set(u"Picture", folder.Text(u"wall.bmp"));
  Set(u"WinResize", u"1");
  EXPECT_TRUE(Paintable()) << "a stretched picture is not scrolled";
}

TEST_F(SplashPictureTest, KeysThatBeginWithABlankAreReadInEitherForm) {
  for (const char* head : {" WallHScroll=31\r\n", "WallHScroll=31\r\n"}) {
    folder.Write("Kestri.ini", "[Wall]\r\nPicture=" + folder.Path("wall.bmp") + "\r\nWinResize=0\r\n" + head);
    EXPECT_EQ(Picture().hScroll, 31) << head;
  }
}

TEST_F(SplashPictureTest, VersionHasFixedWidths) {
  EXPECT_EQ(SplashVersion(1, 2, 3), u"Ver. 01.02.003e07");
}

}  // namespace
}  // namespace kestri
