#include "tags/forms/candidate_delegate.hpp"

#include <QFontMetrics>
#include <QPainter>

#include "platform/qt/qt_text.hpp"
#include "tags/forms/candidate_icons.hpp"

namespace kestri {
namespace {

constexpr int kMargin = 4;  // logical pixels, around icon and text
constexpr double kGhostedOpacity = 0.35;

int MarkWidth(const QFontMetrics& metrics) {
  return metrics.horizontalAdvance(QChar(u'*'));
}

}  // namespace

CandidateDelegate::CandidateDelegate(const CandidateModel& model, QObject* parent)
    : QStyledItemDelegate(parent), model_(model) {}

int CandidateDelegate::RowHeight(const QFont& font) {
  return std::max(QFontMetrics(font).height(), kCandidateIconSize) + kMargin;
}

QSize CandidateDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {1, RowHeight(option.font)};
}

void CandidateDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  const CandidateRow& row = model_.Row(index.row());
  const bool ghosted = model_.Ghosted(index.row());
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  painter->save();
  if (selected) painter->fillRect(option.rect, option.palette.brush(QPalette::Active, QPalette::Highlight));

  const int top = option.rect.center().y() + 1 - kCandidateIconSize / 2;
  const QRectF icon(option.rect.left() + kMargin, top, kCandidateIconSize, kCandidateIconSize);
  painter->setOpacity(ghosted ? kGhostedOpacity : 1);
  PaintCandidateIcon(*painter, icon, row.icon);
  painter->setOpacity(1);

  QColor color = ghosted ? GhostedOn(option.palette) : ReadableOn(option.palette, row.color);
  if (selected) color = option.palette.color(QPalette::Active, QPalette::HighlightedText);
  painter->setPen(color);
  painter->setFont(option.font);
  QRect place = option.rect.adjusted(kCandidateIconSize + 2 * kMargin + 2, 0, -kMargin, 0);
  painter->drawText(place, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, model_.Mark(index.row()));
  place.setRight(place.right() - MarkWidth(option.fontMetrics) - kMargin);
  const QString text = option.fontMetrics.elidedText(ToQt(row.text), Qt::ElideRight, place.width());
  painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
  painter->restore();
}

}  // namespace kestri
