// Which candidates fit where the caret stands, for the key that opens the popup anywhere.
#pragma once

#include <cstdint>

#include "document/edit_control/edit_control.hpp"

namespace kestri {

// 1 outside a tag and in a tag's name, 3 behind "=" and inside a quoted value, 2 elsewhere in a tag. A tag
// that is not closed yet counts as a tag. Looks at most 64 Ki characters back.
std::int32_t ModeAtCaret(const EditControl& control);

}  // namespace kestri
