#include "shell/startup/splash_picture.hpp"

#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kWall = u"Wall";

std::optional<std::int32_t> WallNumber(const ClassCommon& common, std::u16string_view key,
                                       std::u16string_view defaultValue) {
  return ToLong(common.GetINI(common.ExeName(), kWall, key, defaultValue));
}

}  // namespace

std::optional<SplashPicture> SplashPictureOf(const ClassCommon& common) {
  std::u16string path = common.GetINI(common.ExeName(), kWall, u"Picture", u"");
  if (!common.PathExists(path)) return SplashPicture();
  const auto stretch = WallNumber(common, u"WinResize", u"1");
  if (!stretch) return std::nullopt;
  if (*stretch == 1) return SplashPicture{.path = std::move(path)};
  // Both keys begin with a blank.
  const auto hScroll = WallNumber(common, u" WallHScroll", u"0");
  const auto vScroll = WallNumber(common, u" WallVScroll", u"0");
  if (!hScroll || !vScroll) return std::nullopt;
  return SplashPicture{
      .path = std::move(path), .fit = PictureFit::Unscaled, .hScroll = *hScroll, .vScroll = *vScroll};
}

std::u16string SplashVersion(int major, int minor, int revision) {
  return u"Ver. " + FormatZeros(major, 2) + u"." + FormatZeros(minor, 2) + u"." + FormatZeros(revision, 3) +
         u"e07";
}

}  // namespace kestri
