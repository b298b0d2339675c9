// What a file keeps when its content is replaced: owner, group, mode, and extended attributes with the access
// list.
#pragma once

#include <sys/stat.h>

#include <string>

#include "platform/posix/posix_calls.hpp"

namespace kestri::posix {

// False when the new file cannot be given the old one's owner, group and mode.
bool KeepOwnerAndMode(PosixCalls& calls, int file, const struct stat& old);

// A file that is copied.
struct Original {
  std::string path;
  struct stat status {};
};

// Gives a copy the original's mode without the set-id bits, its attributes and its times. Best effort: on a
// volume without modes the copy is no worse for it.
void GiveTraits(PosixCalls& calls, int copy, const Original& original);

// Best effort: a volume without attributes is no reason to refuse a save.
void KeepAttributes(int file, const std::string& oldPath);

}  // namespace kestri::posix
