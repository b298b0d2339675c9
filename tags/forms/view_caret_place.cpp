#include "tags/forms/view_caret_place.hpp"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>

#include "platform/qt/qt_text.hpp"
#include "ui/edit_view.hpp"

namespace kestri {
namespace {

constexpr QPoint kCaretUnknown{-9999, -9999};
constexpr double kTwipsPerPixel = 15;
constexpr double kTwipsPerPoint = 20;

PixelRect FromRect(const QRect& rect) {
  return {rect.left(), rect.top(), rect.width(), rect.height()};
}

}  // namespace

std::optional<PixelRect> ViewCaretPlace::GetCaretPixel() {
  const QPoint bottom = view_.GetCaretPixel();
  if (bottom == kCaretUnknown) return std::nullopt;
  const QRect caret = view_.CaretRect();
  return PixelRect{bottom.x(), bottom.y() - caret.height(), caret.width(), caret.height()};
}

PixelRect ViewCaretPlace::ScreenOfCaret() {
  const QScreen* screen = QGuiApplication::screenAt(view_.GetCaretPixel());
  return FromRect((screen != nullptr ? screen : view_.screen())->availableGeometry());
}

PixelRect ViewCaretPlace::HintBox() {
  return hintBox ? FromRect(hintBox()) : PixelRect{};
}

int ViewCaretPlace::FontPoints() {
  return qRound(QFontInfo(view_.Style().font).pixelSize() * kTwipsPerPixel / kTwipsPerPoint);
}

int ViewCaretPlace::TextWidth(std::u16string_view text) {
  return qRound(QFontMetricsF(view_.Style().font).horizontalAdvance(ToQt(text)) * kTwipsPerPixel);
}

bool ViewCaretPlace::TextHasFocus() {
  return view_.hasFocus();
}

}  // namespace kestri
