#include "ui/line_end_marks.hpp"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace kestri {
namespace {

constexpr int kUnscaledFontPixels = 20;  // up to this text size the cells keep their own size

double CellScale(const QFont& textFont) {
  const int pixels = textFont.pixelSize() > 0 ? textFont.pixelSize() : QFontInfo(textFont).pixelSize();
  return std::max(1.0, static_cast<double>(pixels) / kUnscaledFontPixels);
}

QFont EndOfFileFont(const QFont& textFont) {
  QFont font = textFont;
  font.setPixelSize(kMarkHeight - 2);
  while (font.pixelSize() > 6 &&
         QFontMetricsF(font).horizontalAdvance(QStringLiteral("[EOF]")) > kMarkWidth) {
    font.setPixelSize(font.pixelSize() - 1);
  }
  return font;
}

void DrawAngledArrow(QPainter& painter) {
  const QPointF corner(10.5, 8.5);
  painter.drawPolyline(QPolygonF({QPointF(10.5, 3.5), corner, QPointF(3.5, 8.5)}));
  painter.drawPolyline(QPolygonF({QPointF(6.5, 5.5), QPointF(3.5, 8.5), QPointF(6.5, 11.5)}));
}

void DrawBarbedStroke(QPainter& painter) {
  const double middle = 6.5;
  painter.drawLine(QPointF(middle, 2.5), QPointF(middle, 10.5));
  painter.drawPolyline(
      QPolygonF({QPointF(middle - 3, 7.5), QPointF(middle, 10.5), QPointF(middle + 3, 7.5)}));
}

}  // namespace

bool FontAllowsLineEndMarks(std::u16string_view fontName) {
  return fontName.find(u'Ｐ') == std::u16string_view::npos;
}

void LineEndMarks::BuildMarkImage(const QFont& textFont, int eofMarkType, double devicePixelRatio) {
  scale_ = CellScale(textFont);
  devicePixelRatio_ = devicePixelRatio;
  const double pixelScale = scale_ * devicePixelRatio;
  picture_ = QPixmap(static_cast<int>(std::ceil((kReturnColumn + kMarkWidth) * pixelScale)),
                     static_cast<int>(std::ceil(kMarkHeight * pixelScale)));
  picture_.fill(Qt::transparent);
  QPainter painter(&picture_);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(pixelScale, pixelScale);
  painter.setPen(QPen(kLineEndColor, 1, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.setFont(EndOfFileFont(textFont));
  painter.drawText(QRectF(0, 0, kMarkWidth, kMarkHeight), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                   QStringLiteral("[EOF]"));
  painter.translate(kReturnColumn, 0);
  eofMarkType == 0 ? DrawAngledArrow(painter) : DrawBarbedStroke(painter);
}

void LineEndMarks::Draw(QPainter& painter, double x, int rowTop, int rowHeight, LineEndMark mark) const {
  const QSizeF cell = CellSize();
  const double column = mark == LineEndMark::Return ? kReturnColumn : 0;
  const double sourceScale = static_cast<double>(picture_.height()) / kMarkHeight;
  const QRectF target(std::round(x), rowTop + std::floor((rowHeight - cell.height()) / 2), cell.width(),
                      cell.height());
  const QRectF source(column * sourceScale, 0, kMarkWidth * sourceScale, picture_.height());
  painter.drawPixmap(target, picture_, source);
}

}  // namespace kestri
