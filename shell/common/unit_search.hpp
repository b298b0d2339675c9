// Exact search in UTF-16 text, eight units at a time where the processor can. Positions are zero-based.
#pragma once

#include <cstddef>
#include <string_view>

namespace kestri::unit_search {

inline constexpr std::size_t npos = static_cast<std::size_t>(-1);

// First occurrence at or after from. An empty find text is found at from when that is not behind the text.
std::size_t Find(std::u16string_view text, std::u16string_view find, std::size_t from = 0);

// Last occurrence that ends at or before end. An empty find text is found at end.
std::size_t FindLast(std::u16string_view text, std::u16string_view find, std::size_t end = npos);

}  // namespace kestri::unit_search
