// Where the arrow and page keys take the caret.
#pragma once

#include <optional>

#include "document/edit_control/edit_control.hpp"
#include "document/edit_control/gap_buffer.hpp"
#include "document/edit_control/line_index.hpp"

namespace kestri {

// Widths in cells, for a control without a view.
class CellMetrics : public ColumnMetrics {
 public:
  CellMetrics(const GapBuffer& text, const LineIndex& lines) : text_(text), lines_(lines) {}
  double XOf(Position position) override;
  Position PositionAt(std::int32_t line, double x) override;
  std::int32_t PageLines() override;

 private:
  const GapBuffer& text_;
  const LineIndex& lines_;
};

class CaretMovement {
 public:
  CaretMovement(const GapBuffer& text, const LineIndex& lines)
      : text_(text), lines_(lines), cells_(text, lines) {}

  void SetMetrics(ColumnMetrics* metrics) { metrics_ = metrics; }
  Position Target(Position caret, EditKey key, bool byWord);
  // The column that Up and Down keep is taken anew at the next of them.
  void ForgetColumn() { goalX_.reset(); }

 private:
  Position Vertical(Position caret, std::int64_t lines);
  ColumnMetrics& Metrics() { return metrics_ ? *metrics_ : cells_; }

  const GapBuffer& text_;
  const LineIndex& lines_;
  CellMetrics cells_;
  ColumnMetrics* metrics_ = nullptr;
  std::optional<double> goalX_;
};

Position LineEndOf(const GapBuffer& text, const LineIndex& lines, std::int32_t line);  // before its CR LF

}  // namespace kestri
