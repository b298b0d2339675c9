// Keys and everything else that reaches the popup from the windows around it.
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <array>
#include <optional>
#include <utility>

#include "platform/qt/qt_text.hpp"
#include "tags/forms/InToTAGFrm.hpp"

namespace kestri {
namespace {

enum class KeyRoute { Popup, Text, CloseThenText };

bool IsModifierKey(int key) {
  switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
      return true;
    default:
      return false;
  }
}

std::optional<ListKey> ListKeyOf(int key) {
  switch (key) {
    case Qt::Key_Up:
      return ListKey::Up;
    case Qt::Key_Down:
      return ListKey::Down;
    case Qt::Key_PageUp:
      return ListKey::PageUp;
    case Qt::Key_PageDown:
      return ListKey::PageDown;
    case Qt::Key_Home:
      return ListKey::Home;
    case Qt::Key_End:
      return ListKey::End;
    case Qt::Key_Left:
      return ListKey::Left;
    case Qt::Key_Right:
      return ListKey::Right;
    default:
      return std::nullopt;
  }
}

std::optional<char16_t> EditingKeyOf(int key) {
  switch (key) {
    case Qt::Key_Backspace:
      return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return 13;
    case Qt::Key_Escape:
      return 27;
    default:
      return std::nullopt;
  }
}

KeyRoute RouteOf(const QKeyEvent& event) {
  if (IsModifierKey(event.key())) return KeyRoute::Text;
  if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
    return KeyRoute::CloseThenText;
  }
  if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35) return KeyRoute::CloseThenText;
  const bool known = ListKeyOf(event.key()) || EditingKeyOf(event.key()) || event.key() == Qt::Key_Delete ||
                     event.key() == Qt::Key_Insert;
  return known || !event.text().isEmpty() ? KeyRoute::Popup : KeyRoute::Text;
}

}  // namespace

bool InToTAGFrm::HandleKey(QKeyEvent* event) {
  if (!shown_ || logic_ == nullptr) return false;
  const KeyRoute route = RouteOf(*event);
  if (event->type() == QEvent::KeyRelease) return route == KeyRoute::Popup;
  // A shortcut's command runs straight after its override, without a key press.
  if (route == KeyRoute::CloseThenText) Deactivate();
  if (event->type() == QEvent::ShortcutOverride) {
    if (route == KeyRoute::Popup) event->accept();
    return route == KeyRoute::Popup;
  }
  return route == KeyRoute::Popup && PressKey(*event);
}

bool InToTAGFrm::PressKey(const QKeyEvent& event) {
  if (const auto listKey = ListKeyOf(event.key())) {
    logic_->KeyDown(*listKey);
  } else if (const auto editingKey = EditingKeyOf(event.key())) {
    logic_->KeyPress(*editingKey);
  } else if (!event.text().isEmpty() && event.text()[0].category() != QChar::Other_Control) {
    logic_->CommitText(FromQt(event.text()));
  }
  return true;
}

bool InToTAGFrm::HandleInputMethod(QInputMethodEvent* event) {
  if (!shown_ || logic_ == nullptr) return false;
  if (!event->preeditString().isEmpty() || event->replacementLength() > 0) {
    Deactivate();
    return false;
  }
  if (event->commitString().isEmpty()) return false;
  logic_->CommitText(FromQt(event->commitString()));
  return true;
}

bool InToTAGFrm::FilterTextView(QEvent* event) {
  switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return HandleKey(static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod:
      return HandleInputMethod(static_cast<QInputMethodEvent*>(event));
    case QEvent::FocusOut:
      if (shown_) Deactivate();
      return false;
    default:
      return false;
  }
}

// The application's filter stands only while the popup is visible.
bool InToTAGFrm::eventFilter(QObject* watched, QEvent* event) {
  if (shown_ && ClosesPopup(watched, *event)) Deactivate();
  return watched == textView_ && FilterTextView(event);
}

bool InToTAGFrm::ClosesPopup(QObject* watched, const QEvent& event) const {
  if (event.type() == QEvent::ApplicationStateChange)
    return QApplication::applicationState() != Qt::ApplicationActive;
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr || widget->window() == this) return false;
  const bool mainWindow = parentWidget() != nullptr && widget == parentWidget()->window();
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
      return true;
    case QEvent::WindowDeactivate:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Hide:
      return mainWindow;
    default:
      return false;
  }
}

void InToTAGFrm::Deactivate() {
  if (logic_ != nullptr) logic_->Deactivate();
}

}  // namespace kestri
