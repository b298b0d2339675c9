#include "browse/forms/WinShowFrm.hpp"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr int kWidestColumn = 260;  // logical pixels, as all here
constexpr int kColumnGap = 12;
constexpr QSize kStartSize(640, 280);

}  // namespace

WinShowFrm::WinShowFrm(const WindowList& windows, const QIcon& fileIcon, QWidget* owner)
    : QDialog(owner), windows_(windows), winList_(new QTreeWidget), setFocus_(new HotButton) {
  setWindowTitle(QStringLiteral("ｳｨﾝﾄﾞｳの呼び出し"));
  setFocus_->setText(QStringLiteral("&SetFocus"));
  setFocus_->setDefault(true);
  auto* buttons = new QDialogButtonBox;
  buttons->addButton(setFocus_, QDialogButtonBox::AcceptRole);
  buttons->addButton(new HotButton(QStringLiteral("&CANCEL")), QDialogButtonBox::RejectRole);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(winList_);
  layout->addWidget(buttons);
  connect(setFocus_, &HotButton::clicked, this, [this] { SwitchToSelected(); });
  connect(winList_, &QTreeWidget::itemDoubleClicked, this, [this] { SwitchToSelected(); });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  FillList(fileIcon);
  resize(kStartSize);
}

void WinShowFrm::FillList(const QIcon& fileIcon) {
  winList_->setAccessibleName(windowTitle());
  winList_->setHeaderLabels({QStringLiteral("ﾌｧｲﾙ"), QStringLiteral("ﾊﾟｽ"), QStringLiteral("ﾀｲﾄﾙ")});
  winList_->setRootIsDecorated(false);
  winList_->setUniformRowHeights(true);
  winList_->setAllColumnsShowFocus(true);
  winList_->setTextElideMode(Qt::ElideMiddle);
  rows_ = windows_.Rows();
  for (const WindowList::Row& row : rows_) {
    auto* item = new QTreeWidgetItem(winList_, {ToQt(row.text), ToQt(row.path), ToQt(row.title)});
    item->setIcon(0, fileIcon);
    for (int column = 0; column < 3; ++column) item->setToolTip(column, item->text(column));
  }
  for (int column = 0; column < 2; ++column) {
    winList_->resizeColumnToContents(column);
    winList_->setColumnWidth(column, std::min(winList_->columnWidth(column) + kColumnGap, kWidestColumn));
  }
  SelectFirstOther();
  winList_->setFocus();
}

void WinShowFrm::SelectFirstOther() {
  const auto other = std::find_if(rows_.begin(), rows_.end(), [](const auto& row) { return !row.own; });
  const auto index = other == rows_.end() ? 0 : other - rows_.begin();
  winList_->setCurrentItem(winList_->topLevelItem(static_cast<int>(index)));
}

void WinShowFrm::SwitchToSelected() {
  const int index = winList_->indexOfTopLevelItem(winList_->currentItem());
  if (index >= 0) switched_ = windows_.SetFocus(rows_[static_cast<std::size_t>(index)]);
  accept();
}

void WinShowFrm::done(int result) {
  QDialog::done(result);
  if (switched_ || parentWidget() == nullptr) return;
  parentWidget()->raise();
  parentWidget()->activateWindow();
}

}  // namespace kestri
