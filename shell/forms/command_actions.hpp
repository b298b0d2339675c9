// One QAction for each command row, and the menus built from them.
#pragma once

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <functional>
#include <map>
#include <vector>

#include "shell/window/commands.hpp"

namespace kestri {

class CommandActions : public QObject {
 public:
  // Texts for the user: a hint when an item is pointed at (empty: none), and an error that a command raised.
  struct Tell {
    std::function<void(const QString&)> hint;
    std::function<void()> unknownError;
  };
  CommandActions(EditorCommands& commands, Tell tell, QObject* parent);

  void BuildMenus(QMenuBar& bar);
  void AddIcons();
  // Opens a submenu by itself, in global pixels.
  void PopUp(std::u16string_view submenu, QPoint at);
  // The items of the given rows with their present enabled state, as a context menu.
  void FillMenu(QMenu& menu, std::span<const CommandRow* const> rows);

  QAction* Action(const CommandRow& row) const;
  // Runs the command if it may run now. Nothing that it raises leaves this call.
  void Run(const CommandRow& row);
  bool MayRun(const CommandRow& row) const { return row.enabled(commands_); }

 private:
  QAction* MakeAction(const CommandRow& row);
  void AddRow(QMenu& menu, const CommandRow& row);
  QMenu& Submenu(QMenu& top, std::u16string_view caption);
  void ShowSubmenuCaptions();
  void FollowMenu(QMenu& menu);
  enum class MenuState { Open, Closed };
  void ShowStates(const QList<QAction*>& actions, MenuState state) const;

  EditorCommands& commands_;
  Tell tell_;
  std::map<std::u16string_view, QMenu*> submenus_;
  std::vector<QAction*> actions_;  // by the row's place in CommandRows(); null for separators
};

}  // namespace kestri
