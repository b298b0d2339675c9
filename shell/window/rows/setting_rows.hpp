// Rows of the settings menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kSettingRows = {
    NotBuilt(TopMenu::Setting, u"", "Setting", 0, u"環境設定(&E)...", 1075, "preferences-system"),
    NotBuilt(TopMenu::Setting, u"", "SettingT", 0, u"HTMLﾀｸﾞの設定(&T)...", 1075, ""),
};

}  // namespace kestri::rows
