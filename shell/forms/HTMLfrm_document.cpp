// What the text and the document ask of their window.
#include <QCoreApplication>
#include <QCursor>
#include <QMenu>
#include <QProcess>

#include "browse/forms/DirFrame.hpp"
#include "platform/qt/qt_text.hpp"
#include "shell/forms/HTMLfrm.hpp"
#include "shell/window/status_text.hpp"

namespace kestri {

bool HTMLfrm::OpenDocument(std::u16string_view path) {
  return document_.OpenDocument(path, ReadOnly::No);
}

void HTMLfrm::MessageToStatusBar(std::u16string_view text) {
  panes_->SetPane(StatusPanes::kMessage, ToQt(StampedMessage(text, services_.common.PortSet().clock.Now())));
}

void HTMLfrm::SetStatusPane(int pane, std::u16string_view text) {
  panes_->SetPane(pane, ToQt(text));
}

void HTMLfrm::DocumentModified() {
  document_.TextChanged();
}

void HTMLfrm::SetTextHidden(bool hidden) {
  view_->SetTextHidden(hidden);
}

void HTMLfrm::FocusText() {
  view_->setFocus();
}

void HTMLfrm::BringToFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
}

void HTMLfrm::ShowTextMenu() {
  static constexpr std::pair<std::string_view, int> kItems[] = {
      {"MenUNDO", 0}, {"MenUNDO", 1}, {"Edit", 0},     {"Edit", 1},      {"Edit", 2},
      {"Edit", 3},    {"Edit", 5},    {"HTMLEdit", 4}, {"mnuFreeInd", 0}};
  std::vector<const CommandRow*> rows;
  for (const auto& [array, index] : kItems) rows.push_back(FindCommand(array, index));
  QMenu menu(this);
  actions_->FillMenu(menu, rows);
  menu.exec(QCursor::pos());
}

void HTMLfrm::PaintTextDecor(Decor rows) {
  view_->PaintTextDecor(rows);
}

void HTMLfrm::ResetCaretMemo() {
  view_->ResetCaretMemo();
}

void HTMLfrm::OpenDroppedFile(std::u16string_view path) {
  if (document_.ConfirmDiscard(u"開く")) OpenDocument(path);
}

void HTMLfrm::OpenInNewInstance(std::u16string_view path) {
  QStringList arguments;
  if (!path.empty()) arguments << ToQtPath(path);
  QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
}

void HTMLfrm::SetCaption(std::u16string_view caption) {
  caption_ = caption;
  // "[*]" is the toolkit's place for a mark of its own; twice it stands for itself.
  setWindowTitle(ToQt(caption).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

// Without an icon of its own the window shows the program's.
void HTMLfrm::SetWindowIcon(std::u16string_view iconName) {
  iconName_ = ToQt(iconName);
  if (loaded_) setWindowIcon(QIcon::fromTheme(iconName_));
}

void HTMLfrm::HTMLToolsEnable(bool) {
  toolBar_->RefreshStates();
}

ScrollPosition HTMLfrm::GetScrollPosition() {
  const EditView::ScrollState state = view_->ScrollPosition();
  return {.horizontal = state.x, .vertical = state.firstLine};
}

void HTMLfrm::SetScrollPosition(ScrollPosition position) {
  view_->SetScrollPosition({.firstLine = position.vertical, .x = position.horizontal});
}

void HTMLfrm::RefreshStatus() {
  view_->PaintTextDecor(Decor::Full);
}

void HTMLfrm::DocumentChanged() {
  popup_.Deactivate();
  hints_.seTagHide();
  ResetCaretMemo();
  PaintTextDecor(Decor::Full);
  if (dirFrame_ != nullptr) dirFrame_->RefreshFiles();
}

}  // namespace kestri
