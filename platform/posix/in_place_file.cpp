#include "platform/posix/in_place_file.hpp"

#include <errno.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <memory>
#include <optional>

#include "platform/posix/block_writer.hpp"
#include "platform/posix/native_path.hpp"

namespace kestri::posix {
namespace {

constexpr std::size_t kBlock = 256 * 1024;

std::optional<off_t> SizeOf(int file) {
  struct stat status {};
  if (::fstat(file, &status) != 0) return std::nullopt;
  return status.st_size;
}

bool CopyAll(PosixCalls& calls, int from, int to) {
  if (calls.Seek(from, 0) != 0 || calls.Seek(to, 0) != 0) return false;
  const std::unique_ptr<char[]> block(new char[kBlock]);
  while (true) {
    const ssize_t count = calls.Read(from, block.get(), kBlock);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return count == 0;
    if (!WriteWhole(calls, to, {block.get(), static_cast<std::size_t>(count)})) return false;
  }
}

bool Overwrite(PosixCalls& calls, int from, off_t size, int to) {
  return CopyAll(calls, from, to) && calls.Truncate(to, size) == 0 && calls.Sync(to) == 0;
}

// The old content in a file without a name, for putting it back.
std::optional<StagingFile> KeepOldContent(PosixCalls& calls, int target, const std::string& folder) {
  constexpr mode_t kPrivateMode = 0600;
  auto kept = std::move(CreateHiddenFile(calls, folder, kPrivateMode).file);
  if (!kept) return std::nullopt;
  kept->Remove();
  if (!CopyAll(calls, target, kept->Get())) return std::nullopt;
  return kept;
}

}  // namespace

bool OverwriteInPlace(PosixCalls& calls, StagingFile& staging, const std::string& target) {
  const OpenFile file(calls, calls.Open(target, O_RDWR | O_NOFOLLOW, 0));
  if (!file.IsOpen()) return false;
  const auto oldSize = SizeOf(file.Get());
  const auto newSize = SizeOf(staging.Get());
  if (!oldSize || !newSize) return false;
  const auto old = KeepOldContent(calls, file.Get(), FolderOf(staging.Path()));
  if (!old) return false;
  if (calls.Reserve(file.Get(), *newSize) == 0 && Overwrite(calls, staging.Get(), *newSize, file.Get())) {
    return true;
  }
  if (!Overwrite(calls, old->Get(), *oldSize, file.Get())) staging.Release();
  return false;
}

}  // namespace kestri::posix
