#include "tags/forms/candidate_icons.hpp"

#include <QPainter>
#include <QPainterPath>

namespace kestri {
namespace {

constexpr double kGrid = 24;  // the signs are drawn on a grid of 24 by 24

struct Sign {
  QRgb plate;
  double penWidth;  // 0: the path is filled
  QPainterPath path;
};

QPainterPath Lines(std::initializer_list<std::initializer_list<QPointF>> lines) {
  QPainterPath path;
  for (const auto& line : lines) {
    path.moveTo(*line.begin());
    for (const QPointF& point : line) path.lineTo(point);
  }
  return path;
}

QPainterPath Person() {
  QPainterPath path;
  path.addEllipse(QPointF(12, 8.8), 3.5, 3.5);
  path.moveTo(5, 19);
  path.cubicTo(5.4, 15.3, 8.2, 13.6, 12, 13.6);
  path.cubicTo(15.8, 13.6, 18.6, 15.3, 19, 19);
  path.closeSubpath();
  return path;
}

QPainterPath QuotationMark(double left) {
  QPainterPath path(QPointF(left, 16.2));
  path.lineTo(left, 11.6);
  path.cubicTo(left, 8.6, left + 1.8, 6.6, left + 5.1, 6);
  path.lineTo(left + 5.1, 9);
  path.cubicTo(left + 3.8, 9.4, left + 3.2, 10.1, left + 3.2, 11.4);
  path.lineTo(left + 5.5, 11.4);
  path.lineTo(left + 5.5, 16.2);
  path.closeSubpath();
  return path;
}

QPainterPath Star() {
  return Lines({{{12, 4.6},
                 {14.3, 9.4},
                 {19.5, 10.1},
                 {15.7, 13.7},
                 {16.6, 18.9},
                 {12, 16.4},
                 {7.4, 18.9},
                 {8.3, 13.7},
                 {4.5, 10.1},
                 {9.7, 9.4},
                 {12, 4.6}}});
}

Sign SignOf(CandidateIcon icon) {
  switch (icon) {
    case CandidateIcon::Attribute:
      return {0xFF66727F, 2.8, Lines({{{6.5, 9.3}, {17.5, 9.3}}, {{6.5, 14.7}, {17.5, 14.7}}})};
    case CandidateIcon::Keyword:
      return {0xFF2E9150, 3.0, Lines({{{6.3, 12.6}, {10.2, 16.8}, {17.7, 7.5}}})};
    case CandidateIcon::EventHandler:
      return {0xFFC23B3B, 0,
              Lines({{{13.6, 4.2},
                      {6.8, 13.3},
                      {11.2, 13.3},
                      {10.3, 19.8},
                      {17.3, 10.4},
                      {12.8, 10.4},
                      {13.6, 4.2}}})};
    case CandidateIcon::Value:
      return {0xFF8A8F96, 0, QuotationMark(5.2).united(QuotationMark(13.1))};
    case CandidateIcon::Font:
      return {0xFF1F8A94, 2.5, Lines({{{6.3, 18}, {12, 5.6}, {17.7, 18}}, {{8.4, 14}, {15.6, 14}}})};
    case CandidateIcon::Favourite:
      return {0xFFD9901A, 0, Star()};
    case CandidateIcon::UserWord:
      return {0xFF8458B3, 0, Person()};
    case CandidateIcon::Tag:
      break;
  }
  return {0xFF2F6FDE, 2.6,
          Lines({{{9.5, 6.5}, {4.8, 12}, {9.5, 17.5}}, {{14.5, 6.5}, {19.2, 12}, {14.5, 17.5}}})};
}

}  // namespace

void PaintCandidateIcon(QPainter& painter, const QRectF& place, CandidateIcon icon) {
  const Sign sign = SignOf(icon);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(place.topLeft());
  painter.scale(place.width() / kGrid, place.height() / kGrid);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(sign.plate));
  painter.drawRoundedRect(QRectF(1.5, 1.5, 21, 21), 5, 5);
  if (sign.penWidth > 0) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, sign.penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  } else {
    painter.setBrush(Qt::white);
  }
  painter.drawPath(sign.path);
  painter.restore();
}

}  // namespace kestri
