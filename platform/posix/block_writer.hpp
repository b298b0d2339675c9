// Joins small pieces to blocks on their way into a file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/posix/posix_calls.hpp"

namespace kestri::posix {

bool WriteWhole(PosixCalls& calls, int file, std::string_view bytes);

class BlockWriter {
 public:
  BlockWriter(PosixCalls& calls, int file) : calls_(calls), file_(file) {}
  bool Append(std::string_view bytes);
  bool Flush();

 private:
  bool Write(std::string_view bytes);
  void StartWriteback();

  PosixCalls& calls_;
  int file_;
  std::string block_;
  std::size_t written_ = 0;
  std::size_t started_ = 0;
};

}  // namespace kestri::posix
