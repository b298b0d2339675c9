// Mouse, context menu, the selection clipboard.
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QInputMethod>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "platform/qt/qt_text.hpp"
#include "ui/dropped_data.hpp"
#include "ui/edit_view.hpp"
#include "ui/word_bounds.hpp"

namespace kestri {
namespace {

constexpr int kAutoScrollMilliseconds = 40;
constexpr Position kLargestPublished = 1'000'000;  // characters that go to the selection clipboard

}  // namespace

// ---- buttons

void EditView::mousePressEvent(QMouseEvent* event) {
  if (Composing()) QGuiApplication::inputMethod()->commit();
  text_.MouseDown();
  const QPoint point = event->position().toPoint();
  switch (event->button()) {
    case Qt::LeftButton:
      PressLeft(*event);
      break;
    case Qt::MiddleButton:
      PressMiddle(point);
      break;
    case Qt::RightButton:
      text_.WM_BUTTONUP();
      break;
    default:
      return event->ignore();
  }
  Flush();
}

void EditView::PressLeft(QMouseEvent& event) {
  const QPoint point = event.position().toPoint();
  pressPoint_ = lastPoint_ = point;
  const bool third = sinceDoubleClick_.isValid() &&
                     sinceDoubleClick_.elapsed() < QApplication::doubleClickInterval() &&
                     (point - doubleClickPoint_).manhattanLength() < QApplication::startDragDistance();
  sinceDoubleClick_.invalidate();
  text_.WM_LBUTTONDOWN();
  const bool extend = event.modifiers().testFlag(Qt::ShiftModifier);
  grasp_ = Grasp::Selecting;
  if (third) {
    unit_ = SelectionUnit::Line;
    unitAnchor_ = UnitAt(PositionAtPoint(point));
    return SelectUnits(unitAnchor_.first);
  }
  unit_ = SelectionUnit::Character;
  if (!extend && text_.DragMode() && InSelection(point)) {
    grasp_ = Grasp::MaybeDrag;
    return;
  }
  control_.MoveCaret(PositionAtPoint(point), extend ? EditControl::Extend::Yes : EditControl::Extend::No);
}

void EditView::PressMiddle(QPoint point) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  if (!clipboard.supportsSelection()) return;
  text_.PasteAt(PositionAtPoint(point), FromQt(clipboard.text(QClipboard::Selection)));
}

void EditView::mouseMoveEvent(QMouseEvent* event) {
  const QPoint point = event->position().toPoint();
  if (!event->buttons().testFlag(Qt::LeftButton) || grasp_ == Grasp::None) {
    return;
  }
  lastPoint_ = point;
  if (grasp_ == Grasp::MaybeDrag) {
    if ((point - pressPoint_).manhattanLength() >= QApplication::startDragDistance()) StartDrag();
    return;
  }
  ExtendTo(point);
  const bool outside = !viewport()->rect().contains(point);
  if (outside && !autoScrollTimer_.isActive()) autoScrollTimer_.start(kAutoScrollMilliseconds, this);
  if (!outside) autoScrollTimer_.stop();
}

void EditView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  autoScrollTimer_.stop();
  if (grasp_ == Grasp::MaybeDrag) control_.MoveCaret(PositionAtPoint(pressPoint_), EditControl::Extend::No);
  grasp_ = Grasp::None;
  text_.WM_BUTTONUP();
  PublishSelection();
  Flush();
}

void EditView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return mousePressEvent(event);
  if (Composing()) QGuiApplication::inputMethod()->commit();
  text_.MouseDown();
  const QPoint point = event->position().toPoint();
  const Position at = PositionAtPoint(point);
  sinceDoubleClick_.start();
  doubleClickPoint_ = point;
  if (grasp_ == Grasp::MaybeDrag || control_.SelLength() != 0)
    control_.MoveCaret(at, EditControl::Extend::No);
  grasp_ = Grasp::Selecting;
  unit_ = SelectionUnit::Word;
  if (text_.WM_LBUTTONDBLCLK()) {
    unitAnchor_ = {control_.SelStart(), control_.SelStart() + control_.SelLength()};
  } else {
    unitAnchor_ = UnitAt(at);
    SelectUnits(at);
  }
  Flush();
}

void EditView::ExtendTo(QPoint point) {
  const Position before = control_.SelLength();
  SelectUnits(PositionAtPoint(point));
  text_.WM_MOUSEMOVE(before);
  Flush();
}

void EditView::SelectUnits(Position to) {
  if (unit_ == SelectionUnit::Character) return control_.MoveCaret(to, EditControl::Extend::Yes);
  const auto [begin, end] = UnitAt(to);
  if (to < unitAnchor_.first) return control_.EM_SETSEL(unitAnchor_.second, begin);
  control_.EM_SETSEL(unitAnchor_.first,
                     to > unitAnchor_.second ? std::max(end, unitAnchor_.second) : unitAnchor_.second);
}

std::pair<Position, Position> EditView::UnitAt(Position position) const {
  if (unit_ == SelectionUnit::Word) return WordBounds(control_, position);
  const std::int32_t line = control_.LineOf(position);
  return {control_.LineStart(line), control_.LineEnd(line)};
}

void EditView::SelectLines(std::int32_t anchorLine, std::int32_t line) {
  if (Composing()) QGuiApplication::inputMethod()->commit();
  text_.MouseDown();
  const auto behind = [this](std::int32_t at) {
    return at + 1 < control_.LineCount() ? control_.LineStart(at + 1) : control_.LineEnd(at);
  };
  if (line >= anchorLine) {
    control_.EM_SETSEL(control_.LineStart(anchorLine), behind(line));
  } else {
    control_.EM_SETSEL(behind(anchorLine), control_.LineStart(line));
  }
  PublishSelection();
  Flush();
}

bool EditView::InSelection(QPoint point) {
  const Position begin = control_.SelStart();
  const Position end = begin + control_.SelLength();
  const Position at = PositionAtPoint(point);
  if (begin == end || at < begin || at > end) return false;
  if (point.y() >= RowTop(control_.LineCount())) return false;
  const double x = point.x() - TextLeft();
  if (at == begin && x < XOf(begin)) return false;
  return at != end || x < XOf(end);
}

void EditView::AutoScroll() {
  const auto steps = [](int over, int size) { return over == 0 ? 0 : over / size + (over > 0 ? 1 : -1); };
  const auto over = [](int at, int size) { return at < 0 ? at : std::max(0, at - size + 1); };
  const int rows = steps(over(lastPoint_.y(), viewport()->height()), Style().rowHeight);
  const int across = over(lastPoint_.x(), viewport()->width());
  verticalScrollBar()->setValue(FirstVisibleLine() + rows);
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() + across);
  ExtendTo(lastPoint_);
}

void EditView::wheelEvent(QWheelEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) return event->ignore();
  QAbstractScrollArea::wheelEvent(event);
}

// What is selected can be pasted with the middle button at once.
void EditView::PublishSelection() {
  if (!std::exchange(selectionUnpublished_, false)) return;
  const Position length = control_.SelLength();
  QClipboard& clipboard = *QGuiApplication::clipboard();
  if (length == 0 || length > kLargestPublished || !clipboard.supportsSelection()) return;
  clipboard.setText(DesktopText(control_.SelText()), QClipboard::Selection);
}

// ---- context menu

void EditView::contextMenuEvent(QContextMenuEvent* event) {
  if (text_.WM_CONTEXTMENU()) return;
  const bool fromKey = event->reason() == QContextMenuEvent::Keyboard;
  const QPoint caret = fromKey ? GetCaretPixel() : QPoint();
  ShowStandardMenu(fromKey && caret.x() != -9999 ? caret : event->globalPos());
}

void EditView::ShowStandardMenu(QPoint global) {
  const bool selected = control_.SelLength() != 0;
  const bool writable = !control_.Locked();
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [&](const QString& caption, bool enabled, std::function<void()> action) {
    menu->addAction(caption, this,
                    [this, run = std::move(action)] {
                      run();
                      Flush();
                    })
        ->setEnabled(enabled);
  };
  add(QStringLiteral("元に戻す(&U)"), writable && control_.EM_CANUNDO(), [this] { text_.MenUNDO(0); });
  add(QStringLiteral("やり直し(&R)"), writable && control_.EM_CANREDO(), [this] { text_.MenUNDO(1); });
  menu->addSeparator();
  add(QStringLiteral("切り取り(&T)"), writable && selected, [this] { text_.Edit(0); });
  add(QStringLiteral("ｺﾋﾟｰ(&C)"), selected, [this] { text_.WM_COPY(); });
  add(QStringLiteral("貼り付け(&P)"), writable, [this] { text_.Edit(2); });
  add(QStringLiteral("削除"), writable && selected, [this] { text_.Edit(3); });
  menu->addSeparator();
  add(QStringLiteral("すべて選択(&A)"), control_.Length() != 0, [this] { text_.Edit(5); });
  menu->popup(global);
}

}  // namespace kestri
