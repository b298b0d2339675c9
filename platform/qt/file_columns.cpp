#include "platform/qt/file_columns.hpp"

#include <QDateTime>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLocale>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace kestri {
namespace {

enum Column { kName = 0, kSize = 1, kDate = 3 };

class JapaneseFigures : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const auto* files = qobject_cast<const QFileSystemModel*>(index.model());
    if (files == nullptr) return;
    if (index.column() == kSize && !files->isDir(index)) option->text = SizeText(files->size(index));
    if (index.column() == kDate) option->text = DateText(files->lastModified(index));
  }

 private:
  static QString SizeText(qint64 bytes) {
    constexpr qint64 kKilo = 1000;
    const QLocale japanese(QLocale::Japanese);
    if (bytes < kKilo) return japanese.toString(bytes) + QStringLiteral(" バイト");
    return japanese.formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
  }
  static QString DateText(const QDateTime& date) {
    return date.isValid() ? date.toString(QStringLiteral("yyyy/MM/dd HH:mm")) : QString();
  }
};

}  // namespace

QString FileTypes::type(const QFileInfo& info) const {
  return info.isDir() ? QStringLiteral("フォルダ") : QFileIconProvider::type(info);
}

void DressColumns(QFileDialog& dialog) {
  auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (list == nullptr) return;
  list->header()->setStretchLastSection(false);
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list->header()->setSectionResizeMode(kName, QHeaderView::Stretch);
  for (const Column column : {kSize, kDate}) {
    list->setItemDelegateForColumn(column, new JapaneseFigures(list));
  }
}

}  // namespace kestri
