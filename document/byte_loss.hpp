// Bytes of a file that its text cannot give back.
#pragma once

#include <string_view>

#include "platform/file_system.hpp"

namespace kestri {

enum class ByteLoss {
  None,
  Unreadable,  // some bytes are no characters of the code page and stand as "・"
  Utf8,        // the file is UTF-8 as it looks, and some of its bytes would be written as others
};

// The text is what the file was read as. Reads the file again only where that can tell something.
ByteLoss ByteLossOf(FileSystem& files, std::u16string_view path, std::u16string_view text);

}  // namespace kestri
