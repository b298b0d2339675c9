// The menu commands as rows. Menu bar, tool bar, hints and tests all come from these.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kestri {

class EditorCommands;

// Text is the text's own menu, which stands in no menu bar.
enum class TopMenu { File, Edit, Search, Html, Tool, View, Setting, Help, Text };

struct CommandRow {
  TopMenu menu;
  std::u16string_view submenu;  // caption of the submenu that holds the row; empty: the top-level menu itself
  std::string_view array;       // name and index of the item, empty for a separator
  int index;
  std::u16string_view caption;  // with "&" before the mnemonic
  int hint;                     // number of the text for the status bar, see menu_hints.hpp
  std::string_view key;         // shortcut in portable words, empty for none
  std::string_view icon;        // freedesktop name, or "kestrile-..." for one of our own; empty for none
  bool (*enabled)(const EditorCommands&);
  void (*run)(EditorCommands&);
  // Of items whose look follows the program's state; null: no check mark, the fixed caption, always shown.
  bool (*checked)(const EditorCommands&) = nullptr;
  std::u16string (*liveCaption)(const EditorCommands&) = nullptr;
  bool (*shown)(const EditorCommands&) = nullptr;
  bool IsSeparator() const { return array.empty(); }
};

std::span<const CommandRow> CommandRows();
std::u16string_view TopMenuCaption(TopMenu menu);
std::span<const TopMenu> TopMenus();
// The submenu that holds this one; empty: it stands in the top-level menu.
std::u16string_view ParentSubmenu(std::u16string_view submenu);
// Keys that open a submenu at the caret.
struct SubmenuKey {
  std::u16string_view submenu;
  std::string_view key;
};
std::span<const SubmenuKey> SubmenuKeys();
// A submenu's caption in the program's present state; the caption in the rows is its name.
std::u16string SubmenuCaption(std::u16string_view submenu, const EditorCommands& commands);

// Null when there is no such item.
const CommandRow* FindCommand(std::string_view array, int index);

}  // namespace kestri
