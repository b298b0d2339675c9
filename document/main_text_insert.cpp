// Text that goes into the control in one piece: the insertion helpers, paste, drop and the input method.
#include "document/main_text.hpp"
#include "document/pasted_text.hpp"

namespace kestri {
namespace {

constexpr std::int32_t kLargeText = 32000;  // bytes of the code page

}  // namespace

bool MainText::ConvertsTabs() const {
  return subclassed_ && state_.tabSpaceCount != 0 && state_.tabsKept == 0;
}

std::u16string MainText::ExpandTabs(std::u16string_view text) const {
  if (!ConvertsTabs()) return std::u16string(text);
  return Replace(text, u"\t", String(4 * state_.tabSpaceCount, u' '));
}

void MainText::ReplaceSelRaw(std::u16string_view text, bool redraw, bool scroll) {
  if (redraw) return EM_REPLACESEL(text);
  {
    const RedrawOff frozen(control_);
    EM_REPLACESEL(text);
  }
  if (scroll) control_.EM_SCROLLCARET();
}

// A text without tabs goes in as it is, without a copy.
std::u16string_view MainText::Expanded(std::u16string_view text, std::u16string& storage) const {
  if (!ConvertsTabs() || text.find(u'\t') == text.npos) return text;
  storage = ExpandTabs(text);
  return storage;
}

void MainText::ReplaceSelHwnd(std::u16string_view text, bool redraw, bool scroll) {
  std::u16string storage;
  ReplaceSelRaw(Expanded(text, storage), redraw, scroll);
}

void MainText::ReplaceSelKeep(std::u16string_view text, bool redraw, bool scroll) {
  std::u16string storage;
  const std::u16string_view inserted = Expanded(text, storage);
  ReplaceSelRaw(inserted, redraw, scroll);
  if (!inserted.empty()) {
    const Position end = control_.SelStart();
    EM_SETSEL(end - static_cast<Position>(inserted.size()), end);
  }
  if (redraw) RefreshDecor();
}

void MainText::SelectWholeLines() {
  const Position start = control_.SelStart();
  const Position end = start + control_.SelLength();
  EM_SETSEL(control_.LineStart(control_.LineOf(start)), control_.LineEnd(control_.LineOf(end)));
}

void MainText::RefreshDecor() {
  host_.FocusText();
  WM_PAINT();
}

bool MainText::AcceptsLargePaste(std::u16string_view text) {
  if (ClassCommon::GetTextByte(text) <= kLargeText) return true;
  const std::u16string title(kApplicationTitle);
  const MessageAnswer answer = boxes_.Ask({
      .text = u"32KB以上のﾃｷｽﾄが貼り付けられようとしています\r\n" + title +
              u" は 32KB以上のﾃｷｽﾄを編集する事を推奨していません\r\nそのまま作業を進めますか？",
      .caption = title,
      .icon = MessageIcon::Exclamation,
      .buttons = MessageButtons::YesNo,
      .defaultButton = 2,
  });
  return answer == MessageAnswer::Yes;
}

void MainText::WM_PASTE() {
  if (control_.Locked()) return;
  Guarded([&] { Paste(clipboard_.Text(), std::nullopt); });
}

void MainText::PasteAt(Position at, std::u16string_view text) {
  if (RefuseIfLocked()) return;
  Guarded([&] { Paste(text, at); });
}

// Into the selection unless a position is given.
void MainText::Paste(std::u16string_view fromOutside, std::optional<Position> at) {
  const std::u16string text = FromOtherProgram(fromOutside);
  if (text.empty() || !AcceptsLargePaste(text)) return;
  if (at) EM_SETSEL(*at, *at);
  EM_REPLACESEL(ExpandTabs(text));
  control_.EM_SCROLLCARET();
}

void MainText::CommitInput(std::u16string_view text) {
  keyGate_ = kGateClosed;
  if (control_.Locked() || text.empty()) return;
  Guarded([&] {
    EM_REPLACESEL(FromOtherProgram(text));
    control_.EM_SCROLLCARET();
  });
}

}  // namespace kestri
