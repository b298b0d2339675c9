#include "document/edit_control/text_search.hpp"

#include <algorithm>
#include <optional>

#include "shell/common/text_compare.hpp"
#include "shell/common/unit_search.hpp"

namespace kestri {

namespace {

using Hit = text_compare::Hit;

class Searcher {
 public:
  Searcher(std::u16string_view find, Compare compare) : find_(find) {
    if (compare == Compare::Text) needle_.emplace(find);
  }
  Hit First(std::u16string_view text, Position from) const {
    const auto begin = static_cast<std::size_t>(from);
    return needle_ ? needle_->Find(text, begin) : Hit{unit_search::Find(text, find_, begin), find_.size()};
  }
  Hit Last(std::u16string_view text, Position end) const {
    const auto before = static_cast<std::size_t>(end);
    return needle_ ? needle_->FindLast(text, before)
                   : Hit{unit_search::FindLast(text, find_, before), find_.size()};
  }

 private:
  std::u16string_view find_;
  std::optional<text_compare::Needle> needle_;
};

// A copy of what lies around the gap, wide enough for every hit that has one foot on either side. With text
// compare a hit may take two units for one and hold soft hyphens; it also depends on the units beside it.
struct Border {
  static constexpr Position kSlack = 32;

  Border(const GapBuffer& text, std::u16string_view find) {
    const auto gap = static_cast<Position>(text.All().first.size());
    const auto reach = 2 * static_cast<Position>(find.size()) + kSlack;
    begin = std::max(gap - reach, 0);
    copy = text.Slice(begin, gap - begin + reach);
    const Position end = begin + static_cast<Position>(copy.size());
    sureBegin = begin > 0 ? begin + 1 : 0;
    sureEnd = end < text.Length() ? end - 1 : end;
  }

  Position begin;
  Position sureBegin;  // hits that begin before this or end behind sureEnd miss a neighbour
  Position sureEnd;
  std::u16string copy;
};

Position PlaceOf(const Hit& hit, Position origin) {
  return hit.position == text_compare::npos ? kNoHit : origin + static_cast<Position>(hit.position);
}

}  // namespace

Position FindFirst(const GapBuffer& text, std::u16string_view find, Position from, Compare compare) {
  const auto [first, second] = text.All();
  const auto gap = static_cast<Position>(first.size());
  const Border border(text, find);
  const Searcher searcher(find, compare);
  if (from < border.sureBegin) {
    const Position place = PlaceOf(searcher.First(first, from), 0);
    if (place != kNoHit && place < border.sureBegin) return place;
  }
  if (from <= gap) {
    const Position start = std::max(from, border.sureBegin) - border.begin;
    const Position place = PlaceOf(searcher.First(border.copy, start), border.begin);
    if (place != kNoHit && place <= gap) return place;
  }
  return PlaceOf(searcher.First(second, std::max(from - gap, 1)), gap);
}

Position FindLast(const GapBuffer& text, std::u16string_view find, Position end, Compare compare) {
  const auto [first, second] = text.All();
  const auto gap = static_cast<Position>(first.size());
  const Border border(text, find);
  const Searcher searcher(find, compare);
  if (end > gap) {
    const Position place = PlaceOf(searcher.Last(second, end - gap), gap);
    if (place > gap) return place;
  }
  if (end > border.begin) {
    const Position within = std::min(end, border.sureEnd) - border.begin;
    const Position place = PlaceOf(searcher.Last(border.copy, within), border.begin);
    if (place >= border.sureBegin) return place;
  }
  return PlaceOf(searcher.Last(first, std::max(std::min(end, gap - 1), 0)), 0);
}

}  // namespace kestri
