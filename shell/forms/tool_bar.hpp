// The tool bar, built from its rows.
#pragma once

#include <QToolBar>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "shell/forms/command_actions.hpp"
#include "shell/window/tool_rows.hpp"

namespace kestri {

// What the buttons ask of the program at every moment.
struct ToolBarState {
  std::function<std::int32_t()> fileKind;                    // of the open document
  std::function<std::u16string(int index)> externalProgram;  // its name; empty when none is registered
  std::function<void()> hintGone;                            // the pointer left the drop-down
};

class ToolBar : public QToolBar {
 public:
  ToolBar(CommandActions& actions, QWidget* parent, ToolBarState state = {});

  enum class MenuIcons { Without, With };
  void AddIcons(MenuIcons menuIcons);
  // Which buttons may be pressed and which are pressed in. Cheap; the window's timer calls it.
  void RefreshStates();

 private:
  struct Button {
    const ToolRow* row = nullptr;
    const CommandRow* command = nullptr;
    QAction* action = nullptr;
    QMenu* menu = nullptr;
    std::vector<const CommandRow*> entries = {};  // that are built
  };

  void AddButton(const ToolRow& row);
  QMenu* MakeDropDown(const Button& button);
  void FillDropDown(const Button& button);
  void AddEntry(QMenu& menu, const ToolEntry& entry);
  QString EntryCaption(const ToolEntry& entry, const CommandRow& command) const;
  bool MayOpen(const Button& button) const;
  void Press(const Button& button);
  void FollowDocument();
  void Show(Button& button, const CommandRow& command, std::string_view icon);

  CommandActions& actions_;
  ToolBarState state_;
  std::vector<Button> buttons_;
  std::int32_t shownKind_ = 0;
  bool withIcons_ = false;
  MenuIcons menuIcons_ = MenuIcons::Without;
};

}  // namespace kestri
