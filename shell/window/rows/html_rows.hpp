// Rows of the HTML menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kHtmlRows = {
    NotBuilt(TopMenu::Html, u"", "HTMLEdit", 0, u"ﾀｸﾞの解析...", 1048, ""),
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 1, u"ﾀｸﾞ候補一覧[補完]", 1049, "F6", "kestrile-html-tag",
               kTagTools, [](C& c) { c.HTMLEdit(1); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 2, u"属性候補一覧[補完]", 1049, "F7",
               "kestrile-html-attribute", kTagTools, [](C& c) { c.HTMLEdit(2); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 3, u"値候補一覧[補完]", 1049, "F8", "kestrile-html-value",
               kTagTools, [](C& c) { c.HTMLEdit(3); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 4, u"ｶｰｿﾙ位置の候補一覧(&K)", 1050, "Ctrl+Space", "",
               kTagTools, [](C& c) { c.CandidatesAtCaret(); }},
    CommandRow{TopMenu::Html, u"", "HTMLEditHINTS", 0, u"ﾀｸﾞﾋﾝﾄ", 1051, "Shift+F1", "", kTagTools,
               [](C& c) { c.HTMLEditHINTS(); }},
    CommandRow{TopMenu::Html, u"", "mnuCallUserInTo", 0, u"ﾕｰｻﾞｰｵｰﾄｺﾝﾌﾟﾘｰﾄのｺｰﾙ(&Z)", 1052, "", "", kAlways,
               [](C& c) { c.CallUserInTo(); }},
    CommandRow{TopMenu::Html, u"", "CEdit", 0, u"ﾀｸﾞ・ﾊﾟﾗﾒｰﾀの補完(&D)", 1053, "Ctrl+D", "", kTagTools,
               [](C& c) { c.CEdit(0); }},
    Separator(TopMenu::Html),
    CommandRow{TopMenu::Html, u"", "ColorEdit", 0, u"ｶﾗｰｺｰﾄﾞ参照(&C)...", 1055, "", "kestrile-color",
               kWritable, [](C& c) { c.ColorEdit(); }},
    NotBuilt(TopMenu::Html, u"", "FilePathEdit", 0, u"相対ﾊﾟｽ参照(&P)...", 1056, ""),
    NotBuilt(TopMenu::Html, u"", "StyleSEdit", 0, u"ｽﾀｲﾙｼｰﾄ参照(&S)...", 1057, ""),
    NotBuilt(TopMenu::Html, u"", "menFabStr", 0, u"文字列のお気に入り(&F)...", 1058, ""),
};

}  // namespace kestri::rows
