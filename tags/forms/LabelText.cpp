#include "tags/forms/LabelText.hpp"

#include <QPainter>

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr QMargins kMargins(8, 5, 8, 5);
constexpr QColor kPaper(255, 255, 225);
constexpr QColor kInk(30, 30, 30);
constexpr QColor kFrame(120, 120, 90);

QFont FontOf(const HintFont& wanted) {
  QFont font(QStringLiteral("ＭＳ ゴシック"), wanted.points);
  font.setBold((wanted.style & 1) != 0);
  font.setItalic((wanted.style & 2) != 0);
  return font;
}

// As many characters of the line as the width takes, at least one; a blank in the second half is the better
// place to break.
qsizetype FittingLength(const QString& line, const QFontMetrics& metrics, int width) {
  qsizetype fitting = 1;
  while (fitting < line.size() && metrics.horizontalAdvance(line.left(fitting + 1)) <= width) ++fitting;
  const qsizetype blank = line.lastIndexOf(u' ', fitting);
  if (fitting < line.size() && blank > fitting / 2) return blank + 1;
  return fitting > 1 && line.at(fitting - 1).isHighSurrogate() ? fitting - 1 : fitting;
}

}  // namespace

LabelText::LabelText(QWidget& owner, std::function<QRect()> textArea, HintFont font)
    : QFrame(&owner), textArea_(std::move(textArea)), hintFont_(font) {
  setObjectName(QStringLiteral("LabelText"));
  setFocusPolicy(Qt::NoFocus);
  setCursor(Qt::ArrowCursor);
  hide();
}

void LabelText::SetText(std::u16string_view text) {
  lines_ = ToQt(text).split(QStringLiteral("\r\n"));
  setAccessibleName(lines_.join(QChar(u'\n')));
  updateGeometry();
  update();
}

// The lines as they fit into the area that the box may cover.
QStringList LabelText::ShownLines() const {
  const QFontMetrics metrics(FontOf(hintFont_), this);
  const int width = textArea_().width() - kMargins.left() - kMargins.right();
  if (width < metrics.horizontalAdvance(QStringLiteral("漢字漢字"))) return lines_;
  QStringList shown;
  for (QString line : lines_) {
    while (metrics.horizontalAdvance(line) > width && line.size() > 1) {
      const qsizetype length = FittingLength(line, metrics, width);
      shown << line.left(length);
      line.remove(0, length);
    }
    shown << line;
  }
  return shown;
}

QSize LabelText::sizeHint() const {
  const QFontMetrics metrics(FontOf(hintFont_), this);
  const QStringList shown = ShownLines();
  int width = 0;
  for (const QString& line : shown) width = std::max(width, metrics.horizontalAdvance(line));
  const int height = static_cast<int>(shown.size()) * metrics.lineSpacing();
  return QSize(width, height).grownBy(kMargins);
}

PixelSize LabelText::Size() {
  const QSize size = sizeHint();
  return {size.width(), size.height()};
}

PixelRect LabelText::Room() {
  const QRect area = textArea_();
  const QPoint corner = parentWidget()->mapToGlobal(area.topLeft());
  return {corner.x(), corner.y(), area.width(), area.height()};
}

void LabelText::ShowAt(const PopupPlacement& placement, Animation) {
  const PixelRect& window = placement.window;
  const QPoint corner = parentWidget()->mapFromGlobal(QPoint(window.left, window.top));
  setGeometry(QRect(corner, QSize(window.width, window.height)));
  raise();
  show();
}

void LabelText::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(kFrame);
  painter.setBrush(kPaper);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setPen(kInk);
  painter.setFont(FontOf(hintFont_));
  const QFontMetrics metrics = painter.fontMetrics();
  int baseline = kMargins.top() + metrics.ascent();
  for (const QString& line : ShownLines()) {
    painter.drawText(kMargins.left(), baseline, line);
    baseline += metrics.lineSpacing();
  }
}

void LabelText::mousePressEvent(QMouseEvent*) {
  if (pressed) pressed();
}

}  // namespace kestri
