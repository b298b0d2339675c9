#include "ui/edit_view_accessible.hpp"

#include <QAccessible>
#include <algorithm>

#include "platform/qt/qt_text.hpp"
#include "ui/edit_view.hpp"
#include "ui/word_bounds.hpp"

namespace kestri {
namespace {

constexpr Position kRemembered = 1000;  // characters on each side of the caret
constexpr Position kLargestValue = 65536;

std::u16string ToUnits(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
      .replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
  return FromQt(text);
}

QAccessibleInterface* Create(const QString&, QObject* object) {
  auto* view = qobject_cast<EditView*>(object);
  return view ? new EditViewAccessible(*view) : nullptr;
}

}  // namespace

void InstallEditViewAccessibility() {
  QAccessible::installFactory(Create);
}

AccessibilityTeller::AccessibilityTeller(EditView& view) : view_(view), listening_(QAccessible::isActive()) {
  QAccessible::installActivationObserver(this);
}

AccessibilityTeller::~AccessibilityTeller() {
  QAccessible::removeActivationObserver(this);
}

void AccessibilityTeller::accessibilityActiveChanged(bool active) {
  listening_ = active;
  if (listening_) Remember();
}

void AccessibilityTeller::Remember() {
  const EditControl& control = view_.Control();
  begin_ = std::max(0, control.Caret() - kRemembered);
  remembered_ = control.Slice(begin_, 2 * kRemembered);
}

// What stood there before the change, as far as it was remembered; blanks for the rest.
QString AccessibilityTeller::Removed(const TextChange& change) const {
  const Position end = begin_ + static_cast<Position>(remembered_.size());
  if (change.at < begin_ || change.at + change.removed > end) {
    return QString(std::min(change.removed, kRemembered), QChar(' '));
  }
  return ToQt(
      std::u16string_view(remembered_)
          .substr(static_cast<std::size_t>(change.at - begin_), static_cast<std::size_t>(change.removed)));
}

void AccessibilityTeller::TextReplaced(const TextChange& change) {
  if (!listening_) return;
  if (change.removed > 0) {
    QAccessibleTextRemoveEvent event(&view_, change.at, Removed(change));
    send(&event);
  }
  if (change.inserted > 0) {
    const Position told = std::min(change.inserted, kLargestValue);
    QAccessibleTextInsertEvent event(&view_, change.at, ToQt(view_.Control().Slice(change.at, told)));
    send(&event);
  }
  Remember();
}

void AccessibilityTeller::CaretMoved() {
  if (!listening_) return;
  const EditControl& control = view_.Control();
  const bool selected = toldCaret_ != toldAnchor_ || control.SelLength() != 0;
  if (control.Caret() == toldCaret_ && control.Anchor() == toldAnchor_) return;
  toldCaret_ = control.Caret();
  toldAnchor_ = control.Anchor();
  Remember();
  if (selected) {
    QAccessibleTextSelectionEvent event(&view_, control.SelStart(), control.SelStart() + control.SelLength());
    event.setCursorPosition(toldCaret_);
    send(&event);
  }
  QAccessibleTextCursorEvent event(&view_, toldCaret_);
  send(&event);
}

EditViewAccessible::EditViewAccessible(EditView& view)
    : QAccessibleWidget(&view, QAccessible::EditableText) {}

EditView& EditViewAccessible::View() const {
  return *static_cast<EditView*>(widget());
}
EditControl& EditViewAccessible::Control() const {
  return View().Control();
}

void* EditViewAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface) return static_cast<QAccessibleEditableTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QAccessible::State EditViewAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.multiLine = true;
  state.selectableText = true;
  state.editable = !Control().Locked();
  state.readOnly = Control().Locked();
  return state;
}

QString EditViewAccessible::text(QAccessible::Text kind) const {
  if (kind != QAccessible::Value) return QAccessibleWidget::text(kind);
  return ToQt(Control().Slice(0, kLargestValue));
}

void EditViewAccessible::selection(int index, int* begin, int* end) const {
  const bool any = index == 0 && Control().SelLength() != 0;
  *begin = any ? Control().SelStart() : 0;
  *end = any ? *begin + Control().SelLength() : 0;
}

int EditViewAccessible::selectionCount() const {
  return Control().SelLength() != 0 ? 1 : 0;
}

void EditViewAccessible::addSelection(int begin, int end) {
  setSelection(0, begin, end);
}

void EditViewAccessible::removeSelection(int index) {
  if (index == 0) Control().MoveCaret(Control().Caret(), EditControl::Extend::No);
}

void EditViewAccessible::setSelection(int index, int begin, int end) {
  if (index == 0 && begin >= 0 && end >= 0) View().Rules().EM_SETSEL(begin, end);
}

int EditViewAccessible::cursorPosition() const {
  return Control().Caret();
}

void EditViewAccessible::setCursorPosition(int position) {
  if (position < 0) return;
  View().Rules().EM_SETSEL(position, position);
  View().ScrollCaret();
}

int EditViewAccessible::characterCount() const {
  return Control().Length();
}

QString EditViewAccessible::text(int begin, int end) const {
  return end > begin && begin >= 0 ? ToQt(Control().Slice(begin, end - begin)) : QString();
}

std::pair<Position, Position> EditViewAccessible::UnitAt(Position offset,
                                                         QAccessible::TextBoundaryType unit) const {
  const EditControl& control = Control();
  const std::int32_t line = control.LineOf(offset);
  const Position lineEnd = control.LineEnd(line);
  const Position nextLine = line + 1 < control.LineCount() ? control.LineStart(line + 1) : lineEnd;
  switch (unit) {
    case QAccessible::CharBoundary: {
      const Position begin = OffSurrogate(control, offset);
      const bool pair =
          QChar::isHighSurrogate(control.At(begin)) && QChar::isLowSurrogate(control.At(begin + 1));
      if (offset >= lineEnd && nextLine > lineEnd) return {lineEnd, nextLine};
      return {begin, std::min(control.Length(), begin + (pair ? 2 : 1))};
    }
    case QAccessible::WordBoundary:
      if (offset >= lineEnd && nextLine > lineEnd) return {lineEnd, nextLine};
      return WordBounds(control, offset);
    case QAccessible::NoBoundary:
      return {0, control.Length()};
    default:
      return {control.LineStart(line), nextLine};
  }
}

QString EditViewAccessible::Answer(std::pair<Position, Position> range, int* begin, int* end) const {
  *begin = range.first;
  *end = range.second;
  return text(range.first, range.second);
}

QString EditViewAccessible::textAtOffset(int offset, QAccessible::TextBoundaryType unit, int* begin,
                                         int* end) const {
  if (offset < 0 || offset > Control().Length()) return Answer({-1, -1}, begin, end);
  return Answer(UnitAt(offset, unit), begin, end);
}

QString EditViewAccessible::textBeforeOffset(int offset, QAccessible::TextBoundaryType unit, int* begin,
                                             int* end) const {
  if (offset < 0 || offset > Control().Length()) return Answer({-1, -1}, begin, end);
  const Position here = UnitAt(offset, unit).first;
  return here <= 0 ? Answer({-1, -1}, begin, end) : Answer(UnitAt(here - 1, unit), begin, end);
}

QString EditViewAccessible::textAfterOffset(int offset, QAccessible::TextBoundaryType unit, int* begin,
                                            int* end) const {
  if (offset < 0 || offset > Control().Length()) return Answer({-1, -1}, begin, end);
  const Position next = UnitAt(offset, unit).second;
  return next >= Control().Length() ? Answer({-1, -1}, begin, end) : Answer(UnitAt(next, unit), begin, end);
}

QRect EditViewAccessible::characterRect(int offset) const {
  if (offset < 0 || offset > Control().Length()) return QRect();
  const QRect inViewport = View().RectOf(offset);
  return QRect(View().viewport()->mapToGlobal(inViewport.topLeft()), inViewport.size());
}

int EditViewAccessible::offsetAtPoint(const QPoint& point) const {
  const QPoint inViewport = View().viewport()->mapFromGlobal(point);
  return View().viewport()->rect().contains(inViewport) ? View().PositionAtPoint(inViewport) : -1;
}

void EditViewAccessible::scrollToSubstring(int begin, int) {
  const EditView::ScrollState now = View().ScrollPosition();
  const std::int32_t line = Control().LineOf(begin);
  if (line >= now.firstLine && line < now.firstLine + View().VisibleRows()) return;
  View().SetScrollPosition({line, now.x});
}

QString EditViewAccessible::attributes(int, int* begin, int* end) const {
  *begin = 0;
  *end = characterCount();
  return QString();
}

void EditViewAccessible::deleteText(int begin, int end) {
  replaceText(begin, end, QString());
}

void EditViewAccessible::insertText(int offset, const QString& text) {
  replaceText(offset, offset, text);
}

void EditViewAccessible::replaceText(int begin, int end, const QString& text) {
  if (Control().Locked() || begin < 0 || end < begin) return;
  View().Rules().EM_SETSEL(begin, end);
  View().Rules().EM_REPLACESEL(ToUnits(text));
}

}  // namespace kestri
