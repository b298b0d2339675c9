#include "ui/edit_view_painter.hpp"

#include <algorithm>

namespace kestri {
namespace {

// The line end's own part of a selection: one cell behind the text.
void PaintSelectedLineEnd(QPainter& painter, const TextScene& scene, double x, int top) {
  const TextStyle& style = scene.layouts.Style();
  painter.fillRect(QRectF(x, top, style.cell, style.rowHeight), scene.colors.selectionBack);
}

PaintedRows PaintRow(QPainter& painter, const QRect& dirty, const TextScene& scene, std::int32_t line,
                     int top) {
  const EditControl& control = scene.control;
  LineLayout& layout = scene.layouts.Line(line);
  const TextStyle& style = scene.layouts.Style();
  const Position begin = control.LineStart(line);
  const Position end = control.LineEnd(line);
  const Position selectionBegin = control.SelStart();
  const Position selectionEnd = selectionBegin + control.SelLength();
  LinePaint paint{.origin = QPointF(scene.textLeft, top),
                  .left = dirty.left() - scene.textLeft,
                  .right = dirty.right() + 1 - scene.textLeft,
                  .selectionBegin = std::clamp(selectionBegin, begin, end) - begin,
                  .selectionEnd = std::clamp(selectionEnd, begin, end) - begin,
                  .fore = scene.colors.fore,
                  .selectionFore = scene.colors.selectionFore,
                  .selectionBack = scene.colors.selectionBack,
                  .mark = kLineEndColor};
  layout.Draw(painter, paint);
  const bool last = line + 1 == control.LineCount();
  const double textEnd = scene.textLeft + layout.Width();
  if (!last && selectionBegin <= end && selectionEnd > end)
    PaintSelectedLineEnd(painter, scene, textEnd, top);
  if (scene.marks) {
    scene.marks->Draw(painter, textEnd + 2, top, style.rowHeight,
                      last ? LineEndMark::EndOfFile : LineEndMark::Return);
  }
  const double widest = layout.Width();
  return {widest, layout.TakeMoved()};
}

}  // namespace

PaintedRows PaintRows(QPainter& painter, const QRect& dirty, const TextScene& scene) {
  const int rowHeight = scene.layouts.Style().rowHeight;
  painter.setClipRect(dirty);
  painter.fillRect(dirty, scene.colors.back);
  if (scene.guides) DrawGuides(painter, *scene.guides, scene.colors.guide);
  PaintedRows result;
  for (int row = dirty.top() / rowHeight; row * rowHeight <= dirty.bottom(); ++row) {
    const std::int32_t line = scene.firstLine + row;
    if (line >= scene.control.LineCount()) break;
    const PaintedRows painted = PaintRow(painter, dirty, scene, line, row * rowHeight);
    result.widest = std::max(result.widest, painted.widest);
    result.moved = result.moved || painted.moved;
  }
  return result;
}

}  // namespace kestri
