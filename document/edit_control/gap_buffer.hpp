// The text's storage: one std::u16string with a gap of unused units in it. An edit at the gap costs what it
// inserts; elsewhere the gap first moves there, which costs the distance.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "document/edit_control/position.hpp"

namespace kestri {

class GapBuffer {
 public:
  // Takes the storage over. Spare capacity becomes the gap, so a caller that reserves some saves a later
  // copy.
  void Assign(std::u16string text);

  Position Length() const { return static_cast<Position>(data_.size() - GapSize()); }
  char16_t At(Position position) const {  // U+0000 outside
    if (position < 0 || position >= Length()) return 0;
    const auto index = static_cast<std::size_t>(position);
    return data_[index < gapBegin_ ? index : index + GapSize()];
  }

  struct Pieces {
    std::u16string_view first;
    std::u16string_view second;
  };
  Pieces All() const;
  Pieces Range(Position begin, Position length) const;  // clamped
  std::u16string Slice(Position begin, Position length) const;

  // Both are within the text; inserted does not point into this buffer. The gap then stands behind what was
  // inserted. Throws nothing when the gap and what is removed leave room for it; otherwise it may, with the
  // text as it was.
  void Replace(Position at, Position removed, std::u16string_view inserted);

  void MoveGap(Position to);
  void EnsureGap(std::size_t units);  // copies everything when there is less
  std::size_t GapSize() const { return gapEnd_ - gapBegin_; }
  bool Owns(std::u16string_view text) const;
  bool CheckInvariants() const;

 private:
  std::u16string data_;
  std::size_t gapBegin_ = 0;
  std::size_t gapEnd_ = 0;
};

}  // namespace kestri
