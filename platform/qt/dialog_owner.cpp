#include "platform/qt/dialog_owner.hpp"

#include <QApplication>
#include <QElapsedTimer>
#include <QWindow>

namespace kestri {

void LetWindowBePlaced(QWidget* window) {
  constexpr int kLongest = 500;  // milliseconds
  if (window == nullptr || !window->isVisible()) return;
  const QWindow* handle = window->window()->windowHandle();
  QElapsedTimer waited;
  waited.start();
  while (handle != nullptr && !handle->isExposed() && waited.elapsed() < kLongest)
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents, 20);
}

QWidget* DialogOwner(QWidget* owner) {
  QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr) return modal;
  LetWindowBePlaced(owner);
  return owner;
}

}  // namespace kestri
