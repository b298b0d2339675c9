// A double click selects the word at the caret.
#include "document/main_text.hpp"

namespace kestri {

// The caret stands between two characters; the search runs left from the one before it and right from the one
// behind it. At the line's first column the clicked character counts as the one before.
void MainText::SelectWord() {
  if (control_.SelLength() != 0) return;
  const std::u16string breaks = state_.trpString + u"\t " + kIdeographicSpace;
  const auto isBreak = [&](Position position) {
    return breaks.find(control_.At(position)) != std::u16string::npos;
  };
  const Position caret = control_.SelStart();
  const std::int32_t line = control_.LineOf(caret);
  const Position lineStart = control_.LineStart(line);
  const Position lineEnd = control_.LineEnd(line);
  if (lineStart == lineEnd) return;

  const Position split = caret == lineStart ? caret + 1 : caret;
  Position left = split;
  while (left > lineStart && !isBreak(left - 1)) --left;
  Position right = split;
  while (right < lineEnd && !isBreak(right)) ++right;
  if (right > left) EM_SETSEL(left, right);
}

}  // namespace kestri
