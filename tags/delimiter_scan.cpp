#include "tags/delimiter_scan.hpp"

#include <algorithm>
#include <cstddef>

namespace kestri {
namespace {

constexpr std::size_t kBlock =
    64;  // units told empty in one go, in a loop that the compiler turns into vectors

struct Either {
  char16_t one;
  char16_t other;

  bool Matches(char16_t c) const { return c == one || c == other; }
  bool InBlock(const char16_t* text) const {
    unsigned found = 0;
    for (std::size_t i = 0; i < kBlock; ++i) {
      found |= static_cast<unsigned>(text[i] == one) | static_cast<unsigned>(text[i] == other);
    }
    return found != 0;
  }
};

constexpr std::size_t kNone = std::u16string_view::npos;

std::size_t FirstIn(std::u16string_view text, const Either& either) {
  std::size_t at = 0;
  while (at + kBlock <= text.size() && !either.InBlock(text.data() + at)) at += kBlock;
  while (at < text.size() && !either.Matches(text[at])) ++at;
  return at < text.size() ? at : kNone;
}

std::size_t LastIn(std::u16string_view text, const Either& either) {
  std::size_t end = text.size();
  while (end >= kBlock && !either.InBlock(text.data() + end - kBlock)) end -= kBlock;
  while (end > 0 && !either.Matches(text[end - 1])) --end;
  return end > 0 ? end - 1 : kNone;
}

// The part of a piece that lies in [begin, end) of the whole text; offset is where the piece starts there.
struct Part {
  std::u16string_view text;
  Position at = 0;
};

Part Clip(std::u16string_view piece, Position offset, Position begin, Position end) {
  const Position size = static_cast<Position>(piece.size());
  const Position from = std::clamp(begin - offset, 0, size);
  const Position to = std::clamp(end - offset, from, size);
  return {piece.substr(static_cast<std::size_t>(from), static_cast<std::size_t>(to - from)), offset + from};
}

Position InWhole(const Part& part, std::size_t hit) {
  return hit == kNone ? -1 : part.at + static_cast<Position>(hit);
}

}  // namespace

Position FirstOfEither(const EditControl& control, char16_t one, char16_t other, Position from) {
  const Either either{one, other};
  const std::u16string_view head = control.FirstPiece();
  const Part first = Clip(head, 0, from, control.Length());
  const Position hit = InWhole(first, FirstIn(first.text, either));
  if (hit >= 0) return hit;
  const Part second = Clip(control.SecondPiece(), static_cast<Position>(head.size()), from, control.Length());
  return InWhole(second, FirstIn(second.text, either));
}

Position LastOfEither(const EditControl& control, char16_t one, char16_t other, Position end,
                      Position begin) {
  const Either either{one, other};
  const std::u16string_view head = control.FirstPiece();
  const Part second = Clip(control.SecondPiece(), static_cast<Position>(head.size()), begin, end);
  const Position hit = InWhole(second, LastIn(second.text, either));
  if (hit >= 0) return hit;
  const Part first = Clip(head, 0, begin, end);
  return InWhole(first, LastIn(first.text, either));
}

}  // namespace kestri
