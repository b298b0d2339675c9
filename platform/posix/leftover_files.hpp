// Staging files of saves that were killed.
#pragma once

#include <cstddef>
#include <string>

namespace kestri::posix {

// A folder is looked through for at most this many entries.
inline constexpr std::size_t kMostEntriesLookedAt = 5000;

// Removes this user's staging files from the folder when they are older than a minute and no process, here or
// on another machine that shares the folder, holds their lock. Recovery copies stay. Failures do not matter.
void RemoveLeftovers(const std::string& folder);

}  // namespace kestri::posix
