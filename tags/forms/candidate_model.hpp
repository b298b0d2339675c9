// The candidates' rows for the list view: no copy, mode by one number.
#pragma once

#include <QAbstractListModel>
#include <QColor>
#include <QPalette>

#include "tags/candidate_list.hpp"

namespace kestri {

class CandidateModel : public QAbstractListModel {
  Q_OBJECT
 public:
  using QAbstractListModel::QAbstractListModel;

  void SetRows(const std::vector<CandidateRow>& rows);  // they stay with the caller
  void SetMode(std::int32_t mode);
  const CandidateRow& Row(int row) const { return (*rows_)[static_cast<std::size_t>(row)]; }
  bool Ghosted(int row) const { return Row(row).tag != mode_; }
  QString Mark(int row) const;  // "*" for rows of the mode, empty for others

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const std::vector<CandidateRow>* rows_ = nullptr;
  std::int32_t mode_ = 0;
};

// A row's colour as it can be read on the palette's base; light bases take it as it is.
QColor ReadableOn(const QPalette& palette, std::int32_t rgb);
QColor GhostedOn(const QPalette& palette);

}  // namespace kestri
