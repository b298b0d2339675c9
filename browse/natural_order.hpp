// The order of names in lists: small and capital, half and full width, hiragana and katakana mingle, and
// numbers count by their value, so that "page2" stands before "page10".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestri {

// Text whose plain comparison gives that order.
std::u16string NaturalKey(std::u16string_view name);

// Stable for names of one key: those go by their units.
void SortNaturally(std::vector<std::u16string>& names);

// Whether left stands before right.
bool NaturallyBefore(std::u16string_view left, std::u16string_view right);

}  // namespace kestri
