// Numbers as users write them down.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kestri {

// Decimal text with or without sign, fraction and thousands commas, full-width forms too, blanks around it.
// Nothing for what is no number; infinite for one beyond every range.
std::optional<double> ToNumber(std::u16string_view text);

// Half to even. Nothing outside of the range.
std::optional<std::int32_t> RoundedToLong(double number);

}  // namespace kestri
