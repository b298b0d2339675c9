// Rows of the tool menu: the bar of insertions and the save slots.
#pragma once

#include <utility>

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::u16string_view kSaveSlotMenu = u"一時保存のﾃﾞｰﾀを作成する(&W)";
inline constexpr std::u16string_view kLoadSlotMenu = u"一時保存のﾃﾞｰﾀを読み込む(&R)";
inline constexpr std::u16string_view kSlotMenu = u"ｾｰﾌﾞｽﾛｯﾄの変更(&S)";

inline constexpr std::array<std::string_view, SaveSlots::kCount> kSlotKeys = {
    "Ctrl+0", "Ctrl+1", "Ctrl+2", "Ctrl+3", "Ctrl+4", "Ctrl+5", "Ctrl+6", "Ctrl+7", "Ctrl+8", "Ctrl+9"};

template <int Number>
constexpr CommandRow SaveSlotRow() {
  return {TopMenu::Tool,
          kSaveSlotMenu,
          "SaveSlot",
          Number,
          u"ｽﾛｯﾄ",
          u"文書の写しをこのｽﾛｯﾄに残します",
          "",
          "",
          kAlways,
          [](C& c) { c.Slots().SaveSlot(Number); },
          nullptr,
          [](const C& c) { return c.Slots().SlotSaveEdit()[Number].caption; }};
}

template <int Number>
constexpr CommandRow LoadSlotRow() {
  return {TopMenu::Tool,
          kLoadSlotMenu,
          "LoadSlot",
          Number,
          u"ｽﾛｯﾄ",
          u"このｽﾛｯﾄの写しを文書に読み込みます",
          "",
          "",
          [](const C& c) { return c.Slots().SlotSaveEdit()[Number].filled; },
          [](C& c) { c.Slots().LoadSlot(Number); },
          nullptr,
          [](const C& c) { return c.Slots().SlotSaveEdit()[Number].caption; }};
}

template <int Number>
constexpr CommandRow SlotRow() {
  return {TopMenu::Tool,
          kSlotMenu,
          "Slot",
          Number,
          u"ｽﾛｯﾄ",
          u"ﾃﾞﾌｫﾙﾄｽﾛｯﾄを変更します",
          kSlotKeys[Number],
          "",
          kAlways,
          [](C& c) { c.Slots().Slot(Number); },
          [](const C& c) { return c.Slots().DefaultSlot() == Number; },
          [](const C&) { return ToText(Number); }};
}

template <int... N>
constexpr std::array<CommandRow, 3 * sizeof...(N)> SlotRows(std::integer_sequence<int, N...>) {
  return {SaveSlotRow<N>()..., LoadSlotRow<N>()..., SlotRow<N>()...};
}

inline constexpr auto kSlotRows = SlotRows(std::make_integer_sequence<int, SaveSlots::kCount>());

inline constexpr std::array kToolStartRows = {
    CommandRow{TopMenu::Tool, u"", "MenTool", 0, u"MenuBar(&M)",
               u"特殊文字・色・ﾌｫﾝﾄを挿入するﾊﾞｰを表示します", "", "", kAlways,
               [](C& c) { c.Window().ShowInsertBar(); }},
    Separator(TopMenu::Tool),
    CommandRow{TopMenu::Tool, u"", "DefSlotSave", 0, u"ﾃﾞﾌｫﾙﾄSave", u"文書の写しをﾃﾞﾌｫﾙﾄｽﾛｯﾄに残します",
               "Ctrl+Shift+Up", "", kAlways, [](C& c) { c.Slots().DefSlotSave(); }, nullptr,
               [](const C& c) { return c.DefaultSlotCaption(u"ﾃﾞﾌｫﾙﾄSave"); }},
    CommandRow{TopMenu::Tool, u"", "DefSlotLoad", 0, u"ﾃﾞﾌｫﾙﾄLoad", u"ﾃﾞﾌｫﾙﾄｽﾛｯﾄの写しを文書に読み込みます",
               "Ctrl+Shift+Down", "", kAlways, [](C& c) { c.Slots().DefSlotLoad(); }, nullptr,
               [](const C& c) { return c.DefaultSlotCaption(u"ﾃﾞﾌｫﾙﾄLoad"); }},
};

}  // namespace kestri::rows
