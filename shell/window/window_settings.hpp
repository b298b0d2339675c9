// The settings that the main window restores at its load and writes back at its close.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"
#include "shell/window/settings_reader.hpp"
#include "shell/window/window_placement.hpp"

namespace kestri {

struct WindowSettings {
  std::u16string workingFolder;  // through AppPath2
  std::u16string fontName;
  std::int32_t fontSize = 14;  // points
  std::u16string colorLabel;
  std::int16_t eofMark = 1;
  std::int16_t eofMarkType = 0;
  std::int16_t subClass = 1;
  std::int16_t menIcon = 1;
  std::int16_t menuAnimation = 0;
  std::int16_t toolBarShow = 1;
  std::int16_t statusBarShow = 1;
  std::int32_t statusBarHeight = 300;  // twips
  std::int32_t timerPeriod = 101;      // milliseconds
  std::u16string startUpWindow;
  WindowRectangle rectangle;
};

// Reads the window's settings and those that live in the application state. Nothing when a number is
// unusable.
std::optional<WindowSettings> LoadWindowSettings(const ClassCommon& common, ApplicationState& state);

// Counts the start in [Setting] Act.
void CountStart(const ClassCommon& common);

// One write of everything that a close remembers. A failed write is ignored.
void SaveWindowSettings(const ClassCommon& common, const ApplicationState& state,
                        const WindowSettings& settings, WindowState windowState);

}  // namespace kestri
