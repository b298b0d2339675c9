// Where things are in the text: zero-based UTF-16 indices.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace kestri {

using Position = std::int32_t;

// Units that a text may have: positions and their sums stay far from their type's end.
inline constexpr std::size_t kLongestText = std::size_t{1} << 30;

struct Selection {
  Position anchor = 0;
  Position caret = 0;

  Position Start() const { return std::min(anchor, caret); }
  Position End() const { return std::max(anchor, caret); }
  bool Empty() const { return anchor == caret; }
  bool operator==(const Selection&) const = default;
};

}  // namespace kestri
