// DirectoryTree as a control: drives and folders with their pictures, names edited in place.
//
// The tree and the icons are the owner's and outlive the control.
#pragma once

#include <QTreeView>

#include "browse/directory_tree.hpp"
#include "browse/forms/directory_model.hpp"
#include "browse/forms/shared_icons.hpp"

namespace kestri {

class DirectoryTreeControl : public QTreeView, private DirectoryTreeScreen {
  Q_OBJECT
  Q_PROPERTY(int FontSize READ FontSize WRITE SetFontSize)
  Q_PROPERTY(int Indentation READ Indentation WRITE SetIndentation)
  Q_PROPERTY(bool XPStyle READ XPStyle WRITE SetXPStyle)

 public:
  DirectoryTreeControl(DirectoryTree& tree, const ClassCommon& common, SharedIcons& icons,
                       QWidget* parent = nullptr);
  ~DirectoryTreeControl() override;

  // The desktop's own size stands until one is set.
  int FontSize() const { return fontSize_; }  // points
  void SetFontSize(int points);
  int Indentation() const { return indentation_; }  // twips
  void SetIndentation(int twips);
  bool XPStyle() const { return xpStyle_; }  // without lines between the nodes
  void SetXPStyle(bool on);
  bool Enabled() const { return isEnabled(); }
  void SetEnabled(bool enabled);

  bool EditsLabel() const { return state() == EditingState; }
  void ToggleExpanded();  // the current node
  const DirectoryModel& Model() const { return *model_; }

 Q_SIGNALS:
  void PropertyChanged(const QString& name);
  void Click();
  void DblClick();
  void KeyDown(int key, Qt::KeyboardModifiers shift);
  void KeyPress(const QString& text);
  void KeyUp(int key, Qt::KeyboardModifiers shift);
  void MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift, QPointF at);
  void MouseMove(Qt::MouseButtons buttons, Qt::KeyboardModifiers shift, QPointF at);
  void MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers shift, QPointF at);
  // At a place of the screen, by mouse or key. The node under the mouse is selected before.
  void MenuAsked(QPoint globalPlace);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;

 private:
  // The tree itself changes: what the view tells meanwhile is no deed of the user.
  class Following;
  void NodesComing(const DirectoryNode* parent, std::size_t first, std::size_t count) override;
  void NodesCame(const DirectoryNode* parent) override;
  void NodesGoing(const DirectoryNode* parent) override;
  void NodesGone(const DirectoryNode* parent) override;
  void NodeChanged(const DirectoryNode& node) override;
  void NodeSelected(const DirectoryNode* node) override;
  void EnsureVisible(const DirectoryNode& node) override;
  void ScrollLeft() override;
  void SetTreeVisible(bool visible) override;
  void EditLabel(const DirectoryNode& node) override;
  void RefreshTree() override;

  void ApplyIndentation();
  void DrawLines(QPainter& painter, const QRect& rect, const QModelIndex& index) const;

  DirectoryTree& tree_;
  const ClassCommon& common_;
  DirectoryModel* model_;
  int following_ = 0;
  int fontSize_ = 9;
  int indentation_ = 150;
  bool xpStyle_ = false;
};

}  // namespace kestri
