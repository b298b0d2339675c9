// Rows that only the text's own menu shows, beside those that it takes from the menu bar.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kTextMenuRows = {
    CommandRow{TopMenu::Text, u"", "mnuFreeInd", 0, u"ﾌﾘｰｲﾝﾃﾞﾝﾄ...", 1031, "", "", kWritable,
               [](C& c) { c.Window().ShowFreeIndent(); }},
};

}  // namespace kestri::rows
