#include "platform/posix/posix_file_system.hpp"

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <exception>

#include "platform/posix/appended_bytes.hpp"
#include "platform/posix/file_locks.hpp"
#include "platform/posix/native_path.hpp"
#include "platform/posix/xdg_folders.hpp"

namespace kestri {

using posix::NativePath;
using posix::OpenFile;

namespace {

constexpr std::size_t kReadBlock = 256 * 1024;
constexpr std::chrono::seconds kLockPatience{5};

bool IsDotName(std::string_view name) {
  return name.starts_with('.') && name != "." && name != "..";
}

std::uint32_t AttributesOf(const std::string& path, const struct stat& status) {
  std::uint32_t attributes = 0;
  const bool isFolder = S_ISDIR(status.st_mode);
  if (isFolder) attributes |= kAttributeDirectory;
  const bool denied = !isFolder && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0;
  if ((status.st_mode & S_IWUSR) == 0 || denied) attributes |= kAttributeReadOnly;
  if (IsDotName(posix::NameOf(path))) attributes |= kAttributeHidden;
  return attributes;
}

// The open regular file and its size; not open for anything else. A pipe is not waited for.
struct Readable {
  OpenFile file;
  std::size_t size = 0;
};

Readable OpenRegular(posix::PosixCalls& calls, const std::string& path, int flags, mode_t mode) {
  OpenFile file(calls, ::open(path.c_str(), flags | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, mode));
  struct stat status {};
  const bool isRegular = file.IsOpen() && ::fstat(file.Get(), &status) == 0 && S_ISREG(status.st_mode);
  if (!isRegular) file.Close();
  return {std::move(file), static_cast<std::size_t>(status.st_size)};
}

bool ReadPieces(int file, std::size_t size, const FileSystem::ByteConsumer& consumer) {
  const std::size_t capacity = std::clamp<std::size_t>(size + 1, 4096, kReadBlock);
  const std::unique_ptr<char[]> block(new char[capacity]);
  while (true) {
    const ssize_t count = ::read(file, block.get(), capacity);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return count == 0;
    if (!consumer({block.get(), static_cast<std::size_t>(count)})) return true;
  }
}

using OpenFolder = std::unique_ptr<DIR, int (*)(DIR*)>;

// Until visit(folder, entry) is false. Nothing is visited when the folder cannot be read.
template <typename Visit>
void ForEachEntry(const std::string& folder, const Visit& visit) {
  const OpenFolder opened(::opendir(folder.c_str()), &::closedir);
  if (!opened) return;
  while (const dirent* entry = ::readdir(opened.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != ".." && !visit(::dirfd(opened.get()), *entry)) return;
  }
}

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  ForEachEntry(folder, [&names](int, const dirent& entry) {
    names.emplace_back(entry.d_name);
    return true;
  });
  return names;
}

// What an entry is, links followed. Asks the volume only where the folder does not tell.
enum class EntryKind { Folder, File, Nothing };
EntryKind KindOf(int folder, const dirent& entry) {
  if (entry.d_type == DT_DIR) return EntryKind::Folder;
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return EntryKind::File;
  struct stat status {};
  if (::fstatat(folder, entry.d_name, &status, 0) != 0) return EntryKind::Nothing;
  return S_ISDIR(status.st_mode) ? EntryKind::Folder : EntryKind::File;
}

std::uint32_t FolderAttributes(int folder, const dirent& entry) {
  struct stat status {};
  std::uint32_t attributes = kAttributeDirectory;
  const bool known = ::fstatat(folder, entry.d_name, &status, 0) == 0;
  if (known && (status.st_mode & S_IWUSR) == 0) attributes |= kAttributeReadOnly;
  if (IsDotName(entry.d_name)) attributes |= kAttributeHidden;
  return attributes;
}

std::uint64_t TreeSize(const std::string& folder) {
  std::uint64_t total = 0;
  for (const std::string& name : NamesIn(folder)) {
    const std::string path = folder + "/" + name;
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) continue;
    if (S_ISDIR(status.st_mode)) total += TreeSize(path);
    if (S_ISREG(status.st_mode)) total += static_cast<std::uint64_t>(status.st_size);
  }
  return total;
}

std::string CanonicalNative(const std::string& path) {
  const std::unique_ptr<char, void (*)(void*)> resolved(::realpath(path.c_str(), nullptr), &::free);
  return resolved ? std::string(resolved.get()) : std::string();
}

// One text for one file, also while the file does not exist yet.
std::string LockKey(const std::string& path) {
  const std::string target = posix::LinkTarget(path).value_or(path);
  if (std::string whole = CanonicalNative(target); !whole.empty()) return whole;
  return CanonicalNative(posix::FolderOf(target)) + "/" + posix::NameOf(target);
}

std::string RecoveryFolder() {
  return posix::StateFolder() + "/recovery";
}

std::string LockFolder() {
  const char* runtime = ::getenv("XDG_RUNTIME_DIR");
  if (runtime != nullptr && runtime[0] == '/') {
    std::string folder = std::string(runtime) + "/kestrile/locks";
    if (posix::MakeFolders(folder)) return folder;
  }
  return posix::StateFolder() + "/locks";
}

}  // namespace

std::optional<FileStatus> PosixFileSystem::Status(std::u16string_view path) {
  const auto native = NativePath(path);
  struct stat status {};
  if (!native || ::stat(native->c_str(), &status) != 0) return std::nullopt;
  FileStatus result;
  result.attributes = AttributesOf(*native, status);
  result.size = S_ISREG(status.st_mode) ? static_cast<std::uint64_t>(status.st_size) : 0;
  result.modified = status.st_mtim.tv_sec;
  result.modifiedNanoseconds = static_cast<std::int32_t>(status.st_mtim.tv_nsec);
  result.inode = status.st_ino;
  return result;
}

bool PosixFileSystem::Read(std::u16string_view path, const ByteConsumer& consumer) {
  const auto native = NativePath(path);
  if (!native) return false;
  const Readable readable = OpenRegular(calls_, *native, O_RDONLY, 0);
  if (!readable.file.IsOpen()) return false;
  ::posix_fadvise(readable.file.Get(), 0, 0, POSIX_FADV_SEQUENTIAL);
  return ReadPieces(readable.file.Get(), readable.size, consumer);
}

bool PosixFileSystem::Replace(std::u16string_view path, const ByteProducer& producer) {
  return ReplaceWith(path, producer, posix::Durability::Synced);
}

bool PosixFileSystem::ReplaceOrdered(std::u16string_view path, const ByteProducer& producer) {
  return ReplaceWith(path, producer, posix::Durability::Ordered);
}

bool PosixFileSystem::ReplaceUnsynced(std::u16string_view path, const ByteProducer& producer) {
  return ReplaceWith(path, producer, posix::Durability::Renamed);
}

bool PosixFileSystem::ReplaceWith(std::u16string_view path, const ByteProducer& producer,
                                  posix::Durability durability) try {
  const auto native = NativePath(path);
  if (!native) return false;
  posix::AtomicFile file(calls_, RecoveryFolder(), durability);
  return file.Replace(*native, producer);
} catch (const std::exception&) {
  return false;
}

bool PosixFileSystem::Append(std::u16string_view path, std::string_view bytes) {
  const auto native = NativePath(path);
  if (!native) return false;
  const auto lock = Lock(path);
  const Readable opened = OpenRegular(calls_, *native, O_RDWR | O_APPEND | O_CREAT, 0666);
  return opened.file.IsOpen() &&
         posix::AppendBytes(calls_, opened.file.Get(), static_cast<off_t>(opened.size), bytes);
}

bool PosixFileSystem::Remove(std::u16string_view path) {
  const auto native = NativePath(path);
  return native && ::unlink(native->c_str()) == 0;
}

bool PosixFileSystem::Copy(std::u16string_view from, std::u16string_view to) try {
  const auto source = NativePath(from);
  const auto target = NativePath(to);
  struct stat status {};
  if (!source || !target || ::stat(source->c_str(), &status) != 0) return false;
  const std::string same = CanonicalNative(*source);
  if (!same.empty() && same == CanonicalNative(*target)) return false;
  posix::AtomicFile file(calls_, RecoveryFolder(), posix::Durability::Synced);
  file.TakeTraitsOf(*source, status);
  return file.Replace(*target, [&](const ByteConsumer& write) {
    bool accepted = true;
    const bool read = Read(from, [&](std::string_view bytes) { return accepted = write(bytes); });
    return read && accepted;
  });
} catch (const std::exception&) {
  return false;
}

bool PosixFileSystem::CreateFolder(std::u16string_view path) {
  const auto native = NativePath(path);
  return native && ::mkdir(native->c_str(), 0777) == 0;
}

bool PosixFileSystem::RemoveFolder(std::u16string_view path) {
  const auto native = NativePath(path);
  return native && ::rmdir(native->c_str()) == 0;
}

bool PosixFileSystem::Rename(std::u16string_view from, std::u16string_view to) {
  const auto source = NativePath(from);
  const auto target = NativePath(to);
  if (!source || !target) return false;
  if (::renameat2(AT_FDCWD, source->c_str(), AT_FDCWD, target->c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL && errno != ENOSYS) return false;
  struct stat status {};
  return ::lstat(target->c_str(), &status) != 0 && ::rename(source->c_str(), target->c_str()) == 0;
}

bool PosixFileSystem::CreateLink(std::u16string_view target, std::u16string_view link) {
  const auto nativeTarget = NativePath(target);
  const auto nativeLink = NativePath(link);
  return nativeTarget && nativeLink && ::symlink(nativeTarget->c_str(), nativeLink->c_str()) == 0;
}

std::optional<std::u16string> PosixFileSystem::LinkText(std::u16string_view path) {
  const auto native = NativePath(path);
  if (!native) return std::nullopt;
  std::array<char, PATH_MAX> buffer;
  const ssize_t length = ::readlink(native->c_str(), buffer.data(), buffer.size());
  if (length <= 0 || length == static_cast<ssize_t>(buffer.size())) return std::nullopt;
  return posix::PathText({buffer.data(), static_cast<std::size_t>(length)});
}

std::u16string PosixFileSystem::Canonical(std::u16string_view path) {
  const auto native = NativePath(path);
  return native ? posix::PathText(CanonicalNative(*native)) : std::u16string();
}

std::vector<std::u16string> PosixFileSystem::List(std::u16string_view folder) {
  std::vector<std::u16string> names;
  const auto native = NativePath(folder);
  if (!native) return names;
  for (const std::string& name : NamesIn(*native)) names.push_back(posix::PathText(name));
  return names;
}

std::vector<FolderEntry> PosixFileSystem::Folders(std::u16string_view folder) {
  std::vector<FolderEntry> folders;
  const auto native = NativePath(folder);
  if (!native) return folders;
  ForEachEntry(*native, [&folders](int in, const dirent& entry) {
    if (KindOf(in, entry) == EntryKind::Folder)
      folders.push_back({posix::PathText(entry.d_name), FolderAttributes(in, entry)});
    return true;
  });
  return folders;
}

bool PosixFileSystem::HasFolder(std::u16string_view folder) {
  const auto native = NativePath(folder);
  bool found = false;
  if (!native) return found;
  ForEachEntry(*native, [&found](int in, const dirent& entry) {
    found = KindOf(in, entry) == EntryKind::Folder;
    return !found;
  });
  return found;
}

std::vector<std::u16string> PosixFileSystem::FileNames(std::u16string_view folder) {
  std::vector<std::u16string> names;
  const auto native = NativePath(folder);
  if (!native) return names;
  ForEachEntry(*native, [&names](int in, const dirent& entry) {
    if (KindOf(in, entry) == EntryKind::File) names.push_back(posix::PathText(entry.d_name));
    return true;
  });
  return names;
}

std::uint64_t PosixFileSystem::FolderSize(std::u16string_view folder) {
  const auto native = NativePath(folder);
  return native ? TreeSize(*native) : 0;
}

std::unique_ptr<FileLock> PosixFileSystem::Lock(std::u16string_view path) {
  const auto native = NativePath(path);
  const std::string folder = LockFolder();
  if (!native || !posix::MakeFolders(folder)) return nullptr;
  return posix::LockByKey(folder, LockKey(*native), kLockPatience);
}

}  // namespace kestri
