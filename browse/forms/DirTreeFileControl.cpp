#include "browse/forms/DirTreeFileControl.hpp"

#include <QColor>
#include <QContextMenuEvent>
#include <QMouseEvent>

#include "browse/shown_name.hpp"
#include "platform/qt/qt_text.hpp"
#include "ui/plain_tip.hpp"

namespace kestri {
namespace {

constexpr qsizetype kLongestExtension = 5;
constexpr QRgb kHidden = qRgb(150, 150, 150);  // as the tree shows hidden folders

QString ExtensionOf(const QString& name) {
  const qsizetype dot = name.lastIndexOf(u'.');
  const QString extension = dot > 0 ? name.mid(dot + 1).toLower() : QString();
  return extension.size() <= kLongestExtension ? extension : QString();
}

}  // namespace

int FileNameModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : shown_;
}

QVariant FileNameModel::data(const QModelIndex& index, int role) const {
  const auto& names = files_.Names();
  const auto row = static_cast<std::size_t>(index.row());
  if (!index.isValid() || row >= names.size()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(ShownName(names[row]));
    case Qt::ToolTipRole:
      return PlainTip(ToQt(ShownName(names[row])));
    case Qt::DecorationRole:
      return icons_.PageFor(ExtensionOf(ToQt(ShownName(names[row]))));
    case Qt::ForegroundRole:
      return names[row].starts_with(u'.') ? QVariant(QColor(kHidden)) : QVariant();
    default:
      return {};
  }
}

void FileNameModel::Changed() {
  beginResetModel();
  shown_ = static_cast<int>(files_.Names().size());
  endResetModel();
}

DirTreeFileControl::DirTreeFileControl(DirTreeFile& files, SharedIcons& icons, QWidget* parent)
    : QListView(parent), files_(files), model_(new FileNameModel(files, icons, this)) {
  setModel(model_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setMouseTracking(true);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setIconSize({16, 16});
  files_.ListChanged = [this] { ShowList(); };
}

DirTreeFileControl::~DirTreeFileControl() {
  files_.ListChanged = nullptr;
}

void DirTreeFileControl::ShowList() {
  const auto selected = files_.ListIndex();
  model_->Changed();
  if (selected) setCurrentIndex(model_->index(static_cast<int>(*selected)));
}

void DirTreeFileControl::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QListView::currentChanged(current, previous);
  files_.SetListIndex(current.isValid() ? std::optional(static_cast<std::size_t>(current.row()))
                                        : std::nullopt);
}

void DirTreeFileControl::SelectUnder(const QPoint& place) {
  const QModelIndex under = indexAt(place);
  if (under.isValid()) setCurrentIndex(under);
}

void DirTreeFileControl::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  SelectUnder(event->position().toPoint());
  if (event->button() == Qt::LeftButton) Q_EMIT MouseUp(event->modifiers());
}

void DirTreeFileControl::mouseMoveEvent(QMouseEvent* event) {
  QListView::mouseMoveEvent(event);
  Q_EMIT MouseMove(indexAt(event->position().toPoint()).row());
}

void DirTreeFileControl::mouseDoubleClickEvent(QMouseEvent* event) {
  QListView::mouseDoubleClickEvent(event);
  const bool onFile = indexAt(event->position().toPoint()).isValid();
  if (event->button() == Qt::LeftButton && onFile) Q_EMIT DblClick();
}

void DirTreeFileControl::contextMenuEvent(QContextMenuEvent* event) {
  const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
  if (byMouse) SelectUnder(event->pos());
  const QPoint below = visualRect(currentIndex()).bottomLeft();
  Q_EMIT MenuAsked(byMouse ? event->globalPos() : viewport()->mapToGlobal(below));
}

}  // namespace kestri
