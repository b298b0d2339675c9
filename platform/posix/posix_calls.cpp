#include "platform/posix/posix_calls.hpp"

#include <errno.h>
#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>
#include <unistd.h>

#include <utility>

namespace kestri::posix {

int PosixCalls::Open(const std::string& path, int flags, mode_t mode) {
  return ::open(path.c_str(), flags | O_CLOEXEC, mode);
}

ssize_t PosixCalls::Read(int file, void* data, std::size_t size) {
  return ::read(file, data, size);
}

ssize_t PosixCalls::Write(int file, const void* data, std::size_t size) {
  return ::write(file, data, size);
}

off_t PosixCalls::Seek(int file, off_t position) {
  return ::lseek(file, position, SEEK_SET);
}

int PosixCalls::Truncate(int file, off_t size) {
  return ::ftruncate(file, size);
}

int PosixCalls::Reserve(int file, off_t size) {
  if (size == 0 || ::fallocate(file, FALLOC_FL_KEEP_SIZE, 0, size) == 0) return 0;
  return errno == ENOSPC || errno == EDQUOT ? -1 : 0;
}

int PosixCalls::Sync(int file) {
  return ::fsync(file);
}

int PosixCalls::SyncData(int file) {
  return ::fdatasync(file);
}

int PosixCalls::Close(int file) {
  return ::close(file);
}

int PosixCalls::ChangeOwner(int file, uid_t user, gid_t group) {
  return ::fchown(file, user, group);
}

int PosixCalls::ChangeMode(int file, mode_t mode) {
  return ::fchmod(file, mode);
}

int PosixCalls::Rename(const std::string& from, const std::string& to) {
  return ::rename(from.c_str(), to.c_str());
}

int PosixCalls::Remove(const std::string& path) {
  return ::unlink(path.c_str());
}

OpenFile& OpenFile::operator=(OpenFile&& other) noexcept {
  std::swap(calls_, other.calls_);
  std::swap(file_, other.file_);
  return *this;
}

bool OpenFile::Close() {
  return file_ < 0 || calls_->Close(std::exchange(file_, -1)) == 0;
}

}  // namespace kestri::posix
