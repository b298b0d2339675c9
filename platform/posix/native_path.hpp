// Paths between the program's UTF-16 and the system's bytes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kestri::posix {

// Nothing for an empty path and for one that holds a NUL, which the system would cut to another path.
std::optional<std::string> NativePath(std::u16string_view path);

std::u16string PathText(std::string_view path);

// Folder part of a native path: "/" for "/a", "." for "a".
std::string FolderOf(const std::string& path);

// Name behind the last "/".
std::string NameOf(const std::string& path);

// The file that a write to the path reaches: symbolic links of the last component followed, also to a target
// that does not exist yet. Nothing when the links run in a circle.
std::optional<std::string> LinkTarget(std::string path);

}  // namespace kestri::posix
