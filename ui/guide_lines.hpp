// The pair of thin lines through the caret: one down the text, one under the caret's row.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRegion>
#include <QSize>
#include <cstdint>

namespace kestri {

// Where the lines stand in the text, so that scrolling carries them along.
struct GuideLines {
  bool visible = false;
  double x = 0;  // pixels from the text's left edge
  std::int32_t line = 0;

  bool operator==(const GuideLines&) const = default;
};

// The two rectangles of each line in a viewport; caret is the caret's rectangle there.
struct GuideRects {
  QRect vertical;
  QRect horizontal;
  QRegion Area() const { return QRegion(vertical) + QRegion(horizontal); }
};

GuideRects GuideRectsAt(int caretX, int rowBottom, QSize viewport);
// Each line is a pair: the line itself and a fainter one beside it.
void DrawGuides(QPainter& painter, const GuideRects& rects, const QColor& color);

}  // namespace kestri
