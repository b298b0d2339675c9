#include "shell/window/window_placement.hpp"

#include <gtest/gtest.h>

namespace kestri {
namespace {

TEST(PlacementAtStart, DefaultKeepsThePositionOfTheSystemAndTakesTheSize) {
  const PlacementAtStart placement = PlacementOf(u"DEFAULT");
  EXPECT_TRUE(placement.useSize);
  EXPECT_FALSE(placement.usePosition);
  EXPECT_FALSE(placement.maximized);
}

TEST(PlacementAtStart, RandomMovesNothing) {
  const PlacementAtStart placement = PlacementOf(u"RAND");
  EXPECT_TRUE(placement.useSize);
  EXPECT_FALSE(placement.usePosition);
}

TEST(PlacementAtStart, LastCloseAndUnknownValuesReadTheRectangle) {
  for (const auto mode : {u"NAW", u"EVERY", u"anything"}) {
    const PlacementAtStart placement = PlacementOf(mode);
    EXPECT_TRUE(placement.useSize && placement.usePosition);
    EXPECT_FALSE(placement.maximized);
  }
}

TEST(PlacementAtStart, MaximizedKeepsTheRectangleForALaterRestore) {
  for (const auto mode : {u"EVERY_MAX", u"NAW_MAX"}) {
    const PlacementAtStart placement = PlacementOf(mode);
    EXPECT_TRUE(placement.maximized && placement.useSize && placement.usePosition);
  }
}

TEST(PlacementAtClose, FixedModesSaveNothing) {
  for (const auto mode : {u"DEFAULT", u"EVERY", u"EVERY_MAX"}) {
    for (const auto state : {WindowState::Normal, WindowState::Minimized, WindowState::Maximized}) {
      const PlacementAtClose placement = PlacementAfter(mode, state);
      EXPECT_FALSE(placement.saveMode || placement.saveRectangle);
    }
  }
}

TEST(PlacementAtClose, RandomAndUnknownLastForOneStart) {
  for (const auto mode : {u"RAND", u"xyz"}) {
    const PlacementAtClose placement = PlacementAfter(mode, WindowState::Normal);
    EXPECT_TRUE(placement.saveMode);
    EXPECT_EQ(placement.mode, u"DEFAULT");
    EXPECT_FALSE(placement.saveRectangle);
  }
}

TEST(PlacementAtClose, LastCloseSavesTheRectangleUnlessMaximized) {
  for (const auto mode : {u"NAW", u"NAW_MAX"}) {
    EXPECT_EQ(PlacementAfter(mode, WindowState::Normal).mode, u"NAW");
    EXPECT_TRUE(PlacementAfter(mode, WindowState::Minimized).saveRectangle);
    const PlacementAtClose maximized = PlacementAfter(mode, WindowState::Maximized);
    EXPECT_EQ(maximized.mode, u"NAW_MAX");
    EXPECT_FALSE(maximized.saveRectangle);
  }
}

TEST(KeepOnScreen, AWindowOfAnotherScreenComesBack) {
  const WindowRectangle screen{.left = 0, .top = 0, .width = 15000, .height = 12000};
  const WindowRectangle lost{.left = 90000, .top = -5000, .width = 9500, .height = 7200};
  EXPECT_EQ(KeepOnScreen(lost, screen),
            (WindowRectangle{.left = 5500, .top = 0, .width = 9500, .height = 7200}));
}

TEST(KeepOnScreen, AHugeOrTinyWindowBecomesUsable) {
  const WindowRectangle screen{.left = 0, .top = 0, .width = 15000, .height = 12000};
  EXPECT_EQ(KeepOnScreen({.left = 0, .top = 0, .width = 99999, .height = 1}, screen),
            (WindowRectangle{.left = 0, .top = 0, .width = 15000, .height = 3000}));
}

}  // namespace
}  // namespace kestri
