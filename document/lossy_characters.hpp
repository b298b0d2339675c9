// The characters of a text that a file cannot hold: those outside the code page, and the end-of-file mark.
#pragma once

#include <vector>

#include "document/edit_control/edit_control.hpp"

namespace kestri {

inline constexpr char32_t kEndOfFileMark = 0x1A;

struct LossyCharacter {
  char32_t character = 0;  // a lone surrogate stands for itself
  Position position = 0;   // of its first occurrence
};

// Each such character once, in the order of the text.
std::vector<LossyCharacter> LossyCharacters(const EditControl& control);

}  // namespace kestri
