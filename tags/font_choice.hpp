// What the font picker offers, and on which rows it opens.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kestri {

struct FontChoice {
  std::u16string name = u"ＭＳ ゴシック";
  std::int16_t size = 9;  // points
  bool bold = false;
  bool italic = false;

  bool operator==(const FontChoice&) const = default;
};

inline constexpr std::array<std::int16_t, 16> kFontSizes = {8,  9,  10, 11, 12, 14, 16, 18,
                                                            20, 22, 24, 26, 28, 36, 48, 72};

// The screen's fonts in their own order. The classic names, for which other faces stand in, come before them
// where the screen lacks them.
std::vector<std::u16string> OfferedFonts(std::vector<std::u16string> ofScreen);

// Zero-based rows. A name is found only exactly as it is written, else the first row stands.
int FontRow(const std::vector<std::u16string>& names, std::u16string_view wanted);
// The largest size that doesn't exceed the wanted one, else the first.
int FontSizeRow(int wanted);

}  // namespace kestri
