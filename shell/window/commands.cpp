#include "shell/window/commands.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "shell/window/rows/edit_rows.hpp"
#include "shell/window/rows/file_rows.hpp"
#include "shell/window/rows/help_rows.hpp"
#include "shell/window/rows/html_rows.hpp"
#include "shell/window/rows/search_rows.hpp"
#include "shell/window/rows/setting_rows.hpp"
#include "shell/window/rows/text_menu_rows.hpp"
#include "shell/window/rows/tool_rows.hpp"
#include "shell/window/rows/view_rows.hpp"

namespace kestri {
namespace {

template <std::size_t... Sizes>
constexpr auto Joined(const std::array<CommandRow, Sizes>&... parts) {
  std::array<CommandRow, (Sizes + ...)> all = {};
  auto out = all.begin();
  ((out = std::copy(parts.begin(), parts.end(), out)), ...);
  return all;
}

constexpr auto kRows =
    Joined(rows::kFileStartRows, rows::kNewRows, rows::kFileOpenRows, rows::kHistoryRows,
           rows::kHistoryEndRows, rows::kFileEndRows, rows::kEditRows, rows::kConversionRows,
           rows::kBracketRows, rows::kEditEndRows, rows::kDayRows, rows::kInputMethodRows, rows::kSearchRows,
           rows::kHtmlRows, rows::kToolStartRows, rows::kSlotRows, rows::kTemplateRows, rows::kViewRows,
           rows::kSettingRows, rows::kHelpRows, rows::kTextMenuRows);

constexpr std::array<std::pair<std::u16string_view, std::u16string_view>, 6> kNested = {
    {{rows::kBracketMenu, rows::kAdvanced2},
     {rows::kLineCodeMenu, rows::kAdvanced2},
     {rows::kDayMenu, rows::kAdvanced2},
     {rows::kSaveSlotMenu, rows::kSlotSaveMenu},
     {rows::kLoadSlotMenu, rows::kSlotSaveMenu},
     {rows::kSlotMenu, rows::kSlotSaveMenu}}};

constexpr std::array kMenus = {TopMenu::File, TopMenu::Edit, TopMenu::Search,  TopMenu::Html,
                               TopMenu::Tool, TopMenu::View, TopMenu::Setting, TopMenu::Help};

}  // namespace

std::span<const CommandRow> CommandRows() {
  return kRows;
}

std::span<const TopMenu> TopMenus() {
  return kMenus;
}

std::u16string_view TopMenuCaption(TopMenu menu) {
  switch (menu) {
    case TopMenu::File:
      return u"ﾌｧｲﾙ(&F)";
    case TopMenu::Edit:
      return u"編集(&E)";
    case TopMenu::Html:
      return u"HTML(&T)";
    case TopMenu::Search:
      return u"検索(&S)";
    case TopMenu::Tool:
      return u"ﾂｰﾙ(&O)";
    case TopMenu::View:
      return u"表示(&V)";
    case TopMenu::Setting:
      return u"設定(&I)";
    case TopMenu::Help:
      return u"ﾍﾙﾌﾟ(&H)";
    case TopMenu::Text:
      break;
  }
  return u"";
}

std::u16string_view ParentSubmenu(std::u16string_view submenu) {
  const auto nested =
      std::find_if(kNested.begin(), kNested.end(), [&](const auto& row) { return row.first == submenu; });
  return nested == kNested.end() ? std::u16string_view() : nested->second;
}

std::span<const SubmenuKey> SubmenuKeys() {
  static constexpr std::array<SubmenuKey, 3> kKeys = {
      {{rows::kAdvanced1, "Alt+Left"}, {rows::kAdvanced2, "Alt+Right"}, {rows::kSlotSaveMenu, "Alt+Up"}}};
  return kKeys;
}

std::u16string SubmenuCaption(std::u16string_view submenu, const EditorCommands& commands) {
  if (submenu != rows::kLineCodeMenu) return std::u16string(submenu);
  return commands.Transforms().LineCodeCaption() + u"(&E)";
}

const CommandRow* FindCommand(std::string_view array, int index) {
  const auto row = std::find_if(kRows.begin(), kRows.end(), [&](const CommandRow& candidate) {
    return candidate.array == array && candidate.index == index && !candidate.IsSeparator();
  });
  return row == kRows.end() ? nullptr : &*row;
}

}  // namespace kestri
