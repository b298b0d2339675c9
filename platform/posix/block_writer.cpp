#include "platform/posix/block_writer.hpp"

#include <errno.h>
#include <fcntl.h>

namespace kestri::posix {
namespace {

constexpr std::size_t kBlock = 256 * 1024;
constexpr std::size_t kWritebackStep = 8 * 1024 * 1024;

}  // namespace

bool WriteWhole(PosixCalls& calls, int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = calls.Write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool BlockWriter::Append(std::string_view bytes) {
  if (block_.size() + bytes.size() >= kBlock && !Flush()) return false;
  if (bytes.size() >= kBlock) return Write(bytes);
  block_.append(bytes);
  return true;
}

bool BlockWriter::Flush() {
  const bool written = Write(block_);
  block_.clear();
  return written;
}

bool BlockWriter::Write(std::string_view bytes) {
  if (!WriteWhole(calls_, file_, bytes)) return false;
  written_ += bytes.size();
  if (written_ - started_ >= kWritebackStep) StartWriteback();
  return true;
}

// The disk works while the next pieces are made, so that the final sync has less to wait for.
void BlockWriter::StartWriteback() {
  ::sync_file_range(file_, static_cast<off_t>(started_), static_cast<off_t>(written_ - started_),
                    SYNC_FILE_RANGE_WRITE);
  started_ = written_;
}

}  // namespace kestri::posix
