// The system calls that a save makes, one by one, so that a test can let any of them fail.
// Results and errno are those of the calls themselves.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>

namespace kestri::posix {

class PosixCalls {
 public:
  virtual ~PosixCalls() = default;

  virtual int Open(const std::string& path, int flags, mode_t mode);
  virtual ssize_t Read(int file, void* data, std::size_t size);
  virtual ssize_t Write(int file, const void* data, std::size_t size);
  virtual off_t Seek(int file, off_t position);
  virtual int Truncate(int file, off_t size);
  // Makes sure that the disk has room for that many bytes; the file's size stays.
  virtual int Reserve(int file, off_t size);
  virtual int Sync(int file);
  virtual int SyncData(int file);  // the content and what is needed to read it
  virtual int Close(int file);
  virtual int ChangeOwner(int file, uid_t user, gid_t group);
  virtual int ChangeMode(int file, mode_t mode);
  virtual int Rename(const std::string& from, const std::string& to);
  virtual int Remove(const std::string& path);
};

// A descriptor that is closed at the end of its scope.
class OpenFile {
 public:
  OpenFile(PosixCalls& calls, int file) : calls_(&calls), file_(file) {}
  OpenFile(OpenFile&& other) noexcept : calls_(other.calls_), file_(other.file_) { other.file_ = -1; }
  OpenFile& operator=(OpenFile&& other) noexcept;
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() { Close(); }

  bool IsOpen() const { return file_ >= 0; }
  int Get() const { return file_; }
  // False when the system reports a late write error.
  bool Close();

 private:
  PosixCalls* calls_;
  int file_;
};

}  // namespace kestri::posix
