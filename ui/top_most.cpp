#include "ui/top_most.hpp"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace kestri {
namespace {

bool IsStartUpForm(const QWidget& form) {
  return form.objectName() == QLatin1String("TopFrm");
}

bool TakesPart(const QWidget& form) {
  const Qt::WindowType type = form.windowType();
  const bool isForm = type == Qt::Window || type == Qt::Dialog || type == Qt::Tool;
  return isForm && form.isVisible() && !IsStartUpForm(form);
}

}  // namespace

// The widget is told behind its back: its own setter would hide the window and make it anew.
void SetTopMost(QWidget& form, std::int32_t mode) {
  if (mode != kTopMost && mode != kNotTopMost) return;
  QWidget* window = form.window();
  const bool on = mode == kTopMost;
  if (IsTopMost(*window) == on) return;
  window->overrideWindowFlags(window->windowFlags().setFlag(Qt::WindowStaysOnTopHint, on));
  if (QWindow* handle = window->windowHandle()) handle->setFlag(Qt::WindowStaysOnTopHint, on);
}

bool IsTopMost(const QWidget& form) {
  return form.window()->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

void RefreshTopMost(std::int32_t mode) {
  const QWidgetList forms = QApplication::topLevelWidgets();
  for (QWidget* form : forms) {
    if (TakesPart(*form)) SetTopMost(*form, mode);
  }
}

}  // namespace kestri
