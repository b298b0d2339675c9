#include "shell/forms/tool_bar.hpp"

#include <QMenu>

#include "platform/qt/qt_text.hpp"
#include "shell/forms/icons.hpp"

namespace kestri {
namespace {

constexpr int kIconSize = 22;  // pixels

QString ToolTipOf(const ToolRow& row, const CommandActions& actions, const CommandRow& command) {
  const QString key = actions.Action(command)->shortcut().toString(QKeySequence::NativeText);
  return key.isEmpty() ? ToQt(row.caption) : ToQt(row.caption) + QStringLiteral(" (%1)").arg(key);
}

}  // namespace

ToolBar::ToolBar(CommandActions& actions, QWidget* parent)
    : QToolBar(QStringLiteral("ﾂｰﾙﾊﾞｰ"), parent), actions_(actions) {
  setObjectName(QStringLiteral("ToolBar"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setIconSize({kIconSize, kIconSize});
  for (const ToolRow& row : ToolRows()) {
    const CommandRow* command = FindCommand(row.array, row.index);
    if (command == nullptr) {
      addSeparator();
    } else {
      buttons_.emplace_back(MakeButton(row, *command), command);
    }
  }
}

QToolButton* ToolBar::MakeButton(const ToolRow& row, const CommandRow& command) {
  auto* button = new QToolButton(this);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setText(ToQt(row.caption));
  button->setAccessibleName(ToQt(row.caption));
  button->setToolTip(ToolTipOf(row, actions_, command));
  connect(button, &QToolButton::clicked, this, [this, &command] { actions_.Run(command); });
  if (!row.entries.empty()) {
    auto* menu = new QMenu(button);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    connect(menu, &QMenu::aboutToShow, this, [this, menu, &row] { FillDropDown(*menu, row); });
  }
  addWidget(button);
  return button;
}

void ToolBar::FillDropDown(QMenu& menu, const ToolRow& row) {
  menu.clear();
  for (const ToolRow::Entry& entry : row.entries) {
    const CommandRow* command = FindCommand(entry.array, entry.index);
    if (command == nullptr) {
      menu.addSeparator();
      continue;
    }
    QAction* action = menu.addAction(CommandIcon(command->icon), ToQt(entry.caption));
    action->setEnabled(actions_.MayRun(*command));
    connect(action, &QAction::triggered, this, [this, command] { actions_.Run(*command); });
  }
}

void ToolBar::AddIcons() {
  for (const auto& [button, command] : buttons_) button->setIcon(CommandIcon(command->icon));
}

void ToolBar::RefreshStates() {
  for (const auto& [button, command] : buttons_) button->setEnabled(actions_.MayRun(*command));
}

}  // namespace kestri
