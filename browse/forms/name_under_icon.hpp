// Paints a row as a large icon with its name and a fainter second line under it.
#pragma once

#include <QStyledItemDelegate>

namespace kestri {

class NameUnderIcon : public QStyledItemDelegate {
 public:
  static constexpr int kSecondLine = Qt::UserRole;  // of the row's first cell
  static constexpr int kIconSize = 48;              // logical pixels

  using QStyledItemDelegate::QStyledItemDelegate;

  static QSize CellSize(const QFontMetrics& metrics);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace kestri
