#include "ui/shaped_text.hpp"

#include <QTextOption>
#include <algorithm>

namespace kestri {
namespace {

constexpr double kUnlimitedWidth = 1 << 24;

bool WritesRightToLeft(QStringView text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) {
    return c.unicode() >= 0x590 && (c.direction() == QChar::DirR || c.direction() == QChar::DirAL);
  });
}

QTextOption LineOption(const TextStyle& style) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  option.setTextDirection(Qt::LeftToRight);
  option.setTabStopDistance(style.tabWidth);
  option.setFlags(QTextOption::IncludeTrailingSpaces);
  return option;
}

}  // namespace

ShapedText::ShapedText(const QString& text, const QList<QTextLayout::FormatRange>& formats,
                       const TextStyle& style)
    : layout_(text, style.font), mixedDirections_(WritesRightToLeft(text)) {
  layout_.setTextOption(LineOption(style));
  layout_.setCacheEnabled(true);
  layout_.setFormats(formats);
  layout_.beginLayout();
  QTextLine line = layout_.createLine();
  if (line.isValid()) {
    line.setLineWidth(kUnlimitedWidth);
    line.setPosition(QPointF(0, style.baseline - line.ascent()));
  }
  layout_.endLayout();
}

double ShapedText::XOf(int offset) const {
  const QTextLine line = Line();
  return line.isValid() ? line.cursorToX(offset) : 0;
}

// The caret place nearest to x in a line that runs left to right. QTextLine::xToCursor misses the place
// behind a character of several units that is shown as one.
int ShapedText::NearestPlace(double x) const {
  int left = 0;
  for (int right = Line().textLength(); left < right;) {
    const int middle = (left + right + 1) / 2;
    XOf(middle) <= x ? left = middle : right = middle - 1;
  }
  if (!layout_.isValidCursorPosition(left)) left = layout_.previousCursorPosition(left);
  const int next = layout_.nextCursorPosition(left);
  return x - XOf(left) <= XOf(next) - x ? left : next;
}

int ShapedText::OffsetAt(double x) const {
  if (!Line().isValid()) return 0;
  const int place = mixedDirections_ ? Line().xToCursor(x) : NearestPlace(x);
  return layout_.isValidCursorPosition(place) ? place : layout_.previousCursorPosition(place);
}

std::vector<std::pair<double, double>> ShapedText::Spans(int begin, int end) const {
  std::vector<std::pair<double, double>> spans;
  const QTextLine line = Line();
  if (begin >= end || !line.isValid()) return spans;
  if (!mixedDirections_) return {{line.cursorToX(begin), line.cursorToX(end)}};
  for (int at = begin; at < end;) {
    const int next = std::max(at + 1, layout_.nextCursorPosition(at));
    const double from = line.cursorToX(at, QTextLine::Leading);
    const double to = line.cursorToX(at, QTextLine::Trailing);
    spans.emplace_back(std::min(from, to), std::max(from, to));
    at = next;
  }
  return spans;
}

void ShapedText::Draw(QPainter& painter, const TextPaint& paint) const {
  QList<QTextLayout::FormatRange> selections;
  if (paint.selectionBegin < paint.selectionEnd) {
    QTextLayout::FormatRange range;
    range.start = paint.selectionBegin;
    range.length = paint.selectionEnd - paint.selectionBegin;
    range.format.setForeground(paint.selectionFore);
    selections.append(range);
  }
  painter.setPen(paint.fore);
  layout_.draw(&painter, paint.origin, selections);
}

}  // namespace kestri
