#include "tags/popup_placement.hpp"

#include <algorithm>

namespace kestri {
namespace {

constexpr int kTwipsPerPoint = 20;

// Edges between which neither the line nor the hint box lies.
struct Band {
  int above;
  int below;
};

Band TakenByLine(const CaretSurroundings& around, int twipsPerPixel) {
  const int fontPixels = around.fontPoints * kTwipsPerPoint / twipsPerPixel;
  Band band{std::min(around.caret.top, around.caret.Bottom() - fontPixels), around.caret.Bottom()};
  if (around.hintBox.IsEmpty()) return band;
  if (around.hintBox.top >= around.caret.top) band.below = std::max(band.below, around.hintBox.Bottom());
  if (around.hintBox.top < around.caret.top) band.above = std::min(band.above, around.hintBox.top);
  return band;
}

PopupPlacement Lowered(PixelRect window, const Band& taken, const PixelRect& screen) {
  const int roomBelow = screen.Bottom() - taken.below;
  const int roomAbove = taken.above - screen.top;
  const bool down = roomBelow >= roomAbove;
  window.height = std::max(down ? roomBelow : roomAbove, 1);
  window.top = down ? taken.below : taken.above - window.height;
  return {window, down ? Opens::Down : Opens::Up};
}

}  // namespace

PopupPlacement PlaceAtCaret(const CaretSurroundings& around, const PopupRequest& request) {
  const Band taken = TakenByLine(around, request.twipsPerPixel);
  PixelRect window{around.caret.left - request.xOffset / request.twipsPerPixel,
                   taken.below - request.yOffset / request.twipsPerPixel, request.size.width,
                   request.size.height};
  PopupPlacement placement{window, Opens::Down};
  if (window.Bottom() > around.screen.Bottom()) {
    placement.opens = Opens::Up;
    placement.window.top = taken.above - window.height;
    if (placement.window.top < around.screen.top) placement = Lowered(window, taken, around.screen);
  }
  placement.window = MoveEx(placement.window, around.screen);
  return placement;
}

}  // namespace kestri
