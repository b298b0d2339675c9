// Whether the tool bar stands in the main window or floats in a window of its own, and where it floats.
#pragma once

#include <cstdint>
#include <string>

#include "shell/common/class_common.hpp"
#include "shell/window/settings_reader.hpp"

namespace kestri {

enum class BarState { Docked, Floating };

struct ToolBarPlace {
  BarState state = BarState::Docked;
  std::int32_t left = 1000;  // of the floating window, twips
  std::int32_t top = 1000;
  bool operator==(const ToolBarPlace&) const = default;
};

ToolBarPlace ReadToolBarPlace(SettingsReader& reader);

// The close of the main window remembers the state, the close of the floating window its position. A failed
// write is ignored.
void WriteBarState(const ClassCommon& common, BarState state);
void WriteFloatingPosition(const ClassCommon& common, const ToolBarPlace& place);

// "ToolBar for Kestrile (e07)"
std::u16string FloatingBarCaption();

}  // namespace kestri
