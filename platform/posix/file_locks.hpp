// Advisory locks between processes and threads. The lock files live in a folder of their own, so that none is
// left beside the user's documents.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "platform/file_system.hpp"

namespace kestri::posix {

// key names the thing to lock: the same text, the same lock. Null when it cannot be had within the time.
std::unique_ptr<FileLock> LockByKey(const std::string& folder, const std::string& key,
                                    std::chrono::milliseconds patience);

}  // namespace kestri::posix
