// System calls of which one, or every one from a number on, fails.
#pragma once

#include <errno.h>
#include <fcntl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/posix/native_path.hpp"
#include "platform/posix/posix_calls.hpp"

namespace kestri::fakes {

class FailingCalls : public posix::PosixCalls {
 public:
  enum class Spread { One, AllFrom };

  // number counts from 1; 0: none fails.
  explicit FailingCalls(int number = 0, Spread spread = Spread::One, int error = EIO)
      : number_(number), spread_(spread), error_(error) {}

  int Made() const { return made_; }
  // Creations in this folder are refused, as where the user may not write.
  void CloseFolder(std::string folder, int error) {
    closedFolder_ = std::move(folder);
    closedError_ = error;
  }
  // Nothing can be renamed over the file, as where it is a mount point of its own.
  void RefuseRenames(int error) { renameError_ = error; }
  // Writes hand over at most this many bytes a call.
  void LimitWrites(std::size_t bytes) { writeLimit_ = bytes; }
  std::vector<std::string> removed;

  int Open(const std::string& path, int flags, mode_t mode) override {
    if (Fails()) return -1;
    const bool creates = (flags & O_CREAT) != 0;
    if (creates && !closedFolder_.empty() && posix::FolderOf(path) == closedFolder_) {
      errno = closedError_;
      return -1;
    }
    return PosixCalls::Open(path, flags, mode);
  }
  ssize_t Read(int file, void* data, std::size_t size) override {
    return Fails() ? -1 : PosixCalls::Read(file, data, size);
  }
  // A failing write has half of its bytes written first, as on a disk that fills up.
  ssize_t Write(int file, const void* data, std::size_t size) override {
    if (Fails()) {
      if (PosixCalls::Write(file, data, size / 2) < 0) return -1;
      errno = error_;
      return -1;
    }
    return PosixCalls::Write(file, data, std::min(size, writeLimit_));
  }
  off_t Seek(int file, off_t position) override { return Fails() ? -1 : PosixCalls::Seek(file, position); }
  int Truncate(int file, off_t size) override { return Fails() ? -1 : PosixCalls::Truncate(file, size); }
  int Reserve(int file, off_t size) override { return Fails() ? -1 : PosixCalls::Reserve(file, size); }
  int Sync(int file) override { return Fails() ? -1 : PosixCalls::Sync(file); }
  int SyncData(int file) override { return Fails() ? -1 : PosixCalls::SyncData(file); }
  int Close(int file) override {
    const bool fails = Fails();
    const int result = PosixCalls::Close(file);
    if (fails) errno = error_;
    return fails ? -1 : result;
  }
  int ChangeOwner(int file, uid_t user, gid_t group) override {
    return Fails() ? -1 : PosixCalls::ChangeOwner(file, user, group);
  }
  int ChangeMode(int file, mode_t mode) override { return Fails() ? -1 : PosixCalls::ChangeMode(file, mode); }
  int Rename(const std::string& from, const std::string& to) override {
    if (Fails()) return -1;
    if (renameError_ == 0) return PosixCalls::Rename(from, to);
    errno = renameError_;
    return -1;
  }
  int Remove(const std::string& path) override {
    removed.push_back(path);
    return Fails() ? -1 : PosixCalls::Remove(path);
  }

 private:
  bool Fails() {
    ++made_;
    const bool fails = number_ > 0 && (spread_ == Spread::One ? made_ == number_ : made_ >= number_);
    if (fails) errno = error_;
    return fails;
  }

  int number_;
  Spread spread_;
  int error_;
  int made_ = 0;
  std::string closedFolder_;
  int closedError_ = 0;
  int renameError_ = 0;
  std::size_t writeLimit_ = static_cast<std::size_t>(-1);
};

}  // namespace kestri::fakes
