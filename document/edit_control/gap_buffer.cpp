#include "document/edit_control/gap_buffer.hpp"

#include <functional>
#include <utility>

namespace kestri {

namespace {

constexpr std::size_t kLargestFirstGap = 64 * 1024;  // units; a larger spare capacity is left untouched
constexpr std::size_t kSmallestGrowth = 1024;

}  // namespace

void GapBuffer::Assign(std::u16string text) {
  data_ = std::move(text);
  gapBegin_ = data_.size();
  data_.resize(std::min(data_.capacity(), gapBegin_ + kLargestFirstGap));
  gapEnd_ = data_.size();
}

GapBuffer::Pieces GapBuffer::All() const {
  const std::u16string_view all = data_;
  return {all.substr(0, gapBegin_), all.substr(gapEnd_)};
}

GapBuffer::Pieces GapBuffer::Range(Position begin, Position length) const {
  const auto from = static_cast<std::size_t>(std::clamp(begin, 0, Length()));
  const auto size = std::min(static_cast<std::size_t>(std::max(length, 0)), data_.size() - GapSize() - from);
  const Pieces all = All();
  if (from >= gapBegin_) return {{}, all.second.substr(from - gapBegin_, size)};
  const auto head = all.first.substr(from, size);
  return {head, all.second.substr(0, size - head.size())};
}

std::u16string GapBuffer::Slice(Position begin, Position length) const {
  const Pieces pieces = Range(begin, length);
  std::u16string slice;
  slice.reserve(pieces.first.size() + pieces.second.size());
  return slice.append(pieces.first).append(pieces.second);
}

void GapBuffer::Replace(Position at, Position removed, std::u16string_view inserted) {
  const auto gone = static_cast<std::size_t>(removed);
  EnsureGap(inserted.size() - std::min(inserted.size(), gone));
  const auto begin = static_cast<std::size_t>(at);
  const auto end = begin + gone;
  const std::size_t meeting = std::clamp(gapBegin_, begin, end);
  MoveGap(static_cast<Position>(meeting));
  gapEnd_ += end - meeting;
  gapBegin_ = begin;
  std::u16string::traits_type::copy(data_.data() + gapBegin_, inserted.data(), inserted.size());
  gapBegin_ += inserted.size();
}

void GapBuffer::MoveGap(Position to) {
  const auto target = static_cast<std::size_t>(to);
  char16_t* units = data_.data();
  if (target < gapBegin_) {
    const std::size_t distance = gapBegin_ - target;
    std::u16string::traits_type::move(units + gapEnd_ - distance, units + target, distance);
  } else {
    std::u16string::traits_type::move(units + gapBegin_, units + gapEnd_, target - gapBegin_);
  }
  gapEnd_ = target + GapSize();
  gapBegin_ = target;
}

void GapBuffer::EnsureGap(std::size_t units) {
  if (GapSize() >= units) return;
  const Pieces pieces = All();
  const std::size_t textSize = pieces.first.size() + pieces.second.size();
  const std::size_t gap = units + std::max(kSmallestGrowth, textSize / 8);
  std::u16string grown;
  grown.reserve(textSize + gap);
  grown.append(pieces.first).append(gap, u'\0').append(pieces.second);
  gapEnd_ = gapBegin_ + gap;
  data_ = std::move(grown);
}

bool GapBuffer::Owns(std::u16string_view text) const {
  const std::less<const char16_t*> before;
  return !text.empty() && !before(text.data(), data_.data()) &&
         before(text.data(), data_.data() + data_.size());
}

bool GapBuffer::CheckInvariants() const {
  return gapBegin_ <= gapEnd_ && gapEnd_ <= data_.size();
}

}  // namespace kestri
