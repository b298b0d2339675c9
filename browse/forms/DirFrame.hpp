// DirFrame: the folder bar beside the text. The tree above, below it the kinds of file and the file list.
//
// Nothing is read before Start. The splitter beside the bar and its width are the main window's.
#pragma once

#include <QComboBox>
#include <QMenu>
#include <QSplitter>
#include <QWidget>
#include <memory>

#include "browse/folder_bar.hpp"
#include "browse/folder_bar_menu.hpp"
#include "browse/forms/DirTreeFileControl.hpp"
#include "browse/forms/DirectoryTreeControl.hpp"
#include "browse/forms/shared_icons.hpp"

namespace kestri {

class DirFrame : public QWidget {
  Q_OBJECT

 public:
  explicit DirFrame(FolderBar::Around around, QWidget* parent = nullptr);
  ~DirFrame() override;

  // Once, after the window stands. A folder that is not there gives my documents.
  void Start(std::u16string_view folder);
  bool Started() const { return started_; }
  // A file came or went in the folder shown, as after a save.
  void RefreshFiles();

  FolderBar& Bar() { return bar_; }
  DirectoryTreeControl& DirectoryTree1() const { return *directoryTree1_; }
  DirTreeFileControl& DirTreeFile() const { return *dirTreeFile_; }
  QComboBox& FileExtCombo() const { return *fileExtCombo_; }
  QSplitter& Splitter() const { return *splitter_; }

  // The menus as they stand now, ready to be shown.
  std::unique_ptr<QMenu> DirTreeMenu();
  std::unique_ptr<QMenu> DirTreeFileMenu();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Arrange();
  void ConnectTree();
  void ConnectFiles();
  bool OwnsKey(const QKeyEvent& key) const;
  void RunKey(int key, const QObject* part);
  void AddRows(QMenu& menu, FolderBarMenu which);
  void AddRow(QMenu& menu, const FolderBarRow& row);
  void ShowMenu(std::unique_ptr<QMenu> menu, QPoint place);
  void FillKinds();
  void FollowEnabled();

  FolderBar bar_;
  SharedIcons icons_;
  QSplitter* splitter_;
  DirectoryTreeControl* directoryTree1_;
  QComboBox* fileExtCombo_;
  DirTreeFileControl* dirTreeFile_;
  bool started_ = false;
};

}  // namespace kestri
