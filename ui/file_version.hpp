// The version that a library's file tells.
#pragma once

#include <string>
#include <string_view>

#include "shell/common/class_common.hpp"

namespace kestri {

// Files carry no version block here. A shared library's real name has it behind ".so.": "1.2.13" for what
// libz.so leads to. Empty for everything else and when there is no such file.
std::u16string FileVersion(const ClassCommon& common, std::u16string_view path);

}  // namespace kestri
