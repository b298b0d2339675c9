// Text whose characters each have a glyph of the font and stand alone: nearly every line of every page. It is
// set glyph by glyph, which takes a tenth of the time of shaping.
#pragma once

#include "ui/laid_out_text.hpp"

namespace kestri {

class PlainText : public LaidOutText {
 public:
  // Null when a character joins or stands over others, or when the font has no glyph for it.
  static std::unique_ptr<PlainText> Of(const QString& text, const TextStyle& style);

  double XOf(int offset) const override;
  int OffsetAt(double x) const override;
  double Width() const override { return places_.back(); }
  std::vector<std::pair<double, double>> Spans(int begin, int end) const override;
  bool Plain() const override { return true; }
  void Draw(QPainter& painter, const TextPaint& paint) const override;

 private:
  explicit PlainText(const TextStyle& style) : glyphs_(style.glyphs), baseline_(style.baseline) {}
  bool Set(const QString& text, double tabWidth);
  int OffsetLeftOf(double x) const;
  void DrawGlyphs(QPainter& painter, QPointF baseline, int begin, int end, const QColor& color) const;

  std::shared_ptr<GlyphTable> glyphs_;
  double baseline_;               // from the row's top
  std::vector<quint32> indexes_;  // 0 where nothing is drawn
  std::vector<double> places_;    // left edges, and the right end
};

}  // namespace kestri
