// Twips of the settings and pixels of the screen.
#pragma once

#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QWidget>
#include <cstdint>

#include "shell/window/window_placement.hpp"

namespace kestri {

inline constexpr int kTwipsPerPixel = 15;

inline int ToPixels(std::int32_t twips) {
  return twips / kTwipsPerPixel;
}

inline std::int32_t ToTwips(int pixels) {
  return pixels * kTwipsPerPixel;
}

inline QRect ToPixels(const WindowRectangle& twips) {
  return {ToPixels(twips.left), ToPixels(twips.top), ToPixels(twips.width), ToPixels(twips.height)};
}

inline WindowRectangle ToTwips(const QRect& pixels) {
  return {.left = pixels.left() * kTwipsPerPixel,
          .top = pixels.top() * kTwipsPerPixel,
          .width = pixels.width() * kTwipsPerPixel,
          .height = pixels.height() * kTwipsPerPixel};
}

// What windows may cover on the screen that holds the point, or else on the widget's own.
inline QRect ScreenAreaAt(QPoint point, const QWidget& widget) {
  const QScreen* screen = QGuiApplication::screenAt(point);
  return (screen != nullptr ? screen : widget.screen())->availableGeometry();
}

}  // namespace kestri
