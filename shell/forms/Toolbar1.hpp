// Toolbar1: the small tool window that holds the tool bar while it is not docked in the main window.
#pragma once

#include <QWidget>
#include <functional>

#include "shell/common/class_common.hpp"
#include "shell/window/tool_bar_place.hpp"

class QMainWindow;
class QToolBar;

namespace kestri {

class Toolbar1 : public QWidget {
 public:
  struct Surroundings {
    QMainWindow& owner;
    QToolBar& bar;  // stands in the owner
    const ClassCommon& common;
    std::function<void()> closeRequested;  // the bar stands in the owner again, which lays itself out
  };
  Toolbar1(Surroundings around, ToolBarPlace place);

  bool Docked() const { return place_.state == BarState::Docked; }
  void SetDocked(bool docked);
  // Wherever the bar stands. A hidden bar that floats has no window.
  bool BarShown() const { return barShown_; }
  void ShowBar(bool shown);

  // At the close of the owner.
  void SaveSettings();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Float();
  void Dock();
  void FollowOwner();
  void FitToBar();
  QSize FrameAllowance() const;
  void MoveOntoScreen();
  void WritePosition();

  Surroundings around_;
  ToolBarPlace place_;
  bool barShown_ = true;
};

}  // namespace kestri
