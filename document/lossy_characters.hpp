// The characters of a text that the code page cannot hold.
#pragma once

#include <vector>

#include "document/edit_control/edit_control.hpp"

namespace kestri {

struct LossyCharacter {
  char32_t character = 0;  // a lone surrogate stands for itself
  Position position = 0;   // of its first occurrence
};

// Each such character once, in the order of the text. One pass.
std::vector<LossyCharacter> LossyCharacters(const EditControl& control);

}  // namespace kestri
