#include "document/edit_control/text_boundaries.hpp"

#include <iterator>

namespace kestri {

namespace {

constexpr char32_t kZeroWidthJoiner = 0x200D;

constexpr bool IsHighSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}
constexpr bool IsLowSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

struct CharacterRange {
  char32_t first;
  char32_t last;
  WordClass wordClass;
};
constexpr CharacterRange kWordRanges[] = {
    {U'0', U'9', WordClass::Alphanumeric},
    {U'A', U'Z', WordClass::Alphanumeric},
    {U'_', U'_', WordClass::Alphanumeric},
    {U'a', U'z', WordClass::Alphanumeric},
    {0x3005, 0x3007, WordClass::Kanji},  // repetition mark, closing mark, zero
    {0x3041, 0x3096, WordClass::Hiragana},
    {0x309D, 0x309F, WordClass::Hiragana},
    {0x30A1, 0x30FA, WordClass::Katakana},
    {0x30FC, 0x30FF, WordClass::Katakana},
    {0x31F0, 0x31FF, WordClass::Katakana},
    {0x3400, 0x4DBF, WordClass::Kanji},
    {0x4E00, 0x9FFF, WordClass::Kanji},
    {0xF900, 0xFAFF, WordClass::Kanji},
    {0xFF10, 0xFF19, WordClass::FullWidthAlphanumeric},
    {0xFF21, 0xFF3A, WordClass::FullWidthAlphanumeric},
    {0xFF3F, 0xFF3F, WordClass::FullWidthAlphanumeric},
    {0xFF41, 0xFF5A, WordClass::FullWidthAlphanumeric},
    {0xFF66, 0xFF9F, WordClass::Katakana},  // half-width, with the voiced marks
    {0x20000, 0x3FFFF, WordClass::Kanji},
};

// Marks that stand with the character before them.
constexpr bool Extends(char32_t c) {
  return (c >= 0x0300 && c <= 0x036F) || c == 0x3099 || c == 0x309A || (c >= 0x20D0 && c <= 0x20FF) ||
         (c >= 0xFE00 && c <= 0xFE0F) || (c >= 0xFE20 && c <= 0xFE2F) || (c >= 0x1F3FB && c <= 0x1F3FF) ||
         (c >= 0xE0100 && c <= 0xE01EF) || c == kZeroWidthJoiner;
}

constexpr bool IsPictograph(char32_t c) {
  return (c >= 0x2190 && c <= 0x2BFF) || (c >= 0x1F000 && c <= 0x1FAFF);
}

// No stop between what ends at the position and what begins there.
bool Attached(const GapBuffer& text, Position position) {
  if (position <= 0 || position >= text.Length()) return false;
  const Position previous = PreviousCodePoint(text, position);
  if (IsLineEndAt(text, previous)) return false;
  const char32_t here = CodePointAt(text, position);
  return Extends(here) || (CodePointAt(text, previous) == kZeroWidthJoiner && IsPictograph(here));
}

WordClass WordClassAt(const GapBuffer& text, Position position) {
  return IsLineEndAt(text, position) ? WordClass::LineEnd : WordClassOf(CodePointAt(text, position));
}

Position SkipForward(const GapBuffer& text, Position position, WordClass wordClass) {
  while (position < text.Length() && WordClassAt(text, position) == wordClass) {
    position = NextCaretStop(text, position);
  }
  return position;
}

Position SkipBackward(const GapBuffer& text, Position position, WordClass wordClass) {
  while (position > 0) {
    const Position previous = PreviousCaretStop(text, position);
    if (WordClassAt(text, previous) != wordClass) break;
    position = previous;
  }
  return position;
}

}  // namespace

WordClass WordClassOf(char32_t character) {
  if (IsBlank(character)) return WordClass::Blank;
  const auto* range = std::find_if(std::begin(kWordRanges), std::end(kWordRanges),
                                   [&](const CharacterRange& r) { return character <= r.last; });
  return range != std::end(kWordRanges) && character >= range->first ? range->wordClass : WordClass::Other;
}

bool IsLineEndAt(const GapBuffer& text, Position position) {
  return text.At(position) == u'\r' && text.At(position + 1) == u'\n';
}

bool IsPair(char16_t left, char16_t right) {
  return (left == u'\r' && right == u'\n') || (IsHighSurrogate(left) && IsLowSurrogate(right));
}

bool IsInsidePair(const GapBuffer& text, Position position) {
  return IsPair(text.At(position - 1), text.At(position));
}

char32_t CodePointAt(const GapBuffer& text, Position position) {
  const char16_t unit = text.At(position);
  const char16_t next = text.At(position + 1);
  if (!IsHighSurrogate(unit) || !IsLowSurrogate(next)) return unit;
  return 0x10000 + ((char32_t{unit} & 0x3FF) << 10) + (char32_t{next} & 0x3FF);
}

Position NextCodePoint(const GapBuffer& text, Position position) {
  if (position >= text.Length()) return text.Length();
  return IsInsidePair(text, position + 1) ? position + 2 : position + 1;
}

Position PreviousCodePoint(const GapBuffer& text, Position position) {
  if (position <= 1) return 0;
  return IsInsidePair(text, position - 1) ? position - 2 : position - 1;
}

Position NextCaretStop(const GapBuffer& text, Position position) {
  do position = NextCodePoint(text, position);
  while (Attached(text, position));
  return position;
}

Position PreviousCaretStop(const GapBuffer& text, Position position) {
  do position = PreviousCodePoint(text, position);
  while (Attached(text, position));
  return position;
}

Position NextWord(const GapBuffer& text, Position position) {
  const WordClass here = WordClassAt(text, position);
  if (here == WordClass::LineEnd) return NextCodePoint(text, position);
  const Position end =
      here == WordClass::Other ? NextCaretStop(text, position) : SkipForward(text, position, here);
  return SkipForward(text, end, WordClass::Blank);
}

Position PreviousWord(const GapBuffer& text, Position position) {
  const Position wordEnd = SkipBackward(text, position, WordClass::Blank);
  const Position last = PreviousCaretStop(text, wordEnd);
  const WordClass left = WordClassAt(text, last);
  if (left == WordClass::LineEnd) return wordEnd < position ? wordEnd : last;
  return left == WordClass::Other ? last : SkipBackward(text, wordEnd, left);
}

}  // namespace kestri
