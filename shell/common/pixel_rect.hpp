// Rectangles of windows and controls, and the rule that keeps them in sight. Pixels of the screen, or of the
// parent for a control.
#pragma once

#include <algorithm>

namespace kestri {

struct PixelSize {
  int width = 0;
  int height = 0;

  bool operator==(const PixelSize&) const = default;
};

struct PixelRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  int Right() const { return left + width; }
  int Bottom() const { return top + height; }
  bool IsEmpty() const { return width <= 0 || height <= 0; }
  bool operator==(const PixelRect&) const = default;
};

// MoveEx: what stands out to the left or top moves to the edge; what passes the right or bottom edge moves
// back by its own size, at least to the edge.
inline PixelRect MoveEx(PixelRect window, const PixelRect& area) {
  const auto moveBack = [](int position, int size, int begin, int end) {
    return std::max(position + size > end ? position - size : position, begin);
  };
  window.left = moveBack(window.left, window.width, area.left, area.Right());
  window.top = moveBack(window.top, window.height, area.top, area.Bottom());
  return window;
}

}  // namespace kestri
