// Small conversions around the settings file and the records kept in profile files.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>

#include "shell/common/class_common.hpp"

namespace kestri {

// A number of the main settings file; the default for a missing or unusable one.
std::int32_t NumberSetting(const ClassCommon& common, std::u16string_view section, std::u16string_view key,
                           std::int32_t defaultValue);
inline bool SwitchedOn(const ClassCommon& common, std::u16string_view key) {
  return NumberSetting(common, u"Setting", key, 0) != 0;
}

std::u16string FormatTime(const std::tm& time, const char* format);

// Control characters replaced by blanks.
std::u16string WithoutControls(std::u16string_view text);

// Whether a path comes back unchanged as a value of a profile file, or as a key of one. A path with
// characters outside the code page, with control characters, with blanks at an end or of more than 255 bytes
// does not; as a key it may not hold "=" either, nor begin with "[" or ";".
bool KeptAsValue(std::u16string_view path);
bool KeptAsKey(std::u16string_view path);

}  // namespace kestri
