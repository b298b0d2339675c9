// The word at a position: a run of one kind of character within its line.
#pragma once

#include <utility>

#include "document/edit_control/edit_control.hpp"

namespace kestri {

// Begin and end; the word before the position when that is a line's end. Equal in an empty line. Signs are
// words of their own, one by one.
std::pair<Position, Position> WordBounds(const EditControl& control, Position position);

// Keeps a position off the middle of a surrogate pair, going left.
Position OffSurrogate(const EditControl& control, Position position);

}  // namespace kestri
