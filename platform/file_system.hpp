// Port: files and folders. Paths are UTF-16; a byte of a native name that is no UTF-8 travels as the lone
// surrogate U+DC00 + byte and is written back as that byte.
#pragma once

#include <cstdint>
#include <ctime>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestri {

// Attribute bits as the system's rules test them.
enum FileAttribute : std::uint32_t {
  kAttributeReadOnly = 1,
  kAttributeHidden = 2,
  kAttributeSystem = 4,
  kAttributeDirectory = 16,
  kAttributeArchive = 32,
};

struct FileStatus {
  std::uint32_t attributes = 0;
  std::uint64_t size = 0;                // bytes; 0 for a folder
  std::time_t modified = 0;              // seconds since 1970, UTC
  std::int32_t modifiedNanoseconds = 0;  // of that second; 0 where the volume keeps none
  std::uint64_t inode = 0;               // the file's number on its volume; 0 when unknown
};

// A folder within another one, as a folder tree needs it.
struct FolderEntry {
  std::u16string name;
  std::uint32_t attributes = 0;
};

// Held while one process changes a file that several share; released by the destructor.
class FileLock {
 public:
  virtual ~FileLock() = default;
};

class FileSystem {
 public:
  using ByteConsumer = std::function<bool(std::string_view)>;  // false stops the read
  using ByteProducer =
      std::function<bool(const ByteConsumer& write)>;  // calls write until done; may be asked twice

  virtual ~FileSystem() = default;

  // Follows symbolic links. Nothing when the path does not exist or cannot be looked at.
  virtual std::optional<FileStatus> Status(std::u16string_view path) = 0;

  // Reads the file from its start in pieces of at most 1 MiB. False when it cannot be opened or read.
  virtual bool Read(std::u16string_view path, const ByteConsumer& consumer) = 0;

  // Replaces or creates the file so that at every moment either the whole old or the whole new content stands
  // under the path: temporary file in the same folder, synced, renamed over. Mode and owner stay, symbolic
  // links are followed; a file with several hard links is written in place after a synced recovery copy
  // beside it. False on any error, with the old file whole.
  virtual bool Replace(std::u16string_view path, const ByteProducer& producer) = 0;

  // The same with less waiting, for files that are written often and must stay whole, such as settings: the
  // new content is on the disk before it takes the old one's place, but which of the two a power failure
  // leaves is open.
  virtual bool ReplaceOrdered(std::u16string_view path, const ByteProducer& producer) {
    return Replace(path, producer);
  }

  // The same without waiting for the disk: atomic for other processes and against a killed one. A power
  // failure may leave the old content, the new or, on some volumes, an empty file: only for what can be done
  // without.
  virtual bool ReplaceUnsynced(std::u16string_view path, const ByteProducer& producer) {
    return Replace(path, producer);
  }

  // Writes the bytes behind the file's end in one piece, as a log needs it that several processes write;
  // creates the file. On an error (a full disk) no part of the bytes stays, unless another program wrote
  // behind them.
  virtual bool Append(std::u16string_view path, std::string_view bytes) = 0;
  virtual bool Remove(std::u16string_view path) = 0;  // a file
  // One file, links followed; replaces or creates as Replace does. The copy gets the mode (without set-id
  // bits), the times and the access list of the original as far as the volume takes them, and is readable for
  // nobody but its owner until then. False for a file onto itself.
  virtual bool Copy(std::u16string_view from, std::u16string_view to) = 0;
  virtual bool CreateFolder(std::u16string_view path) = 0;          // one level
  virtual bool RemoveFolder(std::u16string_view) { return false; }  // an empty one
  // File or folder, within one volume. False when the new name is taken.
  virtual bool Rename(std::u16string_view, std::u16string_view) { return false; }
  virtual bool CreateLink(std::u16string_view target, std::u16string_view link) = 0;
  // What a symbolic link says, as CreateLink was given it; nothing for anything else.
  virtual std::optional<std::u16string> LinkText(std::u16string_view) { return std::nullopt; }
  // Absolute path without ".", ".." or links; empty when it does not exist.
  virtual std::u16string Canonical(std::u16string_view path) = 0;
  virtual std::vector<std::u16string> List(std::u16string_view folder) = 0;  // names, without "." and ".."
  // The folders in a folder, links to folders among them, in the volume's order; nothing when it cannot be
  // read.
  virtual std::vector<FolderEntry> Folders(std::u16string_view folder) {
    std::vector<FolderEntry> folders;
    for (std::u16string& name : List(folder)) {
      const auto status = Status(std::u16string(folder).append(u"/").append(name));
      const bool isFolder = status && (status->attributes & kAttributeDirectory) != 0;
      if (isFolder) folders.push_back({std::move(name), status->attributes});
    }
    return folders;
  }
  // Whether there is any; stops at the first one.
  virtual bool HasFolder(std::u16string_view folder) { return !Folders(folder).empty(); }
  // The names of what Folders leaves out; links to nothing are left out too.
  virtual std::vector<std::u16string> FileNames(std::u16string_view folder) {
    std::vector<std::u16string> names;
    for (std::u16string& name : List(folder)) {
      const auto status = Status(std::u16string(folder).append(u"/").append(name));
      const bool isFile = status && (status->attributes & kAttributeDirectory) == 0;
      if (isFile) names.push_back(std::move(name));
    }
    return names;
  }
  virtual std::uint64_t FolderSize(std::u16string_view folder) = 0;  // bytes, whole tree, links not followed

  // Waits until no other process or thread holds the lock of this path. Null when it cannot be locked; the
  // caller then goes on without.
  virtual std::unique_ptr<FileLock> Lock(std::u16string_view path) = 0;
};

}  // namespace kestri
