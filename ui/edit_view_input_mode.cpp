// Whether the input method may take keys in the text, and the key that lets it in again.
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include "ui/edit_view.hpp"

namespace kestri {
namespace {

bool IsInputMethodKey(int key) {
  switch (key) {
    case Qt::Key_Zenkaku_Hankaku:
    case Qt::Key_Zenkaku:
    case Qt::Key_Hankaku:
    case Qt::Key_Kanji:
    case Qt::Key_Henkan:
    case Qt::Key_Hiragana_Katakana:
    case Qt::Key_Hiragana:
    case Qt::Key_Katakana:
      return true;
    default:
      return false;
  }
}

}  // namespace

void EditView::SetInputMode(InputMode mode) {
  if (mode == inputMode_) return;
  CommitComposition();
  inputMode_ = mode;
  if (QGuiApplication::focusObject() == this) {
    QGuiApplication::inputMethod()->update(Qt::ImEnabled | Qt::ImHints);
  }
  if (inputModeChanged) inputModeChanged();
}

// An input method that does not commit when asked is told to forget; its text is kept all the same.
void EditView::CommitComposition() {
  if (!Composing()) return;
  if (QGuiApplication::focusObject() == this) QGuiApplication::inputMethod()->commit();
  if (!Composing()) return;
  QInputMethodEvent commit;
  commit.setCommitString(preedit_.text);
  inputMethodEvent(&commit);
  if (QGuiApplication::focusObject() == this) QGuiApplication::inputMethod()->reset();
}

bool EditView::InputMethodAllowed() const {
  return !control_.Locked() && !SwitchesOff(inputMode_);
}

Qt::InputMethodHints EditView::InputHints() const {
  Qt::InputMethodHints hints = Qt::ImhMultiLine;
  if (inputMode_ == InputMode::HalfAlphanumeric) hints |= Qt::ImhPreferLatin;
  return hints;
}

// The method is off and does not see its own key.
bool EditView::SwitchesInputMethodOn(const QKeyEvent& event) {
  if (inputMode_ != InputMode::Off || !IsInputMethodKey(event.key())) return false;
  SetInputMode(InputMode::Default);
  return true;
}

}  // namespace kestri
