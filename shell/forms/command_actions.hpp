// One QAction for each command row, and the menus built from them. At the start only what a key needs is
// made; a menu is filled when it opens for the first time.
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <functional>
#include <map>
#include <set>
#include <vector>

#include "shell/window/commands.hpp"

namespace kestri {

class CommandActions : public QObject {
 public:
  // The number of an item's hint when it is pointed at (0: none), a command that is about to run, and an
  // error that it raised.
  struct Tell {
    std::function<void(int)> hint;
    std::function<void()> starting;
    std::function<void()> unknownError;
  };
  // The window takes the shortcuts.
  CommandActions(EditorCommands& commands, Tell tell, QWidget* window);

  void BuildMenus(QMenuBar& bar);
  // From here on items have their icons.
  void AddIcons();
  QMenu& Menu(TopMenu top);                     // filled
  QMenu& Submenu(std::u16string_view caption);  // by its name in the rows
  // Opens a submenu by itself, in global pixels.
  void PopUp(std::u16string_view submenu, QPoint at);
  // The items of the given rows with their present enabled state, as a context menu.
  void FillMenu(QMenu& menu, std::span<const CommandRow* const> rows);

  QAction* Action(const CommandRow& row);
  // Runs the command if it may run now. Nothing that it raises leaves this call.
  void Run(const CommandRow& row);
  bool MayRun(const CommandRow& row) const { return row.enabled(commands_); }
  // The caption of this moment, with "&" before the mnemonic.
  std::u16string Caption(const CommandRow& row) const {
    return row.liveCaption == nullptr ? std::u16string(row.caption) : row.liveCaption(commands_);
  }
  bool Checked(const CommandRow& row) const { return row.checked != nullptr && row.checked(commands_); }

 private:
  QAction* MakeAction(const CommandRow& row);
  void Fill(TopMenu top);
  void AddRow(QMenu& menu, const CommandRow& row);
  void ShowIcon(const CommandRow& row);
  QMenu& MakeSubmenu(QMenu& top, std::u16string_view caption);
  void ShowSubmenuCaptions();
  void FollowMenu(QMenu& menu);
  enum class MenuState { Open, Closed };
  void ShowStates(const QList<QAction*>& actions, MenuState state) const;

  EditorCommands& commands_;
  Tell tell_;
  std::map<TopMenu, QMenu*> tops_;
  std::set<TopMenu> filled_;
  std::map<std::u16string_view, QMenu*> submenus_;
  std::vector<QAction*> actions_;  // by the row's place in CommandRows(); null while not made
  bool withIcons_ = false;
};

}  // namespace kestri
