// What goes on while the window lives, and how it ends.
#include <QApplication>
#include <QCloseEvent>
#include <QSessionManager>

#include "document/instance_log.hpp"
#include "platform/qt/qt_text.hpp"
#include "shell/common/own_processes.hpp"
#include "shell/forms/HTMLfrm.hpp"
#include "shell/forms/end_of_session.hpp"
#include "shell/forms/window_rectangles.hpp"
#include "shell/window/status_text.hpp"
#include "ui/top_most.hpp"
#include "ui/window_helpers.hpp"

namespace kestri {
namespace {

WindowState StateOf(const QWidget& window) {
  if (window.isMinimized()) return WindowState::Minimized;
  return window.isMaximized() ? WindowState::Maximized : WindowState::Normal;
}

}  // namespace

void HTMLfrm::TimeP() {
  panes_->SetPane(StatusPanes::kClock, ToQt(ClockText(services_.common.PortSet().clock.Now())));
  toolBar_->RefreshStates();
  if (!view_->hasFocus()) return;
  panes_->SetPane(StatusPanes::kCaret, ToQt(CaretText()));
  const bool follows = services_.state.fileKind == kFileTypeHtml && services_.state.htmlNAVkeyB_AUTO == 1;
  if (follows || hints_.HintVisible()) hints_.seTagHint();
}

std::u16string HTMLfrm::CaretText() const {
  const Position caret = control_.Caret();
  const std::int32_t line = control_.EM_LINEFROMCHAR(caret);
  return CaretPlaceText(line + 1, caret - control_.EM_LINEINDEX(line) + 1);
}

void HTMLfrm::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::ActivationChange) return;
  if (isActiveWindow()) {
    view_->setFocus();
  } else {
    popup_.Deactivate();
  }
}

void HTMLfrm::ApplyTopMost() {
  RefreshTopMost(services_.state.topMost);
}

void HTMLfrm::closeEvent(QCloseEvent* event) {
  popup_.Deactivate();
  view_->CommitComposition();
  const bool agreed = !agreedToEnd_.hasExpired() && !view_->Control().Modified();
  if (!agreed && !document_.ConfirmDiscard(u"終了")) {
    event->ignore();
    return;
  }
  timeP_.stop();
  ShowClosing();
  SaveSettings();
  InstallSubclass(0);
  LeaveInstances();
  CloseOtherForms();
  event->accept();
}

void HTMLfrm::EndOfSession(QSessionManager& session) {
  AnswerEndOfSession(session, [this] { return AgreesToEnd(); });
}

bool HTMLfrm::AgreesToEnd() {
  constexpr int kMilliseconds = 10'000;
  view_->CommitComposition();
  if (!document_.ConfirmDiscard(u"終了")) return false;
  agreedToEnd_.setRemainingTime(kMilliseconds);
  view_->Control().SetModified(false);  // the answer is about the text as it stands
  return true;
}

void HTMLfrm::ShowClosing() {
  labelText_->SetText(u" しばらく待ちください...\r\n閉じています...");
  const QSize size = labelText_->sizeHint();
  MoveEx(*labelText_, (view_->width() - size.width()) / 2, (view_->height() - size.height()) / 2,
         size.width(), size.height());
  labelText_->raise();
  labelText_->show();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void HTMLfrm::SaveSettings() {
  if (!isMaximized()) settings_.rectangle = ToTwips(QRect(pos(), size()));
  SaveWindowSettings(services_.common, services_.state, settings_, StateOf(*this));
  floatingBar_->SaveSettings();
}

void HTMLfrm::LeaveInstances() {
  services_.instances.Withdraw();
  const bool last = CountOwnProcesses(services_.common.PortSet().environment) < 2;
  if (last) {
    services_.effects.SetAnimation(-1, UiEffects::kMenus);
    services_.effects.SetAnimation(-1, UiEffects::kComboBoxes);
  }
  InstanceLog(services_.common, services_.state)
      .Unregister(last ? InstanceLog::Others::None : InstanceLog::Others::Running,
                  AmongInstances(services_.instances));
}

void HTMLfrm::CloseOtherForms() {
  for (QWidget* form : QApplication::topLevelWidgets()) {
    if (form != this && form->isVisible()) form->close();
  }
}

}  // namespace kestri
