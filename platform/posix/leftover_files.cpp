#include "platform/posix/leftover_files.hpp"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <memory>

#include "platform/posix/staging_file.hpp"

namespace kestri::posix {
namespace {

constexpr std::time_t kLeastAge = 60;  // seconds

bool IsOwnAndOld(const struct stat& status) {
  return S_ISREG(status.st_mode) && status.st_uid == ::geteuid() && status.st_nlink == 1 &&
         status.st_mtim.tv_sec < std::time(nullptr) - kLeastAge;
}

bool IsForsaken(int file) {
  struct stat status {};
  return ::fstat(file, &status) == 0 && IsOwnAndOld(status) && ::flock(file, LOCK_EX | LOCK_NB) == 0;
}

void RemoveIfForsaken(int folder, const char* name) {
  const int file = ::openat(folder, name, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (file < 0) return;
  if (IsForsaken(file)) ::unlinkat(folder, name, 0);
  ::close(file);
}

}  // namespace

void RemoveLeftovers(const std::string& folder) {
  const std::unique_ptr<DIR, int (*)(DIR*)> opened(::opendir(folder.c_str()), &::closedir);
  if (!opened) return;
  for (std::size_t count = 0; count < kMostEntriesLookedAt; ++count) {
    const dirent* entry = ::readdir(opened.get());
    if (entry == nullptr) return;
    if (IsHiddenFileName(entry->d_name)) RemoveIfForsaken(::dirfd(opened.get()), entry->d_name);
  }
}

}  // namespace kestri::posix
