// DirTreeFile as a control: the names of the files, each with a picture of its kind.
//
// The list and the icons are the owner's and outlive the control.
#pragma once

#include <QAbstractListModel>
#include <QListView>

#include "browse/dir_tree_file.hpp"
#include "browse/forms/shared_icons.hpp"

namespace kestri {

class FileNameModel : public QAbstractListModel {
  Q_OBJECT

 public:
  FileNameModel(DirTreeFile& files, SharedIcons& icons, QObject* parent)
      : QAbstractListModel(parent), files_(files), icons_(icons) {}
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  void Changed();

 private:
  DirTreeFile& files_;
  SharedIcons& icons_;
  int shown_ = 0;
};

class DirTreeFileControl : public QListView {
  Q_OBJECT

 public:
  DirTreeFileControl(DirTreeFile& files, SharedIcons& icons, QWidget* parent = nullptr);
  ~DirTreeFileControl() override;

 Q_SIGNALS:
  void DblClick();
  void MouseUp(Qt::KeyboardModifiers shift);  // button 1
  void MouseMove(int row);                    // -1: over none
  void MenuAsked(QPoint globalPlace);

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void ShowList();
  void SelectUnder(const QPoint& place);

  DirTreeFile& files_;
  FileNameModel* model_;
};

}  // namespace kestri
