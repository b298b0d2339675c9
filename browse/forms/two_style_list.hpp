// A list of rows that shows either as a report with columns or as large icons with the rows' names.
#pragma once

#include <QListView>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTreeView>
#include <optional>

namespace kestri {

class TwoStyleList : public QStackedWidget {
  Q_OBJECT

 public:
  explicit TwoStyleList(const QStringList& columns, QWidget* parent = nullptr);

  // One cell per column. The second line stands under the name of a large icon; the tip shows in both styles.
  void AddRow(const QIcon& icon, const QStringList& cells, const QString& secondLine, const QString& tip);
  // After the rows are in: columns as wide as they need, the first row selected.
  void FinishFilling();

  enum class Style { LargeIcons, Report };
  void SetStyle(Style style);
  Style CurrentStyle() const;
  std::optional<std::size_t> SelectedRow() const;
  QAbstractItemView& ShownView() const;
  const QStandardItemModel& Model() const { return *model_; }

 Q_SIGNALS:
  void RowChosen();  // by a double click; Return is the dialog's

 private:
  void MakeReport();
  void MakeIcons();

  QStandardItemModel* model_;
  QTreeView* report_;
  QListView* icons_;
};

}  // namespace kestri
