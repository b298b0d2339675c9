#include "document/lossy_characters.hpp"

#include <algorithm>
#include <optional>
#include <utility>

#include "shell/common/code_page.hpp"
#include "shell/common/unit_search.hpp"

namespace kestri {
namespace {

constexpr std::size_t kCodePoints = 0x110000;

bool IsHigh(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}

bool IsLow(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

char32_t CharacterAt(const EditControl& control, Position position) {
  const char16_t unit = control.At(position);
  const char16_t next = control.At(position + 1);
  if (!IsHigh(unit) || !IsLow(next)) return unit;
  return 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (char32_t{next} - 0xDC00);
}

class Collector {
 public:
  explicit Collector(const EditControl& control) : control_(control) {}

  // A pair may begin in one piece and end in the next.
  void Take(std::u16string_view piece, std::size_t start) {
    std::size_t from = next_ > start ? next_ - start : 0;
    while ((from = code_page::FindUnmappable(piece, from)) != piece.npos) {
      from += Note(static_cast<Position>(start + from));
      next_ = start + from;
    }
  }
  std::vector<LossyCharacter> Finish() { return std::move(found_); }

 private:
  // Returns the character's length in units.
  std::size_t Note(Position position) {
    if (seen_.empty()) seen_.resize(kCodePoints);
    const char32_t character = CharacterAt(control_, position);
    if (!seen_[character]) found_.push_back({character, position});
    seen_[character] = true;
    return character < 0x10000 ? 1 : 2;
  }

  const EditControl& control_;
  std::size_t next_ = 0;
  std::vector<bool> seen_;
  std::vector<LossyCharacter> found_;
};

// A file with this in it counts as no text any more.
std::optional<LossyCharacter> FirstEndOfFileMark(const EditControl& control) {
  const char16_t mark = kEndOfFileMark;
  const std::u16string_view first = control.FirstPiece();
  std::size_t at = unit_search::Find(first, {&mark, 1});
  if (at == unit_search::npos) {
    at = unit_search::Find(control.SecondPiece(), {&mark, 1});
    if (at == unit_search::npos) return std::nullopt;
    at += first.size();
  }
  return LossyCharacter{mark, static_cast<Position>(at)};
}

}  // namespace

std::vector<LossyCharacter> LossyCharacters(const EditControl& control) {
  Collector collector(control);
  collector.Take(control.FirstPiece(), 0);
  collector.Take(control.SecondPiece(), control.FirstPiece().size());
  std::vector<LossyCharacter> found = collector.Finish();
  if (const auto mark = FirstEndOfFileMark(control)) {
    const auto behind = [&mark](const LossyCharacter& one) { return one.position > mark->position; };
    found.insert(std::find_if(found.begin(), found.end(), behind), *mark);
  }
  return found;
}

}  // namespace kestri
