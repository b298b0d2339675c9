#include "shell/forms/tool_bar.hpp"

#include <QMenu>
#include <QPixmap>
#include <QToolButton>
#include <algorithm>

#include "platform/qt/qt_text.hpp"
#include "shell/forms/icons.hpp"

namespace kestri {
namespace {

constexpr int kIconSize = 22;  // pixels
constexpr std::int32_t kHtmlDocument = 1002;

QString KeyName(std::string_view key) {
  return QString::fromLatin1(key.data(), static_cast<qsizetype>(key.size()));
}

// Keeps every button's place until the icons come.
QIcon BlankIcon() {
  QPixmap blank(kIconSize, kIconSize);
  blank.fill(Qt::transparent);
  return QIcon(blank);
}

QString WithoutMnemonic(std::u16string_view caption) {
  return ToQt(caption.substr(0, caption.find(u"(&")));
}

}  // namespace

ToolBar::ToolBar(CommandActions& actions, QWidget* parent, ToolBarState state)
    : QToolBar(QStringLiteral("ﾂｰﾙﾊﾞｰ"), parent), actions_(actions), state_(std::move(state)) {
  setObjectName(QStringLiteral("ToolBar"));
  setMovable(false);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setIconSize({kIconSize, kIconSize});
  buttons_.reserve(ToolRows().size());  // their addresses stand in the connections
  for (const ToolRow& row : ToolRows()) {
    if (row.kind == ToolKind::Separator) {
      addSeparator();
    } else {
      AddButton(row);
    }
  }
  FollowDocument();
}

void ToolBar::AddButton(const ToolRow& row) {
  const CommandRow* command = FindCommand(row.array, row.index);
  if (command == nullptr && row.kind != ToolKind::ToolOfDocument) return;
  QAction* action = addAction(BlankIcon(), ToQt(row.caption));
  action->setObjectName(KeyName(row.key));
  Button& button = buttons_.emplace_back(Button{.row = &row, .action = action});
  for (const ToolEntry& entry : row.entries) {
    if (const CommandRow* built = FindCommand(entry.array, entry.index)) button.entries.push_back(built);
  }
  if (!row.entries.empty()) button.menu = MakeDropDown(button);
  widgetForAction(action)->setAccessibleName(ToQt(row.caption));
  connect(action, &QAction::triggered, this, [this, &button] { Press(button); });
  if (command != nullptr) Show(button, *command, row.icon);
}

QMenu* ToolBar::MakeDropDown(const Button& button) {
  auto* menu = new QMenu(this);
  button.action->setMenu(menu);
  if (auto* face = qobject_cast<QToolButton*>(widgetForAction(button.action)))
    face->setPopupMode(QToolButton::MenuButtonPopup);
  connect(menu, &QMenu::aboutToShow, this, [this, &button] { FillDropDown(button); });
  connect(menu, &QMenu::aboutToHide, this, [this] {
    if (state_.hintGone) state_.hintGone();
  });
  return menu;
}

void ToolBar::FillDropDown(const Button& button) {
  button.menu->clear();
  for (const ToolEntry& entry : button.row->entries) AddEntry(*button.menu, entry);
}

void ToolBar::AddEntry(QMenu& menu, const ToolEntry& entry) {
  if (entry.kind == ToolKind::Separator) {
    menu.addSeparator()->setObjectName(KeyName(entry.key));
    return;
  }
  const CommandRow* command = FindCommand(entry.array, entry.index);
  if (command == nullptr) return;
  QAction* action = menu.addAction(EntryCaption(entry, *command));
  if (menuIcons_ == MenuIcons::With) action->setIcon(CommandIcon(command->icon));
  action->setObjectName(KeyName(entry.key));
  action->setEnabled(actions_.MayRun(*command));
  connect(action, &QAction::hovered, actions_.Action(*command), &QAction::hover);
  connect(action, &QAction::triggered, this, [this, command] {
    actions_.Run(*command);
    RefreshStates();
  });
}

QString ToolBar::EntryCaption(const ToolEntry& entry, const CommandRow& command) const {
  if (entry.kind == ToolKind::LiveCommand) return ToQt(actions_.Caption(command));
  if (entry.kind != ToolKind::ExternalProgram) return ToQt(entry.caption);
  const std::u16string name = state_.externalProgram ? state_.externalProgram(entry.index) : u"";
  return ToQt(ExternalProgramCaption(name)).replace(u'&', QLatin1String("&&"));
}

// The drop-down stays in reach while one of its entries may run.
bool ToolBar::MayOpen(const Button& button) const {
  return std::any_of(button.entries.begin(), button.entries.end(),
                     [this](const CommandRow* entry) { return actions_.MayRun(*entry); });
}

void ToolBar::Press(const Button& button) {
  if (actions_.MayRun(*button.command)) {
    actions_.Run(*button.command);
  } else if (const QWidget* face = widgetForAction(button.action); button.menu != nullptr) {
    button.menu->popup(face->mapToGlobal(face->rect().bottomLeft()));
  }
  RefreshStates();
}

void ToolBar::Show(Button& button, const CommandRow& command, std::string_view icon) {
  button.command = &command;
  button.action->setCheckable(command.checked != nullptr);
  QString tip = ToQt(button.row->caption);
  if (button.row->kind == ToolKind::ToolOfDocument) {
    tip += QStringLiteral(": ") + WithoutMnemonic(command.caption);
  }
  const QString key = actions_.Action(command)->shortcut().toString(QKeySequence::NativeText);
  button.action->setToolTip(key.isEmpty() ? tip : tip + QStringLiteral(" (%1)").arg(key));
  if (withIcons_) button.action->setIcon(CommandIcon(icon));
}

void ToolBar::FollowDocument() {
  const std::int32_t kind = state_.fileKind ? state_.fileKind() : kHtmlDocument;
  if (kind == shownKind_) return;
  shownKind_ = kind;
  const DocumentTool tool = ToolOfDocument(kind);
  const CommandRow* command = FindCommand(tool.array, tool.index);
  for (Button& button : buttons_) {
    if (button.row->kind == ToolKind::ToolOfDocument && command != nullptr) Show(button, *command, tool.icon);
  }
}

void ToolBar::AddIcons(MenuIcons menuIcons) {
  withIcons_ = true;
  menuIcons_ = menuIcons;
  for (const Button& button : buttons_) {
    const bool ofDocument = button.row->kind == ToolKind::ToolOfDocument;
    button.action->setIcon(CommandIcon(ofDocument ? ToolOfDocument(shownKind_).icon : button.row->icon));
  }
}

void ToolBar::RefreshStates() {
  FollowDocument();
  for (const Button& button : buttons_) {
    if (button.command == nullptr) continue;
    button.action->setEnabled(actions_.MayRun(*button.command) || MayOpen(button));
    button.action->setChecked(actions_.Checked(*button.command));
  }
}

}  // namespace kestri
