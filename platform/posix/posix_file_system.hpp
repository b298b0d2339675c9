// The file port on POSIX system calls.
//
// A save that finds the folder closed to new files but the file itself open writes in place, with the
// recovery copy in $XDG_STATE_HOME/kestrile/recovery. Pipes, devices and folders are neither read nor
// written.
#pragma once

#include "platform/file_system.hpp"
#include "platform/posix/atomic_file.hpp"
#include "platform/posix/posix_calls.hpp"

namespace kestri {

class PosixFileSystem : public FileSystem {
 public:
  PosixFileSystem() : calls_(ownCalls_) {}
  // For tests: the calls that a save makes.
  explicit PosixFileSystem(posix::PosixCalls& calls) : calls_(calls) {}

  std::optional<FileStatus> Status(std::u16string_view path) override;
  bool Read(std::u16string_view path, const ByteConsumer& consumer) override;
  bool Replace(std::u16string_view path, const ByteProducer& producer) override;
  bool ReplaceOrdered(std::u16string_view path, const ByteProducer& producer) override;
  bool ReplaceUnsynced(std::u16string_view path, const ByteProducer& producer) override;
  bool Append(std::u16string_view path, std::string_view bytes) override;
  bool Remove(std::u16string_view path) override;
  bool Copy(std::u16string_view from, std::u16string_view to) override;
  bool CreateFolder(std::u16string_view path) override;
  bool RemoveFolder(std::u16string_view path) override;
  bool Rename(std::u16string_view from, std::u16string_view to) override;
  bool CreateLink(std::u16string_view target, std::u16string_view link) override;
  std::optional<std::u16string> LinkText(std::u16string_view path) override;
  std::u16string Canonical(std::u16string_view path) override;
  std::vector<std::u16string> List(std::u16string_view folder) override;
  std::vector<FolderEntry> Folders(std::u16string_view folder) override;
  bool HasFolder(std::u16string_view folder) override;
  std::vector<std::u16string> FileNames(std::u16string_view folder) override;
  std::uint64_t FolderSize(std::u16string_view folder) override;
  // Lock files live in $XDG_RUNTIME_DIR/kestrile/locks or, without that, in $XDG_STATE_HOME/kestrile/locks.
  // Waits at most five seconds.
  std::unique_ptr<FileLock> Lock(std::u16string_view path) override;

 private:
  bool ReplaceWith(std::u16string_view path, const ByteProducer& producer, posix::Durability durability);

  posix::PosixCalls ownCalls_;
  posix::PosixCalls& calls_;
};

}  // namespace kestri
