// Rows of the search menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kSearchRows = {
    CommandRow{TopMenu::Search, u"", "SearEdit", 4, u"指定行の検索(&L)...", u"行番号を指定してｶｰｿﾙを移します",
               "Ctrl+G", "go-jump", kAlways, [](C& c) { c.Window().ShowLineJump(); }},
    Separator(TopMenu::Search),
    CommandRow{TopMenu::Search, u"", "SearEdit", 5, u"総文字ｲﾝﾃﾞｯｸｽ取得(&I)",
               u"ｶｰｿﾙの位置と文字数を表示します", "", "", kAlways, [](C& c) { c.ShowTotalIndex(); }},
    CommandRow{TopMenu::Search, u"", "SearEdit", 6, u"総ﾊﾞｲﾄ数取得(&B)",
               u"選択範囲または文書のﾊﾞｲﾄ数を表示します", "", "", kAlways, [](C& c) { c.ShowTotalBytes(); }},
};

}  // namespace kestri::rows
