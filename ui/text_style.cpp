#include "ui/text_style.hpp"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace kestri {
namespace {

constexpr int kTabCells = 8;
constexpr int kRowGap = 2;  // pixels between the descent of one row and the ascent of the next

}  // namespace

TextStyle MakeTextStyle(const QFont& font) {
  const QFontMetricsF metrics(font);
  TextStyle style;
  style.font = font;
  style.glyphs = std::make_shared<GlyphTable>(font);
  style.cell = std::max(1.0, metrics.horizontalAdvance(QLatin1Char(' ')));
  style.digit = std::max(1.0, metrics.horizontalAdvance(QLatin1Char('0')));
  style.tabWidth = style.cell * kTabCells;
  style.baseline = std::ceil(metrics.ascent()) + kRowGap / 2.0;
  style.rowHeight = static_cast<int>(std::ceil(metrics.ascent()) + std::ceil(metrics.descent())) + kRowGap;
  return style;
}

int EvenPixelSize(double points, double dotsPerInch) {
  const double pixels = points * dotsPerInch / 72.0;
  return std::max(2, static_cast<int>(std::lround(pixels / 2.0)) * 2);
}

}  // namespace kestri
