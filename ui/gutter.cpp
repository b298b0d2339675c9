#include "ui/gutter.hpp"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "platform/qt/qt_text.hpp"
#include "shell/common/text.hpp"
#include "ui/line_rows.hpp"

namespace kestri {
namespace {

constexpr int kDigits = 5;
constexpr int kEdge = 3;       // pixels left of the numbers
constexpr int kMarkSpace = 9;  // pixels right of them, for the caret line's mark

}  // namespace

std::u16string PositionText(std::int32_t line, std::int32_t lineCount) {
  return u" " + ToText(line) + u" / " + ToText(lineCount);
}

std::u16string LineNumberText(std::int32_t line) {
  return FormatZeros(line, kDigits);
}

int LineNumberDigits(std::int32_t lineCount) {
  return std::max(kDigits, Len(ToText(lineCount)));
}

Gutter::Gutter(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::ArrowCursor);
}

void Gutter::SetStyle(const TextStyle& style) {
  style_ = style;
  update();
}

int Gutter::WidthFor(std::int32_t lineCount) const {
  return static_cast<int>(std::ceil(style_.digit * LineNumberDigits(lineCount))) + kEdge + kMarkSpace;
}

void Gutter::RepaintRow(std::int32_t line) {
  const std::int32_t row = line - state_.firstLine;
  if (row < 0 || row > height() / style_.rowHeight) return;
  update(0, row * style_.rowHeight, width(), style_.rowHeight);
}

void Gutter::RepaintRowsAround(std::int32_t caretLine) {
  for (std::int32_t line = caretLine - 1; line <= caretLine + 1; ++line) RepaintRow(line);
  RepaintRow(state_.lineCount - 1);
}

void Gutter::Show(const GutterState& state) {
  if (state == state_) return;
  const GutterState old = std::exchange(state_, state);
  const int scrolled = RowTopOf(old.firstLine, state.firstLine, style_.rowHeight);
  if (scrolled != 0) std::abs(scrolled) < height() ? scroll(0, scrolled) : update();
  if (old.caretLine != state.caretLine || old.markShown != state.markShown) {
    RepaintRow(old.caretLine);
    RepaintRow(state.caretLine);
  }
  if (old.lineCount != state.lineCount) {
    const auto [fewer, more] = std::minmax(old.lineCount, state.lineCount);
    const int top = std::max(0, RowTopOf(fewer, state.firstLine, style_.rowHeight));
    const int bottom = RowTopOf(more, state.firstLine, style_.rowHeight);
    if (top < height() && bottom > top) update(0, top, width(), height() - top);
  }
}

void Gutter::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), palette().color(QPalette::Window));
  painter.setFont(style_.font);
  const int first = event->rect().top() / style_.rowHeight;
  const int last = event->rect().bottom() / style_.rowHeight;
  for (int row = first; row <= last && state_.firstLine + row < state_.lineCount; ++row)
    PaintRow(painter, row);
}

void Gutter::PaintRow(QPainter& painter, int row) {
  ++rowsPainted_;
  const std::int32_t line = state_.firstLine + row;
  const bool current = line == state_.caretLine;
  const int top = row * style_.rowHeight;
  painter.setPen(current ? kCurrentLineNumberColor : kLineNumberColor);
  painter.drawText(QPointF(kEdge, top + style_.baseline), ToQt(LineNumberText(line + 1)));
  if (!current || !state_.markShown) return;
  const double middle = top + style_.rowHeight / 2.0;
  const double right = width() - 2;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kCurrentLineNumberColor);
  painter.drawPolygon(
      QPolygonF({QPointF(right - 5, middle - 4), QPointF(right, middle), QPointF(right - 5, middle + 4)}));
  painter.setRenderHint(QPainter::Antialiasing, false);
}

std::int32_t Gutter::LineAt(int y) const {
  const int row = static_cast<int>(std::floor(static_cast<double>(y) / style_.rowHeight));
  return std::clamp(state_.firstLine + row, 0, state_.lineCount - 1);
}

void Gutter::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !linePressed) return;
  linePressed(LineAt(event->position().toPoint().y()), event->modifiers().testFlag(Qt::ShiftModifier));
}

void Gutter::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton) && lineDragged)
    lineDragged(LineAt(event->position().toPoint().y()));
}

PositionStrip::PositionStrip(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void PositionStrip::SetStyle(const TextStyle& style) {
  QFont small = style.font;
  small.setPixelSize(std::clamp(style.font.pixelSize() - 4, 10, 16));
  setFont(small);
  height_ = static_cast<int>(std::ceil(QFontMetricsF(small).height())) + 3;
  update();
}

void PositionStrip::Show(std::int32_t line, std::int32_t lineCount) {
  QString text = ToQt(PositionText(line, lineCount));
  if (text == text_) return;
  text_ = std::move(text);
  update();
}

void PositionStrip::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), palette().color(QPalette::Window));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(0, height() - 1, width(), height() - 1);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect().adjusted(0, 0, 0, -1), Qt::AlignLeft | Qt::AlignVCenter, text_);
}

}  // namespace kestri
