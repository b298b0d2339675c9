// Rows of the edit menu.
#pragma once

#include <utility>

#include "document/transform_rows.hpp"
#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::u16string_view kAdvanced1 = u"高度な操作1(Ex&1)\tAlt+←";
inline constexpr std::u16string_view kAdvanced2 = u"高度な操作2(Ex&2)\tAlt+→";

inline constexpr std::u16string_view kBracketMenu = u"ｶｯｺで囲む(&K)";
inline constexpr std::u16string_view kLineCodeMenu = u"改行ｺｰﾄﾞ(&E)";
inline constexpr std::u16string_view kDayMenu = u"日付と時刻の挿入(&I)";

template <int Index>
constexpr CommandRow ConversionRow(std::u16string_view caption, std::u16string_view hint) {
  return {TopMenu::Edit,
          kAdvanced1,
          "HighEdit",
          Index,
          caption,
          hint,
          "",
          "",
          Ask<&C::HasSelectionToCut>,
          [](C& c) { c.Transforms().HighEdit(Index); }};
}

template <int Index>
constexpr CommandRow BracketRowOf() {
  return {TopMenu::Edit,
          kBracketMenu,
          "KakkoMenu",
          Index,
          u"ｶｯｺ",
          u"選択範囲をｶｯｺで囲みます",
          "",
          "",
          kWritable,
          [](C& c) { c.Transforms().KakkoMenu(Index); },
          nullptr,
          [](const C&) { return MenuText(BracketRows()[Index].caption); }};
}

template <int Index>
constexpr CommandRow BracketWidthRow(std::u16string_view caption) {
  return {TopMenu::Edit,
          kBracketMenu,
          "KakkoFSet",
          Index,
          caption,
          u"囲むｶｯｺの幅を選びます",
          "",
          "",
          kAlways,
          [](C& c) { c.Transforms().KakkoFSet(Index); },
          [](const C& c) { return c.Transforms().CheckedBracketWidth() == Index; }};
}

template <int Index>
constexpr CommandRow LineCodeRowOf(std::u16string_view caption) {
  return {TopMenu::Edit,
          kLineCodeMenu,
          "LineCode",
          Index,
          caption,
          u"保存する時の改行ｺｰﾄﾞを選びます",
          "",
          "",
          kWritable,
          [](C& c) { c.Transforms().LineCode(Index); },
          [](const C& c) { return c.Transforms().CheckedLineCode() == Index; }};
}

template <int Index>
constexpr CommandRow DayRow() {
  return {TopMenu::Edit,
          kDayMenu,
          "Day",
          Index,
          u"日時",
          u"現在の日付や時刻を挿入します",
          "",
          "",
          kWritable,
          [](C& c) { c.Transforms().Day(Index); },
          nullptr,
          [](const C&) { return MenuText(DayRows()[Index]); }};
}

template <int... I>
constexpr std::array<CommandRow, sizeof...(I)> BracketRowsOf(std::integer_sequence<int, I...>) {
  return {BracketRowOf<I>()...};
}
template <int... I>
constexpr std::array<CommandRow, sizeof...(I)> DayRowsOf(std::integer_sequence<int, I...>) {
  return {DayRow<I>()...};
}

inline constexpr auto kBracketRows = BracketRowsOf(std::make_integer_sequence<int, 12>());
inline constexpr auto kDayRows = DayRowsOf(std::make_integer_sequence<int, 9>());

inline constexpr std::array kConversionRows = {
    CommandRow{TopMenu::Edit, kAdvanced1, "HighEdit", 2, u"ﾌﾘｰｲﾝﾃﾞﾝﾄ...", u"文字と数を選んで字下げします", "",
               "", kWritable, [](C& c) { c.Window().ShowFreeIndent(); }},
    Separator(TopMenu::Edit, kAdvanced1),
    ConversionRow<4>(u"大文字に変換", u"選択範囲の英字を大文字にします"),
    ConversionRow<5>(u"小文字に変換", u"選択範囲の英字を小文字にします"),
    ConversionRow<6>(u"全角に変換", u"選択範囲を全角文字にします"),
    ConversionRow<7>(u"半角に変換", u"選択範囲を半角文字にします"),
    ConversionRow<8>(u"ひらがなをカタカナに変換", u"選択範囲のひらがなをカタカナにします"),
    ConversionRow<9>(u"カタカナをひらがなに変換", u"選択範囲のカタカナをひらがなにします"),
};

inline constexpr std::array kEditEndRows = {
    Separator(TopMenu::Edit, kBracketMenu), BracketWidthRow<0>(u"半角(&H)"), BracketWidthRow<1>(u"全角(&Z)"),
    LineCodeRowOf<0>(u"CR + LF(&1)"),       LineCodeRowOf<1>(u"CR(&2)"),     LineCodeRowOf<2>(u"LF(&3)"),
};

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
    CommandRow{TopMenu::Edit, u"", "Edit", 3, u"削除", u"選択範囲を削除します", "", "edit-delete",
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
