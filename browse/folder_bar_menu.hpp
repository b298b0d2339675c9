// The folder bar's menus as rows.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace kestri {

class FolderBar;

enum class FolderBarMenu {
  DirTreeSubMenu,  // the tree's own menu; DirTreeBookMenu stands below it in the same one
  DirTreeSubSubMenu,
  DirTreeBookMenu,
  DirTreeFileSubMenu,  // the file list's own menu
  DirTreeFileSubSubMenu,
  DirTreeFileSubSubSettingMenu,
};

struct FolderBarRow {
  FolderBarMenu menu;
  int index;
  std::u16string_view caption;                  // empty: a separator
  bool (*enabled)(const FolderBar&) = nullptr;  // null: always
  void (*run)(FolderBar&) = nullptr;
  bool (*checked)(const FolderBar&) = nullptr;  // null: no check mark
  // Of a row that opens another menu, which then has no run.
  const FolderBarMenu* submenu = nullptr;
  std::string_view key = {};  // the key that does the same in the tree or list, in portable words

  bool IsSeparator() const { return caption.empty(); }
};

// In the order of the screen; indices count separators.
std::span<const FolderBarRow> RowsOf(FolderBarMenu menu);

}  // namespace kestri
