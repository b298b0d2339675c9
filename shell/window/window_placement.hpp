// Where the main window stands at the start, and what its close remembers. Rectangles are in twips.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestri {

struct WindowRectangle {
  std::int32_t left = 1000;
  std::int32_t top = 1000;
  std::int32_t width = 9500;
  std::int32_t height = 7200;
  bool operator==(const WindowRectangle&) const = default;
};

enum class WindowState { Normal, Minimized, Maximized };

struct PlacementAtStart {
  bool useSize = false;      // of the rectangle; the initial one without its position
  bool usePosition = false;  // of the rectangle
  bool maximized = false;
};

// startUpWindow is the setting's value; see the modes' names in the settings dialog.
PlacementAtStart PlacementOf(std::u16string_view startUpWindow);

struct PlacementAtClose {
  bool saveMode = false;
  std::u16string mode;
  bool saveRectangle = false;
};

PlacementAtClose PlacementAfter(std::u16string_view startUpWindow, WindowState state);

// A window at the rectangle's place must be reachable: at least a strip of it lies on the screen.
WindowRectangle KeepOnScreen(WindowRectangle window, const WindowRectangle& screen);

}  // namespace kestri
