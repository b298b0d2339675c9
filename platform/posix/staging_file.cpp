#include "platform/posix/staging_file.hpp"

#include <errno.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/random.h>

#include <cstdint>
#include <cstdio>

namespace kestri::posix {
namespace {

constexpr mode_t kPrivateMode = 0600;
constexpr int kMostNames = 100;
constexpr std::string_view kHiddenHead = ".kestrile-";
constexpr std::size_t kHiddenDigits = 16;

std::string HiddenName() {
  std::uint64_t number = 0;
  while (::getrandom(&number, sizeof number, 0) != sizeof number) {
  }
  char digits[kHiddenDigits + 1];
  std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(number));
  return std::string(kHiddenHead) + digits;
}

std::string RecoveryName(const std::string& name, int count) {
  constexpr std::size_t kLongestName = 255;
  const std::string tail = ".kestrile-recovery" + (count == 0 ? std::string() : std::to_string(count));
  return name.size() + tail.size() <= kLongestName ? name + tail : "long-name" + tail;
}

StagingResult Create(PosixCalls& calls, std::string path, mode_t mode) {
  const int file = calls.Open(path, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
  if (file < 0) return {std::nullopt, errno};
  return {StagingFile(calls, std::move(path), OpenFile(calls, file)), 0};
}

}  // namespace

void StagingFile::Remove() {
  if (!path_.empty()) calls_->Remove(path_);
  path_.clear();
}

StagingResult CreateHiddenFile(PosixCalls& calls, const std::string& folder, mode_t mode) {
  for (int count = 0;; ++count) {
    StagingResult opened = Create(calls, folder + "/" + HiddenName(), mode);
    if (opened.file) ::flock(opened.file->Get(), LOCK_EX | LOCK_NB);
    if (opened.error != EEXIST || count == kMostNames) return opened;
  }
}

bool IsHiddenFileName(std::string_view name) {
  return name.size() == kHiddenHead.size() + kHiddenDigits && name.starts_with(kHiddenHead) &&
         name.find_first_not_of("0123456789abcdef", kHiddenHead.size()) == name.npos;
}

StagingResult CreateRecoveryFile(PosixCalls& calls, const std::string& folder, const std::string& name) {
  for (int count = 0;; ++count) {
    StagingResult opened = Create(calls, folder + "/" + RecoveryName(name, count), kPrivateMode);
    if (opened.error != EEXIST || count == kMostNames) return opened;
  }
}

}  // namespace kestri::posix
