// The text frame's left edge: five-digit line numbers, the mark of the caret's line, and above it the
// position text.
#pragma once

#include <QFont>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <string>

#include "ui/text_style.hpp"

namespace kestri {

inline constexpr QColor kLineNumberColor{120, 120, 120};
inline constexpr QColor kCurrentLineNumberColor{255, 0, 0};

// " 7 / 120": both numbers count from 1.
std::u16string PositionText(std::int32_t line, std::int32_t lineCount);
// Line 7 is "00007"; numbers above 99999 keep all their digits.
std::u16string LineNumberText(std::int32_t line);
int LineNumberDigits(std::int32_t lineCount);

struct GutterState {
  std::int32_t firstLine = 0;  // zero-based, of the first row
  std::int32_t lineCount = 1;
  std::int32_t caretLine = 0;  // zero-based
  bool markShown = true;       // hidden while a selection is open
  bool operator==(const GutterState&) const = default;
};

class Gutter : public QWidget {
  Q_OBJECT
 public:
  explicit Gutter(QWidget* parent);

  std::function<void(std::int32_t line, bool extend)> linePressed;  // zero-based
  std::function<void(std::int32_t line)> lineDragged;

  void SetStyle(const TextStyle& style);
  int WidthFor(std::int32_t lineCount) const;
  // Repaints what changed: the rows of the old and new caret line, all of them when the first line changed.
  void Show(const GutterState& state);
  void RepaintRowsAround(std::int32_t caretLine);  // the line, its neighbours and the last line
  const GutterState& State() const { return state_; }
  int RowsPainted() const { return rowsPainted_; }  // since construction

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void RepaintRow(std::int32_t line);
  void PaintRow(QPainter& painter, int row);
  std::int32_t LineAt(int y) const;

  TextStyle style_;
  GutterState state_;
  int rowsPainted_ = 0;
};

// A thin strip above the text.
class PositionStrip : public QWidget {
  Q_OBJECT
 public:
  explicit PositionStrip(QWidget* parent);

  void SetStyle(const TextStyle& style);
  int StripHeight() const { return height_; }
  void Show(std::int32_t line, std::int32_t lineCount);  // both count from 1
  const QString& Text() const { return text_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  int height_ = 16;
};

}  // namespace kestri
