// Rows of the search menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kSearchRows = {
    NotBuilt(TopMenu::Search, u"", "SearEdit", 0, u"検索語句の設定...", 1040, ""),
    NotBuilt(TopMenu::Search, u"", "SearEdit", 1, u"次を検索 [ 上へ ] (&U)", 1041, "go-up"),
    NotBuilt(TopMenu::Search, u"", "SearEdit", 2, u"次を検索 [ 下へ ] (&D)", 1042, "go-down"),
    NotBuilt(TopMenu::Search, u"", "SearEdit", 3, u"検索・置換のﾌﾟﾛﾊﾟﾃｨ(&F)...", 1043, "edit-find"),
    Separator(TopMenu::Search),
    CommandRow{TopMenu::Search, u"", "SearEdit", 4, u"指定行の検索...", 1045, "Ctrl+G", "go-jump", kAlways,
               [](C& c) { c.Window().ShowLineJump(); }},
    CommandRow{TopMenu::Search, u"", "SearEdit", 5, u"総文字ｲﾝﾃﾞｯｸｽ取得", 1046, "", "", kAlways,
               [](C& c) { c.ShowTotalIndex(); }},
    CommandRow{TopMenu::Search, u"", "SearEdit", 6, u"総ﾊﾞｲﾄ数取得", 1047, "", "", kAlways,
               [](C& c) { c.ShowTotalBytes(); }},
};

}  // namespace kestri::rows
