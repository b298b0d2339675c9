// Lets a bar without a title be dragged like one: the window under it follows the mouse.
#pragma once

#include <QObject>
#include <QPoint>

class QMouseEvent;
class QWidget;

namespace kestri {

// The desktop moves the window where it can, so that its own rules for edges and screens hold; elsewhere the
// window is moved step by step. Lives as long as the bar.
class FormMover : public QObject {
  Q_OBJECT
 public:
  explicit FormMover(QWidget& bar);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Press(const QMouseEvent& event);
  bool Drag(const QMouseEvent& event);

  QWidget& bar_;
  bool dragging_ = false;
  QPoint grip_;  // from the window's corner to the pointer
};

}  // namespace kestri
