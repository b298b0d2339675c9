// Paints rows of text with everything laid over them, except the caret.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRect>
#include <optional>

#include "document/edit_control/edit_control.hpp"
#include "ui/guide_lines.hpp"
#include "ui/line_end_marks.hpp"
#include "ui/line_layout_cache.hpp"

namespace kestri {

struct TextColors {
  QColor fore;
  QColor back;
  QColor guide;
  QColor selectionFore;
  QColor selectionBack;
};

struct TextScene {
  const EditControl& control;
  LineLayoutCache& layouts;
  const LineEndMarks* marks = nullptr;  // none: marks are off
  TextColors colors;
  std::int32_t firstLine = 0;  // at the top row
  double textLeft = 0;         // x of the lines' left edge in the viewport; negative when scrolled
  std::optional<GuideRects> guides;
};

struct PaintedRows {
  double widest = 0;   // width of the widest line painted
  bool moved = false;  // a segment changed its width: text right of it stands elsewhere now
};

PaintedRows PaintRows(QPainter& painter, const QRect& dirty, const TextScene& scene);

}  // namespace kestri
