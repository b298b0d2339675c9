// What decides how a line of text is laid out: font, cells, rows. Lengths are logical pixels.
#pragma once

#include <QFont>
#include <memory>

#include "ui/glyph_table.hpp"

namespace kestri {

struct TextStyle {
  QFont font;
  std::shared_ptr<GlyphTable> glyphs;  // of the font; never null in a style that was made
  double cell = 8;                     // advance of a half-width blank
  double digit = 8;                    // advance of "0"
  double tabWidth = 64;                // eight cells
  double baseline = 12;                // from the row's top
  int rowHeight = 16;
};

TextStyle MakeTextStyle(const QFont& font);

// Pixels of a point size, rounded to an even number so that a half-width character is exactly half a
// full-width one.
int EvenPixelSize(double points, double dotsPerInch);

}  // namespace kestri
