// One line of the text, laid out for painting and for finding positions. Lines above kLongLine characters are
// cut into segments: only those in view are laid out, the others stand with a width estimated from cells.
// Columns count UTF-16 units from the line's start; x is in pixels from the line's left edge.
#pragma once

#include <QList>
#include <QPainter>
#include <QString>
#include <QTextLayout>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "document/edit_control/edit_control.hpp"
#include "ui/laid_out_text.hpp"
#include "ui/text_style.hpp"

namespace kestri {

inline constexpr Position kLongLine = 512;  // also the most that one segment grows to
inline constexpr Position kSegmentLength = 256;

// Text of the input method, shown in the line without being part of it.
struct Inset {
  QString text;
  QList<QTextLayout::FormatRange> formats;  // positions within text
};

struct LinePaint {
  QPointF origin;   // of the line's left edge and the row's top
  double left = 0;  // part of the line that shows
  double right = 0;
  Position selectionBegin = 0;  // columns; empty when equal
  Position selectionEnd = 0;
  QColor fore;
  QColor selectionFore;
  QColor selectionBack;
  QColor mark;
};

class LineLayout {
 public:
  LineLayout(const EditControl& control, const TextStyle& style, std::int32_t line);

  std::int32_t Line() const { return line_; }
  void MoveTo(std::int32_t line) { line_ = line; }  // lines were put in or taken away above
  // A replacement inside this line, after it happened in the control.
  void TextReplaced(Position column, Position removed, Position inserted);
  void SetInset(Position column, Inset inset);
  void ClearInset();

  double XOf(Position column);
  double XInInset(int offset);  // of a place in the inset's text
  Position ColumnAt(double x);  // the nearest caret position
  double Width();               // exact for what was laid out
  void Draw(QPainter& painter, const LinePaint& paint);
  // Horizontal extents of the columns [begin, end), several where writing directions mix.
  std::vector<std::pair<double, double>> Spans(Position begin, Position end);

  // True once after a segment turned out wider or narrower than its estimate: what stands right of it moved.
  bool TakeMoved() { return std::exchange(moved_, false); }
  // Whether the line is laid out in one piece, of plain text.
  bool Plain() const { return segments_.size() == 1 && segments_[0].layout && segments_[0].layout->Plain(); }
  std::size_t SegmentCount() const { return segments_.size(); }
  std::size_t LaidOutCount() const;

 private:
  struct Mark {
    int offset;     // in the displayed text
    char16_t unit;  // the character that stands there
  };
  struct Segment {
    Position length = 0;
    double width = 0;
    std::unique_ptr<LaidOutText> layout;
    std::vector<Mark> marks;
  };

  Position LineBegin() const { return control_.LineStart(line_); }
  std::vector<Segment> Split(Position column, Position length) const;
  Position CleanBoundary(Position begin, Position column) const;
  void EstimateAgain(std::size_t index);
  Segment& LaidOut(std::size_t index);
  void LayOut(Segment& segment, std::size_t index);
  QString DisplayedText(std::size_t index, std::vector<Mark>& marks) const;
  void Refresh();  // the running sums below
  std::size_t SegmentOfColumn(Position column);
  std::size_t SegmentOfX(double x);
  Position ColumnBegin(std::size_t index);
  double XBegin(std::size_t index);
  enum class Side { BeforeInset, AfterInset };  // where a column at the inset itself is shown
  int DisplayOffset(std::size_t index, Position offset, Side side = Side::BeforeInset) const;
  Position TextOffset(std::size_t index, int displayOffset) const;
  void DropInsetLayout();
  std::vector<std::pair<double, double>> SegmentSpans(std::size_t index, int begin, int end);
  void DrawSegment(QPainter& painter, const LinePaint& paint, std::size_t index);
  void DrawMarks(QPainter& painter, const LinePaint& paint, const Segment& segment, double x) const;

  const EditControl& control_;
  const TextStyle& style_;
  std::int32_t line_;
  std::vector<Segment> segments_;
  std::vector<Position> columnBegins_;  // one more than segments
  std::vector<double> xBegins_;
  bool sumsStale_ = true;
  bool moved_ = false;
  Inset inset_;
  Position insetColumn_ = 0;
  std::size_t insetSegment_ = 0;
};

// Estimated width of a text in pixels: cells of one or two, tabs to the next stop.
double EstimatedWidth(std::u16string_view text, const TextStyle& style);

}  // namespace kestri
