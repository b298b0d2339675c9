// StrConv: the six conversions of letter case, character width and kana.
#pragma once

#include <string>
#include <string_view>

namespace kestri {

enum class Conversion {
  UpperCase = 1,
  LowerCase = 2,
  Wide = 4,
  Narrow = 8,
  Katakana = 16,
  Hiragana = 32,
};

// Wide joins a half-width kana and the half-width voiced mark behind it; narrow takes them apart. Characters
// without a counterpart stay as they are.
std::u16string StrConv(std::u16string_view text, Conversion conversion);

}  // namespace kestri
