// The application: an error that a command raised and nobody caught is told, and the program goes on with its
// text.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace kestri {

class EditorApplication : public QApplication {
 public:
  using QApplication::QApplication;

  std::function<void()> unknownError;  // may be left out

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (const std::exception&) {
      if (unknownError) unknownError();
      return true;
    }
  }
};

}  // namespace kestri
