// Rows of the help menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kHelpRows = {
    CommandRow{TopMenu::Help, u"", "MenH2", 0, u"Help [TEXT] (&H)", 1076, "F1", "help-contents", kAlways,
               [](C& c) { c.OpenHelp(u"help.txt"); }},
    CommandRow{TopMenu::Help, u"", "MenH2", 1, u"Help [HTML]", 1076, "", "", kAlways,
               [](C& c) { c.OpenHelp(u"help.htm"); }},
    CommandRow{TopMenu::Help, u"", "MenH2", 2, u"READMEﾌｧｲﾙ(&R)", 1076, "", "", kAlways,
               [](C& c) { c.OpenHelp(u"readme.txt"); }},
    CommandRow{TopMenu::Help, u"", "MenH2", 3, u"更新履歴(&Z)", 1076, "", "", kAlways,
               [](C& c) { c.OpenHelp(u"history.txt"); }},
    Separator(TopMenu::Help),
    CommandRow{TopMenu::Help, u"", "MenH", 0, u"Kestrile について(&A)", 1077, "", "help-about", kAlways,
               [](C& c) { c.ShowVersion(); }},
};

}  // namespace kestri::rows
