#include "ui/word_bounds.hpp"

#include <QChar>
#include <algorithm>

#include "document/edit_control/text_boundaries.hpp"

namespace kestri {
namespace {

char32_t CharacterAt(const EditControl& control, Position position) {
  const char16_t unit = control.At(position);
  const char16_t next = control.At(position + 1);
  return QChar::isHighSurrogate(unit) && QChar::isLowSurrogate(next) ? QChar::surrogateToUcs4(unit, next)
                                                                     : unit;
}

bool GoesOn(const EditControl& control, Position left, Position right) {
  const char32_t character = CharacterAt(control, right);
  if (QChar::isMark(character)) return true;
  const WordClass here = WordClassOf(character);
  return here != WordClass::Other && here == WordClassOf(CharacterAt(control, left));
}

}  // namespace

Position OffSurrogate(const EditControl& control, Position position) {
  const bool between =
      QChar::isLowSurrogate(control.At(position)) && QChar::isHighSurrogate(control.At(position - 1));
  return between ? position - 1 : position;
}

std::pair<Position, Position> WordBounds(const EditControl& control, Position position) {
  const std::int32_t line = control.LineOf(position);
  const Position lineBegin = control.LineStart(line);
  const Position lineEnd = control.LineEnd(line);
  if (lineBegin == lineEnd) return {lineBegin, lineBegin};
  Position begin = OffSurrogate(control, std::clamp(position, lineBegin, lineEnd - 1));
  const auto next = [&](Position at) { return at + (CharacterAt(control, at) > 0xFFFF ? 2 : 1); };
  const auto previous = [&](Position at) { return OffSurrogate(control, at - 1); };
  Position last = begin;
  while (begin > lineBegin && GoesOn(control, previous(begin), begin)) begin = previous(begin);
  Position end = next(last);
  while (end < lineEnd && GoesOn(control, last, end)) {
    last = end;
    end = next(end);
  }
  return {begin, end};
}

}  // namespace kestri
