// The marks behind the text of a line: the return glyph, and "[EOF]" on the last line.
#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPixmap>
#include <string_view>

namespace kestri {

inline constexpr QColor kLineEndColor{120, 120, 255};

// Cells of the mark picture in pixels: "[EOF]" at column 0, the return glyph at column 30.
inline constexpr int kMarkWidth = 27;
inline constexpr int kMarkHeight = 13;
inline constexpr int kReturnColumn = 30;

enum class LineEndMark { EndOfFile, Return };

// Marks need a fixed pitch: a font whose name holds the full-width letter "Ｐ" has none.
bool FontAllowsLineEndMarks(std::u16string_view fontName);

class LineEndMarks {
 public:
  // EofMarkType 0 is an angled arrow, every other value a stroke with a barb on each side. Drawn once for the
  // screen's pixel ratio; larger fonts get larger cells, so that the marks keep their proportion to the text.
  void BuildMarkImage(const QFont& textFont, int eofMarkType, double devicePixelRatio);
  void Draw(QPainter& painter, double x, int rowTop, int rowHeight, LineEndMark mark) const;
  QSizeF CellSize() const { return QSizeF(kMarkWidth * scale_, kMarkHeight * scale_); }
  const QPixmap& Picture() const { return picture_; }
  double DevicePixelRatio() const { return devicePixelRatio_; }  // 0 before the first picture

 private:
  QPixmap picture_;
  double scale_ = 1;
  double devicePixelRatio_ = 0;
};

}  // namespace kestri
