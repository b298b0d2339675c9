// What changed since the screen was last brought up to date, and bringing it up to date.
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <new>
#include <utility>

#include "ui/edit_view.hpp"
#include "ui/edit_view_accessible.hpp"
#include "ui/line_rows.hpp"

namespace kestri {
namespace {

constexpr int kIdleMilliseconds = 50;
constexpr QPoint kNoMemo(-10000, -10000);
constexpr double kMostScrolled = 1 << 30;  // pixels to the right

}  // namespace

// ---- host requests

void EditView::SetTextHidden(bool hidden) {
  hidden_ = hidden;
  Thaw();
}

void EditView::RedrawSwitched(bool on) {
  redraw_ = on;
  Thaw();
}

// What changed while nothing was painted is not looked at piece by piece.
void EditView::Thaw() {
  if (Frozen() || !pending_.any) return;
  pending_.all = true;
  Post();
}

// The gutter and the guide lines follow the caret by themselves; here the rows that may have changed are
// painted again, unless the caret stands where it stood at the last call.
void EditView::PaintTextDecor(MainTextHost::Decor rows) {
  if (Frozen() || pending_.any || !styleBuilt_) return Schedule();
  const QPoint caret = GetCaretPixel();
  if (std::exchange(caretMemo_, caret) == caret) return;
  if (rows == MainTextHost::Decor::ChangedLines) gutter_->RepaintRowsAround(control_.EM_LINEFROMCHAR(-1));
}

void EditView::ResetCaretMemo() {
  caretMemo_ = kNoMemo;
}

// ---- what the control tells

// Runs in the destructor of the control's message: no memory for the layouts is no reason to lose the text.
void EditView::TextReplaced(const TextChange& change) try {
  teller_->TextReplaced(change);
  pending_.text = true;
  if (change.at == 0 && change.inserted == control_.Length()) NoteNewText();
  if (change.linesRemoved != 0 || change.linesInserted != 0) NoteLinesShifted(change);
  NoteDirtyRows(change);
  layouts_.TextReplaced(change);
  Schedule();
} catch (const std::bad_alloc&) {
  layouts_.Clear();
  pending_.all = true;
}

void EditView::NoteDirtyRows(const TextChange& change) {
  const bool only = pending_.lastDirty < 0 && change.linesRemoved == 0 && change.linesInserted == 0;
  const bool local = only && layouts_.IsPlain(change.firstLine);
  pending_.fromColumn = local ? change.at - control_.LineStart(change.firstLine) : 0;
  pending_.firstDirty = std::min(pending_.firstDirty, change.firstLine);
  pending_.lastDirty = std::max(pending_.lastDirty, change.firstLine + change.linesInserted);
}

// Everything was replaced: the view starts over at the caret.
void EditView::NoteNewText() {
  seenWidth_ = 0;
  pending_.all = true;
  pending_.scrollCaret = true;
  pending_.startOver = true;
}

void EditView::NoteLinesShifted(const TextChange& change) {
  const std::int32_t by = change.linesInserted - change.linesRemoved;
  const bool first = pending_.lastDirty < 0 && pending_.shiftBy == 0 && pending_.anchorBy == 0;
  if (!first) {
    pending_.all = true;
  } else if (change.firstLine + change.linesRemoved < FirstVisibleLine()) {
    pending_.anchorBy = by;
  } else {
    pending_.shiftFrom = change.firstLine + change.linesRemoved + 1;
    pending_.shiftBy = by;
  }
}

void EditView::SelectionChanged() {
  selectionUnpublished_ = true;
  Schedule();
}

void EditView::ScrollCaret() {
  pending_.scrollCaret = true;
  Schedule();
}

void EditView::Change() {
  text_.Change();
}

// ---- bringing the screen up to date

void EditView::Schedule() {
  if (!std::exchange(pending_.any, true) && !Frozen()) Post();
}

void EditView::Post() {
  QMetaObject::invokeMethod(this, &EditView::Flush, Qt::QueuedConnection);
}

void EditView::Flush() {
  if (!styleBuilt_) RebuildStyle();
  if (!pending_.any || Frozen() || flushing_) return;
  const Pending pending = std::exchange(pending_, Pending());
  BringUpToDate(pending);
  if (caretMoved) caretMoved();
  if (pending_.any) Post();
}

// What an error leaves undone is painted with the next change.
void EditView::BringUpToDate(const Pending& pending) try {
  const QScopedValueRollback<bool> flushing(flushing_, true);
  if (Composing()) ApplyInset();
  if (pending.startOver) StartOver();
  if (pending.anchorBy != 0) FollowLinesAbove(pending.anchorBy);
  UpdateScrollRanges();
  UpdateChangedRows(pending);
  UpdateSelectionRows(pending.text);
  if (pending.scrollCaret) EnsureCaretVisible();
  UpdateCaret();
  UpdateDecor();
  teller_->CaretMoved();
  updateMicroFocus();
  idleTimer_.start(kIdleMilliseconds, this);
} catch (...) {
  pending_.all = true;
  throw;
}

// The scroll bars' ranges follow the text that shows only from here on: a bar's place would hold on to the
// old one.
void EditView::StartOver() {
  verticalScrollBar()->setValue(0);
  horizontalScrollBar()->setValue(0);
}

// What shows stays where it is on the screen.
void EditView::FollowLinesAbove(std::int32_t by) {
  const std::int32_t wanted = FirstVisibleLine() + by;
  anchoring_ = true;
  verticalScrollBar()->setRange(0, std::max(0, control_.LineCount() - VisibleRows()));
  verticalScrollBar()->setValue(wanted);
  anchoring_ = false;
  if (FirstVisibleLine() != wanted) viewport()->update();  // near the end of the text it cannot stay
}

void EditView::UpdateChangedRows(const Pending& pending) {
  if (pending.all) return viewport()->update();
  if (pending.shiftBy != 0) ShiftRows(pending.shiftFrom, pending.shiftBy);
  UpdateRows(pending.firstDirty, pending.lastDirty, LeftOfChange(pending));
}

// Where the only changed row begins to look different, with room for glyphs that lean over their cell.
int EditView::LeftOfChange(const Pending& pending) {
  if (pending.fromColumn == 0 || !LineShows(pending.firstDirty)) return 0;
  LineLayout& line = layouts_.Line(pending.firstDirty);
  const double x = line.XOf(pending.fromColumn);
  return line.Plain() ? std::max(0, NearPixels(std::floor(TextLeft() + x - 2 * Style().cell))) : 0;
}

// Pixels left of the given place stay as they are.
void EditView::UpdateRows(std::int32_t firstLine, std::int32_t lastLine, int left) {
  const std::int32_t first = std::max(firstLine, FirstVisibleLine());
  const std::int32_t last = std::min(lastLine, FirstVisibleLine() + VisibleRows());
  if (first > last) return;
  viewport()->update(left, RowTop(first), viewport()->width() - left, (last - first + 1) * Style().rowHeight);
}

// Rows below the change are moved on the screen instead of being painted again.
void EditView::ShiftRows(std::int32_t fromLine, std::int32_t by) {
  const int height = viewport()->height();
  const std::int64_t oldTop = static_cast<std::int64_t>(fromLine - FirstVisibleLine()) * Style().rowHeight;
  const std::int64_t newTop = oldTop + static_cast<std::int64_t>(by) * Style().rowHeight;
  const std::int64_t top = std::max<std::int64_t>(0, std::min(oldTop, newTop));
  if (top >= height) return;
  const QRect below(0, static_cast<int>(top), viewport()->width(), height - static_cast<int>(top));
  if (guides_.visible || std::abs(newTop - oldTop) >= height || std::min(oldTop, newTop) < 0) {
    viewport()->update(below);
  } else {
    pictureTimer_.stop();
    viewport()->scroll(0, static_cast<int>(newTop - oldTop), below);
  }
  viewport()->update(0, static_cast<int>(top) - Style().rowHeight, viewport()->width(), Style().rowHeight);
}

EditView::ShownSelection EditView::CurrentSelection() const {
  const Position begin = control_.SelStart();
  const Position end = begin + control_.SelLength();
  const std::int32_t beginLine = control_.LineOf(begin);
  return {begin, end, beginLine, begin == end ? beginLine : control_.LineOf(end)};
}

void EditView::UpdateSelectionRows(bool textChanged) {
  const ShownSelection now = CurrentSelection();
  const ShownSelection old = std::exchange(shown_, now);
  if (now == old || (now.Empty() && old.Empty())) return;
  if (textChanged) return viewport()->update();
  if (now.Empty()) return UpdateRows(old.beginLine, old.endLine);
  if (old.Empty()) return UpdateRows(now.beginLine, now.endLine);
  if (now.begin != old.begin) {
    UpdateRows(std::min(now.beginLine, old.beginLine), std::max(now.beginLine, old.beginLine));
  }
  if (now.end != old.end) UpdateRows(std::min(now.endLine, old.endLine), std::max(now.endLine, old.endLine));
}

void EditView::UpdateCaret() {
  const QRect old = shownCaret_;
  shownCaret_ = CaretWhereItShows();
  viewport()->update(old);
  viewport()->update(shownCaret_);
  RestartBlink();
}

void EditView::UpdateDecor() {
  const std::int32_t line = control_.EM_LINEFROMCHAR(-1);
  if (LineNumbersShown()) {
    gutter_->Show({FirstVisibleLine(), control_.LineCount(), line, control_.SelLength() == 0});
    strip_->Show(line + 1, control_.LineCount());
  }
  if (GuideLinesShown()) MoveGuides();
}

void EditView::MoveGuides() {
  const bool selected = control_.SelLength() != 0;
  if (!hasFocus() && !selected) return;
  GuideLines now;
  const std::int32_t line = control_.LineOf(control_.Caret());
  now.visible = LineShows(line) && !selected;
  if (now.visible) {
    now.line = line;
    now.x = CaretRect().center().x() - TextLeft();
  }
  if (now == guides_) return;
  if (const auto old = ShownGuides()) viewport()->update(old->Area());
  guides_ = now;
  if (const auto shown = ShownGuides()) viewport()->update(shown->Area());
}

std::optional<GuideRects> EditView::ShownGuides() const {
  if (!GuideLinesShown() || !guides_.visible) return std::nullopt;
  return GuideRectsAt(NearPixels(std::round(guides_.x + TextLeft())),
                      RowTop(guides_.line) + Style().rowHeight, viewport()->size());
}

void EditView::UpdateScrollRanges() {
  const int rows = VisibleRows();
  verticalScrollBar()->setRange(0, std::max(0, control_.LineCount() - rows));
  verticalScrollBar()->setPageStep(rows);
  if (LineNumbersShown() && styleBuilt_ &&
      gutter_->WidthFor(control_.LineCount()) != viewportMargins().left())
    LayOutFrame();
  NoteWidth(0);
}

// Beyond the view's edge the width grows in steps, so that typing in a long line does not repaint the scroll
// bar at every key.
void EditView::NoteWidth(double width) {
  if (width > seenWidth_) {
    const double step = 16 * Style().cell;
    seenWidth_ = width > viewport()->width() ? std::ceil(width / step) * step : width;
  }
  const double roomForMark = marks_.CellSize().width() + 2 * Style().cell;
  const double content = kTextMargin + seenWidth_ + roomForMark;
  QScrollBar& bar = *horizontalScrollBar();
  const int most = static_cast<int>(std::clamp(content - viewport()->width(), 0.0, kMostScrolled));
  bar.setRange(0, std::max(most, bar.value() > most ? bar.value() : 0));
  bar.setPageStep(viewport()->width());
  bar.setSingleStep(static_cast<int>(2 * Style().cell));
}

}  // namespace kestri
