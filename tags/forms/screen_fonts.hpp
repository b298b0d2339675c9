// The fonts of the screen, read when they are asked for.
#pragma once

#include <string>
#include <vector>

namespace kestri {

std::vector<std::u16string> ScreenFontFamilies();

}  // namespace kestri
