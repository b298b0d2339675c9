// Acceptance: the typed characters go, the chosen word comes with its delimiters.
#include "tags/completion.hpp"
#include "tags/tag_locator.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kDoubleQuote = u"\"";

bool IsOneByte(std::u16string_view delimiter) {
  return ClassCommon::GetTextByte(delimiter) == 1;
}

}  // namespace

void InToTAG::Accept() {
  if (selected_ < 0) {
    Beep();
    return;
  }
  if (around_.text.RefuseIfLocked()) return HidePopup(PopupFocus::ToText);
  const std::u16string chosen = Row(selected_).text;
  {
    EditScope oneStep(Control());
    TakeTypedBack();
    InsertChosen(chosen);
  }
  HidePopup(PopupFocus::ToText);
  FollowUp();
}

void InToTAG::TakeTypedBack() {
  while (Control().SelStart() > startPos_) {
    const Position length = Control().Length();
    around_.text.WM_CHAR(8, 0);
    if (Control().Length() == length) return;  // read-only
  }
}

void InToTAG::InsertChosen(std::u16string_view chosen) {
  switch (editMode_) {
    case kModeTag:
      InsertWrapped(chosen, u"<", u">", kModeTag);
      break;
    case kModeValue:
      InsertWrapped(chosen, kDoubleQuote, kDoubleQuote, kModeValue);
      break;
    default:
      TypeChars(chosen, 0);
  }
}

void InToTAG::InsertWrapped(std::u16string_view text, std::u16string_view open, std::u16string_view close,
                            std::int32_t mode) {
  EditControl& control = Control();
  if (IsOneByte(open) && (control.SelStart() == 0 || control.At(startPos_ - 1) != open[0])) {
    around_.text.WM_CHAR(open[0], 0);
  }
  if (mode == kModeTag && closeTag_ == 1) around_.text.WM_CHAR(u'/', 0);
  TypeChars(text, 0);
  if (!IsOneByte(close) || control.At(control.SelStart()) == close[0]) return;
  around_.text.WM_CHAR(close[0], 0);
  if (mode == kModeTag) control.SetSelStart(control.SelStart() - 1);
}

void InToTAG::TypeChars(std::u16string_view text, std::int16_t flag) {
  if (ClassCommon::GetTextByte(text) != Len(text)) {
    around_.text.ReplaceSelHwnd(text, false, false);
    return;
  }
  const int lParam = flag != 0 ? 1 : 0;
  for (const char16_t character : text) around_.text.WM_CHAR(character, lParam);
}

void InToTAG::FollowUp() {
  if (autoHint_ == 1) around_.hints.seTagHintPriSet();
  if (autoAnalyse_ != 1 || editMode_ != kModeTag || !around_.tagAnalyse) return;
  if (CaretTagKind(Control(), kLookOnly, Compare::Binary) == CaretKind::OpeningTag) around_.tagAnalyse();
}

}  // namespace kestri
