#include "ui/form_mover.hpp"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace kestri {

FormMover::FormMover(QWidget& bar) : QObject(&bar), bar_(bar) {
  bar.installEventFilter(this);
}

bool FormMover::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      return Press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      return Drag(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      dragging_ = false;
      return false;
    default:
      return QObject::eventFilter(watched, event);
  }
}

bool FormMover::Press(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  QWindow* handle = bar_.window()->windowHandle();
  if (handle != nullptr && handle->startSystemMove()) return true;
  dragging_ = true;
  grip_ = event.globalPosition().toPoint() - bar_.window()->frameGeometry().topLeft();
  return true;
}

bool FormMover::Drag(const QMouseEvent& event) {
  if (!dragging_ || !event.buttons().testFlag(Qt::LeftButton)) return false;
  bar_.window()->move(event.globalPosition().toPoint() - grip_);
  return true;
}

}  // namespace kestri
