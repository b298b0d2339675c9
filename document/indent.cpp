#include "document/indent.hpp"

#include <algorithm>

#include "shell/common/text.hpp"

namespace kestri {
namespace {

bool IsIndent(char16_t unit) {
  return unit == u' ' || unit == kIdeographicSpace || unit == u'\t';
}

// Calls work with each line of the block, its line end included.
template <typename Work>
void ForEachLine(std::u16string_view block, Work work) {
  std::size_t from = 0;
  for (std::size_t at = 1; at < block.size(); ++at) {
    if (block[at] != u'\n' || block[at - 1] != u'\r') continue;
    work(block.substr(from, at + 1 - from));
    from = at + 1;
  }
  work(block.substr(from));
}

}  // namespace

Position IndentEnd(const EditControl& control, Position from, Position end) {
  while (from < end && IsIndent(control.At(from))) ++from;
  return from;
}

std::u16string IndentBlock(std::u16string_view block, std::u16string_view level) {
  std::size_t lines = 0;
  ForEachLine(block, [&lines](std::u16string_view) { ++lines; });
  std::u16string result(block.size() + lines * level.size(), u'\0');
  auto out = result.begin();
  ForEachLine(block, [&](std::u16string_view line) {
    out = std::copy(line.begin(), line.end(), std::copy(level.begin(), level.end(), out));
  });
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
