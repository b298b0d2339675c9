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
  subclassed_ = mode == 1;
  Refresh();
}

void MainText::InstallSubclassAsSet() {
  InstallSubclass(SwitchedOn(u"SubClass") ? 1 : 0);
}

// The switches read here are on unless the settings file says 0.
bool MainText::SwitchedOn(std::u16string_view setting) const {
  return ToLong(common_.GetINI(common_.ExeName(), u"Setting", setting, u"1")).value_or(1) != 0;
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
  if (index == 0) EM_UNDO();
  if (index == 1) EM_REDO();
}

}  // namespace kestri
