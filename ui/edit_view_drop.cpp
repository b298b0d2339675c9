// Drag and drop.
#include "ui/dropped_data.hpp"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QScrollBar>

#include "platform/qt/qt_text.hpp"
#include "ui/edit_view.hpp"

namespace kestri {
namespace {

constexpr int kDropScrollBand = 16;  // pixels at the edges where a drag scrolls

}  // namespace

void EditView::StartDrag() {
  auto* dragged = new QMimeData;
  dragged->setText(DesktopText(control_.SelText()));
  const QPointer<EditView> self(this);
  auto* drag = new QDrag(this);
  drag->setMimeData(dragged);
  droppedInside_ = false;
  grasp_ = Grasp::None;
  const Qt::DropActions allowed = control_.Locked() ? Qt::CopyAction : Qt::CopyAction | Qt::MoveAction;
  const Qt::DropAction done = drag->exec(allowed, control_.Locked() ? Qt::CopyAction : Qt::MoveAction);
  if (!self) return;
  if (done == Qt::MoveAction && !droppedInside_ && !control_.Locked()) text_.WM_CLEAR();
  text_.WM_BUTTONUP();
  SetDropCaret(-1);
  Flush();
}

void EditView::dragEnterEvent(QDragEnterEvent* event) {
  dragBringsText_ = KindOf(*event->mimeData()) == DroppedKind::Text;
  event->acceptProposedAction();
}

void EditView::dragMoveEvent(QDragMoveEvent* event) {
  const QPoint point = event->position().toPoint();
  if (point.y() < kDropScrollBand) verticalScrollBar()->setValue(FirstVisibleLine() - 1);
  if (point.y() > viewport()->height() - kDropScrollBand)
    verticalScrollBar()->setValue(FirstVisibleLine() + 1);
  SetDropCaret(dragBringsText_ ? PositionAtPoint(point) : -1);
  event->acceptProposedAction();
}

void EditView::dragLeaveEvent(QDragLeaveEvent*) {
  SetDropCaret(-1);
}

void EditView::dropEvent(QDropEvent* event) {
  const Position at = PositionAtPoint(event->position().toPoint());
  SetDropCaret(-1);
  if (event->source() == this) {
    event->acceptProposedAction();
    droppedInside_ = true;
    MoveOrCopySelection(at, event->dropAction());
  } else {
    // Nothing from outside is ever taken away from where it came from, least of all when it was refused.
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(DropFromOutside(*event->mimeData(), at) == MainText::Drop::Done);
  }
  Flush();
}

void EditView::MoveOrCopySelection(Position to, Qt::DropAction action) {
  text_.DropSelection(
      to, action == Qt::MoveAction ? MainText::SelectionDrag::Move : MainText::SelectionDrag::Copy);
}

MainText::Drop EditView::DropFromOutside(const QMimeData& dropped, Position at) {
  switch (KindOf(dropped)) {
    case DroppedKind::Text:
      if (!control_.Locked()) text_.EM_SETSEL(at, at);
      return text_.OLEDropText(FromQt(dropped.text()));
    case DroppedKind::Files:
      return text_.OLEDropFiles(LocalFiles(dropped));
    case DroppedKind::Other:
      break;
  }
  return text_.OLEDropOther();
}

void EditView::SetDropCaret(Position at) {
  const auto repaint = [this] {
    if (dropCaret_ >= 0) viewport()->update(RectOf(dropCaret_).adjusted(-2, 0, 2, 0));
  };
  if (at == dropCaret_) return;
  repaint();
  dropCaret_ = at;
  repaint();
}

}  // namespace kestri
