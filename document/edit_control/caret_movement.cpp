#include "document/edit_control/caret_movement.hpp"

#include <algorithm>

#include "document/edit_control/text_boundaries.hpp"

namespace kestri {

namespace {

constexpr std::int32_t kPageLines = 20;  // without a view
constexpr int kTabCells = 8;

constexpr bool IsNarrow(char32_t character) {
  return character < 0x80 || (character >= 0xFF61 && character <= 0xFF9F);
}

int CellAfter(int cell, char32_t character) {
  if (character == U'\t') return (cell / kTabCells + 1) * kTabCells;
  return cell + (IsNarrow(character) ? 1 : 2);
}

}  // namespace

Position LineEndOf(const GapBuffer& text, const LineIndex& lines, std::int32_t line) {
  return line + 1 < lines.LineCount() ? lines.LineStart(line + 1) - 2 : text.Length();
}

double CellMetrics::XOf(Position position) {
  int cell = 0;
  for (Position p = lines_.LineStart(lines_.LineOf(position)); p < position; p = NextCaretStop(text_, p)) {
    cell = CellAfter(cell, CodePointAt(text_, p));
  }
  return cell;
}

Position CellMetrics::PositionAt(std::int32_t line, double x) {
  const Position end = LineEndOf(text_, lines_, line);
  int cell = 0;
  Position position = lines_.LineStart(line);
  while (position < end) {
    const int next = CellAfter(cell, CodePointAt(text_, position));
    if (x - cell <= next - x) break;
    cell = next;
    position = NextCaretStop(text_, position);
  }
  return position;
}

std::int32_t CellMetrics::PageLines() {
  return kPageLines;
}

Position CaretMovement::Target(Position caret, EditKey key, bool byWord) {
  const std::int32_t line = lines_.LineOf(caret);
  switch (key) {
    case EditKey::Left:
      return byWord ? PreviousWord(text_, caret) : PreviousCaretStop(text_, caret);
    case EditKey::Right:
      return byWord ? NextWord(text_, caret) : NextCaretStop(text_, caret);
    case EditKey::Up:
      return Vertical(caret, -1);
    case EditKey::Down:
      return Vertical(caret, 1);
    case EditKey::Home:
      return byWord ? 0 : lines_.LineStart(line);
    case EditKey::End:
      return byWord ? text_.Length() : LineEndOf(text_, lines_, line);
    case EditKey::PageUp:
      return Vertical(caret, -std::int64_t{Metrics().PageLines()});
    case EditKey::PageDown:
      return Vertical(caret, Metrics().PageLines());
    case EditKey::Delete:
      break;
  }
  return caret;
}

Position CaretMovement::Vertical(Position caret, std::int64_t lines) {
  const std::int32_t line = lines_.LineOf(caret);
  const auto target =
      static_cast<std::int32_t>(std::clamp<std::int64_t>(line + lines, 0, lines_.LineCount() - 1));
  if (!goalX_) goalX_ = Metrics().XOf(caret);
  return target == line ? caret : Metrics().PositionAt(target, *goalX_);
}

}  // namespace kestri
