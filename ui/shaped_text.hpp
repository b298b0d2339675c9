// Text that the toolkit shapes: characters that join, stand over each other, come from another font or run
// from right to left, and text with formats.
#pragma once

#include "ui/laid_out_text.hpp"

namespace kestri {

class ShapedText : public LaidOutText {
 public:
  ShapedText(const QString& text, const QList<QTextLayout::FormatRange>& formats, const TextStyle& style);

  double XOf(int offset) const override;
  int OffsetAt(double x) const override;
  double Width() const override { return XOf(static_cast<int>(layout_.text().size())); }
  std::vector<std::pair<double, double>> Spans(int begin, int end) const override;
  bool Plain() const override { return false; }
  void Draw(QPainter& painter, const TextPaint& paint) const override;

 private:
  QTextLine Line() const { return layout_.lineAt(0); }
  int NearestPlace(double x) const;

  QTextLayout layout_;
  bool mixedDirections_;
};

}  // namespace kestri
