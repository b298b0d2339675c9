// The nearest of two characters, searched outwards from a position inside the control's buffer.
#pragma once

#include "document/edit_control/edit_control.hpp"

namespace kestri {

// First occurrence of either at or after from; -1 when there is none.
Position FirstOfEither(const EditControl& control, char16_t one, char16_t other, Position from);
// Last occurrence of either before end and not before begin; -1 when there is none.
Position LastOfEither(const EditControl& control, char16_t one, char16_t other, Position end,
                      Position begin = 0);

}  // namespace kestri
