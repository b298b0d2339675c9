// The settings that the main window restores at its load and writes back at its close.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"
#include "shell/window/settings_reader.hpp"
#include "shell/window/tool_bar_place.hpp"
#include "shell/window/window_placement.hpp"

namespace kestri {

// The character that stands beside a tag hint.
struct HintCharacter {
  std::int16_t shown = 0;
  std::u16string picture;     // path
  std::int32_t fontSize = 9;  // points
  std::int16_t fontStyle = 0;
  std::int32_t left = 150;  // twips
  std::int32_t top = 300;   // twips
  std::int32_t wrap = 50;   // characters
};

struct WindowSettings {
  std::u16string workingFolder;  // through AppPath2
  std::u16string fontName;
  std::int32_t fontSize = 14;  // points
  std::u16string colorLabel;
  std::int16_t eofMark = 1;
  std::int16_t eofMarkType = 0;
  std::int16_t subClass = 1;
  std::int16_t menIcon = 1;
  std::int16_t toolBarShow = 1;
  ToolBarPlace toolBar;
  std::int16_t statusBarShow = 1;
  std::int32_t statusBarHeight = 300;  // twips
  std::int16_t folderBarShow = 1;
  std::int32_t timerPeriod = 101;          // milliseconds
  std::int32_t directoryTreeWidth = 3000;  // twips
  HintCharacter hintCharacter;
  std::u16string startUpWindow;
  WindowRectangle rectangle;
};

// Reads the window's settings and those that live in the application state. Nothing when a number is
// unusable.
std::optional<WindowSettings> LoadWindowSettings(const ClassCommon& common, ApplicationState& state);

// Writes the text's font.
void SaveFont(const ClassCommon& common, const WindowSettings& settings);

// Counts the start in [Setting] Act.
void CountStart(const ClassCommon& common);

// One write of everything that a close remembers. A failed write is ignored.
void SaveWindowSettings(const ClassCommon& common, const ApplicationState& state,
                        const WindowSettings& settings, WindowState windowState);

}  // namespace kestri
