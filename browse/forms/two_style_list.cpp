#include "browse/forms/two_style_list.hpp"

#include <QHeaderView>
#include <algorithm>

#include "browse/forms/name_under_icon.hpp"

namespace kestri {
namespace {

constexpr int kSmallIcon = 20;  // logical pixels, as all here
constexpr int kWidestColumn = 300;
constexpr int kColumnGap = 16;

}  // namespace

TwoStyleList::TwoStyleList(const QStringList& columns, QWidget* parent)
    : QStackedWidget(parent),
      model_(new QStandardItemModel(0, static_cast<int>(columns.size()), this)),
      report_(new QTreeView),
      icons_(new QListView) {
  model_->setHorizontalHeaderLabels(columns);
  MakeReport();
  MakeIcons();
  icons_->setSelectionModel(report_->selectionModel());
  for (QAbstractItemView* view :
       {static_cast<QAbstractItemView*>(report_), static_cast<QAbstractItemView*>(icons_)}) {
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(view, &QAbstractItemView::doubleClicked, this, &TwoStyleList::RowChosen);
  }
  SetStyle(Style::LargeIcons);
}

void TwoStyleList::MakeReport() {
  report_->setModel(model_);
  report_->setRootIsDecorated(false);
  report_->setUniformRowHeights(true);
  report_->setAllColumnsShowFocus(true);
  report_->setTextElideMode(Qt::ElideMiddle);
  report_->setIconSize(QSize(kSmallIcon, kSmallIcon));
  report_->setSelectionBehavior(QAbstractItemView::SelectRows);
  addWidget(report_);
}

void TwoStyleList::MakeIcons() {
  icons_->setModel(model_);
  icons_->setItemDelegate(new NameUnderIcon(icons_));
  icons_->setViewMode(QListView::IconMode);
  icons_->setMovement(QListView::Static);
  icons_->setResizeMode(QListView::Adjust);
  icons_->setGridSize(NameUnderIcon::CellSize(icons_->fontMetrics()));
  addWidget(icons_);
}

void TwoStyleList::AddRow(const QIcon& icon, const QStringList& cells, const QString& secondLine,
                          const QString& tip) {
  QList<QStandardItem*> items;
  for (const QString& cell : cells) {
    auto* item = new QStandardItem(cell);
    item->setToolTip(tip);
    items.append(item);
  }
  items.constFirst()->setIcon(icon);
  items.constFirst()->setData(secondLine, NameUnderIcon::kSecondLine);
  model_->appendRow(items);
}

void TwoStyleList::FinishFilling() {
  for (int column = 0; column + 1 < model_->columnCount(); ++column) {
    report_->resizeColumnToContents(column);
    report_->setColumnWidth(column, std::min(report_->columnWidth(column) + kColumnGap, kWidestColumn));
  }
  report_->setCurrentIndex(model_->index(0, 0));
}

void TwoStyleList::SetStyle(Style style) {
  QAbstractItemView* view = icons_;
  if (style == Style::Report) view = report_;
  setCurrentWidget(view);
  setFocusProxy(view);
  view->scrollTo(view->currentIndex());
}

TwoStyleList::Style TwoStyleList::CurrentStyle() const {
  return currentWidget() == report_ ? Style::Report : Style::LargeIcons;
}

std::optional<std::size_t> TwoStyleList::SelectedRow() const {
  const QModelIndexList rows = report_->selectionModel()->selectedIndexes();
  if (rows.isEmpty()) return std::nullopt;
  return static_cast<std::size_t>(rows.constFirst().row());
}

QAbstractItemView& TwoStyleList::ShownView() const {
  return *static_cast<QAbstractItemView*>(currentWidget());
}

}  // namespace kestri
