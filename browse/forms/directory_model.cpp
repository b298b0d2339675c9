#include "browse/forms/directory_model.hpp"

#include "browse/shown_name.hpp"
#include "platform/qt/qt_text.hpp"
#include "ui/plain_tip.hpp"

namespace kestri {
namespace {

constexpr QRgb kHidden = qRgb(150, 150, 150);
constexpr QRgb kReadOnly = qRgb(0, 150, 0);
constexpr QRgb kReadOnlyOnDark = qRgb(110, 205, 110);

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < 128;
}

}  // namespace

QColor FolderColor(NodeColor color, const QPalette& palette) {
  switch (color) {
    case NodeColor::Hidden:
      return QColor(kHidden);
    case NodeColor::ReadOnly:
      return QColor(IsDark(palette) ? kReadOnlyOnDark : kReadOnly);
    case NodeColor::Default:
      break;
  }
  return palette.color(QPalette::Text);
}

DirectoryModel::DirectoryModel(DirectoryTree& tree, SharedIcons& icons, QObject* parent)
    : QAbstractItemModel(parent), tree_(tree), icons_(icons) {}

const DirectoryNode* DirectoryModel::NodeAt(const QModelIndex& index) const {
  return index.isValid() ? static_cast<const DirectoryNode*>(index.constInternalPointer()) : nullptr;
}

QModelIndex DirectoryModel::IndexOf(const DirectoryNode* node) const {
  return node == nullptr ? QModelIndex() : createIndex(static_cast<int>(node->Row()), 0, node);
}

const std::vector<std::unique_ptr<DirectoryNode>>& DirectoryModel::Below(const QModelIndex& parent) const {
  const DirectoryNode* node = NodeAt(parent);
  return node == nullptr ? tree_.Drives() : node->Folders();
}

QModelIndex DirectoryModel::index(int row, int column, const QModelIndex& parent) const {
  const auto& nodes = Below(parent);
  const bool exists = row >= 0 && static_cast<std::size_t>(row) < nodes.size() && column == 0;
  return exists ? createIndex(row, 0, nodes[static_cast<std::size_t>(row)].get()) : QModelIndex();
}

QModelIndex DirectoryModel::parent(const QModelIndex& child) const {
  const DirectoryNode* node = NodeAt(child);
  return node == nullptr ? QModelIndex() : IndexOf(node->Parent());
}

int DirectoryModel::rowCount(const QModelIndex& parent) const {
  return static_cast<int>(Below(parent).size());
}

// The placeholder never gets a row: the branch is read before it opens.
bool DirectoryModel::hasChildren(const QModelIndex& parent) const {
  const DirectoryNode* node = NodeAt(parent);
  return node == nullptr || node->HasChildren();
}

QVariant DirectoryModel::data(const QModelIndex& index, int role) const {
  const DirectoryNode* node = NodeAt(index);
  if (node == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(ShownName(node->Text()));
    case Qt::EditRole:
      return ToQt(node->Text());
    case Qt::ToolTipRole:
      return PlainTip(ToQt(ShownName(tree_.Key(*node))));
    case Qt::DecorationRole: {
      using Picture = DirectoryTree::Picture;
      const Picture picture = node == tree_.Selected() ? Picture::Open : Picture::Normal;
      return icons_.Named(DirectoryTree::IconOf(*node, picture));
    }
    case Qt::ForegroundRole:
      return node->Color() == NodeColor::Default ? QVariant()
                                                 : QVariant(FolderColor(node->Color(), palette_));
    default:
      return {};
  }
}

bool DirectoryModel::setData(const QModelIndex&, const QVariant& value, int role) {
  if (role == Qt::EditRole && LabelEdited) LabelEdited(value.toString());
  return false;
}

Qt::ItemFlags DirectoryModel::flags(const QModelIndex& index) const {
  const DirectoryNode* node = NodeAt(index);
  if (node == nullptr) return Qt::NoItemFlags;
  const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return node == tree_.Selected() ? flags | Qt::ItemIsEditable : flags;
}

void DirectoryModel::NodesComing(const DirectoryNode* parent, std::size_t first, std::size_t count) {
  beginInsertRows(IndexOf(parent), static_cast<int>(first), static_cast<int>(first + count) - 1);
}

void DirectoryModel::NodesGoing(const DirectoryNode* parent) {
  if (parent == nullptr) return beginResetModel();
  beginRemoveRows(IndexOf(parent), 0, static_cast<int>(parent->Folders().size()) - 1);
}

void DirectoryModel::NodesGone(const DirectoryNode* parent) {
  if (parent == nullptr) return endResetModel();
  endRemoveRows();
}

void DirectoryModel::NodeChanged(const DirectoryNode* node) {
  const QModelIndex index = IndexOf(node);
  if (index.isValid()) Q_EMIT dataChanged(index, index);
}

}  // namespace kestri
