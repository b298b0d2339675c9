#include "document/indent.hpp"

#include "shell/common/text.hpp"

namespace kestri {
namespace {

bool IsIndent(char16_t unit) {
  return unit == u' ' || unit == kIdeographicSpace || unit == u'\t';
}

// Every line's head, the first one's too, has a line end in front of it while the block is worked on.
std::u16string ReplaceLineHeads(std::u16string_view block, std::u16string_view head,
                                std::u16string_view with) {
  std::u16string lines(kCrLf);
  lines += block;
  return Replace(lines, head, with).substr(kCrLf.size());
}

}  // namespace

Position IndentEnd(const EditControl& control, Position from, Position end) {
  while (from < end && IsIndent(control.At(from))) ++from;
  return from;
}

std::u16string IndentBlock(std::u16string_view block, std::u16string_view level) {
  return ReplaceLineHeads(block, kCrLf, std::u16string(kCrLf).append(level));
}

std::u16string UnindentBlock(std::u16string_view block, std::u16string_view level) {
  return ReplaceLineHeads(block, std::u16string(kCrLf).append(level), kCrLf);
}

}  // namespace kestri
