#include "platform/posix/file_locks.hpp"

#include <errno.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <thread>

namespace kestri::posix {
namespace {

class HeldLock : public FileLock {
 public:
  explicit HeldLock(int file) : file_(file) {}
  HeldLock(const HeldLock&) = delete;
  HeldLock& operator=(const HeldLock&) = delete;
  ~HeldLock() override { ::close(file_); }

 private:
  int file_;
};

// FNV-1a: the name must be the same in every process and build.
std::string LockName(std::string_view key) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char byte : key) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3u;
  char name[24];
  std::snprintf(name, sizeof name, "%016llx", static_cast<unsigned long long>(hash));
  return name;
}

}  // namespace

std::unique_ptr<FileLock> LockByKey(const std::string& folder, const std::string& key,
                                    std::chrono::milliseconds patience) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::microseconds kLongestPause{2000};
  const std::string path = folder + "/" + LockName(key);
  const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (file < 0) return nullptr;
  const auto end = Clock::now() + patience;
  std::chrono::microseconds pause{50};
  while (::flock(file, LOCK_EX | LOCK_NB) != 0) {
    const bool wait = (errno == EWOULDBLOCK || errno == EINTR) && Clock::now() < end;
    if (!wait) {
      ::close(file);
      return nullptr;
    }
    std::this_thread::sleep_for(pause);
    pause = std::min(pause * 2, kLongestPause);
  }
  return std::make_unique<HeldLock>(file);
}

}  // namespace kestri::posix
