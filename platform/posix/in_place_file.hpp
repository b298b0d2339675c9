// Writing new content into a file that must stay the same file.
#pragma once

#include <string>

#include "platform/posix/posix_calls.hpp"
#include "platform/posix/staging_file.hpp"

namespace kestri::posix {

// Copies the staged content over the target's. The staging file is the recovery copy: it is there, synced,
// until the target is, and stays when neither the new nor the old content could be written whole. False on
// any error, with the old content put back.
bool OverwriteInPlace(PosixCalls& calls, StagingFile& staging, const std::string& target);

}  // namespace kestri::posix
