#include "document/edit_control/line_index.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace kestri {

namespace {

constexpr std::size_t kSmallestGap = 1024;
constexpr std::size_t kChunk = 64 * 1024;  // units indexed between two looks at the room left
constexpr std::size_t kLargestLeap = 4;    // times the starts found so far; the rest of a text may be sparser

constexpr std::size_t kBlock = 16;

// One bit a unit of the block: set where it is a line feed.
std::uint32_t LineFeeds(const char16_t* units) {
#if defined(__SSE2__)
  const __m128i wanted = _mm_set1_epi16(u'\n');
  const auto* block = reinterpret_cast<const __m128i*>(units);
  const __m128i low = _mm_cmpeq_epi16(_mm_loadu_si128(block), wanted);
  const __m128i high = _mm_cmpeq_epi16(_mm_loadu_si128(block + 1), wanted);
  return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(low, high)));
#else
  std::uint32_t mask = 0;
  for (std::size_t i = 0; i < kBlock; ++i) mask |= std::uint32_t{units[i] == u'\n'} << i;
  return mask;
#endif
}

// Writes the position behind each CR LF that begins in the text and ends in it. Returns behind the last one
// written.
Position* WriteStarts(std::u16string_view text, Position origin, Position* out) {
  const char16_t* units = text.data();
  std::size_t i = 1;
  for (; i + kBlock <= text.size(); i += kBlock) {
    for (std::uint32_t mask = LineFeeds(units + i); mask != 0; mask &= mask - 1) {
      const std::size_t at = i + static_cast<std::size_t>(std::countr_zero(mask));
      *out = origin + static_cast<Position>(at) + 1;
      out += units[at - 1] == u'\r';
    }
  }
  for (; i < text.size(); ++i) {
    if (units[i] == u'\n' && units[i - 1] == u'\r') *out++ = origin + static_cast<Position>(i) + 1;
  }
  return out;
}

// Writes the starts that a replacement made: those of line ends with at least one inserted unit in them, or
// joined at its place. The pieces hold one unit more on either side.
Position* WriteStartsAround(const GapBuffer::Pieces& around, Position begin, Position* out) {
  const auto& [first, second] = around;
  out = WriteStarts(first, begin, out);
  const Position border = begin + static_cast<Position>(first.size());
  if (!first.empty() && !second.empty() && first.back() == u'\r' && second.front() == u'\n')
    *out++ = border + 1;
  return WriteStarts(second, border, out);
}

std::size_t CountLineFeeds(std::u16string_view text) {
  std::size_t count = 0;
  std::size_t i = 0;
  for (; i + kBlock <= text.size(); i += kBlock) {
    count += static_cast<std::size_t>(std::popcount(LineFeeds(text.data() + i)));
  }
  return count + static_cast<std::size_t>(
                     std::count(text.begin() + static_cast<std::ptrdiff_t>(i), text.end(), u'\n'));
}

}  // namespace

void LineIndex::Rebuild(const GapBuffer& text) {
  starts_ = {};
  gapBegin_ = gapEnd_ = stepIndex_ = 0;
  step_ = 0;
  const auto [first, second] = text.All();
  Append(first, 0);
  const auto border = static_cast<Position>(first.size());
  if (text.At(border - 1) == u'\r' && text.At(border) == u'\n') {
    EnsureGap(1);
    starts_[gapBegin_++] = border + 1;
  }
  Append(second, border);
  EnsureGap(kSmallestGap);
  stepIndex_ = Count();
}

void LineIndex::Append(std::u16string_view piece, Position origin) {
  for (std::size_t begin = 0; begin < piece.size(); begin += kChunk) {
    const auto chunk = piece.substr(begin, kChunk + 1);  // one more: a line end may lie across
    const std::size_t most = chunk.size() / 2 + 1;
    if (GapSize() < most) {
      const std::size_t expected = begin == 0 ? 0 : Count() * ((piece.size() - begin) / begin + 1);
      EnsureGap(std::max(most, std::min(expected, kLargestLeap * Count())));
    }
    Position* out = starts_.data() + gapBegin_;
    const Position* end = WriteStarts(chunk, origin + static_cast<Position>(begin), out);
    gapBegin_ += static_cast<std::size_t>(end - out);
  }
}

std::size_t LineIndex::FirstStartAfter(Position position) const {
  std::size_t low = 0;
  std::size_t high = Count();
  while (low < high) {
    const std::size_t middle = (low + high) / 2;
    if (StartAt(middle) > position) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return low;
}

std::int32_t LineIndex::LineOf(Position position) const {
  return static_cast<std::int32_t>(FirstStartAfter(position));
}

std::size_t LineIndex::MostStarts(std::u16string_view inserted) {
  constexpr std::size_t kBesides = 2;  // a line feed on either side
  constexpr std::size_t kScratch = 1;  // behind the last start, see WriteStarts
  return CountLineFeeds(inserted) + kBesides + kScratch;
}

void LineIndex::Replaced(const GapBuffer& text, Position at, Position removed, Position inserted) {
  const Position around = std::max(at - 1, 0);
  const GapBuffer::Pieces pieces = text.Range(around, at + inserted + 1 - around);
  const std::size_t lineFeeds = CountLineFeeds(pieces.first) + CountLineFeeds(pieces.second);
  EnsureGap(lineFeeds + 1);
  const std::size_t begin = FirstStartAfter(at);
  const std::size_t end = FirstStartAfter(at + removed + 1);
  MoveStep(end);
  step_ += inserted - removed;
  if (begin == end && lineFeeds == 0) return;
  MoveGap(begin);
  gapEnd_ += end - begin;
  const Position* last = WriteStartsAround(pieces, around, starts_.data() + gapBegin_);
  gapBegin_ = static_cast<std::size_t>(last - starts_.data());
  stepIndex_ = gapBegin_;
}

void LineIndex::PrepareAt(std::int32_t line) {
  const auto index = static_cast<std::size_t>(line);
  EnsureGap(kSmallestGap);
  MoveGap(index);
  MoveStep(index);
}

bool LineIndex::Agrees(const LineIndex& other) const {
  if (LineCount() != other.LineCount()) return false;
  for (std::int32_t line = 0; line < LineCount(); ++line) {
    if (LineStart(line) != other.LineStart(line)) return false;
  }
  return true;
}

void LineIndex::AddToStored(std::size_t begin, std::size_t end, Position delta) {
  const std::size_t border = std::clamp(gapBegin_, begin, end);
  for (std::size_t i = begin; i < border; ++i) starts_[i] += delta;
  for (std::size_t i = border + GapSize(); i < end + GapSize(); ++i) starts_[i] += delta;
}

void LineIndex::MoveStep(std::size_t index) {
  if (step_ == 0) {
    stepIndex_ = index;
  } else if (index >= stepIndex_) {
    AddToStored(stepIndex_, index, step_);
    stepIndex_ = index;
  } else if (stepIndex_ - index <= Count() - stepIndex_) {
    AddToStored(index, stepIndex_, -step_);
    stepIndex_ = index;
  } else {
    AddToStored(stepIndex_, Count(), step_);
    stepIndex_ = index;
    step_ = 0;
  }
}

void LineIndex::MoveGap(std::size_t index) {
  const auto units = starts_.begin();
  const auto at = [&](std::size_t i) { return units + static_cast<std::ptrdiff_t>(i); };
  if (index < gapBegin_) {
    std::move_backward(at(index), at(gapBegin_), at(gapEnd_));
  } else {
    std::move(at(gapEnd_), at(index + GapSize()), at(gapBegin_));
  }
  gapEnd_ = index + GapSize();
  gapBegin_ = index;
}

void LineIndex::EnsureGap(std::size_t count) {
  if (GapSize() >= count) return;
  const std::size_t gap = count + std::max(kSmallestGap, Count() / 8);
  std::vector<Position> grown;
  grown.reserve(Count() + gap);
  const auto gapAt = starts_.begin() + static_cast<std::ptrdiff_t>(gapBegin_);
  grown.insert(grown.end(), starts_.begin(), gapAt);
  grown.resize(gapBegin_ + gap);
  grown.insert(grown.end(), gapAt + static_cast<std::ptrdiff_t>(GapSize()), starts_.end());
  gapEnd_ = gapBegin_ + gap;
  starts_ = std::move(grown);
}

}  // namespace kestri
