// Which picture the splash shows, and how.
#pragma once

#include <optional>
#include <string>

#include "shell/common/class_common.hpp"

namespace kestri {

enum class PictureFit { Stretched, Unscaled };

struct SplashPicture {
  std::u16string path;  // empty: the program's own picture
  PictureFit fit = PictureFit::Stretched;
  int hScroll = 0;  // pixels into an unscaled picture
  int vScroll = 0;
};

// Nothing when a number that says how the picture is shown is unusable.
std::optional<SplashPicture> SplashPictureOf(const ClassCommon& common);

// "Ver. 01.00.000e07"
std::u16string SplashVersion(int major, int minor, int revision);

}  // namespace kestri
