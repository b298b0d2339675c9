// The tool bar, built from its rows.
#pragma once

#include <QToolBar>
#include <QToolButton>
#include <utility>
#include <vector>

#include "shell/forms/command_actions.hpp"

namespace kestri {

class ToolBar : public QToolBar {
 public:
  ToolBar(CommandActions& actions, QWidget* parent);

  void AddIcons();
  // Which buttons may be pressed now. Cheap; the window's timer calls it.
  void RefreshStates();

 private:
  QToolButton* MakeButton(const ToolRow& row, const CommandRow& command);
  void FillDropDown(QMenu& menu, const ToolRow& row);

  CommandActions& actions_;
  std::vector<std::pair<QToolButton*, const CommandRow*>> buttons_;
};

}  // namespace kestri
