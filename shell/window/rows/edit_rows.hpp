// Rows of the edit menu.
#pragma once

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::u16string_view kAdvanced1 = u"高度な操作1(Ex&1)";

inline constexpr std::array kEditRows = {
    CommandRow{TopMenu::Edit, u"", "MenUNDO", 0, u"元に戻す(&U)", u"直前の操作を取り消します", "Ctrl+Z",
               "edit-undo", Ask<&C::CanUndo>, [](C& c) { c.Undo(); }},
    CommandRow{TopMenu::Edit, u"", "MenUNDO", 1, u"やり直し(&R)", u"取り消した操作をやり直します", "Ctrl+Y",
               "edit-redo", Ask<&C::CanRedo>, [](C& c) { c.Redo(); }},
    Separator(TopMenu::Edit),
    CommandRow{TopMenu::Edit, u"", "Edit", 0, u"切り取り(&T)", u"選択範囲をｸﾘｯﾌﾟﾎﾞｰﾄﾞへ移します", "Ctrl+X",
               "edit-cut", Ask<&C::HasSelectionToCut>, [](C& c) { c.Edit(0); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 1, u"ｺﾋﾟｰ(&C)", u"選択範囲をｸﾘｯﾌﾟﾎﾞｰﾄﾞへ複写します", "Ctrl+C",
               "edit-copy", Ask<&C::HasSelection>, [](C& c) { c.Edit(1); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 2, u"貼り付け(&P)", u"ｸﾘｯﾌﾟﾎﾞｰﾄﾞの文字列を挿入します", "Ctrl+V",
               "edit-paste", kWritable, [](C& c) { c.Edit(2); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 3, u"削除(&D)", u"選択範囲を削除します", "", "edit-delete",
               Ask<&C::HasSelectionToCut>, [](C& c) { c.Edit(3); }},
    Separator(TopMenu::Edit),
    CommandRow{TopMenu::Edit, u"", "Edit", 5, u"すべて選択(&A)", u"文書全体を選択します", "Ctrl+A",
               "edit-select-all", Ask<&C::HasText>, [](C& c) { c.Edit(5); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 6, u"1行選択(&L)", u"ｶｰｿﾙのある行を選択します", "Ctrl+L", "",
               Ask<&C::HasText>, [](C& c) { c.Edit(6); }},
    Separator(TopMenu::Edit),
    CommandRow{TopMenu::Edit, kAdvanced1, "HighEdit", 0, u"ｲﾝﾃﾞﾝﾄ ﾚﾍﾞﾙ +1\tTab",
               u"選択した行を1段字下げします", "", "format-indent-more", kWritable,
               [](C& c) { c.IndentMore(); }},
    CommandRow{TopMenu::Edit, kAdvanced1, "HighEdit", 1, u"ｲﾝﾃﾞﾝﾄ ﾚﾍﾞﾙ -1\tCtrl+Bksp",
               u"選択した行の字下げを1段戻します", "", "format-indent-less", Ask<&C::HasSelectionToCut>,
               [](C& c) { c.IndentLess(); }},
};

}  // namespace kestri::rows
