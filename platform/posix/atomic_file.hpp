// Replacing a file's content without ever losing it.
//
// The new content goes to a hidden staging file in the same folder, is synced, and is renamed over the old
// file. Where a rename would break something or is refused - the file has several hard links, its owner or
// mode cannot be kept, its folder takes no new files, the file is a mount point - the content is first synced
// to a recovery copy named
// "<name>.kestrile-recovery" (beside the file or, when the folder takes none, in the recovery folder) and
// then written into the old file. A failure half way puts the old content back; a process killed half way
// leaves the recovery copy with the whole new content.
//
// No staging file is ever open to more users than the file it becomes. What killed saves left in the folder
// is cleared away by the next one that waits for the disk.
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

#include "platform/file_system.hpp"
#include "platform/posix/file_traits.hpp"
#include "platform/posix/posix_calls.hpp"
#include "platform/posix/staging_file.hpp"

namespace kestri::posix {

enum class Durability {
  Synced,   // on the disk when the call returns
  Ordered,  // the new content is on the disk before it takes the old one's place
  Renamed,  // whole for every reader, on the disk when the system sees fit
};

class AtomicFile {
 public:
  AtomicFile(PosixCalls& calls, std::string recoveryFolder, Durability durability)
      : calls_(calls), recoveryFolder_(std::move(recoveryFolder)), durability_(durability) {}

  // The new content comes from this file and gets its mode, times and access list as far as possible.
  void TakeTraitsOf(std::string path, const struct stat& status) { original_ = {std::move(path), status}; }

  // False on any error, with the old content whole. Only regular files that can be written are replaced.
  bool Replace(const std::string& path, const FileSystem::ByteProducer& producer);

 private:
  // Each is nothing when the way is closed to this file or anything fails; overwriteMayHelp_ tells which.
  std::optional<StagingFile> StageForRename(const std::string& target, const struct stat* old);
  std::optional<StagingFile> StageForOverwrite(const std::string& target);

  bool Fill(StagingFile& staging, const FileSystem::ByteProducer& producer);
  bool RenameOver(StagingFile& staging, const std::string& target);
  bool WriteOver(StagingFile& staging, const std::string& target);
  bool SyncContent(int file);
  bool SyncFolder(const std::string& folder);

  PosixCalls& calls_;
  std::string recoveryFolder_;  // made when needed
  Durability durability_;
  std::optional<Original> original_;
  bool overwriteMayHelp_ = false;
};

}  // namespace kestri::posix
