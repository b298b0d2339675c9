// MainTextProc: what each message does besides what the control makes of it.
#include "document/main_text.hpp"
#include "shell/common/code_page.hpp"

namespace kestri {
namespace {

enum Character : char16_t { kBackspace = 8, kEnter = 13, kEscape = 27 };

constexpr int kFromKeyboard = 1;
constexpr unsigned char kSymbolLead = 0x81;  // first byte of full-width symbols and blanks

bool IsFullWidthButNoSymbol(char16_t character) {
  if (character < 0x80) return false;
  const std::string bytes = code_page::Encode({&character, 1});
  return bytes.size() == 2 && static_cast<unsigned char>(bytes[0]) != kSymbolLead;
}

}  // namespace

void MainText::Refresh() {
  if (!subclassed_) return;
  host_.ResetCaretMemo();
  host_.PaintTextDecor(MainTextHost::Decor::Full);
}

void MainText::SoftRefresh() {
  if (subclassed_) host_.PaintTextDecor(MainTextHost::Decor::Full);
}

void MainText::WM_CHAR(char16_t character, int lParam) {
  Guarded([&] { SendChar(character, lParam); });
}

void MainText::SendChar(char16_t character, int lParam) {
  const char16_t handedOn = ApplyKeyRules(character);
  if (handedOn != 0) {
    control_.WM_CHAR(handedOn);
  } else {
    control_.EM_SCROLLCARET();  // what a rule put in instead must be in sight too
  }
  if (subclassed_) DecorAfterChar(character, lParam);
}

void MainText::DecorAfterChar(char16_t character, int lParam) {
  switch (character) {
    case kBackspace:
      return Refresh();
    case kEnter:
      return SoftRefresh();
    case kEscape:
      control_.SetSelLength(0);
      return Refresh();
    default:
      break;
  }
  if (lParam == kFromKeyboard && IsFullWidthButNoSymbol(character)) return;
  host_.PaintTextDecor(MainTextHost::Decor::ChangedLines);
}

void MainText::WM_KEYDOWN(EditKey key, KeyModifiers modifiers) {
  keyGate_ = kGateClosed;
  Guarded([&] {
    control_.WM_KEYDOWN(key, modifiers);
    key == EditKey::Delete ? Refresh() : DecorAfterMove();
  });
}

void MainText::DecorAfterMove() {
  if (!subclassed_) return;
  host_.ResetCaretMemo();
  host_.PaintTextDecor(control_.SelLength() == 0 ? MainTextHost::Decor::Full
                                                 : MainTextHost::Decor::ChangedLines);
}

void MainText::WM_CUT() {
  control_.WM_CUT();
  Refresh();
}

void MainText::WM_COPY() {
  control_.WM_COPY();
}

void MainText::WM_CLEAR() {
  control_.WM_CLEAR();
  Refresh();
}

void MainText::EM_UNDO() {
  control_.EM_UNDO();
  Refresh();
}

void MainText::EM_REDO() {
  control_.EM_REDO();
  Refresh();
}

void MainText::EM_SETSEL(Position start, Position end) {
  control_.EM_SETSEL(start, end);
  Refresh();
}

void MainText::EM_REPLACESEL(std::u16string_view text) {
  control_.EM_REPLACESEL(true, text);
  SoftRefresh();
}

void MainText::WM_SETTEXT(std::u16string_view text) {
  control_.WM_SETTEXT(text);
  SoftRefresh();
}

void MainText::WM_PAINT() {
  Refresh();
}

void MainText::SetDragMode(bool drag) {
  if (dragMode_ == drag) return;
  dragMode_ = drag;
  host_.SetDragMode(drag);
}

void MainText::WM_LBUTTONDOWN() {
  if (!subclassed_) return;
  SetDragMode(control_.SelLength() != 0 && state_.dragModeTrue != 0);
  Refresh();
}

void MainText::WM_BUTTONUP() {
  if (subclassed_) SetDragMode(false);
}

void MainText::WM_MOUSEMOVE(Position selLengthBefore) {
  if (control_.SelLength() != selLengthBefore && !tags_.HintVisible()) SoftRefresh();
}

bool MainText::WM_LBUTTONDBLCLK() {
  const bool handled = subclassed_ && state_.textTrp != 0;
  if (handled) SelectWord();
  Refresh();
  return handled;
}

bool MainText::WM_CONTEXTMENU() {
  if (!subclassed_ || state_.popUpMen != 1) return false;
  host_.ShowTextMenu();
  return true;
}

}  // namespace kestri
