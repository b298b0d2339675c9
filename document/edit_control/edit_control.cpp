#include "document/edit_control/edit_control.hpp"

#include <algorithm>
#include <utility>

#include "document/edit_control/edit_control_impl.hpp"
#include "document/edit_control/text_boundaries.hpp"
#include "document/edit_control/text_search.hpp"
#include "shell/common/code_page.hpp"

namespace kestri {

EditControl::EditControl(Clipboard& clipboard) : impl_(std::make_unique<Impl>(clipboard)) {}
EditControl::~EditControl() = default;

void EditControl::SetEvents(EditControlEvents* events) {
  impl_->events = events;
}
void EditControl::SetColumnMetrics(ColumnMetrics* metrics) {
  impl_->movement.SetMetrics(metrics);
}

// Properties

std::u16string EditControl::Text() const {
  return impl_->text.Slice(0, Length());
}
Position EditControl::Length() const {
  return impl_->text.Length();
}
Position EditControl::SelStart() const {
  return impl_->selection.Start();
}
Position EditControl::SelLength() const {
  return impl_->selection.End() - impl_->selection.Start();
}
std::u16string EditControl::SelText() const {
  return impl_->Selected();
}
bool EditControl::Locked() const {
  return impl_->locked;
}
void EditControl::SetLocked(bool locked) {
  impl_->locked = locked;
}
bool EditControl::Modified() const {
  return impl_->modified;
}
void EditControl::SetModified(bool modified) {
  impl_->modified = modified;
}
Position EditControl::Caret() const {
  return impl_->selection.caret;
}
Position EditControl::Anchor() const {
  return impl_->selection.anchor;
}

void EditControl::SetText(std::u16string text) {
  Message message(*impl_);
  message.TellNoChange();
  impl_->SetText(std::move(text));
}

void EditControl::SetSelStart(Position start) {
  const Message message(*impl_);
  impl_->Select(start, start);
}

void EditControl::SetSelLength(Position length) {
  const Message message(*impl_);
  const Position start = SelStart();
  impl_->Select(start, start + std::clamp(length, 0, Length() - start));
}

void EditControl::MoveCaret(Position to, Extend extend) {
  const Message message(*impl_);
  impl_->Select(extend == Extend::Yes ? Anchor() : to, to);
}

// Reading

char16_t EditControl::At(Position position) const {
  return impl_->text.At(position);
}
std::u16string EditControl::Slice(Position begin, Position length) const {
  return impl_->text.Slice(begin, length);
}
std::int32_t EditControl::LineCount() const {
  return impl_->lines.LineCount();
}
std::u16string_view EditControl::FirstPiece() const {
  return impl_->text.All().first;
}
std::u16string_view EditControl::SecondPiece() const {
  return impl_->text.All().second;
}

Position EditControl::LineStart(std::int32_t line) const {
  return impl_->lines.LineStart(std::clamp(line, 0, LineCount() - 1));
}

Position EditControl::LineEnd(std::int32_t line) const {
  return LineEndOf(impl_->text, impl_->lines, std::clamp(line, 0, LineCount() - 1));
}

std::int32_t EditControl::LineOf(Position position) const {
  return impl_->lines.LineOf(position);
}

Position EditControl::Find(std::u16string_view text, Position from, Compare compare) const {
  from = std::max(from, 0);
  if (from >= Length()) return kNoHit;
  return text.empty() ? from : FindFirst(impl_->text, text, from, compare);
}

Position EditControl::FindLast(std::u16string_view text, Position end, Compare compare) const {
  end = std::min(end, Length());
  if (end <= 0) return kNoHit;
  return text.empty() ? end : kestri::FindLast(impl_->text, text, end, compare);
}

void EditControl::PrepareEditAtCaret() {
  constexpr std::size_t kRoomForTyping = 1024;
  impl_->text.EnsureGap(kRoomForTyping);
  impl_->text.MoveGap(Caret());
  impl_->lines.PrepareAt(LineOf(Caret()));
}

bool EditControl::CheckInvariants() const {
  return impl_->CheckInvariants();
}

// Messages

void EditControl::WM_CHAR(char16_t character) {
  if (impl_->locked) return;
  const Message message(*impl_, Message::Scroll::ToCaret);
  impl_->Type(character);
}

void EditControl::WM_KEYDOWN(EditKey key, KeyModifiers modifiers) {
  if (key == EditKey::Delete) {
    if (modifiers.shift) return WM_CUT();
    if (impl_->locked) return;
  }
  const Message message(*impl_, Message::Scroll::ToCaret);
  if (key == EditKey::Delete) {
    impl_->DeleteRight(modifiers.control);
  } else {
    impl_->MoveByKey(key, modifiers);
  }
}

void EditControl::WM_CUT() {
  if (impl_->locked || impl_->selection.Empty()) return;
  WM_COPY();
  WM_CLEAR();
}

void EditControl::WM_COPY() const {
  if (!impl_->selection.Empty()) impl_->clipboard.SetText(impl_->Selected());
}

void EditControl::WM_PASTE() {
  if (impl_->locked) return;
  const std::u16string pasted = impl_->clipboard.Text();
  const Message message(*impl_, Message::Scroll::ToCaret);
  if (!pasted.empty()) impl_->Replace(impl_->selection, pasted, EditKind::Single);
}

void EditControl::WM_CLEAR() {
  if (impl_->locked) return;
  const Message message(*impl_, Message::Scroll::ToCaret);
  impl_->Replace(impl_->selection, {}, EditKind::Single);
}

void EditControl::WM_SETTEXT(std::u16string_view text) {
  const Message message(*impl_);
  impl_->SetText(std::u16string(text));
}

void EditControl::WM_SETREDRAW(bool on) {
  if (impl_->events) impl_->events->RedrawSwitched(on);
}

void EditControl::EM_REPLACESEL(bool canUndo, std::u16string_view text) {
  const Message message(*impl_);
  impl_->Replace(impl_->selection, text, EditKind::Single, canUndo ? Impl::Undo::Record : Impl::Undo::Forget);
}

bool EditControl::EM_CANUNDO() const {
  return impl_->undo.CanUndo();
}
bool EditControl::EM_CANREDO() const {
  return impl_->undo.CanRedo();
}
void EditControl::EM_EMPTYUNDOBUFFER() {
  impl_->undo.Clear();
}

bool EditControl::EM_UNDO() {
  if (impl_->locked || !EM_CANUNDO()) return false;
  const Message message(*impl_, Message::Scroll::ToCaret);
  return impl_->UndoStep();
}

bool EditControl::EM_REDO() {
  if (impl_->locked || !EM_CANREDO()) return false;
  const Message message(*impl_, Message::Scroll::ToCaret);
  return impl_->RedoStep();
}

void EditControl::EM_SETSEL(Position start, Position end) {
  const Message message(*impl_);
  const auto clamped = [this](Position position) { return position < 0 ? Length() : position; };
  if (start == -1) {
    impl_->Select(Caret(), Caret());
  } else {
    impl_->Select(clamped(start), clamped(end));
  }
}

Position EditControl::EM_LINEINDEX(std::int32_t line) const {
  if (line == -1) line = LineOf(Caret());
  return line < 0 || line >= LineCount() ? -1 : LineStart(line);
}

std::int32_t EditControl::EM_LINEFROMCHAR(Position position) const {
  return LineOf(position == -1 ? SelStart() : position);
}

Position EditControl::EM_LINELENGTH(Position position) const {
  if (position == -1) {
    const Selection& selection = impl_->selection;
    return selection.Start() - LineStart(LineOf(selection.Start())) + LineEnd(LineOf(selection.End())) -
           selection.End();
  }
  const std::int32_t line = LineOf(position);
  return LineEnd(line) - LineStart(line);
}

std::int32_t EditControl::EM_GETLINECOUNT() const {
  return LineCount();
}

std::string EditControl::EM_GETLINE(std::int32_t line, std::size_t size) const {
  if (line < 0 || line >= LineCount()) return {};
  // Two units make one byte at the least.
  const auto most = static_cast<Position>(std::min<std::size_t>(2 * size, INT32_MAX));
  const Position start = LineStart(line);
  const std::string bytes = code_page::Encode(Slice(start, std::min(LineEnd(line) - start, most)));
  return std::string(code_page::Truncate(bytes, size));
}

void EditControl::EM_SCROLLCARET() {
  if (impl_->events) impl_->events->ScrollCaret();
}

void EditControl::DeleteWordLeft() {
  if (impl_->locked) return;
  const Message message(*impl_, Message::Scroll::ToCaret);
  impl_->DeleteWordLeft();
}

EditScope::EditScope(EditControl& control) : control_(control) {
  control_.impl_->undo.OpenScope(control_.impl_->selection);
}

EditScope::~EditScope() {
  control_.impl_->undo.CloseScope(control_.impl_->selection);
}

}  // namespace kestri
