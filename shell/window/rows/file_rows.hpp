// Rows of the file menu.
#pragma once

#include <utility>

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::u16string_view kNewMenu = u"種類を選んで新規作成(&K)";

template <std::int16_t Kind>
constexpr CommandRow NewRow(std::u16string_view caption) {
  return {TopMenu::File, kNewMenu, "MenFileMs",    Kind,    caption,
          1001,          "",       "document-new", kAlways, [](C& c) { c.New(Kind); }};
}

inline constexpr std::array kNewRows = {
    NewRow<0>(u"白紙(&0)"),
    NewRow<1>(u"ﾃｷｽﾄ型 (*.txt)(&1)"),
    NewRow<2>(u"HTML型 (*.htm)(&2)"),
    NewRow<3>(u"HTML型 詳細設定済み (*.htm)(&3)"),
    NewRow<4>(u"CSS型 (*.css)(&4)"),
    NewRow<5>(u"Cｿｰｽ型 (*.c)(&5)"),
    NewRow<6>(u"Cﾍｯﾀﾞｰ型 (*.h)(&6)"),
    NewRow<7>(u"ﾊﾞｯﾁ型 (*.bat)(&7)"),
    NewRow<8>(u"INI型 (*.ini)(&8)"),
    NewRow<9>(u"JAVA型 (*.java)(&9)"),
    NewRow<10>(u"クリップファイル型 (*.clped)(&C)"),
    NewRow<12>(u"VBScript型 (*.vbs)(&V)"),
    NewRow<13>(u"ReadMe型 (*.txt)(&R)"),
    NewRow<14>(u"AsciiArt下書き型 (*.aat)(&A)"),
    NewRow<11>(u"ﾕｰｻﾞｰ定義型...(&U)"),
};

inline constexpr std::u16string_view kHistoryMenu = u"最近使用したﾌｧｲﾙを開く";

template <int Index>
constexpr CommandRow HistoryRow() {
  return {TopMenu::File,
          kHistoryMenu,
          "OpenFileReg",
          Index,
          u"履歴",
          1008,
          "",
          "",
          kAlways,
          [](C& c) { c.OpenHistory(Index); },
          nullptr,
          [](const C& c) { return c.HistoryCaption(Index); },
          [](const C& c) { return c.HistoryShown(Index); }};
}

template <int... Indices>
constexpr std::array<CommandRow, sizeof...(Indices)> HistoryRows(std::integer_sequence<int, Indices...>) {
  return {HistoryRow<Indices>()...};
}

inline constexpr auto kHistoryRows = HistoryRows(std::make_integer_sequence<int, FileHistory::kLength>());

inline constexpr std::array kHistoryEndRows = {
    Separator(TopMenu::File, kHistoryMenu),
    CommandRow{TopMenu::File, kHistoryMenu, "OpenFileReg", 21, u"その他の最近使用したﾌｧｲﾙを開く(&L)...", 1009,
               "", "document-open-recent", kAlways, [](C& c) { c.OpenOtherRecentFile(); }},
    Separator(TopMenu::File, kHistoryMenu),
    CommandRow{TopMenu::File, kHistoryMenu, "OpenFileReg", 23, u"履歴をすべて消す(&C)", 1010, "",
               "edit-clear", kAlways, [](C& c) { c.ClearHistory(); }},
};

inline constexpr std::array kFileStartRows = {
    CommandRow{TopMenu::File, u"", "MenFileM", 0, u"新規作成(&N)", 1000, "Ctrl+N", "document-new", kAlways,
               [](C& c) { c.New(2); }},
};

inline constexpr std::array kFileOpenRows = {
    CommandRow{TopMenu::File, u"", "MenFileM", 8, u"新規作成の選択(&L)...", 1002, "", "", kAlways,
               [](C& c) { c.ChooseNew(); }},
    CommandRow{TopMenu::File, u"", "MenFileOpenEx", 0, u"白紙の新しいｳｨﾝﾄﾞｳを開く(&W)", 1003, "Ctrl+Shift+N",
               "window-new", kAlways, [](C& c) { c.OpenBlankWindow(); }},
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 1, u"開く(&O)...", 1005, "Ctrl+O", "document-open", kAlways,
               [](C& c) { c.Open(); }},
    CommandRow{TopMenu::File, u"", "MenFileOpenEx", 1, u"新しいｳｨﾝﾄﾞｳで開く(&E)...", 1006, "", "", kAlways,
               [](C& c) { c.OpenInNewWindow(); }},
    CommandRow{TopMenu::File, u"", "MenFileOpenEx", 2, u"HTMLに変換して開く(&T)...", 1007, "", "", kAlways,
               [](C& c) { c.Window().ShowTextToHtml(); }},
};

inline constexpr std::array kFileEndRows = {
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 3, u"上書き保存(&S)", 1012, "Ctrl+S", "document-save", kAlways,
               [](C& c) { c.Save(); }},
    CommandRow{TopMenu::File, u"", "MenFileM", 4, u"名前を付けて保存(&A)...", 1013, "Ctrl+Shift+S",
               "document-save-as", kAlways, [](C& c) { c.SaveAs(); }},
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 6, u"ｶﾚﾝﾄﾌｫﾙﾀﾞを開く(&F)", 1015, "", "folder-open", kAlways,
               [](C& c) { c.OpenCurrentFolder(); }},
    NotBuilt(TopMenu::File, u"", "MenFileM", 9, u"印刷(&P)...", 1016, "document-print"),
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 10, u"終了(&X)", 1018, "Ctrl+Q", "application-exit", kAlways,
               [](C& c) { c.Exit(); }},
};

}  // namespace kestri::rows
