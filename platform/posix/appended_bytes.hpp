// Bytes at the end of a file that several processes write to.
#pragma once

#include <string_view>

#include "platform/posix/posix_calls.hpp"

namespace kestri::posix {

// Writes the bytes behind the end of a file that was opened for reading and appending. On an error the part
// that was written is taken back, but only while nothing else stands behind the old end. The caller holds the
// file's lock, so that no other process of this program writes meanwhile.
bool AppendBytes(PosixCalls& calls, int file, off_t end, std::string_view bytes);

}  // namespace kestri::posix
