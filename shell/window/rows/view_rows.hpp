// Rows of the view menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kViewRows = {
    CommandRow{TopMenu::View, u"", "MenV", 0, u"ﾂｰﾙﾊﾞｰ(&T)", u"ﾂｰﾙﾊﾞｰの表示を切り替えます", "", "", kAlways,
               [](C& c) { c.ToggleToolBar(); }, Ask<&C::ToolBarShown>},
    CommandRow{TopMenu::View, u"", "MenV", 1, u"ｽﾃｰﾀｽﾊﾞｰ(&S)", u"ｽﾃｰﾀｽﾊﾞｰの表示を切り替えます", "", "",
               kAlways, [](C& c) { c.ToggleStatusBar(); }, Ask<&C::StatusBarShown>},
    CommandRow{TopMenu::View, u"", "MenV", 2, u"ｶﾞｲﾄﾞﾗｲﾝ(&G)", u"ｶｰｿﾙを通る線の表示を切り替えます", "", "",
               kAlways, [](C& c) { c.ToggleGuideLines(); }, Ask<&C::GuideLinesShown>},
    Separator(TopMenu::View),
    CommandRow{TopMenu::View, u"", "WinShow", 0, u"ｳｨﾝﾄﾞｳの呼び出し(&W)...",
               u"起動中のほかのｳｨﾝﾄﾞｳを前に出します", "", "", kAlways,
               [](C& c) { c.Window().ShowWindowList(); }},
};

}  // namespace kestri::rows
