#include "document/edit_control/edit_control_impl.hpp"

#include <algorithm>
#include <limits>
#include <utility>

#include "document/edit_control/text_boundaries.hpp"

namespace kestri {

namespace {

constexpr std::size_t kLargestText = std::numeric_limits<Position>::max() - 1024;  // units

Position Size(std::u16string_view text) {
  return static_cast<Position>(text.size());
}

// Two replacements, one after the other, seen as one that covers both.
TextChange Joined(const TextChange& first, Position at, Position removed, Position inserted) {
  TextChange joined;
  joined.at = std::min(first.at, at);
  const Position firstEnd = first.at + first.inserted;
  const Position end = std::max(firstEnd, at + removed);
  joined.removed = first.removed + (first.at - joined.at) + (end - firstEnd);
  joined.inserted = end - joined.at - removed + inserted;
  return joined;
}

// The replacements that take a step back: position, units removed, text inserted.
template <typename Visit>
void ForEachBack(const UndoStep& step, Visit visit) {
  const std::u16string_view units = step.text;
  std::size_t end = units.size();
  for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change) {
    const auto removed = static_cast<std::size_t>(change->removed);
    end -= removed + static_cast<std::size_t>(change->inserted);
    visit(change->at, change->inserted, units.substr(end, removed));
  }
}

template <typename Visit>
void ForEachForward(const UndoStep& step, Visit visit) {
  const std::u16string_view units = step.text;
  std::size_t begin = 0;
  for (const UndoChange& change : step.changes) {
    begin += static_cast<std::size_t>(change.removed);
    const auto inserted = static_cast<std::size_t>(change.inserted);
    visit(change.at, change.removed, units.substr(begin, inserted));
    begin += inserted;
  }
}

}  // namespace

// What a row of replacements needs before the first of them may touch the text.
struct EditControl::Impl::Room {
  Position growth = 0;
  Position mostGrowth = 0;
  std::size_t starts = 0;

  void Replace(Position removed, std::u16string_view inserted) {
    growth += Size(inserted) - removed;
    mostGrowth = std::max(mostGrowth, growth);
    starts += LineIndex::MostStarts(inserted);
  }
};

void EditControl::Impl::SetText(std::u16string value) {
  GapBuffer newText;
  LineIndex newLines;
  newText.Assign(std::move(value));
  newLines.Rebuild(newText);
  replaced = TextChange{.at = 0, .removed = text.Length(), .inserted = newText.Length()};
  text = std::move(newText);
  lines = std::move(newLines);
  undo.Clear();
  selection = {};
  movement.ForgetColumn();
  modified = false;
}

Selection EditControl::Impl::Snapped(Position anchor, Position caret) const {
  anchor = std::clamp(anchor, 0, text.Length());
  caret = std::clamp(caret, 0, text.Length());
  Position& start = anchor < caret ? anchor : caret;
  Position& end = anchor < caret ? caret : anchor;
  const bool empty = start == end;
  if (IsInsidePair(text, start)) --start;
  if (empty) return {start, start};
  if (IsInsidePair(text, end)) ++end;
  return {anchor, caret};
}

void EditControl::Impl::Select(Position anchor, Position caret) {
  movement.ForgetColumn();
  const Selection wanted = Snapped(anchor, caret);
  if (wanted != selection) undo.CloseRun();
  selection = wanted;
}

void EditControl::Impl::ReplaceText(Position at, Position removed, std::u16string_view inserted) {
  text.Replace(at, removed, inserted);
  lines.Replaced(text, at, removed, Size(inserted));
  modified = true;
  replaced = replaced ? Joined(*replaced, at, removed, Size(inserted))
                      : TextChange{.at = at, .removed = removed, .inserted = Size(inserted)};
}

void EditControl::Impl::Replace(Selection range, std::u16string_view inserted, EditKind kind, Undo mode) {
  movement.ForgetColumn();
  const Position at = range.Start();
  const Position removed = range.End() - at;
  const bool fits = inserted.size() <= kLargestText - static_cast<std::size_t>(text.Length() - removed);
  if (!fits || (removed == 0 && inserted.empty())) {
    if (mode == Undo::Forget) undo.Clear();
    return;
  }
  if (text.Owns(inserted)) return Replace(range, std::u16string(inserted), kind, mode);
  Room room;
  room.Replace(removed, inserted);
  Reserve(room);
  const Position caret = CaretAfter(at, removed, inserted);
  const UndoStack::Edit edit{.kind = kind,
                             .at = at,
                             .removed = text.Range(at, removed),
                             .inserted = inserted,
                             .before = kind == EditKind::Erasing ? selection : range,
                             .after = {caret, caret}};
  if (mode == Undo::Record) {
    undo.Record(edit);  // the last that may find no memory
  } else {
    undo.Clear();
  }
  ReplaceText(at, removed, inserted);
  selection = edit.after;
}

// Behind what was inserted. When that makes a pair with what follows, behind the pair; a deletion that joins
// one leaves the caret before it.
Position EditControl::Impl::CaretAfter(Position at, Position removed, std::u16string_view inserted) const {
  const Position caret = at + Size(inserted);
  const char16_t left = inserted.empty() ? text.At(at - 1) : inserted.back();
  if (!IsPair(left, text.At(at + removed))) return caret;
  return inserted.empty() ? caret - 1 : caret + 1;
}

void EditControl::Impl::Type(char16_t character) {
  switch (character) {
    case 8:
      return Backspace();
    case 10:
    case 13:
      return Replace(selection, kCrLf, EditKind::Typing);
    case 26:
      UndoStep();
      return;
    case 127:
      return;
    default:
      break;
  }
  if (character >= 32 || character == 9) Replace(selection, {&character, 1}, EditKind::Typing);
}

void EditControl::Impl::Erase(Position to, EditKind kind) {
  if (!selection.Empty()) return Replace(selection, {}, EditKind::Single);
  Replace({to, selection.caret}, {}, kind);
}

void EditControl::Impl::Backspace() {
  Erase(PreviousCodePoint(text, selection.caret), EditKind::Erasing);
}
void EditControl::Impl::DeleteWordLeft() {
  Erase(PreviousWord(text, selection.caret), EditKind::Single);
}

void EditControl::Impl::DeleteRight(bool byWord) {
  if (byWord) return Erase(NextWord(text, selection.caret), EditKind::Single);
  Erase(NextCaretStop(text, selection.caret), EditKind::Erasing);
}

// Typing that goes on where it stopped is one run even when keys took the caret away and back.
void EditControl::Impl::MoveByKey(EditKey key, KeyModifiers modifiers) {
  const bool vertical =
      key == EditKey::Up || key == EditKey::Down || key == EditKey::PageUp || key == EditKey::PageDown;
  if (!vertical) movement.ForgetColumn();
  const bool collapses = !selection.Empty() && !modifiers.shift && !modifiers.control;
  Position caret = 0;
  if (collapses && key == EditKey::Left) {
    caret = selection.Start();
  } else if (collapses && key == EditKey::Right) {
    caret = selection.End();
  } else {
    caret = movement.Target(selection.caret, key, modifiers.control);
  }
  selection = Snapped(modifiers.shift ? selection.anchor : caret, caret);
}

bool EditControl::Impl::UndoStep() {
  movement.ForgetColumn();
  const kestri::UndoStep* step = undo.NextUndo();
  if (step) StepBack(*step);
  undo.Undo();
  return step != nullptr;
}

bool EditControl::Impl::RedoStep() {
  movement.ForgetColumn();
  const kestri::UndoStep* step = undo.NextRedo();
  if (step) StepForward(*step);
  undo.Redo();
  return step != nullptr;
}

bool EditControl::Impl::CheckInvariants() const {
  LineIndex fresh;
  fresh.Rebuild(text);
  return text.CheckInvariants() && lines.Agrees(fresh) &&
         Snapped(selection.anchor, selection.caret) == selection;
}

void EditControl::Impl::Reserve(const Room& room) {
  text.EnsureGap(static_cast<std::size_t>(room.mostGrowth));
  lines.Reserve(room.starts);
}

void EditControl::Impl::StepBack(const kestri::UndoStep& step) {
  Room room;
  ForEachBack(step, [&room](Position, Position removed, std::u16string_view inserted) {
    room.Replace(removed, inserted);
  });
  Reserve(room);
  ForEachBack(step, [this](Position at, Position removed, std::u16string_view inserted) {
    ReplaceText(at, removed, inserted);
  });
  selection = step.before;
}

void EditControl::Impl::StepForward(const kestri::UndoStep& step) {
  Room room;
  ForEachForward(step, [&room](Position, Position removed, std::u16string_view inserted) {
    room.Replace(removed, inserted);
  });
  Reserve(room);
  ForEachForward(step, [this](Position at, Position removed, std::u16string_view inserted) {
    ReplaceText(at, removed, inserted);
  });
  selection = step.after;
}

EditControl::Message::Message(Impl& impl, Scroll scroll)
    : impl_(impl), scroll_(scroll), before_(impl.selection), linesBefore_(impl.lines.LineCount()) {}

TextChange EditControl::Message::Counted(TextChange change) const {
  change.firstLine = impl_.lines.LineOf(change.at);
  change.linesInserted = impl_.lines.LineOf(change.at + change.inserted + 1) - change.firstLine;
  change.linesRemoved = change.linesInserted - (impl_.lines.LineCount() - linesBefore_);
  return change;
}

EditControl::Message::~Message() {
  const auto replaced = std::exchange(impl_.replaced, std::nullopt);
  EditControlEvents* const events = impl_.events;
  if (!events) return;
  const bool moved = impl_.selection != before_;
  if (replaced) events->TextReplaced(Counted(*replaced));
  if (moved) events->SelectionChanged();
  if (replaced && tellChange_) events->Change();
  if (scroll_ == Scroll::ToCaret) events->ScrollCaret();
}

}  // namespace kestri
