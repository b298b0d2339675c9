// Indents: the blanks at a line's head, and a block of lines moved by one level.
#pragma once

#include <string>
#include <string_view>

#include "document/edit_control/edit_control.hpp"

namespace kestri {

// Half-width blanks, full-width blanks and tabs from a position on, up to the end position.
Position IndentEnd(const EditControl& control, Position from, Position end);

// The block begins at a line's head. level is what one level adds: blanks or a tab.
std::u16string IndentBlock(std::u16string_view block, std::u16string_view level);
// Lines that do not begin with one whole level stay as they are.
std::u16string UnindentBlock(std::u16string_view block, std::u16string_view level);

}  // namespace kestri
