// Keys and the input method.
#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextCharFormat>
#include <algorithm>
#include <optional>
#include <utility>

#include "platform/qt/qt_text.hpp"
#include "ui/edit_view.hpp"
#include "ui/word_bounds.hpp"

namespace kestri {
namespace {

constexpr Position kSurrounding = 1000;  // characters on each side that the input method sees

enum KeyAscii : char16_t {
  kBackspaceKey = 8,
  kTabKey = 9,
  kEnterKey = 13,
  kEscapeKey = 27,
  kUnindentKey = 127
};
constexpr int kFromKeyboard = 1;
constexpr int kDelete = 3;  // of MainText::Edit

constexpr Qt::KeyboardModifiers kCommandModifiers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

int KeyCodeOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return kKeyTab;
    case Qt::Key_End:
      return kKeyEnd;
    case Qt::Key_Home:
      return kKeyHome;
    case Qt::Key_Delete:
      return kKeyDelete;
    default:
      return 0;
  }
}

int ShiftOf(const QKeyEvent& event) {
  int shift = 0;
  if (event.modifiers().testFlag(Qt::ShiftModifier)) shift |= kShift;
  if (event.modifiers().testFlag(Qt::ControlModifier)) shift |= kControl;
  if (event.modifiers().testFlag(Qt::AltModifier)) shift |= kAlt;
  return shift;
}

std::optional<EditKey> EditKeyOf(const QKeyEvent& event) {
  if (event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) return std::nullopt;
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  switch (event.key()) {
    case Qt::Key_Left:
      return EditKey::Left;
    case Qt::Key_Right:
      return EditKey::Right;
    case Qt::Key_Home:
      return EditKey::Home;
    case Qt::Key_End:
      return EditKey::End;
    case Qt::Key_Delete:
      return event.modifiers().testFlag(Qt::ShiftModifier) ? std::nullopt : std::optional(EditKey::Delete);
    default:
      break;
  }
  if (control) return std::nullopt;
  switch (event.key()) {
    case Qt::Key_Up:
      return EditKey::Up;
    case Qt::Key_Down:
      return EditKey::Down;
    case Qt::Key_PageUp:
      return EditKey::PageUp;
    case Qt::Key_PageDown:
      return EditKey::PageDown;
    default:
      return std::nullopt;
  }
}

// The character of a key that the control takes, 0 when it takes none.
char16_t CharacterOf(const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & kCommandModifiers;
  if (event.key() == Qt::Key_Backspace && modifiers == Qt::ControlModifier) return kUnindentKey;
  if (modifiers != Qt::NoModifier) return 0;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return kEnterKey;
    case Qt::Key_Tab:
      return event.modifiers().testFlag(Qt::ShiftModifier) ? kUnindentKey : kTabKey;
    case Qt::Key_Backtab:
      return kUnindentKey;
    case Qt::Key_Backspace:
      return kBackspaceKey;
    case Qt::Key_Escape:
      return kEscapeKey;
    default:
      break;
  }
  const QString text = event.text();
  return text.size() == 1 && text[0].isPrint() ? text[0].unicode() : u'\0';
}

bool TypesSeveralUnits(const QKeyEvent& event) {
  const QString text = event.text();
  return (event.modifiers() & kCommandModifiers) == 0 && text.size() > 1 && text[0].unicode() >= 0x20;
}

QTextLayout::FormatRange Underlined(int length) {
  QTextCharFormat format;
  format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
  return {0, length, format};
}

}  // namespace

bool EditView::focusNextPrevChild(bool) {
  return false;
}

// Keys of the text go before the menus' shortcuts.
bool EditView::OwnsKey(const QKeyEvent& event) const {
  if (Composing()) return true;
  if (event.key() == Qt::Key_Escape) return false;
  return EditKeyOf(event) || CharacterOf(event) != 0 || TypesSeveralUnits(event);
}

void EditView::keyPressEvent(QKeyEvent* event) {
  if (Composing()) return event->ignore();
  if (SwitchesInputMethodOn(*event)) return event->accept();
  if (keyFilter && keyFilter(*event)) return event->accept();
  event->accept();
  const bool tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
  if (tab && event->modifiers().testFlag(Qt::ControlModifier)) {
    text_.KeyDown(kKeyTab, kControl);
  } else if (!ControlKey(*event) && !CharacterKey(*event) && !CommandKey(*event)) {
    return event->ignore();
  }
  FinishUserEdit();
}

void EditView::keyReleaseEvent(QKeyEvent* event) {
  if (event->isAutoRepeat() || Composing()) return event->ignore();
  const bool pressedElsewhere = event->key() == Qt::Key_Home && !std::exchange(homePressed_, false);
  text_.KeyUp(pressedElsewhere ? 0 : KeyCodeOf(*event), ShiftOf(*event));
  PublishSelection();
  FinishUserEdit();
}

bool EditView::ControlKey(QKeyEvent& event) {
  const std::optional<EditKey> key = EditKeyOf(event);
  if (!key) return false;
  if (text_.KeyDown(KeyCodeOf(event), ShiftOf(event))) return true;
  const KeyModifiers modifiers{.shift = event.modifiers().testFlag(Qt::ShiftModifier),
                               .control = event.modifiers().testFlag(Qt::ControlModifier)};
  homePressed_ = *key == EditKey::Home;
  PageKey(*key, modifiers);
  pending_.scrollCaret = true;
  Schedule();
  return true;
}

// A page key moves the text under the caret, so that the caret keeps its row.
void EditView::PageKey(EditKey key, KeyModifiers modifiers) {
  const bool page = key == EditKey::PageUp || key == EditKey::PageDown;
  const std::int32_t before = control_.LineOf(control_.Caret());
  const bool showed = LineShows(before);
  text_.WM_KEYDOWN(key, modifiers);
  if (!page || !showed) return;
  const std::int32_t moved = control_.LineOf(control_.Caret()) - before;
  verticalScrollBar()->setValue(FirstVisibleLine() + moved);
}

bool EditView::CharacterKey(QKeyEvent& event) {
  const char16_t character = CharacterOf(event);
  if (character == 0 && !TypesSeveralUnits(event)) return false;
  if (text_.KeyDown(KeyCodeOf(event), ShiftOf(event))) return true;
  if (character != 0) {
    text_.WM_CHAR(character, kFromKeyboard);
  } else {
    text_.CommitInput(FromQt(event.text()));
  }
  return true;
}

// The commands every text has; a window with menu shortcuts of its own gets the keys before they arrive here.
bool EditView::CommandKey(QKeyEvent& event) {
  enum { kCut = 0, kCopy = 1, kPaste = 2, kSelectAll = 5 };
  if (event.matches(QKeySequence::Undo)) {
    text_.MenUNDO(0);
  } else if (event.matches(QKeySequence::Redo)) {
    text_.MenUNDO(1);
  } else if (event.matches(QKeySequence::Cut)) {
    text_.Edit(kCut);
  } else if (event.matches(QKeySequence::Copy)) {
    text_.Edit(kCopy);
  } else if (event.matches(QKeySequence::Paste)) {
    text_.Edit(kPaste);
  } else if (event.matches(QKeySequence::SelectAll)) {
    text_.Edit(kSelectAll);
  } else {
    return false;
  }
  return true;
}

void EditView::FinishUserEdit() {
  Flush();
}

// ---- input method

void EditView::inputMethodEvent(QInputMethodEvent* event) {
  if (control_.Locked()) return event->ignore();
  const bool wasComposing = Composing();
  if (!event->commitString().isEmpty() || event->replacementLength() > 0) CommitFromInputMethod(*event);
  SetPreedit(*event);
  event->accept();
  if (!wasComposing && Composing() && compositionStarted) compositionStarted();
  if (wasComposing || Composing()) {
    pending_.scrollCaret = true;
    Schedule();
  }
  Flush();
}

void EditView::CommitFromInputMethod(const QInputMethodEvent& event) {
  const std::int32_t line = control_.LineOf(control_.Caret());
  UpdateRows(line, line);  // also when nothing comes for what is taken away
  preedit_ = Inset();
  layouts_.ClearInset();
  const bool replaces = event.replacementLength() > 0 && SelectForInputMethod(event);
  if (!event.commitString().isEmpty()) {
    text_.CommitInput(CommittedAs(inputMode_, FromQt(event.commitString())));
  } else if (replaces) {
    text_.Edit(kDelete);
  }
}

// A method may replace only what it was shown: its idea of the text may be older than the text.
bool EditView::SelectForInputMethod(const QInputMethodEvent& event) {
  const auto [first, last] = SurroundingRange();
  const std::int64_t begin = std::int64_t{control_.Caret()} + event.replacementStart();
  const std::int64_t end = begin + event.replacementLength();
  if (begin < first || end > last) return false;
  text_.EM_SETSEL(static_cast<Position>(begin), static_cast<Position>(end));
  return true;
}

void EditView::SetPreedit(const QInputMethodEvent& event) {
  const bool had = Composing();
  const int length = static_cast<int>(event.preeditString().size());
  preedit_ = Inset{.text = event.preeditString(), .formats = {Underlined(length)}};
  preeditCursor_ = length;
  preeditCursorShown_ = true;
  for (const QInputMethodEvent::Attribute& attribute : event.attributes()) TakeAttribute(attribute);
  if (had || Composing()) ApplyInset();
}

void EditView::TakeAttribute(const QInputMethodEvent::Attribute& attribute) {
  if (attribute.type == QInputMethodEvent::Cursor) {
    preeditCursor_ = std::clamp(attribute.start, 0, static_cast<int>(preedit_.text.size()));
    preeditCursorShown_ = attribute.length != 0;
  } else if (attribute.type == QInputMethodEvent::TextFormat) {
    const QTextCharFormat format = attribute.value.value<QTextFormat>().toCharFormat();
    if (format.isValid() && attribute.length > 0) {
      preedit_.formats.append({attribute.start, attribute.length, format});
    }
  } else if (attribute.type == QInputMethodEvent::Selection && !Composing()) {
    const QPair<Position, Position> shown = SurroundingRange();
    const std::int64_t begin = std::int64_t{shown.first} + attribute.start;
    const auto within = [&shown](std::int64_t position) {
      return static_cast<Position>(std::clamp<std::int64_t>(position, shown.first, shown.second));
    };
    text_.EM_SETSEL(within(begin), within(begin + attribute.length));
  }
}

// The pre-edit stands at the caret, in the line's layout only.
void EditView::ApplyInset() {
  if (!styleBuilt_) return;
  const std::int32_t line = control_.LineOf(control_.Caret());
  Composing() ? layouts_.SetInset(control_.Caret(), preedit_) : layouts_.ClearInset();
  UpdateRows(line, line);
}

QPair<Position, Position> EditView::SurroundingRange() const {
  const Position caret = control_.Caret();
  const std::int32_t line = control_.LineOf(caret);
  const Position begin = std::max(control_.LineStart(line), caret - kSurrounding);
  const Position end = std::min(control_.LineEnd(line), caret + kSurrounding);
  return {OffSurrogate(control_, begin), OffSurrogate(control_, end)};
}

QVariant EditView::inputMethodQuery(Qt::InputMethodQuery query) const {
  const auto [begin, end] = SurroundingRange();
  const Position caret = control_.Caret();
  switch (query) {
    case Qt::ImEnabled:
      return InputMethodAllowed();
    case Qt::ImHints:
      return static_cast<int>(InputHints());
    case Qt::ImCursorRectangle:
    case Qt::ImAnchorRectangle: {
      const QRect caretRect = const_cast<EditView*>(this)->CaretRect();
      return caretRect.translated(viewport()->geometry().topLeft());
    }
    case Qt::ImFont:
      return Style().font;
    case Qt::ImCursorPosition:
      return caret - begin;
    case Qt::ImAnchorPosition:
      return std::clamp(control_.Anchor(), begin, end) - begin;
    case Qt::ImAbsolutePosition:
      return caret;
    case Qt::ImSurroundingText:
      return ToQt(control_.Slice(begin, end - begin));
    case Qt::ImTextBeforeCursor:
      return ToQt(control_.Slice(begin, caret - begin));
    case Qt::ImTextAfterCursor:
      return ToQt(control_.Slice(caret, end - caret));
    case Qt::ImCurrentSelection: {
      const Position from = std::clamp(control_.SelStart(), begin, end);
      const Position to = std::clamp(control_.SelStart() + control_.SelLength(), begin, end);
      return ToQt(control_.Slice(from, to - from));
    }
    case Qt::ImReadOnly:
      return control_.Locked();
    default:
      return QAbstractScrollArea::inputMethodQuery(query);
  }
}

}  // namespace kestri
