// Characters that have no shape of their own, and the small boxes that stand for them.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace kestri {

// Shown as a box of two cells: controls except the tab, line and paragraph separators, invisible direction
// marks.
bool NeedsBox(char16_t unit);
// "CR", "LF", "^A", "200E".
QString BoxLabel(char16_t unit);
void DrawBox(QPainter& painter, const QRectF& cell, char16_t unit, const QColor& color);

}  // namespace kestri
