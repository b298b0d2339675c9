// Searches in the buffer as it stands, hits across the gap included.
#pragma once

#include <string_view>

#include "document/edit_control/gap_buffer.hpp"
#include "document/edit_control/position.hpp"
#include "shell/common/text.hpp"

namespace kestri {

inline constexpr Position kNoHit = -1;

// First hit at or after from; last hit that ends at or before end. The text looked for is not empty.
Position FindFirst(const GapBuffer& text, std::u16string_view find, Position from, Compare compare);
Position FindLast(const GapBuffer& text, std::u16string_view find, Position end, Compare compare);

}  // namespace kestri
