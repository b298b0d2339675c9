#include "shell/common/text_compare.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "shell/common/text_fold.hpp"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace kestri::text_compare {
namespace {

using text_fold::Character;
using text_fold::FoldAt;

constexpr std::size_t kBlock = 16;

// The folded units of a text, one at a time.
template <Character FoldCharacter(const char16_t*, const char16_t*)>
class UnitsOf {
 public:
  explicit UnitsOf(std::u16string_view text) : at_(text.data()), end_(at_ + text.size()) {}

  // False at the end of the text.
  bool Next(char16_t& unit) {
    if (used_ == character_.count && !NextCharacter()) return false;
    unit = character_.units[used_++];
    return true;
  }

 private:
  bool NextCharacter() {
    do {
      if (at_ == end_) return false;
      character_ = FoldCharacter(at_, end_);
      at_ += character_.taken;
    } while (character_.count == 0);
    used_ = 0;
    return true;
  }

  const char16_t* at_;
  const char16_t* end_;
  Character character_{{}, 0, 0};
  std::size_t used_ = 0;
};

template <typename Units>
int CompareUnits(Units left, Units right) {
  for (;;) {
    char16_t leftUnit = 0;
    char16_t rightUnit = 0;
    const bool leftGoesOn = left.Next(leftUnit);
    const bool rightGoesOn = right.Next(rightUnit);
    if (!leftGoesOn || !rightGoesOn) return leftGoesOn - rightGoesOn;
    if (leftUnit != rightUnit) return leftUnit < rightUnit ? -1 : 1;
  }
}

// Length in the text of a hit of the folded find text, or npos.
std::size_t MatchFolded(const char16_t* at, const char16_t* end, std::u16string_view folded) {
  const char16_t* const begin = at;
  while (!folded.empty()) {
    if (at == end) return npos;
    const Character character = FoldAt(at, end);
    const bool startsWithNothing = character.count == 0 && at == begin;
    if (startsWithNothing || !folded.starts_with({character.units.data(), character.count})) return npos;
    folded.remove_prefix(character.count);
    at += character.taken;
  }
  return static_cast<std::size_t>(at - begin);
}

bool IsInsideCharacter(std::u16string_view text, std::size_t position) {
  return position > 0 && position < text.size() &&
         text_fold::FoldVoiced(text[position - 1], text[position]) != 0;
}

bool EqualInCase(char16_t left, char16_t right) {
  return left == right || text_fold::FoldCase(left) == text_fold::FoldCase(right);
}

}  // namespace

Needle::Needle(std::u16string_view find) {
  UnitsOf<FoldAt> units(find);
  for (char16_t unit = 0; units.Next(unit);) folded_ += unit;
  if (folded_.empty()) return;
  firstUnits_[firstUnitCount_++] = folded_[0];
  for (const text_fold::FoldSource& source : text_fold::kFoldSources.Of(folded_[0])) {
    firstUnits_.at(firstUnitCount_++) = source.unit;
  }
}

std::size_t Needle::MatchPrefix(std::u16string_view text) const {
  return MatchFolded(text.data(), text.data() + text.size(), folded_);
}

std::size_t Needle::HitLengthAt(std::u16string_view text, std::size_t position) const {
  return IsInsideCharacter(text, position) ? npos : MatchPrefix(text.substr(position));
}

// One bit a unit of the block at `at`: set where a hit may begin.
unsigned Needle::Candidates(const char16_t* at) const {
#if defined(__SSE2__)
  const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
  const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + 8));
  __m128i lowHits = _mm_setzero_si128();
  __m128i highHits = _mm_setzero_si128();
  for (std::size_t i = 0; i < firstUnitCount_; ++i) {
    const __m128i first = _mm_set1_epi16(static_cast<std::int16_t>(firstUnits_[i]));
    lowHits = _mm_or_si128(lowHits, _mm_cmpeq_epi16(low, first));
    highHits = _mm_or_si128(highHits, _mm_cmpeq_epi16(high, first));
  }
  return static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(lowHits, highHits)));
#else
  unsigned mask = 0;
  for (std::size_t place = 0; place < kBlock; ++place) {
    const char16_t* const last = firstUnits_.data() + firstUnitCount_;
    mask |= static_cast<unsigned>(std::find(firstUnits_.data(), last, at[place]) != last) << place;
  }
  return mask;
#endif
}

Hit Needle::Find(std::u16string_view text, std::size_t from) const {
  if (from > text.size()) return {};
  if (folded_.empty()) return {from, 0};
  std::size_t at = from;
  for (; text.size() - at >= kBlock; at += kBlock) {
    for (unsigned mask = Candidates(text.data() + at); mask != 0; mask &= mask - 1) {
      const std::size_t position = at + static_cast<std::size_t>(std::countr_zero(mask));
      const std::size_t length = HitLengthAt(text, position);
      if (length != npos) return {position, length};
    }
  }
  for (; at < text.size(); ++at) {
    const std::size_t length = HitLengthAt(text, at);
    if (length != npos) return {at, length};
  }
  return {};
}

Hit Needle::FindLast(std::u16string_view text, std::size_t end) const {
  end = std::min(end, text.size());
  if (folded_.empty()) return {end, 0};
  const auto hitLength = [&](std::size_t position) {
    const std::size_t length = HitLengthAt(text, position);
    return length == npos || length > end - position ? npos : length;
  };
  std::size_t at = end;
  for (; at >= kBlock; at -= kBlock) {
    const std::size_t block = at - kBlock;
    for (unsigned mask = Candidates(text.data() + block); mask != 0;) {
      const auto bit = static_cast<unsigned>(std::bit_width(mask)) - 1;
      const std::size_t length = hitLength(block + bit);
      if (length != npos) return {block + bit, length};
      mask ^= 1U << bit;
    }
  }
  while (at-- > 0) {
    const std::size_t length = hitLength(at);
    if (length != npos) return {at, length};
  }
  return {};
}

std::size_t MatchPrefix(std::u16string_view text, std::u16string_view find) {
  return Needle(find).MatchPrefix(text);
}

Hit Find(std::u16string_view text, std::u16string_view find, std::size_t from) {
  return Needle(find).Find(text, from);
}

Hit FindLast(std::u16string_view text, std::u16string_view find, std::size_t end) {
  return Needle(find).FindLast(text, end);
}

int Compare(std::u16string_view left, std::u16string_view right) {
  return CompareUnits(UnitsOf<FoldAt>(left), UnitsOf<FoldAt>(right));
}

bool EqualIgnoringCase(std::u16string_view left, std::u16string_view right) {
  using Units = UnitsOf<text_fold::FoldCaseAt>;
  return CompareUnits(Units(left), Units(right)) == 0;
}

bool StartsWithIgnoringCase(std::u16string_view text, std::u16string_view prefix) {
  return text.size() >= prefix.size() && std::equal(prefix.begin(), prefix.end(), text.begin(), EqualInCase);
}

}  // namespace kestri::text_compare
