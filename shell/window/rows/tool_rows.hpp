// Rows of the tool menu: runs, outside programs, the small tools, save slots and templates.
#pragma once

#include <utility>

#include "shell/window/rows/row_tools.hpp"

namespace kestri::rows {

inline constexpr std::u16string_view kProgramMenu = u"外部ﾌﾟﾛｸﾞﾗﾑ(&G)";
inline constexpr std::u16string_view kSlotSaveMenu = u"一時保存(&W)\tAlt+↑";
inline constexpr std::u16string_view kSaveSlotMenu = u"一時保存のﾃﾞｰﾀを作成する";
inline constexpr std::u16string_view kLoadSlotMenu = u"一時保存のﾃﾞｰﾀを読み込む";
inline constexpr std::u16string_view kTemplateMenu = u"ﾃﾝﾌﾟﾚｰﾄの編集(&T)";
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
          1065,
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
          1066,
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
          1067,
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

template <int Index>
constexpr CommandRow ExternalProgramRow() {
  return {TopMenu::Tool,
          kProgramMenu,
          "MenOPg",
          Index,
          u"外部ﾂｰﾙ",
          1061,
          "",
          "",
          [](const C& c) { return c.Programs().Registered(Index); },
          [](C& c) { c.Programs().MenOPg(Index); },
          nullptr,
          [](const C& c) { return MenuText(c.Programs().Caption(Index)); }};
}

template <int Kind>
constexpr CommandRow TemplateRow(std::u16string_view caption) {
  return {TopMenu::Tool, kTemplateMenu, "TmpLEdit", Kind, caption, 1068, "", "", kAlways, [](C& c) {
            c.EditTemplate(Kind);
          }};
}

inline constexpr std::array kTemplateRows = {TemplateRow<1>(u"ﾃｷｽﾄ型 (*.txt)(&1)"),
                                             TemplateRow<2>(u"HTML型 (*.htm)(&2)"),
                                             TemplateRow<3>(u"HTML型 詳細設定済み (*.htm)(&3)"),
                                             TemplateRow<4>(u"CSS型 (*.css)(&4)"),
                                             TemplateRow<5>(u"Cｿｰｽ型 (*.c)(&5)"),
                                             TemplateRow<6>(u"Cﾍｯﾀﾞｰ型 (*.h)(&6)"),
                                             TemplateRow<7>(u"ﾊﾞｯﾁ型 (*.bat)(&7)"),
                                             TemplateRow<8>(u"INI型 (*.ini)(&8)"),
                                             TemplateRow<9>(u"JAVA型 (*.java)(&9)"),
                                             TemplateRow<12>(u"VBScript型 (*.vbs)(&V)"),
                                             TemplateRow<13>(u"ReadMe型 (*.txt)(&R)"),
                                             TemplateRow<14>(u"AsciiArt下書き型 (*.aat)(&A)")};

inline constexpr std::array kToolStartRows = {
    NotBuilt(TopMenu::Tool, u"", "MenHTMLEdit", 0, u"関連付け実行 [完全]", 1059, "kestrile-run"),
    NotBuilt(TopMenu::Tool, u"", "MenHTMLEdit", 1, u"関連付け実行 [ﾃｽﾄ]", 1059, "kestrile-test-run"),
    NotBuilt(TopMenu::Tool, u"", "MenHTMLEdit", 2, u"WYSIWYGｴﾃﾞｨﾀ起動 [完全]", 1059, ""),
    NotBuilt(TopMenu::Tool, u"", "MenHTMLEdit", 3, u"WYSIWYGｴﾃﾞｨﾀ起動 [ﾃｽﾄ]", 1059, ""),
    NotBuilt(TopMenu::Tool, u"", "mnuCmpl", 0, u"単一ﾌｧｲﾙｺﾝﾊﾟｲﾙ(&L)", 1060, ""),
    ExternalProgramRow<0>(),
    ExternalProgramRow<1>(),
    ExternalProgramRow<2>(),
    Separator(TopMenu::Tool, kProgramMenu),
    CommandRow{TopMenu::Tool, kProgramMenu, "MenOPgWord", 0, u"ﾜｰﾄﾞﾊﾟｯﾄﾞ", 1061, "",
               "accessories-text-editor", kAlways, [](C& c) { c.Programs().MenOPgWord(); }},
    CommandRow{TopMenu::Tool, kProgramMenu, "MenOPgPaint", 0, u"ﾍﾟｲﾝﾄ", 1061, "", "applications-graphics",
               kAlways, [](C& c) { c.Programs().MenOPgPaint(); }},
    Separator(TopMenu::Tool),
    CommandRow{TopMenu::Tool, u"", "MenTool", 0, u"MenuBar(&M)", 1062, "", "kestrile-special-characters",
               kAlways, [](C& c) { c.Window().ShowInsertBar(); }},
    NotBuilt(TopMenu::Tool, u"", "MenTool", 1, u"MiniWebBrowser", 1062, ""),
    NotBuilt(TopMenu::Tool, u"", "MenTool", 2, u"AsciiArtPalette", 1062, ""),
    NotBuilt(TopMenu::Tool, u"", "MenTool", 3, u"SubTextWindow", 1062, ""),
    Separator(TopMenu::Tool),
    NotBuilt(TopMenu::Tool, u"", "menURLmove", 0, u"URLの抽出(&U)...", 1063, ""),
    NotBuilt(TopMenu::Tool, u"", "mnuCnvImg", 0, u"ｲﾒｰｼﾞ変換(&I)...", 1064, ""),
    Separator(TopMenu::Tool),
    CommandRow{TopMenu::Tool, kSlotSaveMenu, "DefSlotSave", 0, u"ﾃﾞﾌｫﾙﾄSave", 1065, "Ctrl+Shift+K", "",
               kAlways, [](C& c) { c.Slots().DefSlotSave(); }, nullptr,
               [](const C& c) { return c.DefaultSlotCaption(u"ﾃﾞﾌｫﾙﾄSave"); }},
    CommandRow{TopMenu::Tool, kSlotSaveMenu, "DefSlotLoad", 0, u"ﾃﾞﾌｫﾙﾄLoad", 1066, "Ctrl+Shift+R", "",
               kAlways, [](C& c) { c.Slots().DefSlotLoad(); }, nullptr,
               [](const C& c) { return c.DefaultSlotCaption(u"ﾃﾞﾌｫﾙﾄLoad"); }},
    Separator(TopMenu::Tool, kSlotSaveMenu),
};

}  // namespace kestri::rows
