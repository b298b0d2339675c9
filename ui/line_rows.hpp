// Where rows stand, in pixels. A document may have more lines than an int counts pixels: what is far outside
// of what shows is put at kFarAway, which no screen reaches and which can still be added to.
#pragma once

#include <algorithm>
#include <cstdint>

namespace kestri {

inline constexpr int kFarAway = 1 << 28;

inline int NearPixels(std::int64_t pixels) {
  return static_cast<int>(std::clamp<std::int64_t>(pixels, -kFarAway, kFarAway));
}
inline int NearPixels(double pixels) {
  return static_cast<int>(std::clamp<double>(pixels, -kFarAway, kFarAway));
}

// Height of so many rows; negative upwards.
inline int HeightOfRows(std::int64_t rows, int rowHeight) {
  return NearPixels(rows * rowHeight);
}

// Top of a line when the first row shows another one.
inline int RowTopOf(std::int32_t line, std::int32_t firstLine, int rowHeight) {
  return HeightOfRows(static_cast<std::int64_t>(line) - firstLine, rowHeight);
}

}  // namespace kestri
