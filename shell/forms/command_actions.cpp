#include "shell/forms/command_actions.hpp"

#include <QTimer>
#include <exception>
#include <map>

#include "platform/qt/qt_text.hpp"
#include "shell/forms/icons.hpp"
#include "shell/window/editor_commands.hpp"

namespace kestri {
namespace {

constexpr char kRowProperty[] = "commandRow";

int IndexOf(const CommandRow& row) {
  return static_cast<int>(&row - CommandRows().data());
}

const CommandRow* RowOf(const QAction& action) {
  const QVariant index = action.property(kRowProperty);
  return index.isValid() ? &CommandRows()[static_cast<std::size_t>(index.toInt())] : nullptr;
}

}  // namespace

CommandActions::CommandActions(EditorCommands& commands, Tell tell, QObject* parent)
    : QObject(parent), commands_(commands), tell_(std::move(tell)) {
  for (const CommandRow& row : CommandRows())
    actions_.push_back(row.IsSeparator() ? nullptr : MakeAction(row));
}

QAction* CommandActions::MakeAction(const CommandRow& row) {
  auto* action = new QAction(ToQt(row.caption), this);
  action->setProperty(kRowProperty, IndexOf(row));
  action->setCheckable(row.checked != nullptr);
  action->setObjectName(QString::fromLatin1(row.array.data(), static_cast<qsizetype>(row.array.size())) +
                        QString::number(row.index));
  if (!row.key.empty()) {
    const QString key = QString::fromLatin1(row.key.data(), static_cast<qsizetype>(row.key.size()));
    action->setShortcut(QKeySequence(key, QKeySequence::PortableText));
  }
  connect(action, &QAction::triggered, this, [this, &row] { Run(row); });
  connect(action, &QAction::hovered, this, [this, &row] { tell_.hint(ToQt(row.hint)); });
  return action;
}

// Only while their menu is open do items show whether they may run: a shortcut must never meet an item that
// was left disabled by an earlier state of the text.
void CommandActions::ShowStates(const QList<QAction*>& actions, MenuState state) const {
  for (QAction* action : actions) {
    const CommandRow* row = RowOf(*action);
    if (row == nullptr) continue;
    action->setEnabled(state == MenuState::Closed || MayRun(*row));
    if (state == MenuState::Closed) continue;
    if (row->checked != nullptr) action->setChecked(row->checked(commands_));
    if (row->liveCaption != nullptr) action->setText(ToQt(row->liveCaption(commands_)));
    if (row->shown != nullptr) action->setVisible(row->shown(commands_));
  }
}

QAction* CommandActions::Action(const CommandRow& row) const {
  return actions_[static_cast<std::size_t>(IndexOf(row))];
}

void CommandActions::Run(const CommandRow& row) {
  try {
    if (row.enabled(commands_)) {
      row.run(commands_);
    } else if (row.menu == TopMenu::Edit || row.menu == TopMenu::Html) {
      commands_.AnswerIfReadOnly();
    }
  } catch (const std::exception&) {
    tell_.unknownError();
  }
}

void CommandActions::BuildMenus(QMenuBar& bar) {
  std::map<TopMenu, QMenu*> tops;
  for (const TopMenu top : TopMenus()) tops[top] = bar.addMenu(ToQt(TopMenuCaption(top)));
  for (const CommandRow& row : CommandRows()) {
    QMenu* menu = tops.at(row.menu);
    AddRow(row.submenu.empty() ? *menu : Submenu(*menu, row.submenu), row);
  }
  for (const auto& [top, menu] : tops) FollowMenu(*menu);
  for (const auto& [caption, menu] : submenus_) FollowMenu(*menu);
}

QMenu& CommandActions::Submenu(QMenu& top, std::u16string_view caption) {
  if (const auto known = submenus_.find(caption); known != submenus_.end()) return *known->second;
  const std::u16string_view parent = ParentSubmenu(caption);
  QMenu* made = (parent.empty() ? top : Submenu(top, parent)).addMenu(ToQt(caption));
  submenus_.emplace(caption, made);
  return *made;
}

void CommandActions::PopUp(std::u16string_view submenu, QPoint at) {
  submenus_.at(submenu)->popup(at);
}

void CommandActions::ShowSubmenuCaptions() {
  for (const auto& [caption, submenu] : submenus_)
    submenu->setTitle(ToQt(SubmenuCaption(caption, commands_)));
}

void CommandActions::AddRow(QMenu& menu, const CommandRow& row) {
  if (row.IsSeparator()) {
    menu.addSeparator();
  } else {
    menu.addAction(Action(row));
  }
}

void CommandActions::FollowMenu(QMenu& menu) {
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu] {
    ShowSubmenuCaptions();
    ShowStates(menu.actions(), MenuState::Open);
  });
  connect(&menu, &QMenu::aboutToHide, this, [this, &menu] {
    tell_.hint(QString());
    // Behind the chosen command, which still runs by the state that the menu showed. The menu may be gone by
    // then.
    QTimer::singleShot(0, this, [this, actions = menu.actions()] { ShowStates(actions, MenuState::Closed); });
  });
}

void CommandActions::FillMenu(QMenu& menu, std::span<const CommandRow* const> rows) {
  for (const CommandRow* row : rows) AddRow(menu, *row);
  FollowMenu(menu);
}

void CommandActions::AddIcons() {
  for (const CommandRow& row : CommandRows()) {
    if (!row.icon.empty()) Action(row)->setIcon(CommandIcon(row.icon));
  }
}

}  // namespace kestri
