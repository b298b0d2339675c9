// A piece of a line, laid out: where its characters stand and how they are drawn. Offsets count UTF-16 units
// from the piece's start; x is in pixels from its left edge.
#pragma once

#include <QColor>
#include <QList>
#include <QPainter>
#include <QPointF>
#include <QString>
#include <QTextLayout>
#include <memory>
#include <utility>
#include <vector>

#include "ui/text_style.hpp"

namespace kestri {

struct TextPaint {
  QPointF origin;   // of the piece's left edge and the row's top
  double left = 0;  // part of the piece that shows; what lies outside may be left out
  double right = 0;
  int selectionBegin = 0;  // offsets; empty when equal
  int selectionEnd = 0;
  QColor fore;
  QColor selectionFore;
};

class LaidOutText {
 public:
  LaidOutText() = default;
  LaidOutText(const LaidOutText&) = delete;
  LaidOutText& operator=(const LaidOutText&) = delete;
  virtual ~LaidOutText() = default;

  virtual double XOf(int offset) const = 0;
  virtual int OffsetAt(double x) const = 0;  // the nearest caret place
  virtual double Width() const = 0;
  // Extents of the characters [begin, end), several where writing directions mix.
  virtual std::vector<std::pair<double, double>> Spans(int begin, int end) const = 0;
  // Whether an edit leaves what stands left of it as it was.
  virtual bool Plain() const = 0;
  virtual void Draw(QPainter& painter, const TextPaint& paint) const = 0;
};

// Formats make a text shaped whatever its characters are.
std::unique_ptr<LaidOutText> LayOutText(const QString& text, const QList<QTextLayout::FormatRange>& formats,
                                        const TextStyle& style);

}  // namespace kestri
