#include "document/indent.hpp"

#include "shell/common/text.hpp"
#include "shell/common/unit_search.hpp"

namespace kestri {
namespace {

bool IsIndent(char16_t unit) {
  return unit == u' ' || unit == kIdeographicSpace || unit == u'\t';
}

// Calls work with each line of the block, its line end included.
template <typename Work>
void ForEachLine(std::u16string_view block, Work work) {
  for (std::size_t from = 0; from <= block.size();) {
    const std::size_t end = unit_search::Find(block, kCrLf, from);
    const std::size_t next = end == block.npos ? block.size() : end + kCrLf.size();
    work(block.substr(from, next - from));
    if (end == block.npos) return;
    from = next;
  }
}

}  // namespace

Position IndentEnd(const EditControl& control, Position from, Position end) {
  while (from < end && IsIndent(control.At(from))) ++from;
  return from;
}

std::u16string IndentBlock(std::u16string_view block, std::u16string_view level) {
  std::size_t lines = 0;
  ForEachLine(block, [&lines](std::u16string_view) { ++lines; });
  std::u16string result;
  result.reserve(block.size() + lines * level.size());
  ForEachLine(block, [&](std::u16string_view line) { result.append(level).append(line); });
  return result;
}

std::u16string UnindentBlock(std::u16string_view block, std::u16string_view level) {
  std::u16string result;
  result.reserve(block.size());
  ForEachLine(block, [&](std::u16string_view line) {
    if (!level.empty() && line.starts_with(level)) line.remove_prefix(level.size());
    result.append(line);
  });
  return result;
}

}  // namespace kestri
