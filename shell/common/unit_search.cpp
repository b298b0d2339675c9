#include "shell/common/unit_search.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace kestri::unit_search {
namespace {

bool Equals(const char16_t* at, std::u16string_view find) {
  return std::memcmp(at, find.data(), find.size() * sizeof(char16_t)) == 0;
}

#if defined(__SSE2__)

constexpr std::size_t kBlock = 16;

__m128i EqualUnits(const char16_t* at, __m128i pattern) {
  return _mm_cmpeq_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at)), pattern);
}

// Places where a text begins and ends as the find text does; only those are compared as a whole.
class Ends {
 public:
  explicit Ends(std::u16string_view find)
      : span_(find.size() - 1),
        first_(_mm_set1_epi16(static_cast<std::int16_t>(find.front()))),
        last_(_mm_set1_epi16(static_cast<std::int16_t>(find.back()))) {}

  // One bit a unit of the block at `at`.
  unsigned Candidates(const char16_t* at) const {
    const __m128i low = _mm_and_si128(EqualUnits(at, first_), EqualUnits(at + span_, last_));
    const __m128i high = _mm_and_si128(EqualUnits(at + 8, first_), EqualUnits(at + 8 + span_, last_));
    return static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(low, high)));
  }

 private:
  std::size_t span_;
  __m128i first_;
  __m128i last_;
};

#endif

}  // namespace

std::size_t Find(std::u16string_view text, std::u16string_view find, std::size_t from) {
  if (from > text.size() || find.size() > text.size() - from) return npos;
  if (find.empty()) return from;
  const char16_t* const begin = text.data();
  const std::size_t places = text.size() - find.size() + 1;
  std::size_t at = from;
#if defined(__SSE2__)
  const Ends ends(find);
  for (; places - at >= kBlock; at += kBlock) {
    for (unsigned mask = ends.Candidates(begin + at); mask != 0; mask &= mask - 1) {
      const std::size_t hit = at + static_cast<std::size_t>(std::countr_zero(mask));
      if (Equals(begin + hit, find)) return hit;
    }
  }
#endif
  for (; at < places; ++at) {
    if (begin[at] == find.front() && Equals(begin + at, find)) return at;
  }
  return npos;
}

std::size_t FindLast(std::u16string_view text, std::u16string_view find, std::size_t end) {
  end = std::min(end, text.size());
  if (find.size() > end) return npos;
  if (find.empty()) return end;
  const char16_t* const begin = text.data();
  std::size_t places = end - find.size() + 1;
#if defined(__SSE2__)
  const Ends ends(find);
  for (; places >= kBlock; places -= kBlock) {
    const std::size_t block = places - kBlock;
    for (unsigned mask = ends.Candidates(begin + block); mask != 0;) {
      const auto bit = static_cast<unsigned>(std::bit_width(mask)) - 1;
      if (Equals(begin + block + bit, find)) return block + bit;
      mask ^= 1U << bit;
    }
  }
#endif
  while (places > 0) {
    --places;
    if (begin[places] == find.front() && Equals(begin + places, find)) return places;
  }
  return npos;
}

}  // namespace kestri::unit_search
