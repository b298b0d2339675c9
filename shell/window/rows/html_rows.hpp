// Rows of the HTML menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::array kHtmlRows = {
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 0, u"ﾀｸﾞの解析...", u"ｶｰｿﾙのあるﾀｸﾞを表にして編集します", "",
               "", kNever, [](C& c) { c.HTMLEdit(0); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 1, u"ﾀｸﾞ候補一覧[補完]",
               u"ｶｰｿﾙの左の語に合うﾀｸﾞの候補を出します", "F2", "kestrile-html-tag", kTagTools,
               [](C& c) { c.HTMLEdit(1); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 2, u"属性候補一覧[補完]",
               u"ｶｰｿﾙの左の語に合う属性の候補を出します", "F3", "kestrile-html-attribute", kTagTools,
               [](C& c) { c.HTMLEdit(2); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 3, u"値候補一覧[補完]",
               u"ｶｰｿﾙの左の語に合う値の候補を出します", "F4", "kestrile-html-value", kTagTools,
               [](C& c) { c.HTMLEdit(3); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 4, u"ｶｰｿﾙ位置の候補一覧(&P)",
               u"ｶｰｿﾙの場所に合った候補を出します", "Ctrl+Space", "", kTagTools,
               [](C& c) { c.CandidatesAtCaret(); }},
    CommandRow{TopMenu::Html, u"", "mnuCallUserInTo", 0, u"ﾕｰｻﾞｰｵｰﾄｺﾝﾌﾟﾘｰﾄのｺｰﾙ(&Z)",
               u"ﾕｰｻﾞｰ定義ﾌｧｲﾙの語句の候補を出します", "", "", kAlways, [](C& c) { c.CallUserInTo(); }},
    Separator(TopMenu::Html),
    CommandRow{TopMenu::Html, u"", "CEdit", 0, u"ﾀｸﾞ・ﾊﾟﾗﾒｰﾀの補完(&D)",
               u"ｶｰｿﾙのあるﾀｸﾞを辞書のﾃﾞﾌｫﾙﾄﾀｸﾞに置き換えます", "Ctrl+D", "", kTagTools,
               [](C& c) { c.CEdit(0); }},
};

}  // namespace kestri::rows
