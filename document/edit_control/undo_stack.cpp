#include "document/edit_control/undo_stack.hpp"

#include <algorithm>
#include <utility>

#include "document/edit_control/text_boundaries.hpp"

namespace kestri {

namespace {

constexpr bool IsLineEnd(std::u16string_view typed) {
  return typed == u"\r\n";
}

Position Size(std::u16string_view text) {
  return static_cast<Position>(text.size());
}
Position Size(const GapBuffer::Pieces& pieces) {
  return Size(pieces.first) + Size(pieces.second);
}

void MakeRoom(std::u16string& text, std::size_t units) {
  if (text.capacity() - text.size() >= units) return;
  text.reserve(text.empty() ? units : std::max(text.size() + units, 2 * text.capacity()));
}

// What erasing took away is selected again when it comes back; the caret is on the side where it was.
Selection ErasedRange(const UndoStep& step) {
  Position length = 0;
  for (const UndoChange& change : step.changes) length += change.removed;
  const Position begin = step.changes.back().at;
  return step.before.caret > step.changes.front().at ? Selection{begin, begin + length}
                                                     : Selection{begin + length, begin};
}

}  // namespace

void UndoStack::Record(const Edit& edit) {
  if (Joins(edit)) {
    Append(steps_.back(), edit);
  } else {
    BeginStep(edit);
  }
  FollowRun(edit);
}

bool UndoStack::Joins(const Edit& edit) const {
  if (scopes_ > 0) return scopeHasStep_;
  if (!runOpen_ || steps_.back().kind != edit.kind) return false;
  return edit.kind == EditKind::Typing ? JoinsTyping(edit) : JoinsErasing(edit);
}

bool UndoStack::JoinsTyping(const Edit& edit) const {
  const UndoStep& run = steps_.back();
  const UndoChange& last = run.changes.back();
  const bool wordAfterWord = runHasWord_ && IsBlank(run.text.back()) && !IsBlank(edit.inserted.front());
  return Size(edit.removed) == 0 && edit.at == last.at + last.inserted && !wordAfterWord;
}

bool UndoStack::JoinsErasing(const Edit& edit) const {
  const Position gap = steps_.back().changes.back().at;
  return edit.at == gap || edit.at + Size(edit.removed) == gap;
}

void UndoStack::BeginStep(const Edit& edit) {
  UndoStep step;
  step.kind = scopes_ > 0 ? EditKind::Single : edit.kind;
  step.before = scopes_ > 0 ? scopeBefore_.value_or(edit.before) : edit.before;
  Append(step, edit);
  // Where this takes undone steps away the new one has their place; otherwise it takes nothing away.
  steps_.resize(done_);
  steps_.push_back(std::move(step));
  done_ = steps_.size();
  scopeHasStep_ = scopes_ > 0;
  runHasWord_ = false;
}

void UndoStack::Append(UndoStep& step, const Edit& edit) {
  MakeRoom(step.text, edit.removed.first.size() + edit.removed.second.size() + edit.inserted.size());
  if (step.kind == EditKind::Typing && !step.changes.empty()) {
    step.changes.back().inserted += Size(edit.inserted);
  } else {
    step.changes.push_back({edit.at, Size(edit.removed), Size(edit.inserted)});
  }
  step.text.append(edit.removed.first).append(edit.removed.second).append(edit.inserted);
  step.after = edit.after;
}

void UndoStack::FollowRun(const Edit& edit) {
  UndoStep& step = steps_.back();
  runOpen_ = step.kind != EditKind::Single && !IsLineEnd(edit.inserted);
  if (step.kind == EditKind::Typing) runHasWord_ |= !IsBlank(edit.inserted.front());
  if (step.kind == EditKind::Erasing) step.before = ErasedRange(step);
}

void UndoStack::OpenScope(Selection before) {
  if (scopes_++ > 0) return;
  CloseRun();
  scopeBefore_ = before;
  scopeHasStep_ = false;
}

void UndoStack::CloseScope(Selection after) {
  if (--scopes_ > 0) return;
  if (scopeHasStep_) steps_.back().after = after;
  scopeHasStep_ = false;
}

void UndoStack::Clear() {
  steps_.clear();
  done_ = 0;
  runOpen_ = false;
  scopeHasStep_ = false;
  scopeBefore_.reset();
}

const UndoStep* UndoStack::Undo() {
  CloseRun();
  const UndoStep* step = NextUndo();
  if (step) --done_;
  return step;
}

const UndoStep* UndoStack::Redo() {
  CloseRun();
  const UndoStep* step = NextRedo();
  if (step) ++done_;
  return step;
}

}  // namespace kestri
