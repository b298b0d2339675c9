#include "platform/posix/appended_bytes.hpp"

#include <unistd.h>

#include <string>

#include "platform/posix/block_writer.hpp"

namespace kestri::posix {
namespace {

// True when only the beginning of the bytes stands behind the end.
bool HoldsOnlyAPart(int file, off_t end, std::string_view bytes) {
  std::string tail(bytes.size() + 1, '\0');
  const ssize_t count = ::pread(file, tail.data(), tail.size(), end);
  return count > 0 && bytes.starts_with(std::string_view(tail).substr(0, static_cast<std::size_t>(count)));
}

}  // namespace

bool AppendBytes(PosixCalls& calls, int file, off_t end, std::string_view bytes) {
  if (WriteWhole(calls, file, bytes)) return true;
  if (HoldsOnlyAPart(file, end, bytes)) calls.Truncate(file, end);
  return false;
}

}  // namespace kestri::posix
