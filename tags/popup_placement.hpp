// Where a tool window stands when it opens at the caret. Pixels of the screen unless twips are named.
#pragma once

#include "shell/common/pixel_rect.hpp"

namespace kestri {

inline constexpr int kPopupXOffset = 310;  // twips: the list's text column over the typed word

struct CaretSurroundings {
  PixelRect caret;    // the caret's cell; its height is the line's
  PixelRect screen;   // what windows may cover
  PixelRect hintBox;  // empty while no hint is up
  int fontPoints = 0;
};

struct PopupRequest {
  PixelSize size;
  int xOffset = 0;  // twips to the left of the caret
  int yOffset = 0;  // twips above the usual place
  int twipsPerPixel = 15;
};

enum class Opens { Down, Up };

struct PopupPlacement {
  PixelRect window;
  Opens opens = Opens::Down;

  bool operator==(const PopupPlacement&) const = default;
};

// Below the caret's line and the hint box, or above them when the window would pass the bottom of the screen.
// Where neither side has room it takes the larger one and is made lower, so that the line being typed stays
// in sight.
PopupPlacement PlaceAtCaret(const CaretSurroundings& around, const PopupRequest& request);

}  // namespace kestri
