// Rows of the help menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kHelpRows = {
    CommandRow{TopMenu::Help, u"", "MenH2", 0, u"Help [TEXT] (&H)", u"操作の説明をﾃｷｽﾄで開きます", "F1",
               "help-contents", kAlways, [](C& c) { c.OpenHelp(u"help.txt"); }},
    CommandRow{TopMenu::Help, u"", "MenH2", 1, u"Help [HTML]", u"操作の説明をﾌﾞﾗｳｻﾞで開きます", "", "",
               kAlways, [](C& c) { c.OpenHelp(u"help.htm"); }},
    CommandRow{TopMenu::Help, u"", "MenH2", 2, u"READMEﾌｧｲﾙ(&R)", u"READMEﾌｧｲﾙを開きます", "", "", kAlways,
               [](C& c) { c.OpenHelp(u"readme.txt"); }},
    CommandRow{TopMenu::Help, u"", "MenH2", 3, u"更新履歴(&Z)", u"更新履歴を開きます", "", "", kAlways,
               [](C& c) { c.OpenHelp(u"history.txt"); }},
    Separator(TopMenu::Help),
    CommandRow{TopMenu::Help, u"", "MenH", 0, u"Kestrile について(&A)", u"ﾊﾞｰｼﾞｮﾝを表示します", "",
               "help-about", kAlways, [](C& c) { c.ShowVersion(); }},
};

}  // namespace kestri::rows
