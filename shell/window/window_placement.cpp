#include "shell/window/window_placement.hpp"

#include <algorithm>

namespace kestri {
namespace {

constexpr std::u16string_view kDefault = u"DEFAULT";
constexpr std::u16string_view kRandom = u"RAND";
constexpr std::u16string_view kEvery = u"EVERY";
constexpr std::u16string_view kEveryMaximized = u"EVERY_MAX";
constexpr std::u16string_view kNow = u"NAW";
constexpr std::u16string_view kNowMaximized = u"NAW_MAX";

constexpr std::int32_t kSmallest = 3000;  // twips of a window that can still be used

}  // namespace

PlacementAtStart PlacementOf(std::u16string_view startUpWindow) {
  if (startUpWindow == kDefault) return {.useSize = true};
  if (startUpWindow == kRandom) return {.useSize = true};
  if (startUpWindow == kEveryMaximized || startUpWindow == kNowMaximized) {
    return {.useSize = true, .usePosition = true, .maximized = true};
  }
  return {.useSize = true, .usePosition = true};
}

PlacementAtClose PlacementAfter(std::u16string_view startUpWindow, WindowState state) {
  if (startUpWindow == kDefault || startUpWindow == kEvery || startUpWindow == kEveryMaximized) return {};
  if (startUpWindow == kNow || startUpWindow == kNowMaximized) {
    if (state == WindowState::Maximized) return {.saveMode = true, .mode = std::u16string(kNowMaximized)};
    return {.saveMode = true, .mode = std::u16string(kNow), .saveRectangle = true};
  }
  return {.saveMode = true, .mode = std::u16string(kDefault)};
}

WindowRectangle KeepOnScreen(WindowRectangle window, const WindowRectangle& screen) {
  window.width = std::clamp(window.width, std::min(kSmallest, screen.width), screen.width);
  window.height = std::clamp(window.height, std::min(kSmallest, screen.height), screen.height);
  window.left = std::clamp(window.left, screen.left, screen.left + screen.width - window.width);
  window.top = std::clamp(window.top, screen.top, screen.top + screen.height - window.height);
  return window;
}

}  // namespace kestri
