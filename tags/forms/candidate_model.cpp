#include "tags/forms/candidate_model.hpp"

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

QColor FromRgb(std::int32_t rgb) {
  return QColor(rgb & 0xFF, rgb >> 8 & 0xFF, rgb >> 16 & 0xFF);
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128;
}

}  // namespace

void CandidateModel::SetRows(const std::vector<CandidateRow>& rows) {
  beginResetModel();
  rows_ = &rows;
  endResetModel();
}

void CandidateModel::SetMode(std::int32_t mode) {
  mode_ = mode;
  const int rows = rowCount();
  if (rows > 0) Q_EMIT dataChanged(index(0), index(rows - 1), {Qt::ForegroundRole, Qt::AccessibleTextRole});
}

int CandidateModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || rows_ == nullptr ? 0 : static_cast<int>(rows_->size());
}

QString CandidateModel::Mark(int row) const {
  return Ghosted(row) ? QString() : QStringLiteral("*");
}

QVariant CandidateModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(Row(index.row()).text);
    case Qt::AccessibleTextRole:
      return QString(ToQt(Row(index.row()).text) + u' ' + Mark(index.row())).trimmed();
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
      return ToQt(Row(index.row()).toolTipText);
    default:
      return {};
  }
}

QColor ReadableOn(const QPalette& palette, std::int32_t rgb) {
  const QColor color = FromRgb(rgb);
  if (!IsDark(palette)) return color;
  return QColor::fromHslF(color.hslHueF() < 0 ? 0 : color.hslHueF(), color.hslSaturationF(),
                          0.95f - 0.4f * color.lightnessF());
}

QColor GhostedOn(const QPalette& palette) {
  return IsDark(palette) ? QColor(100, 100, 100) : FromRgb(kGhostedColor);
}

}  // namespace kestri
