#include "shell/window/view_switches.hpp"

#include "shell/common/own_processes.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::int32_t kTopMost = -1;
constexpr std::int32_t kNotTopMost = -2;

}  // namespace

bool ViewSwitches::TopMost() const {
  return state_.topMost == kTopMost;
}

std::u16string ViewSwitches::DockingCaption() const {
  return window_.ToolBarDocked() ? u"ﾂｰﾙﾊﾞｰの切り離し" : u"ﾂｰﾙﾊﾞｰのﾄﾞｯｷﾝｸﾞ";
}

ViewSwitches::Reach ViewSwitches::AskReach() {
  if (CountOwnProcesses(common_.PortSet().environment) < 2) return Reach::Remembered;
  const MessageAnswer answer = boxes_.Ask({.text = u"次に起動するｳｨﾝﾄﾞｳからも この表示にしますか?\r\n"
                                                   u"「いいえ」は このｳｨﾝﾄﾞｳだけに適用します\r\n\r\n・\"" +
                                                   common_.ExeName() + u"\"が複数起動されている場合",
                                           .caption = std::u16string(kApplicationTitle),
                                           .icon = MessageIcon::Question,
                                           .buttons = MessageButtons::YesNoCancel});
  if (answer == MessageAnswer::Yes) return Reach::Remembered;
  return answer == MessageAnswer::No ? Reach::ThisWindow : Reach::Cancelled;
}

ViewSwitches::Reach ViewSwitches::Switch(bool on, void (SwitchedWindow::*show)(bool),
                                         std::u16string_view section, std::u16string_view key) {
  const Reach reach = AskReach();
  if (reach == Reach::Cancelled) return reach;
  (window_.*show)(on);
  if (reach == Reach::Remembered) common_.SetINI(common_.ExeName(), section, key, on ? u"1" : u"0");
  return reach;
}

void ViewSwitches::ToggleToolBar() {
  Switch(!ToolBarShown(), &SwitchedWindow::ShowToolBar, u"Bar", u"ToolBarShow0");
}

void ViewSwitches::ToggleStatusBar() {
  Switch(!StatusBarShown(), &SwitchedWindow::ShowStatusBar, u"Bar", u"StatusBar0");
}

void ViewSwitches::ToggleFolderBar() {
  if (Switch(!FolderBarShown(), &SwitchedWindow::ShowFolderBar, u"Bar", u"DirTree") != Reach::Remembered)
    return;
  common_.SetINI(common_.ExeName(), u"Bar", u"DirectoryTreeWidth", ToText(window_.FolderBarWidth()));
}

void ViewSwitches::ToggleLineNumbers() {
  Switch(!LineNumbersShown(), &SwitchedWindow::ShowLineNumbers, u"Setting", u"SubClass");
}

void ViewSwitches::ToggleDocked() {
  window_.DockToolBar(!window_.ToolBarDocked());
}

void ViewSwitches::ToggleGuideLines() {
  state_.gLine = GuideLinesShown() ? 0 : 1;
  window_.ShowGuideLines(GuideLinesShown());
}

void ViewSwitches::ToggleTopMost() {
  state_.topMost = TopMost() ? kNotTopMost : kTopMost;
  window_.ApplyTopMost();
}

void ViewSwitches::ToggleMenuAnimation() {
  state_.menuAnimation = MenuAnimated() ? 0 : 1;
  effects_.SetAnimation(state_.menuAnimation, UiEffects::kMenus);
  effects_.SetAnimation(state_.menuAnimation, UiEffects::kComboBoxes);
}

}  // namespace kestri
