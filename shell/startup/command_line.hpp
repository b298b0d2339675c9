// The process's command line: one path, or one switch.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "shell/common/class_common.hpp"

namespace kestri {

// Switches that open another window than the editor's. Case-sensitive, each with one blank and an argument.
enum class WindowSwitch {
  None,
  ImageSlides,      // "/SL "
  ImageConversion,  // "/CI "
  Compile,          // "/CL "
  Unpack,           // "/DA "
  Pack,             // "/AC "
};

// Codes of StartupState[1].
enum class StartMode : std::int32_t {
  None = 0,
  File = 100,
  NewDocumentWindow = 200,  // /SN
  FileList = 300,           // /SF
  UnknownSwitch = -1,
};

// The arguments joined by one blank.
std::u16string RawCommandLine(std::span<char* const> arguments);

// By the first four characters of the raw line. A line that is a path as a whole is no switch.
WindowSwitch WindowSwitchOf(std::u16string_view rawLine, const ClassCommon& common);

// Everything behind the four characters, trimmed, without the quotes around it.
std::u16string SwitchArgument(std::u16string_view rawLine);

// Trimmed, then one enclosing pair of double quotes taken off.
std::u16string WithoutQuotes(std::u16string_view text);

// A line that begins with "/" is a path when it exists or lies in an existing folder other than the root, and
// a switch otherwise.

// Exactly "/?".
bool AsksForVersion(std::u16string_view line, const ClassCommon& common);

StartMode ModeOf(std::u16string_view line, const ClassCommon& common);

// The text of the version box.
std::u16string VersionText(int major, int minor, int revision);

}  // namespace kestri
