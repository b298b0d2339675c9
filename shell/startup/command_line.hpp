// The process's command line: one path, or one switch.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "shell/common/class_common.hpp"

namespace kestri {

// Codes of StartupState[1].
enum class StartMode : std::int32_t {
  None = 0,
  File = 100,
  NewDocumentWindow = 200,  // /SN
  FileList = 300,           // /SF
  UnknownSwitch = -1,
};

// The arguments joined by one blank, quotes around the whole taken off.
std::u16string RawCommandLine(std::span<char* const> arguments);

// Exactly "/?".
bool AsksForVersion(std::u16string_view line);

// A line that begins with "/" is a path when it exists or lies in an existing folder other than the root, and
// a switch otherwise.
StartMode ModeOf(std::u16string_view line, const ClassCommon& common);

// The text of the version box.
std::u16string VersionText(int major, int minor, int revision);

}  // namespace kestri
