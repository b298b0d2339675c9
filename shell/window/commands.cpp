#include "shell/window/commands.hpp"

#include <algorithm>
#include <array>

#include "shell/window/rows/edit_rows.hpp"
#include "shell/window/rows/file_rows.hpp"
#include "shell/window/rows/help_rows.hpp"
#include "shell/window/rows/html_rows.hpp"
#include "shell/window/rows/search_rows.hpp"
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
           rows::kBracketRows, rows::kEditEndRows, rows::kDayRows, rows::kSearchRows, rows::kHtmlRows,
           rows::kToolStartRows, rows::kSlotRows, rows::kViewRows, rows::kHelpRows);

constexpr std::array kMenus = {TopMenu::File, TopMenu::Edit, TopMenu::Search, TopMenu::Html,
                               TopMenu::Tool, TopMenu::View, TopMenu::Help};

constexpr std::array kNewEntries = {
    ToolRow::Entry{"New1", u"白紙", "MenFileMs", 0},
    ToolRow::Entry{"New2", u"TEXT型新規作成", "MenFileMs", 1},
    ToolRow::Entry{"New3", u"HTML型新規作成", "MenFileMs", 2},
    ToolRow::Entry{"New4", u"AsciiArt下書き", "MenFileMs", 14},
    ToolRow::Entry{"New6", u"-", "", 0},
    ToolRow::Entry{"New7", u"白紙の新しいｳｨﾝﾄﾞｳを開く", "MenFileOpenEx", 0},
};
constexpr std::array kOpenEntries = {
    ToolRow::Entry{"Open1", u"開く...", "MenFileM", 1},
    ToolRow::Entry{"Open3", u"新しいｳｨﾝﾄﾞｳで開く...", "MenFileOpenEx", 1},
    ToolRow::Entry{"Open4", u"-", "", 0},
    ToolRow::Entry{"Open5", u"ｶﾚﾝﾄﾌｫﾙﾀﾞを開く", "MenFileM", 6},
};
constexpr std::array kSaveEntries = {
    ToolRow::Entry{"Save1", u"上書き保存", "MenFileM", 3},
    ToolRow::Entry{"Save2", u"名前をつけて保存...", "MenFileM", 4},
};
constexpr std::array kToolEntries = {
    ToolRow::Entry{"Tool8", u"ﾀｸﾞ候補一覧[補完]", "HTMLEdit", 1},
    ToolRow::Entry{"Tool9", u"属性候補一覧[補完]", "HTMLEdit", 2},
    ToolRow::Entry{"Tool10", u"値候補一覧[補完]", "HTMLEdit", 3},
};

constexpr std::array kToolRows = {
    ToolRow{"New", u"新規作成", "MenFileM", 0, kNewEntries},
    ToolRow{"Open", u"開く", "MenFileM", 1, kOpenEntries},
    ToolRow{"ReSave", u"上書き保存", "MenFileM", 3, kSaveEntries},
    ToolRow{"", u"-", "", 0, {}},
    ToolRow{"Cut", u"切り取り", "Edit", 0, {}},
    ToolRow{"Copy", u"ｺﾋﾟｰ", "Edit", 1, {}},
    ToolRow{"Past", u"貼り付け", "Edit", 2, {}},
    ToolRow{"", u"-", "", 0, {}},
    ToolRow{"Undo", u"元に戻す", "MenUNDO", 0, {}},
    ToolRow{"Redo", u"やり直し", "MenUNDO", 1, {}},
    ToolRow{"", u"-", "", 0, {}},
    ToolRow{"Tool", u"ﾀｸﾞ候補一覧", "HTMLEdit", 1, kToolEntries},
};

}  // namespace

std::span<const CommandRow> CommandRows() {
  return kRows;
}

std::span<const ToolRow> ToolRows() {
  return kToolRows;
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
    case TopMenu::Help:
      return u"ﾍﾙﾌﾟ(&H)";
  }
  return u"";
}

std::u16string_view ParentSubmenu(std::u16string_view submenu) {
  const bool inAdvanced2 =
      submenu == rows::kBracketMenu || submenu == rows::kLineCodeMenu || submenu == rows::kDayMenu;
  return inAdvanced2 ? rows::kAdvanced2 : std::u16string_view();
}

std::span<const SubmenuKey> SubmenuKeys() {
  static constexpr std::array<SubmenuKey, 2> kKeys = {
      {{rows::kAdvanced1, "Alt+Left"}, {rows::kAdvanced2, "Alt+Right"}}};
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
