#include "ui/line_layout.hpp"

#include <algorithm>
#include <cmath>

#include "ui/control_glyphs.hpp"

namespace kestri {
namespace {

constexpr int kBoundarySteps = 32;

bool ContinuesCharacter(char16_t unit) {
  const QChar c(unit);
  return c.isLowSurrogate() || c.isMark() || unit == 0x200D || (unit >= 0xFE00 && unit <= 0xFE0F);
}

int Cells(char16_t unit) {
  if (unit < 0x300) return 1;
  if (unit <= 0x36F) return 0;
  if (unit >= 0xFF61 && unit <= 0xFF9F) return 1;
  if (unit == 0x200D || unit == 0x3099 || unit == 0x309A) return 0;
  if ((unit >= 0xFE00 && unit <= 0xFE0F) || (unit >= 0xDC00 && unit <= 0xDFFF)) return 0;
  return 2;
}

}  // namespace

double EstimatedWidth(std::u16string_view text, const TextStyle& style) {
  double cells = 0;
  double width = 0;
  for (const char16_t unit : text) {
    if (unit == u'\t') {
      width = (std::floor((width + cells * style.cell) / style.tabWidth) + 1) * style.tabWidth;
      cells = 0;
    } else {
      cells += NeedsBox(unit) ? 2 : Cells(unit);
    }
  }
  return width + cells * style.cell;
}

LineLayout::LineLayout(const EditControl& control, const TextStyle& style, std::int32_t line)
    : control_(control), style_(style), line_(line) {
  segments_ = Split(0, control.LineEnd(line) - control.LineStart(line));
}

std::vector<LineLayout::Segment> LineLayout::Split(Position column, Position length) const {
  std::vector<Segment> result;
  if (length <= kLongLine) {
    result.emplace_back().length = length;
    return result;
  }
  const Position end = column + length;
  while (column < end) {
    const Position cut = end - column <= kLongLine ? end : CleanBoundary(column, column + kSegmentLength);
    Segment& segment = result.emplace_back();
    segment.length = cut - column;
    segment.width = EstimatedWidth(control_.Slice(LineBegin() + column, segment.length), style_);
    column = cut;
  }
  return result;
}

Position LineLayout::CleanBoundary(Position begin, Position column) const {
  Position cut = column;
  for (int step = 0; step < kBoundarySteps && cut > begin + 1; ++step) {
    if (!ContinuesCharacter(control_.At(LineBegin() + cut))) return cut;
    --cut;
  }
  return column;
}

void LineLayout::TextReplaced(Position column, Position removed, Position inserted) {
  const std::size_t first = SegmentOfColumn(column);
  Position offset = column - ColumnBegin(first);
  std::size_t last = first;
  for (Position rest = removed; last < segments_.size(); ++last, offset = 0) {
    Segment& segment = segments_[last];
    const Position taken = std::min(rest, segment.length - offset);
    segment.length -= taken;
    segment.layout.reset();
    rest -= taken;
    if (rest == 0) break;
  }
  segments_[first].length += inserted;
  const auto emptied = [](const Segment& segment) { return segment.length == 0; };
  const auto behind = segments_.begin() + static_cast<std::ptrdiff_t>(first) + 1;
  const auto upTo = segments_.begin() + static_cast<std::ptrdiff_t>(std::min(last + 1, segments_.size()));
  if (behind < upTo) segments_.erase(std::remove_if(behind, upTo, emptied), upTo);
  sumsStale_ = true;
  if (first + 1 < segments_.size() && !segments_[first + 1].layout) EstimateAgain(first + 1);
  if (segments_[first].length > kLongLine) {
    std::vector<Segment> pieces = Split(ColumnBegin(first), segments_[first].length);
    const auto place = segments_.erase(segments_.begin() + static_cast<std::ptrdiff_t>(first));
    segments_.insert(place, std::make_move_iterator(pieces.begin()), std::make_move_iterator(pieces.end()));
  } else {
    EstimateAgain(first);
  }
  sumsStale_ = true;
}

void LineLayout::EstimateAgain(std::size_t index) {
  if (segments_.size() == 1) return;
  const Position begin = LineBegin() + ColumnBegin(index);
  segments_[index].width = EstimatedWidth(control_.Slice(begin, segments_[index].length), style_);
}

void LineLayout::SetInset(Position column, Inset inset) {
  DropInsetLayout();
  inset_ = std::move(inset);
  insetColumn_ = column;
  insetSegment_ = SegmentOfColumn(column);
  DropInsetLayout();
}

void LineLayout::ClearInset() {
  DropInsetLayout();
  inset_ = Inset();
}

void LineLayout::DropInsetLayout() {
  if (insetSegment_ < segments_.size()) segments_[insetSegment_].layout.reset();
}

void LineLayout::Refresh() {
  if (!sumsStale_) return;
  columnBegins_.assign(segments_.size() + 1, 0);
  xBegins_.assign(segments_.size() + 1, 0);
  for (std::size_t i = 0; i < segments_.size(); ++i) {
    columnBegins_[i + 1] = columnBegins_[i] + segments_[i].length;
    xBegins_[i + 1] = xBegins_[i] + segments_[i].width;
  }
  if (!inset_.text.isEmpty()) {
    const auto at = std::lower_bound(columnBegins_.begin() + 1, columnBegins_.end() - 1, insetColumn_);
    insetSegment_ = static_cast<std::size_t>(at - columnBegins_.begin() - 1);
  }
  sumsStale_ = false;
}

Position LineLayout::ColumnBegin(std::size_t index) {
  Refresh();
  return columnBegins_[index];
}

double LineLayout::XBegin(std::size_t index) {
  Refresh();
  return xBegins_[index];
}

// A column on a border belongs to the segment before it.
std::size_t LineLayout::SegmentOfColumn(Position column) {
  Refresh();
  const auto at = std::lower_bound(columnBegins_.begin() + 1, columnBegins_.end() - 1, column);
  return static_cast<std::size_t>(at - columnBegins_.begin() - 1);
}

std::size_t LineLayout::SegmentOfX(double x) {
  Refresh();
  const auto at = std::upper_bound(xBegins_.begin() + 1, xBegins_.end() - 1, x);
  return static_cast<std::size_t>(at - xBegins_.begin() - 1);
}

int LineLayout::DisplayOffset(std::size_t index, Position offset, Side side) const {
  if (inset_.text.isEmpty() || index != insetSegment_) return offset;
  const Position at = insetColumn_ - columnBegins_[index];
  const bool behind = offset > at || (offset == at && side == Side::AfterInset);
  return behind ? offset + static_cast<int>(inset_.text.size()) : offset;
}

Position LineLayout::TextOffset(std::size_t index, int displayOffset) const {
  if (inset_.text.isEmpty() || index != insetSegment_) return displayOffset;
  const Position at = insetColumn_ - columnBegins_[index];
  const int size = static_cast<int>(inset_.text.size());
  if (displayOffset <= at) return displayOffset;
  return std::max(at, displayOffset - size);
}

QString LineLayout::DisplayedText(std::size_t index, std::vector<Mark>& marks) const {
  const std::u16string units = control_.Slice(LineBegin() + columnBegins_[index], segments_[index].length);
  QString text = QString::fromUtf16(units.data(), static_cast<qsizetype>(units.size()));
  for (int i = 0; i < text.size(); ++i) {
    const char16_t unit = text[i].unicode();
    if (NeedsBox(unit)) {
      marks.push_back({DisplayOffset(index, i, Side::AfterInset), unit});
      text[i] = QChar(kIdeographicSpace);
    }
  }
  return text;
}

LineLayout::Segment& LineLayout::LaidOut(std::size_t index) {
  Segment& segment = segments_[index];
  if (!segment.layout) LayOut(segment, index);
  return segment;
}

void LineLayout::LayOut(Segment& segment, std::size_t index) {
  Refresh();
  segment.marks.clear();
  QString text = DisplayedText(index, segment.marks);
  QList<QTextLayout::FormatRange> formats;
  if (!inset_.text.isEmpty() && index == insetSegment_) {
    const int at = insetColumn_ - columnBegins_[index];
    text.insert(at, inset_.text);
    formats = inset_.formats;
    for (auto& range : formats) range.start += at;
  }
  segment.layout = LayOutText(text, formats, style_);
  const double width = segment.layout->Width();
  if (std::abs(width - segment.width) > 0.01) {
    segment.width = width;
    sumsStale_ = true;
    moved_ = moved_ || index + 1 < segments_.size();
  }
}

double LineLayout::XOf(Position column) {
  const std::size_t index = SegmentOfColumn(column);
  const LaidOutText& layout = *LaidOut(index).layout;
  return XBegin(index) + layout.XOf(DisplayOffset(index, column - ColumnBegin(index)));
}

double LineLayout::XInInset(int offset) {
  Refresh();
  if (inset_.text.isEmpty()) return XOf(insetColumn_);
  const LaidOutText& layout = *LaidOut(insetSegment_).layout;
  return XBegin(insetSegment_) + layout.XOf(insetColumn_ - ColumnBegin(insetSegment_) + offset);
}

Position LineLayout::ColumnAt(double x) {
  std::size_t index = SegmentOfX(x);
  LaidOut(index);
  while (index + 1 < segments_.size() && x >= XBegin(index + 1)) LaidOut(++index);
  const int place = segments_[index].layout->OffsetAt(x - XBegin(index));
  return ColumnBegin(index) + std::clamp(TextOffset(index, place), 0, segments_[index].length);
}

double LineLayout::Width() {
  if (segments_.size() == 1) LaidOut(0);
  return XBegin(segments_.size());
}

std::size_t LineLayout::LaidOutCount() const {
  return static_cast<std::size_t>(std::count_if(
      segments_.begin(), segments_.end(), [](const Segment& segment) { return segment.layout != nullptr; }));
}

std::vector<std::pair<double, double>> LineLayout::SegmentSpans(std::size_t index, int begin, int end) {
  auto spans = LaidOut(index).layout->Spans(begin, end);
  const double x = XBegin(index);
  for (auto& span : spans) span = {x + span.first, x + span.second};
  return spans;
}

std::vector<std::pair<double, double>> LineLayout::Spans(Position begin, Position end) {
  std::vector<std::pair<double, double>> spans;
  for (std::size_t index = SegmentOfColumn(begin); index < segments_.size() && ColumnBegin(index) < end;
       ++index) {
    const Position from = std::max(begin, ColumnBegin(index)) - ColumnBegin(index);
    const Position to = std::min(end, ColumnBegin(index + 1)) - ColumnBegin(index);
    const auto more =
        SegmentSpans(index, DisplayOffset(index, from, Side::AfterInset), DisplayOffset(index, to));
    spans.insert(spans.end(), more.begin(), more.end());
  }
  return spans;
}

void LineLayout::Draw(QPainter& painter, const LinePaint& paint) {
  for (std::size_t index = SegmentOfX(paint.left); index < segments_.size(); ++index) {
    if (XBegin(index) > paint.right) break;
    LaidOut(index);
    DrawSegment(painter, paint, index);
  }
}

void LineLayout::DrawSegment(QPainter& painter, const LinePaint& paint, std::size_t index) {
  const Segment& segment = segments_[index];
  const Position begin = ColumnBegin(index);
  const Position from = std::clamp(paint.selectionBegin - begin, 0, segment.length);
  const Position to = std::clamp(paint.selectionEnd - begin, 0, segment.length);
  const double x = XBegin(index);
  TextPaint part{.origin = paint.origin + QPointF(x, 0),
                 .left = paint.left - x,
                 .right = paint.right - x,
                 .selectionBegin = 0,
                 .selectionEnd = 0,
                 .fore = paint.fore,
                 .selectionFore = paint.selectionFore};
  if (from < to) {
    part.selectionBegin = DisplayOffset(index, from, Side::AfterInset);
    part.selectionEnd = DisplayOffset(index, to);
    for (const auto& [x0, x1] : segment.layout->Spans(part.selectionBegin, part.selectionEnd)) {
      painter.fillRect(QRectF(part.origin.x() + x0, part.origin.y(), x1 - x0, style_.rowHeight),
                       paint.selectionBack);
    }
  }
  segment.layout->Draw(painter, part);
  DrawMarks(painter, paint, segment, part.origin.x());
}

void LineLayout::DrawMarks(QPainter& painter, const LinePaint& paint, const Segment& segment,
                           double x) const {
  for (const Mark& mark : segment.marks) {
    const double from = segment.layout->XOf(mark.offset);
    const double to = segment.layout->XOf(mark.offset + 1);
    const QRectF cell(x + std::min(from, to), paint.origin.y(), std::abs(to - from), style_.rowHeight);
    painter.setFont(style_.font);
    DrawBox(painter, cell, mark.unit, paint.mark);
  }
}

}  // namespace kestri
