#include "tags/popup_placement.hpp"

#include <gtest/gtest.h>

namespace kestri {
namespace {

constexpr PixelRect kScreen{0, 0, 1024, 768};

CaretSurroundings CaretAt(int x, int y) {
  return {.caret = {x, y, 1, 18}, .screen = kScreen, .hintBox = {}, .fontPoints = 9};
}

PopupRequest Window(int width, int height, int xOffset = kPopupXOffset) {
  return {.size = {width, height}, .xOffset = xOffset, .yOffset = 0, .twipsPerPixel = 15};
}

TEST(PopupPlacementTest, OpensBelowTheLineAndLeftOfTheCaretByItsOffset) {
  const auto placement = PlaceAtCaret(CaretAt(400, 100), Window(300, 240));
  EXPECT_EQ(placement, (PopupPlacement{{400 - 310 / 15, 118, 300, 240}, Opens::Down}));
}

TEST(PopupPlacementTest, AWordsWidthMovesItFurtherLeft) {
  EXPECT_EQ(PlaceAtCaret(CaretAt(400, 100), Window(300, 240, 310 + 600)).window.left, 400 - 910 / 15);
}

TEST(PopupPlacementTest, StandsExactlyOnTheBottomEdgeWithoutTurning) {
  EXPECT_EQ(PlaceAtCaret(CaretAt(400, 768 - 240 - 18), Window(300, 240)).opens, Opens::Down);
  EXPECT_EQ(PlaceAtCaret(CaretAt(400, 768 - 240 - 17), Window(300, 240)).opens, Opens::Up);
}

TEST(PopupPlacementTest, OpensAboveTheLineNearTheBottom) {
  const auto placement = PlaceAtCaret(CaretAt(400, 700), Window(300, 240));
  EXPECT_EQ(placement, (PopupPlacement{{380, 460, 300, 240}, Opens::Up}));
}

TEST(PopupPlacementTest, AFontTallerThanTheCaretKeepsItsLineFree) {
  CaretSurroundings around = CaretAt(400, 700);
  around.fontPoints = 36;  // 48 pixels
  EXPECT_EQ(PlaceAtCaret(around, Window(300, 240)).window.Bottom(), 718 - 48);
}

TEST(PopupPlacementTest, DoesNotCoverTheHintBoxBelowTheLine) {
  CaretSurroundings around = CaretAt(400, 100);
  around.hintBox = {400, 118, 200, 40};
  EXPECT_EQ(PlaceAtCaret(around, Window(300, 240)).window.top, 158);
}

TEST(PopupPlacementTest, DoesNotCoverTheHintBoxAboveTheLine) {
  CaretSurroundings around = CaretAt(400, 700);
  around.hintBox = {400, 660, 200, 40};
  EXPECT_EQ(PlaceAtCaret(around, Window(300, 240)).window.Bottom(), 660);
}

TEST(PopupPlacementTest, AHintBoxBelowMayTurnItUpward) {
  CaretSurroundings around = CaretAt(400, 500);
  EXPECT_EQ(PlaceAtCaret(around, Window(300, 240)).opens, Opens::Down);
  around.hintBox = {400, 518, 200, 40};
  const auto placement = PlaceAtCaret(around, Window(300, 240));
  EXPECT_EQ(placement.opens, Opens::Up);
  EXPECT_EQ(placement.window.Bottom(), 500);
}

TEST(PopupPlacementTest, StaysOnTheScreenAtItsLeftEdge) {
  EXPECT_EQ(PlaceAtCaret(CaretAt(5, 100), Window(300, 240)).window.left, 0);
}

TEST(PopupPlacementTest, MovesBackByItsWidthAtTheRightEdge) {
  EXPECT_EQ(PlaceAtCaret(CaretAt(1000, 100), Window(300, 240)).window.left, 1000 - 20 - 300);
}

TEST(PopupPlacementTest, TakesTheLargerSideWhenNeitherHasRoom) {
  const auto below = PlaceAtCaret(CaretAt(400, 300), Window(300, 700));
  EXPECT_EQ(below, (PopupPlacement{{380, 318, 300, 450}, Opens::Down}));
  const auto above = PlaceAtCaret(CaretAt(400, 500), Window(300, 700));
  EXPECT_EQ(above, (PopupPlacement{{380, 0, 300, 500}, Opens::Up}));
}

TEST(PopupPlacementTest, ASecondScreenHasItsOwnEdges) {
  CaretSurroundings around{{-1000, 150, 1, 18}, {-1024, 100, 1024, 600}, {}, 9};
  const auto placement = PlaceAtCaret(around, Window(300, 240));
  EXPECT_EQ(placement.window.left, -1020);
  EXPECT_EQ(placement.window.top, 168);
}

TEST(PopupPlacementTest, NeverCoversTheLineWhereverTheCaretStands) {
  for (int y = 0; y <= 750; y += 3) {
    for (int height : {50, 240, 500, 900}) {
      const auto window = PlaceAtCaret(CaretAt(400, y), Window(300, height)).window;
      EXPECT_TRUE(window.Bottom() <= y || window.top >= y + 18) << y << ' ' << height;
      EXPECT_GE(window.top, 0);
      EXPECT_LE(window.Bottom(), 768);
    }
  }
}

TEST(PopupPlacementTest, DenseScreensCountMorePixelsForTheSameTwips) {
  PopupRequest request = Window(300, 240);
  request.twipsPerPixel = 10;
  EXPECT_EQ(PlaceAtCaret(CaretAt(400, 100), request).window.left, 400 - 31);
}

TEST(MoveExTest, ClampsToTheScreen) {
  EXPECT_EQ(MoveEx({-5, -7, 100, 50}, kScreen), (PixelRect{0, 0, 100, 50}));
  EXPECT_EQ(MoveEx({1000, 760, 100, 50}, kScreen), (PixelRect{900, 710, 100, 50}));
  EXPECT_EQ(MoveEx({10, 10, 2000, 2000}, kScreen), (PixelRect{0, 0, 2000, 2000}));
  EXPECT_EQ(MoveEx({924, 718, 100, 50}, kScreen), (PixelRect{924, 718, 100, 50}));
}

}  // namespace
}  // namespace kestri
