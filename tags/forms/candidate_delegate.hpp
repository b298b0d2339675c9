// One row of the candidate list: icon, text in the row's colour and the mark of the mode; ghosted for other
// modes.
#pragma once

#include <QStyledItemDelegate>

#include "tags/forms/candidate_model.hpp"

namespace kestri {

class CandidateDelegate : public QStyledItemDelegate {
  Q_OBJECT
 public:
  CandidateDelegate(const CandidateModel& model, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  static int RowHeight(const QFont& font);  // logical pixels

 private:
  const CandidateModel& model_;
};

}  // namespace kestri
