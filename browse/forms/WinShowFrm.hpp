// WinShowFrm: lists the windows of all running instances and brings the chosen one to the front.
#pragma once

#include <QDialog>
#include <QTreeWidget>
#include <vector>

#include "browse/window_list.hpp"
#include "ui/HotButton.hpp"

namespace kestri {

class WinShowFrm : public QDialog {
 public:
  // fileIcon stands in front of each row. The owner is the main window: it comes to the front again when the
  // list closes without a switch.
  WinShowFrm(const WindowList& windows, const QIcon& fileIcon, QWidget* owner);

  QTreeWidget& WinList() { return *winList_; }
  bool Switched() const { return switched_; }

  void done(int result) override;

 private:
  void FillList(const QIcon& fileIcon);
  void SelectFirstOther();
  void SwitchToSelected();

  const WindowList& windows_;
  std::vector<WindowList::Row> rows_;
  QTreeWidget* winList_;
  HotButton* setFocus_;
  bool switched_ = false;
};

}  // namespace kestri
