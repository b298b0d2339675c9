#include "browse/forms/name_under_icon.hpp"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace kestri {
namespace {

constexpr int kMargin = 6;  // logical pixels
constexpr int kNameLines = 2;
constexpr int kCellColumns = 21;  // average characters side by side
constexpr double kFaint = 0.65;

// The name in at most two lines; what does not fit is left out in the middle of the last one.
QStringList NameLines(const QString& name, const QFont& font, int width) {
  QTextLayout layout(name, font);
  QTextOption wrapping(Qt::AlignHCenter);
  wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(wrapping);
  layout.beginLayout();
  QTextLine first = layout.createLine();
  if (first.isValid()) first.setLineWidth(width);
  layout.endLayout();
  const int length = first.isValid() ? first.textLength() : 0;
  if (length >= name.size()) return {name};
  return {name.left(length), QFontMetrics(font).elidedText(name.mid(length), Qt::ElideMiddle, width)};
}

QPalette::ColorGroup GroupOf(const QStyleOptionViewItem& option) {
  if (!option.state.testFlag(QStyle::State_Enabled)) return QPalette::Disabled;
  return option.state.testFlag(QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive;
}

}  // namespace

QSize NameUnderIcon::CellSize(const QFontMetrics& metrics) {
  return {metrics.averageCharWidth() * kCellColumns,
          kIconSize + metrics.lineSpacing() * (kNameLines + 1) + 3 * kMargin};
}

QSize NameUnderIcon::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return CellSize(option.fontMetrics);
}

void NameUnderIcon::paint(QPainter* painter, const QStyleOptionViewItem& given,
                          const QModelIndex& index) const {
  QStyleOptionViewItem option = given;
  initStyleOption(&option, index);
  option.showDecorationSelected = true;  // the whole cell
  option.rect.adjust(2, 2, -2, -2);
  const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
  painter->save();
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
  QRect place = option.rect.adjusted(kMargin / 2, kMargin, -kMargin / 2, 0);
  option.icon.paint(painter, place.left() + (place.width() - kIconSize) / 2, place.top(), kIconSize,
                    kIconSize);
  place.setTop(place.top() + kIconSize + kMargin);

  const bool selected = option.state.testFlag(QStyle::State_Selected);
  painter->setPen(
      option.palette.color(GroupOf(option), selected ? QPalette::HighlightedText : QPalette::Text));
  painter->setFont(option.font);
  const auto drawLine = [&](const QString& line) {
    painter->drawText(place, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine, line);
    place.setTop(place.top() + option.fontMetrics.lineSpacing());
  };
  for (const QString& line : NameLines(option.text, option.font, place.width())) drawLine(line);
  if (!selected) painter->setOpacity(kFaint);
  drawLine(option.fontMetrics.elidedText(index.data(kSecondLine).toString(), Qt::ElideMiddle, place.width()));
  painter->restore();
}

}  // namespace kestri
