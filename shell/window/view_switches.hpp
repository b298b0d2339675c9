// What the view menu switches: bars, line numbers, guide lines, top-most, menu animation.
#pragma once

#include <string>
#include <string_view>

#include "platform/message_box.hpp"
#include "platform/ui_effects.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

// The parts of the main window that can be shown and hidden.
class SwitchedWindow {
 public:
  virtual ~SwitchedWindow() = default;
  virtual bool ToolBarVisible() const = 0;
  virtual void ShowToolBar(bool visible) = 0;
  virtual bool ToolBarDocked() const = 0;
  virtual void DockToolBar(bool docked) = 0;
  virtual bool StatusBarVisible() const = 0;
  virtual void ShowStatusBar(bool visible) = 0;
  virtual bool FolderBarVisible() const = 0;
  virtual void ShowFolderBar(bool visible) = 0;
  virtual int FolderBarWidth() const = 0;  // twips, while hidden too
  virtual void ShowGuideLines(bool visible) = 0;
  virtual bool LineNumbersVisible() const = 0;
  virtual void ShowLineNumbers(bool visible) = 0;  // installs or ends the subclass of the text
  virtual void ApplyTopMost() = 0;                 // the state's mode, to every form of the process
};

class ViewSwitches {
 public:
  ViewSwitches(const ClassCommon& common, ApplicationState& state, MessageBox& boxes, UiEffects& effects,
               SwitchedWindow& window)
      : common_(common), state_(state), boxes_(boxes), effects_(effects), window_(window) {}

  bool ToolBarShown() const { return window_.ToolBarVisible(); }
  bool StatusBarShown() const { return window_.StatusBarVisible(); }
  bool FolderBarShown() const { return window_.FolderBarVisible(); }
  bool GuideLinesShown() const { return state_.gLine != 0; }
  bool LineNumbersShown() const { return window_.LineNumbersVisible(); }
  bool TopMost() const;
  bool MenuAnimated() const { return state_.menuAnimation != 0; }
  std::u16string DockingCaption() const;

  // The bars and the line numbers are remembered at once. While several processes run, the user is asked
  // whether this window alone is meant; a cancelled question changes nothing.
  void ToggleToolBar();
  void ToggleStatusBar();
  void ToggleFolderBar();  // its width is remembered with it
  void ToggleLineNumbers();
  void ToggleGuideLines();
  void ToggleTopMost();
  void ToggleMenuAnimation();
  void ToggleDocked();

 private:
  enum class Reach { Cancelled, ThisWindow, Remembered };
  Reach AskReach();
  Reach Switch(bool on, void (SwitchedWindow::*show)(bool), std::u16string_view section,
               std::u16string_view key);

  const ClassCommon& common_;
  ApplicationState& state_;
  MessageBox& boxes_;
  UiEffects& effects_;
  SwitchedWindow& window_;
};

}  // namespace kestri
