// The image viewer that stands beside this program where both are installed.
#pragma once

#include <string>

#include "shell/common/class_common.hpp"

namespace kestri {

// Its complete path under the name it has there, "PicPeek.exe" or "PicPeek"; under the first one when there
// is none.
std::u16string SiblingImageViewer(const ClassCommon& common);

}  // namespace kestri
