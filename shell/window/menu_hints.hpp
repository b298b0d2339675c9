// The texts that the status bar shows for menu items. They stand in the string resources under the numbers of
// the command rows.
#pragma once

#include <string>
#include <string_view>

namespace kestri {

inline constexpr int kFirstMenuHint = 1000;
inline constexpr int kLastMenuHint = 1077;

// Puts the product's name, its credit and its window title in place of "%TITLE%", "%(C)%" and
// "%WINDOWTITLE%".
std::u16string ExpandProductNames(std::u16string_view text);

}  // namespace kestri
