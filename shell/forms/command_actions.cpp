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

bool IsOfText(TopMenu menu) {
  return menu == TopMenu::Edit || menu == TopMenu::Html || menu == TopMenu::Text;
}

const CommandRow* RowOf(const QAction& action) {
  const QVariant index = action.property(kRowProperty);
  return index.isValid() ? &CommandRows()[static_cast<std::size_t>(index.toInt())] : nullptr;
}

}  // namespace

CommandActions::CommandActions(EditorCommands& commands, Tell tell, QWidget* window)
    : QObject(window), commands_(commands), tell_(std::move(tell)), actions_(CommandRows().size()) {
  for (const CommandRow& row : CommandRows()) {
    if (!row.key.empty()) window->addAction(Action(row));
  }
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
  connect(action, &QAction::hovered, this, [this, &row] { tell_.hint(row.hint); });
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

QAction* CommandActions::Action(const CommandRow& row) {
  QAction*& action = actions_[static_cast<std::size_t>(IndexOf(row))];
  if (action == nullptr) action = MakeAction(row);
  return action;
}

void CommandActions::Run(const CommandRow& row) {
  try {
    tell_.starting();
    if (row.enabled(commands_)) {
      row.run(commands_);
    } else if (IsOfText(row.menu)) {
      commands_.AnswerIfReadOnly();
    }
  } catch (const std::exception&) {
    tell_.unknownError();
  }
}

void CommandActions::BuildMenus(QMenuBar& bar) {
  for (const TopMenu top : TopMenus()) {
    QMenu* menu = bar.addMenu(ToQt(TopMenuCaption(top)));
    tops_[top] = menu;
    connect(menu, &QMenu::aboutToShow, this, [this, top] { Fill(top); });
    FollowMenu(*menu);
  }
}

void CommandActions::Fill(TopMenu top) {
  if (!filled_.insert(top).second) return;
  QMenu& menu = *tops_.at(top);
  for (const CommandRow& row : CommandRows()) {
    if (row.menu == top) AddRow(row.submenu.empty() ? menu : MakeSubmenu(menu, row.submenu), row);
  }
}

QMenu& CommandActions::Menu(TopMenu top) {
  Fill(top);
  return *tops_.at(top);
}

QMenu& CommandActions::MakeSubmenu(QMenu& top, std::u16string_view caption) {
  if (const auto known = submenus_.find(caption); known != submenus_.end()) return *known->second;
  const std::u16string_view parent = ParentSubmenu(caption);
  QMenu* made = (parent.empty() ? top : MakeSubmenu(top, parent)).addMenu(ToQt(caption));
  submenus_.emplace(caption, made);
  connect(made->menuAction(), &QAction::hovered, this, [this] { tell_.hint(0); });
  FollowMenu(*made);
  return *made;
}

QMenu& CommandActions::Submenu(std::u16string_view caption) {
  for (const CommandRow& row : CommandRows()) {
    if (row.submenu == caption || ParentSubmenu(row.submenu) == caption) Fill(row.menu);
  }
  return *submenus_.at(caption);
}

void CommandActions::PopUp(std::u16string_view submenu, QPoint at) {
  Submenu(submenu).popup(at);
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
    ShowIcon(row);
  }
}

void CommandActions::ShowIcon(const CommandRow& row) {
  QAction* action = Action(row);
  if (withIcons_ && !row.icon.empty() && action->icon().isNull()) action->setIcon(CommandIcon(row.icon));
}

void CommandActions::FollowMenu(QMenu& menu) {
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu] {
    ShowSubmenuCaptions();
    ShowStates(menu.actions(), MenuState::Open);
  });
  connect(&menu, &QMenu::aboutToHide, this, [this, &menu] {
    tell_.hint(0);
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
  withIcons_ = true;
  for (const CommandRow& row : CommandRows()) {
    if (filled_.contains(row.menu) && !row.IsSeparator()) ShowIcon(row);
  }
}

}  // namespace kestri
