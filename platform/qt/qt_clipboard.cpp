#include "platform/qt/qt_clipboard.hpp"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "platform/qt/qt_text.hpp"

namespace kestri {

std::u16string QtClipboard::Text() {
  return FromQt(QGuiApplication::clipboard()->text());
}

// Other programs of the desktop expect LF, so CR LF leaves as LF; our own paste makes CR LF again.
void QtClipboard::SetText(std::u16string_view text) {
  QGuiApplication::clipboard()->setText(WithLf(text));
}

}  // namespace kestri
