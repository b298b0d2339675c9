// Rows of the edit menu.
#pragma once

#include <utility>

#include "document/input_mode.hpp"
#include "document/transform_rows.hpp"
#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::u16string_view kAdvanced1 = u"高度な操作1(Ex&1)\tAlt+←";
inline constexpr std::u16string_view kAdvanced2 = u"高度な操作2(Ex&2)\tAlt+→";

inline constexpr std::u16string_view kBracketMenu = u"ｶｯｺで囲む(&K)";
inline constexpr std::u16string_view kLineCodeMenu = u"改行ｺｰﾄﾞ(&E)";
inline constexpr std::u16string_view kInputMethodMenu = u"日本語入力(&J)";
inline constexpr std::u16string_view kDayMenu = u"日付と時刻の挿入(&I)";

template <int Index>
constexpr CommandRow ConversionRow(std::u16string_view caption) {
  return {TopMenu::Edit,
          kAdvanced1,
          "HighEdit",
          Index,
          caption,
          1032,
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
          1033,
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
          1034,
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
          1035,
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
          1036,
          "",
          "",
          kWritable,
          [](C& c) { c.Transforms().Day(Index); },
          nullptr,
          [](const C&) { return MenuText(DayRows()[Index]); }};
}

template <int Index>
constexpr CommandRow InputModeRow(std::string_view key = "") {
  return {TopMenu::Edit,
          kInputMethodMenu,
          "MenIMES",
          Index,
          kInputModeCaptions[Index],
          1037,
          key,
          "",
          kAlways,
          [](C& c) { c.Window().ShowInputMode(InputModeAt(Index)); },
          [](const C& c) { return c.Window().InputModeShown() == InputModeAt(Index); }};
}

template <int Index>
constexpr CommandRow InputToolRow(std::u16string_view caption) {
  return {TopMenu::Edit, kInputMethodMenu, "MenIMEsub", Index, caption, 1039, "", "", kAlways, [](C& c) {
            c.InputMethod().MenIMEsub(Index);
          }};
}

inline constexpr std::array kInputMethodRows = {
    InputModeRow<0>(),
    InputModeRow<1>("Ctrl+Alt+F6"),
    InputModeRow<2>(),
    InputModeRow<3>("Ctrl+Alt+F1"),
    InputModeRow<4>("Ctrl+Alt+F2"),
    InputModeRow<5>("Ctrl+Alt+F3"),
    InputModeRow<6>("Ctrl+Alt+F4"),
    InputModeRow<7>("Ctrl+Alt+F5"),
    Separator(TopMenu::Edit, kInputMethodMenu),
    CommandRow{TopMenu::Edit, kInputMethodMenu, "MenIMERe", 0, u"再変換(&V)", 1038, "", "", kWritable,
               [](C& c) { c.InputMethod().MenIMERe(); }},
    Separator(TopMenu::Edit, kInputMethodMenu),
    InputToolRow<0>(u"IMEのﾌﾟﾛﾊﾟﾃｨ"),
    InputToolRow<1>(u"IME単語の登録"),
    InputToolRow<2>(u"IMEﾊﾟｯﾄﾞ"),
};

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
    CommandRow{TopMenu::Edit, kAdvanced1, "HighEdit", 2, u"ﾌﾘｰｲﾝﾃﾞﾝﾄ...", 1031, "", "", kWritable,
               [](C& c) { c.Window().ShowFreeIndent(); }},
    Separator(TopMenu::Edit, kAdvanced1),
    ConversionRow<4>(u"大文字に変換"),
    ConversionRow<5>(u"小文字に変換"),
    ConversionRow<6>(u"全角に変換"),
    ConversionRow<7>(u"半角に変換"),
    ConversionRow<8>(u"ひらがなをカタカナに変換"),
    ConversionRow<9>(u"カタカナをひらがなに変換"),
};

inline constexpr std::array kEditEndRows = {
    Separator(TopMenu::Edit, kBracketMenu), BracketWidthRow<0>(u"半角"), BracketWidthRow<1>(u"全角"),
    LineCodeRowOf<0>(u"CR + LF"),           LineCodeRowOf<1>(u"CR"),     LineCodeRowOf<2>(u"LF"),
};

inline constexpr std::array kEditRows = {
    CommandRow{TopMenu::Edit, u"", "MenUNDO", 0, u"元に戻す(&U)", 1019, "Ctrl+Z", "edit-undo",
               Ask<&C::CanUndo>, [](C& c) { c.Undo(); }},
    CommandRow{TopMenu::Edit, u"", "MenUNDO", 1, u"やり直し(&R)", 1020, "Ctrl+Y", "edit-redo",
               Ask<&C::CanRedo>, [](C& c) { c.Redo(); }},
    Separator(TopMenu::Edit),
    CommandRow{TopMenu::Edit, u"", "Edit", 0, u"切り取り(&T)", 1022, "Ctrl+X", "edit-cut",
               Ask<&C::HasSelectionToCut>, [](C& c) { c.Edit(0); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 1, u"ｺﾋﾟｰ(&C)", 1023, "Ctrl+C", "edit-copy", Ask<&C::HasSelection>,
               [](C& c) { c.Edit(1); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 2, u"貼り付け(&P)", 1024, "Ctrl+V", "edit-paste", kWritable,
               [](C& c) { c.Edit(2); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 3, u"削除", 1025, "", "edit-delete", Ask<&C::HasSelectionToCut>,
               [](C& c) { c.Edit(3); }},
    Separator(TopMenu::Edit),
    CommandRow{TopMenu::Edit, u"", "Edit", 5, u"すべて選択(&A)", 1027, "Ctrl+A", "edit-select-all",
               Ask<&C::HasText>, [](C& c) { c.Edit(5); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 6, u"1行選択(&L)", 1028, "Ctrl+L", "", Ask<&C::HasText>,
               [](C& c) { c.Edit(6); }},
    Separator(TopMenu::Edit),
    CommandRow{TopMenu::Edit, kAdvanced1, "HighEdit", 0, u"ｲﾝﾃﾞﾝﾄ ﾚﾍﾞﾙ +1\tTab", 1029, "",
               "format-indent-more", kWritable, [](C& c) { c.Transforms().HighEdit(0); }},
    CommandRow{TopMenu::Edit, kAdvanced1, "HighEdit", 1, u"ｲﾝﾃﾞﾝﾄ ﾚﾍﾞﾙ -1\tCtrl+Bksp", 1030, "",
               "format-indent-less", Ask<&C::HasSelectionToCut>, [](C& c) { c.Transforms().HighEdit(1); }},
};

}  // namespace kestri::rows
