#include "platform/qt/qt_window_services.hpp"

#include <QApplication>

namespace kestri {

void QtWindowServices::Beep() {
  QApplication::beep();
}

void QtWindowServices::SetBusyPointer(bool busy) {
  if (busy == busy_) return;
  busy_ = busy;
  if (busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void QtWindowServices::ProcessEvents() {
  QCoreApplication::processEvents();
}

}  // namespace kestri
