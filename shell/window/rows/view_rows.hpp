// Rows of the view menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kViewRows = {
    CommandRow{TopMenu::View, u"", "MenV", 0, u"ﾂｰﾙﾊﾞｰ(&T)", 1069, "", "", kAlways,
               [](C& c) { c.Views().ToggleToolBar(); }, [](const C& c) { return c.Views().ToolBarShown(); }},
    CommandRow{TopMenu::View, u"", "MenV", 1, u"ｽﾃｰﾀｽﾊﾞｰ(&S)", 1069, "", "", kAlways,
               [](C& c) { c.Views().ToggleStatusBar(); },
               [](const C& c) { return c.Views().StatusBarShown(); }},
    CommandRow{TopMenu::View, u"", "MenV", 2, u"ﾌｫﾙﾀﾞﾊﾞｰ(&D)", 1069, "Ctrl+B", "", kAlways,
               [](C& c) { c.Views().ToggleFolderBar(); },
               [](const C& c) { return c.Views().FolderBarShown(); }},
    CommandRow{TopMenu::View, u"", "MenV", 7, u"ﾌｫﾙﾀﾞﾊﾞｰへ移動(&M)", 1069, "Ctrl+Shift+B", "", kAlways,
               [](C& c) { c.Window().EnterFolderBar(); }},
    CommandRow{TopMenu::View, u"", "MenV", 6, u"ﾂｰﾙﾊﾞｰの切り離し", 1069, "", "", kAlways,
               [](C& c) { c.Views().ToggleDocked(); }, nullptr,
               [](const C& c) { return c.Views().DockingCaption(); }},
    Separator(TopMenu::View),
    CommandRow{TopMenu::View, u"", "MenV", 3, u"常に手前に表示(&P)", 1070, "", "kestrile-topmost", kAlways,
               [](C& c) { c.Views().ToggleTopMost(); }, [](const C& c) { return c.Views().TopMost(); }},
    CommandRow{TopMenu::View, u"", "MenV", 4, u"ｶﾞｲﾄﾞﾗｲﾝ(&G)", 1071, "", "", kAlways,
               [](C& c) { c.Views().ToggleGuideLines(); },
               [](const C& c) { return c.Views().GuideLinesShown(); }},
    CommandRow{TopMenu::View, u"", "MenV", 5, u"行番号(&N)", 1071, "", "kestrile-line-numbers", kAlways,
               [](C& c) { c.Views().ToggleLineNumbers(); },
               [](const C& c) { return c.Views().LineNumbersShown(); }},
    Separator(TopMenu::View),
    CommandRow{TopMenu::View, u"", "MenV2", 0, u"ﾌｫﾝﾄ(&F)...", 1072, "", "preferences-desktop-font", kAlways,
               [](C& c) { c.Window().ShowFontDialog(); }},
    CommandRow{TopMenu::View, u"", "MenV3", 0, u"ﾒﾆｭｰをｱﾆﾒｰｼｮﾝ表示する(&A)", 1073, "", "", kAlways,
               [](C& c) { c.Views().ToggleMenuAnimation(); },
               [](const C& c) { return c.Views().MenuAnimated(); }},
    CommandRow{TopMenu::View, u"", "MenV3", 1, u"再描画(&R)", 1073, "", "view-refresh", kAlways,
               [](C& c) { c.Window().RefreshAllControls(); }},
    Separator(TopMenu::View),
    CommandRow{TopMenu::View, u"", "WinShow", 0, u"ｳｨﾝﾄﾞｳの呼び出し(&W)...", 1074, "", "", kAlways,
               [](C& c) { c.Window().ShowWindowList(); }},
};

}  // namespace kestri::rows
