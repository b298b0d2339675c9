// Rows of the file menu.
#pragma once

#include <utility>

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::u16string_view kHistoryMenu = u"最近使用したﾌｧｲﾙを開く(&R)";

template <int Index>
constexpr CommandRow HistoryRow() {
  return {TopMenu::File,
          kHistoryMenu,
          "OpenFileReg",
          Index,
          u"履歴",
          u"最近使用したﾌｧｲﾙを開きます",
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
    CommandRow{TopMenu::File, kHistoryMenu, "OpenFileReg", 23, u"履歴をすべて消す(&C)",
               u"最近使用したﾌｧｲﾙの一覧を空にします", "", "edit-clear", kAlways,
               [](C& c) { c.ClearHistory(); }},
};

inline constexpr std::array kFileStartRows = {
    CommandRow{TopMenu::File, u"", "MenFileM", 0, u"新規作成(&N)", u"HTML型の新しい文書を作ります", "Ctrl+N",
               "document-new", kAlways, [](C& c) { c.New(2); }},
    CommandRow{TopMenu::File, u"", "MenFileM", 1, u"開く(&O)...", u"ﾌｧｲﾙを選んで開きます", "Ctrl+O",
               "document-open", kAlways, [](C& c) { c.Open(); }},
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 3, u"上書き保存(&S)", u"現在のﾌｧｲﾙに上書きします", "Ctrl+S",
               "document-save", kAlways, [](C& c) { c.Save(); }},
    CommandRow{TopMenu::File, u"", "MenFileM", 4, u"名前を付けて保存(&A)...", u"別の名前で保存します",
               "Ctrl+Shift+S", "document-save-as", kAlways, [](C& c) { c.SaveAs(); }},
};

inline constexpr std::array kFileEndRows = {
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 6, u"ｶﾚﾝﾄﾌｫﾙﾀﾞを開く(&F)", u"文書のあるﾌｫﾙﾀﾞを開きます", "",
               "folder-open", kAlways, [](C& c) { c.OpenCurrentFolder(); }},
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 8, u"終了(&X)", u"Kestrile を終了します", "Ctrl+Q",
               "application-exit", kAlways, [](C& c) { c.Exit(); }},
};

}  // namespace kestri::rows
