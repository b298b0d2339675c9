#include "browse/forms/DirectoryTreeControl.hpp"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr int kMeasuredRows = 100;        // beyond the visible ones, for the width of the column
constexpr int kSmallestIndentation = 14;  // logical pixels; the branch arrow needs them

}  // namespace

class DirectoryTreeControl::Following {
 public:
  explicit Following(DirectoryTreeControl& control) : control_(control) { ++control_.following_; }
  ~Following() { --control_.following_; }
  Following(const Following&) = delete;
  Following& operator=(const Following&) = delete;

 private:
  DirectoryTreeControl& control_;
};

DirectoryTreeControl::DirectoryTreeControl(DirectoryTree& tree, const ClassCommon& common, SharedIcons& icons,
                                           QWidget* parent)
    : QTreeView(parent), tree_(tree), common_(common), model_(new DirectoryModel(tree, icons, this)) {
  setModel(model_);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTextElideMode(Qt::ElideNone);
  setHorizontalScrollMode(ScrollPerPixel);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  header()->setResizeContentsPrecision(kMeasuredRows);
  model_->SetPalette(palette());
  ApplyIndentation();
  // Outside of the editor's event: the edited node itself may go.
  model_->LabelEdited = [this](const QString& text) {
    QMetaObject::invokeMethod(
        this, [this, text] { tree_.AfterLabelEdit(FromQt(text)); }, Qt::QueuedConnection);
  };
  connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) {
    if (following_ == 0) tree_.Expand(*model_->NodeAt(index));
  });
  connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
    if (following_ == 0) tree_.Collapse(*model_->NodeAt(index));
  });
  connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) {
    tree_.NodeClick(*model_->NodeAt(index));
    Q_EMIT Click();
  });
  tree_.SetScreen(this);
}

DirectoryTreeControl::~DirectoryTreeControl() {
  ++following_;
  tree_.SetScreen(nullptr);
}

void DirectoryTreeControl::SetFontSize(int points) {
  fontSize_ = qMax(1, points);
  QFont sized = font();
  sized.setPointSize(fontSize_);
  setFont(sized);
  Q_EMIT PropertyChanged(QStringLiteral("FontSize"));
}

void DirectoryTreeControl::SetIndentation(int twips) {
  indentation_ = qMax(1, twips);
  ApplyIndentation();
  Q_EMIT PropertyChanged(QStringLiteral("Indentation"));
}

void DirectoryTreeControl::ApplyIndentation() {
  setIndentation(qMax(kSmallestIndentation, common_.ConvPixelX(indentation_)));
}

void DirectoryTreeControl::SetXPStyle(bool on) {
  xpStyle_ = on;
  viewport()->update();
  Q_EMIT PropertyChanged(QStringLiteral("XPStyle"));
}

void DirectoryTreeControl::SetEnabled(bool enabled) {
  setEnabled(enabled);
  Q_EMIT PropertyChanged(QStringLiteral("Enabled"));
}

void DirectoryTreeControl::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  if (following_ == 0 && current.isValid()) tree_.NodeClick(*model_->NodeAt(current));
}

void DirectoryTreeControl::keyPressEvent(QKeyEvent* event) {
  Q_EMIT KeyDown(event->key(), event->modifiers());
  if (!event->text().isEmpty()) Q_EMIT KeyPress(event->text());
  QTreeView::keyPressEvent(event);
}

void DirectoryTreeControl::ToggleExpanded() {
  setExpanded(currentIndex(), !isExpanded(currentIndex()));
}

void DirectoryTreeControl::keyReleaseEvent(QKeyEvent* event) {
  Q_EMIT KeyUp(event->key(), event->modifiers());
  QTreeView::keyReleaseEvent(event);
}

void DirectoryTreeControl::mousePressEvent(QMouseEvent* event) {
  Q_EMIT MouseDown(event->button(), event->modifiers(), event->position());
  QTreeView::mousePressEvent(event);
}

void DirectoryTreeControl::mouseMoveEvent(QMouseEvent* event) {
  Q_EMIT MouseMove(event->buttons(), event->modifiers(), event->position());
  QTreeView::mouseMoveEvent(event);
}

void DirectoryTreeControl::mouseReleaseEvent(QMouseEvent* event) {
  QTreeView::mouseReleaseEvent(event);
  Q_EMIT MouseUp(event->button(), event->modifiers(), event->position());
}

void DirectoryTreeControl::mouseDoubleClickEvent(QMouseEvent* event) {
  QTreeView::mouseDoubleClickEvent(event);
  Q_EMIT DblClick();
}

void DirectoryTreeControl::contextMenuEvent(QContextMenuEvent* event) {
  const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
  const QModelIndex under = byMouse ? indexAt(event->pos()) : currentIndex();
  if (under.isValid()) {
    setCurrentIndex(under);
    tree_.NodeClick(*model_->NodeAt(under));
  }
  const QPoint below = visualRect(currentIndex()).bottomLeft();
  Q_EMIT MenuAsked(byMouse ? event->globalPos() : viewport()->mapToGlobal(below));
}

void DirectoryTreeControl::changeEvent(QEvent* event) {
  QTreeView::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) model_->SetPalette(palette());
}

// The selected row reaches from edge to edge, and further for a long name.
void DirectoryTreeControl::resizeEvent(QResizeEvent* event) {
  header()->setMinimumSectionSize(viewport()->width());
  QTreeView::resizeEvent(event);
}

void DirectoryTreeControl::NodesComing(const DirectoryNode* parent, std::size_t first, std::size_t count) {
  ++following_;
  model_->NodesComing(parent, first, count);
}

void DirectoryTreeControl::NodesCame(const DirectoryNode*) {
  model_->NodesCame();
  --following_;
}

void DirectoryTreeControl::NodesGoing(const DirectoryNode* parent) {
  ++following_;
  model_->NodesGoing(parent);
}

void DirectoryTreeControl::NodesGone(const DirectoryNode* parent) {
  model_->NodesGone(parent);
  --following_;
}

void DirectoryTreeControl::NodeChanged(const DirectoryNode& node) {
  const Following following(*this);
  model_->NodeChanged(&node);
  setExpanded(model_->IndexOf(&node), node.Expanded());
  scheduleDelayedItemsLayout();
}

void DirectoryTreeControl::NodeSelected(const DirectoryNode* node) {
  const Following following(*this);
  const DirectoryNode* before = model_->NodeAt(currentIndex());
  if (before != node) setCurrentIndex(model_->IndexOf(node));
  model_->NodeChanged(before);
  model_->NodeChanged(node);
}

void DirectoryTreeControl::EnsureVisible(const DirectoryNode& node) {
  const Following following(*this);
  scrollTo(model_->IndexOf(&node));
}

void DirectoryTreeControl::ScrollLeft() {
  horizontalScrollBar()->setValue(0);
}

// Without painting in between; a control that is really hidden would lose the keyboard.
void DirectoryTreeControl::SetTreeVisible(bool visible) {
  setUpdatesEnabled(visible);
}

void DirectoryTreeControl::EditLabel(const DirectoryNode& node) {
  if (!tree_.BeforeLabelEdit()) return;
  const QModelIndex index = model_->IndexOf(&node);
  scrollTo(index);
  edit(index);
}

void DirectoryTreeControl::RefreshTree() {
  viewport()->repaint();
}

void DirectoryTreeControl::drawBranches(QPainter* painter, const QRect& rect,
                                        const QModelIndex& index) const {
  if (!xpStyle_) DrawLines(*painter, rect, index);
  QTreeView::drawBranches(painter, rect, index);
}

void DirectoryTreeControl::DrawLines(QPainter& painter, const QRect& rect, const QModelIndex& index) const {
  QColor color = palette().color(QPalette::Text);
  color.setAlphaF(0.25f);
  painter.setPen(QPen(color, 1, Qt::DotLine));
  const int middle = rect.center().y();
  int x = rect.right() + 1 - indentation() / 2;
  const auto hasNext = [](const QModelIndex& node) { return node.siblingAtRow(node.row() + 1).isValid(); };
  painter.drawLine(x, rect.top(), x, hasNext(index) ? rect.bottom() : middle);
  if (!index.model()->hasChildren(index)) painter.drawLine(x, middle, rect.right(), middle);
  for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
    x -= indentation();
    if (hasNext(above)) painter.drawLine(x, rect.top(), x, rect.bottom());
  }
}

}  // namespace kestri
