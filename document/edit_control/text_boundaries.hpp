// Where the caret may stand and where words begin and end.
#pragma once

#include "document/edit_control/gap_buffer.hpp"
#include "document/edit_control/position.hpp"

namespace kestri {

// Half-width blank, tab, ideographic space.
constexpr bool IsBlank(char32_t character) {
  return character == U' ' || character == U'\t' || character == U'\u3000';
}

enum class WordClass {
  LineEnd,
  Blank,
  Alphanumeric,
  Hiragana,
  Katakana,
  Kanji,
  FullWidthAlphanumeric,
  Other,  // each such character is a word of its own
};
WordClass WordClassOf(char32_t character);

// CR LF, or the halves of a surrogate pair: the caret never stands between the two.
bool IsPair(char16_t left, char16_t right);
bool IsLineEndAt(const GapBuffer& text, Position position);
bool IsInsidePair(const GapBuffer& text, Position position);
char32_t CodePointAt(const GapBuffer& text, Position position);

// One code point or line end further; the text's end and begin stay where they are.
Position NextCodePoint(const GapBuffer& text, Position position);
Position PreviousCodePoint(const GapBuffer& text, Position position);

// The same with combining marks, variation selectors and joined emoji kept together.
Position NextCaretStop(const GapBuffer& text, Position position);
Position PreviousCaretStop(const GapBuffer& text, Position position);

// Start of the next word, or behind the line end here; start of the word left of the position, or before the
// line end.
Position NextWord(const GapBuffer& text, Position position);
Position PreviousWord(const GapBuffer& text, Position position);

}  // namespace kestri
