// Where lines start. Starts behind an edit are not rewritten one by one: they share one pending step, which
// is worked off only as far as the next edit is away. Inserted starts go into a gap, as the text does.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "document/edit_control/gap_buffer.hpp"
#include "document/edit_control/position.hpp"

namespace kestri {

class LineIndex {
 public:
  void Rebuild(const GapBuffer& text);

  std::int32_t LineCount() const { return static_cast<std::int32_t>(Count()) + 1; }
  Position LineStart(std::int32_t line) const {  // the line exists
    return line == 0 ? 0 : StartAt(static_cast<std::size_t>(line) - 1);
  }
  std::int32_t LineOf(Position position) const;

  // Room for the starts that putting in the text can make.
  static std::size_t MostStarts(std::u16string_view inserted);
  // Replacements that make no more starts than this throw nothing. When there is no memory for them nothing
  // has changed.
  void Reserve(std::size_t starts) { EnsureGap(starts); }

  // Follows a replacement that the text has already seen.
  void Replaced(const GapBuffer& text, Position at, Position removed, Position inserted);

  // Brings gap and step to a line, so that the next line end put in there is cheap.
  void PrepareAt(std::int32_t line);

  bool Agrees(const LineIndex& other) const;

 private:
  std::size_t GapSize() const { return gapEnd_ - gapBegin_; }
  std::size_t Count() const { return starts_.size() - GapSize(); }
  Position StartAt(std::size_t index) const {
    const Position stored = starts_[index < gapBegin_ ? index : index + GapSize()];
    return index < stepIndex_ ? stored : stored + step_;
  }
  std::size_t FirstStartAfter(Position position) const;
  void AddToStored(std::size_t begin, std::size_t end, Position delta);
  void MoveStep(std::size_t index);
  void MoveGap(std::size_t index);
  void EnsureGap(std::size_t count);
  void Append(std::u16string_view piece, Position origin);

  std::vector<Position> starts_;  // of every line but the first
  std::size_t gapBegin_ = 0;
  std::size_t gapEnd_ = 0;
  std::size_t stepIndex_ = 0;  // from this start on, step_ is still to be added
  Position step_ = 0;
};

}  // namespace kestri
