#include "platform/posix/atomic_file.hpp"

#include <errno.h>
#include <fcntl.h>
#include <unistd.h>

#include "platform/posix/block_writer.hpp"
#include "platform/posix/file_traits.hpp"
#include "platform/posix/in_place_file.hpp"
#include "platform/posix/leftover_files.hpp"
#include "platform/posix/native_path.hpp"
#include "platform/posix/xdg_folders.hpp"

namespace kestri::posix {
namespace {

constexpr mode_t kNewFileMode = 0666;  // less the umask
constexpr mode_t kPrivateMode = 0600;

bool IsWritable(const std::string& path, const struct stat& status) {
  constexpr mode_t anyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
  return (status.st_mode & anyWriteBit) != 0 && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

// In a folder such as /tmp only the owner may rename over a file.
bool IsPinnedByFolder(const std::string& path, const struct stat& status) {
  struct stat folder {};
  if (::stat(FolderOf(path).c_str(), &folder) != 0 || (folder.st_mode & S_ISVTX) == 0) return false;
  const uid_t user = ::geteuid();
  return user != 0 && user != status.st_uid && user != folder.st_uid;
}

bool IsRefusal(int error) {
  return error == EACCES || error == EPERM || error == EROFS;
}

// A single file may be mounted at its place, as in a container; no other file gets there.
bool IsMountPoint(int error) {
  return error == EBUSY || error == EXDEV;
}

}  // namespace

bool AtomicFile::Replace(const std::string& path, const FileSystem::ByteProducer& producer) {
  const auto target = LinkTarget(path);
  if (!target) return false;
  struct stat status {};
  const struct stat* old = ::stat(target->c_str(), &status) == 0 ? &status : nullptr;
  if (old == nullptr && errno != ENOENT) return false;
  if (old != nullptr && (!S_ISREG(old->st_mode) || !IsWritable(*target, *old))) return false;

  overwriteMayHelp_ = old != nullptr;
  if (old == nullptr || (old->st_nlink == 1 && !IsPinnedByFolder(*target, *old))) {
    if (auto staging = StageForRename(*target, old)) {
      if (!Fill(*staging, producer)) return false;
      if (RenameOver(*staging, *target)) return true;
    }
  }
  if (!overwriteMayHelp_) return false;
  auto staging = StageForOverwrite(*target);
  return staging && Fill(*staging, producer) && WriteOver(*staging, *target);
}

std::optional<StagingFile> AtomicFile::StageForRename(const std::string& target, const struct stat* old) {
  const std::string folder = FolderOf(target);
  if (durability_ != Durability::Renamed) RemoveLeftovers(folder);
  auto opened = CreateHiddenFile(calls_, folder, old != nullptr || original_ ? kPrivateMode : kNewFileMode);
  if (!opened.file) {
    overwriteMayHelp_ = overwriteMayHelp_ && IsRefusal(opened.error);
    return std::nullopt;
  }
  if (old == nullptr) return std::move(opened.file);
  struct stat kept = *old;
  if (original_) kept.st_mode = S_IFREG | kPrivateMode;
  if (!KeepOwnerAndMode(calls_, opened.file->Get(), kept)) return std::nullopt;
  if (!original_) KeepAttributes(opened.file->Get(), target);
  return std::move(opened.file);
}

std::optional<StagingFile> AtomicFile::StageForOverwrite(const std::string& target) {
  const std::string name = NameOf(target);
  auto beside = CreateRecoveryFile(calls_, FolderOf(target), name);
  if (beside.file || !IsRefusal(beside.error)) return std::move(beside.file);
  MakeFolders(recoveryFolder_);
  return std::move(CreateRecoveryFile(calls_, recoveryFolder_, name).file);
}

bool AtomicFile::Fill(StagingFile& staging, const FileSystem::ByteProducer& producer) {
  BlockWriter writer(calls_, staging.Get());
  bool written = true;
  const bool produced =
      producer([&](std::string_view bytes) { return written = written && writer.Append(bytes); });
  if (!produced || !written || !writer.Flush()) return false;
  if (original_) GiveTraits(calls_, staging.Get(), *original_);
  return SyncContent(staging.Get());
}

bool AtomicFile::SyncContent(int file) {
  switch (durability_) {
    case Durability::Synced:
      return calls_.Sync(file) == 0;
    case Durability::Ordered:
      return calls_.SyncData(file) == 0;
    case Durability::Renamed:
      break;
  }
  return true;
}

bool AtomicFile::RenameOver(StagingFile& staging, const std::string& target) {
  const bool closed = staging.Close();
  if (!closed || calls_.Rename(staging.Path(), target) != 0) {
    overwriteMayHelp_ = overwriteMayHelp_ && closed && IsMountPoint(errno);
    return false;
  }
  staging.Release();
  // The new content already stands under the path, so a folder that cannot be synced is no failed save.
  if (durability_ == Durability::Synced) SyncFolder(FolderOf(target));
  return true;
}

bool AtomicFile::WriteOver(StagingFile& staging, const std::string& target) {
  if (durability_ == Durability::Renamed && calls_.Sync(staging.Get()) != 0) return false;
  if (!SyncFolder(FolderOf(staging.Path())) || !OverwriteInPlace(calls_, staging, target)) return false;
  if (original_) {
    const OpenFile written(calls_, calls_.Open(target, O_RDWR | O_NOFOLLOW, 0));
    if (written.IsOpen()) GiveTraits(calls_, written.Get(), *original_);
  }
  return true;
}

bool AtomicFile::SyncFolder(const std::string& folder) {
  const OpenFile opened(calls_, calls_.Open(folder, O_RDONLY | O_DIRECTORY, 0));
  if (!opened.IsOpen()) return errno == EACCES;
  return calls_.Sync(opened.Get()) == 0 || errno == EINVAL;
}

}  // namespace kestri::posix
