#include "ui/control_glyphs.hpp"

#include <algorithm>

namespace kestri {
namespace {

// The largest size at which the label's longest row fits the box.
QFont LabelFont(const QFont& base, const QString& label, const QRectF& box, int rows) {
  QFont font = base;
  font.setPixelSize(std::max(5, static_cast<int>(box.height() * 0.62 / (rows == 1 ? 1 : 1.2))));
  while (font.pixelSize() > 5 && QFontMetricsF(font).horizontalAdvance(label) > box.width() - 3) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  return font;
}

}  // namespace

bool NeedsBox(char16_t unit) {
  if (unit < 0x20) return unit != u'\t';
  if (unit < 0x7F) return false;
  if (unit <= 0x9F || unit == 0xAD) return true;
  if (unit < 0x200B) return false;
  return unit == 0x200B || unit == 0x200E || unit == 0x200F || (unit >= 0x2028 && unit <= 0x202E) ||
         (unit >= 0x2066 && unit <= 0x2069) || unit == 0xFEFF || unit == 0xFFFC;
}

QString BoxLabel(char16_t unit) {
  if (unit == u'\r') return QStringLiteral("CR");
  if (unit == u'\n') return QStringLiteral("LF");
  if (unit < 0x20) return QLatin1Char('^') + QString(QChar(static_cast<ushort>(unit + 0x40)));
  if (unit == 0x7F) return QStringLiteral("^?");
  return QString::number(unit, 16).toUpper();
}

void DrawBox(QPainter& painter, const QRectF& cell, char16_t unit, const QColor& color) {
  const QString label = BoxLabel(unit);
  const QRectF box = cell.adjusted(1.5, 2.5, -1.5, -2.5);
  painter.save();
  painter.setPen(color);
  painter.setBrush(Qt::NoBrush);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawRoundedRect(box, 2, 2);
  const int columns = std::min(2, static_cast<int>(label.size()));
  const int rows = (static_cast<int>(label.size()) + columns - 1) / columns;
  painter.setFont(LabelFont(painter.font(), label.left(columns), box, rows));
  for (int row = 0; row < rows; ++row) {
    const QRectF part(box.left(), box.top() + row * box.height() / rows, box.width(), box.height() / rows);
    painter.drawText(part, Qt::AlignCenter | Qt::TextDontClip, label.mid(row * columns, columns));
  }
  painter.restore();
}

}  // namespace kestri
