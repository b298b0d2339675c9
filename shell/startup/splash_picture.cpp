#include "shell/startup/splash_picture.hpp"

#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kWall = u"Wall";

int WallNumber(const ClassCommon& common, std::u16string_view key, std::u16string_view defaultValue) {
  return ToLong(common.GetINI(common.ExeName(), kWall, key, defaultValue)).value_or(0);
}

}  // namespace

SplashPicture SplashPictureOf(const ClassCommon& common) {
  SplashPicture picture;
  picture.path = common.GetINI(common.ExeName(), kWall, u"Picture", u"");
  if (!common.PathExists(picture.path)) return {};
  if (WallNumber(common, u"WinResize", u"1") == 1) return picture;
  picture.fit = PictureFit::Unscaled;
  // Both keys begin with a blank.
  picture.hScroll = WallNumber(common, u" WallHScroll", u"0");
  picture.vScroll = WallNumber(common, u" WallVScroll", u"0");
  return picture;
}

std::u16string SplashVersion(int major, int minor, int revision) {
  return u"Ver. " + FormatZeros(major, 2) + u"." + FormatZeros(minor, 2) + u"." + FormatZeros(revision, 3) +
         u"e07";
}

}  // namespace kestri
