// The window over which a dialog stands.
#pragma once

#include <QApplication>
#include <QWidget>

namespace kestri {

// The open modal window if there is one, else the owner.
inline QWidget* DialogOwner(QWidget* owner) {
  QWidget* modal = QApplication::activeModalWidget();
  return modal != nullptr ? modal : owner;
}

}  // namespace kestri
