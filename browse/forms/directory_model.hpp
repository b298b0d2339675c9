// The nodes of a DirectoryTree for the toolkit's tree view.
#pragma once

#include <QAbstractItemModel>
#include <QColor>
#include <QPalette>
#include <functional>

#include "browse/directory_tree.hpp"
#include "browse/forms/shared_icons.hpp"

namespace kestri {

// Colours of folders. Hidden ones are 150, 150, 150 and read-only ones 0, 150, 0; on a dark ground the green
// is lightened so that it can be read.
QColor FolderColor(NodeColor color, const QPalette& palette);

class DirectoryModel : public QAbstractItemModel {
  Q_OBJECT

 public:
  DirectoryModel(DirectoryTree& tree, SharedIcons& icons, QObject* parent);

  // Takes the new name of a label edit, outside of the editor's own event.
  std::function<void(QString)> LabelEdited;
  void SetPalette(const QPalette& palette) { palette_ = palette; }

  const DirectoryNode* NodeAt(const QModelIndex& index) const;
  QModelIndex IndexOf(const DirectoryNode* node) const;

  QModelIndex index(int row, int column, const QModelIndex& parent) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex&) const override { return 1; }
  bool hasChildren(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

  void NodesComing(const DirectoryNode* parent, std::size_t first, std::size_t count);
  void NodesCame() { endInsertRows(); }
  void NodesGoing(const DirectoryNode* parent);
  void NodesGone(const DirectoryNode* parent);
  void NodeChanged(const DirectoryNode* node);

 private:
  const std::vector<std::unique_ptr<DirectoryNode>>& Below(const QModelIndex& parent) const;

  DirectoryTree& tree_;
  SharedIcons& icons_;
  QPalette palette_;
};

}  // namespace kestri
