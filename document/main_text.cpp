#include "document/main_text.hpp"

#include <utility>

namespace kestri {
namespace {

constexpr std::u16string_view kReadOnly = u"読み取り専用で開かれています";
constexpr std::u16string_view kUnknownError = u"不明なｴﾗｰが発生しました";

}  // namespace

MainText::MainText(EditControl& control, ApplicationState& state, const ClassCommon& common,
                   MainTextHost& host, TagAssistance& tags, Clipboard& clipboard, MessageBox& boxes)
    : control_(control),
      state_(state),
      common_(common),
      host_(host),
      tags_(tags),
      clipboard_(clipboard),
      boxes_(boxes) {}

void MainText::InstallSubclass(int mode) {
  SetDragMode(false);
  subclassed_ = mode != 0;
  Refresh();
}

void MainText::InstallSubclassAsSet() {
  InstallSubclass(SwitchOf(u"SubClass"));
}

// The switches read here are 1 unless the settings file says otherwise.
std::int32_t MainText::SwitchOf(std::u16string_view setting) const {
  return ToLong(common_.GetINI(common_.ExeName(), u"Setting", setting, u"1")).value_or(1);
}

bool MainText::Guarded(const std::function<void()>& action) {
  try {
    action();
    return true;
  } catch (...) {
    boxes_.Ask({.text = std::u16string(kUnknownError),
                .caption = std::u16string(kApplicationTitle),
                .icon = MessageIcon::Exclamation});
    return false;
  }
}

bool MainText::RefuseIfLocked() {
  if (!control_.Locked()) return false;
  common_.PortSet().window.Beep();
  host_.MessageToStatusBar(kReadOnly);
  return true;
}

void MainText::Edit(int index) {
  if (index >= 0 && index <= 3 && RefuseIfLocked()) return;
  Guarded([&] { RunEdit(index); });
}

void MainText::RunEdit(int index) {
  switch (index) {
    case 0:
      return WM_CUT();
    case 1:
      return WM_COPY();
    case 2:
      return WM_PASTE();
    case 3:
      return WM_CLEAR();
    case 5:
      EM_SETSEL(0, control_.Length());
      return tags_.seTagHide();
    case 6: {
      const std::int32_t line = control_.EM_LINEFROMCHAR(-1);
      EM_SETSEL(control_.LineStart(line), control_.LineEnd(line));
      return tags_.seTagHide();
    }
    default:
      return;
  }
}

void MainText::MenUNDO(int index) {
  if (RefuseIfLocked()) return;
  Guarded([&] {
    if (index == 0) EM_UNDO();
    if (index == 1) EM_REDO();
  });
}

}  // namespace kestri
