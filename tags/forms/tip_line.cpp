#include "tags/forms/tip_line.hpp"

#include <QMouseEvent>
#include <QPainter>

#include "tags/forms/candidate_icons.hpp"

namespace kestri {
namespace {

constexpr int kMargin = 4;
constexpr int kGripSize = 12;

}  // namespace

TipLine::TipLine(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("StatusBar1"));
  setAccessibleName(QStringLiteral("選択中の候補の説明"));
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TipLine::SetTip(const QString& text, std::optional<CandidateIcon> icon) {
  if (text == text_ && icon == icon_) return;
  text_ = text;
  icon_ = icon;
  setToolTip(text);
  setAccessibleDescription(text);
  update();
}

QSize TipLine::sizeHint() const {
  return {1, std::max(fontMetrics().height(), kCandidateIconSize) + 2 * kMargin};
}

QRect TipLine::Grip() const {
  return {width() - kGripSize - 1, height() - kGripSize - 1, kGripSize, kGripSize};
}

void TipLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(0, 0, width(), 0);
  int left = kMargin;
  if (icon_) {
    const int top = (height() - kCandidateIconSize) / 2 + 1;
    const QRectF place(left, top, kCandidateIconSize, kCandidateIconSize);
    PaintCandidateIcon(painter, place, *icon_);
    left += kCandidateIconSize + kMargin;
  }
  const QRect place(left, 1, width() - left - kGripSize - kMargin, height() - 1);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                   fontMetrics().elidedText(text_, Qt::ElideRight, place.width()));
  painter.setPen(palette().color(QPalette::Dark));
  const QPoint corner = Grip().bottomRight();
  for (int step = 2; step < kGripSize; step += 4) {
    painter.drawLine(corner - QPoint(step, 0), corner - QPoint(0, step));
  }
}

void TipLine::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !Grip().contains(event->position().toPoint())) return;
  dragStart_ = event->globalPosition().toPoint();
  if (gripped) gripped();
}

void TipLine::mouseMoveEvent(QMouseEvent* event) {
  if (dragStart_) {
    if (gripMoved) gripMoved(event->globalPosition().toPoint() - *dragStart_);
    return;
  }
  setCursor(Grip().contains(event->position().toPoint()) ? Qt::SizeFDiagCursor : Qt::ArrowCursor);
}

void TipLine::mouseReleaseEvent(QMouseEvent*) {
  dragStart_.reset();
}

}  // namespace kestri
