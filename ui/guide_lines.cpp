#include "ui/guide_lines.hpp"

namespace kestri {

GuideRects GuideRectsAt(int caretX, int rowBottom, QSize viewport) {
  return {QRect(caretX, 0, 2, viewport.height()), QRect(0, rowBottom - 2, viewport.width(), 2)};
}

void DrawGuides(QPainter& painter, const GuideRects& rects, const QColor& color) {
  QColor faint = color;
  faint.setAlphaF(0.35f);
  painter.fillRect(rects.vertical.adjusted(0, 0, -1, 0), color);
  painter.fillRect(rects.vertical.adjusted(1, 0, 0, 0), faint);
  painter.fillRect(rects.horizontal.adjusted(0, 0, 0, -1), faint);
  painter.fillRect(rects.horizontal.adjusted(0, 1, 0, 0), color);
}

}  // namespace kestri
