#include "platform/qt/title_room.hpp"

#include <QFontMetrics>
#include <QStyle>
#include <QWidget>

namespace kestri {

int RoomForTitle(const QWidget& window) {
  constexpr int kIconAndButtons = 5;  // squares as high as the frame's title
  QFont letters = window.font();
  letters.setBold(true);
  return QFontMetrics(letters).horizontalAdvance(window.windowTitle()) +
         kIconAndButtons * window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

}  // namespace kestri
