#include "browse/forms/page_icon.hpp"

#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace kestri {
namespace {

constexpr double kPaperRatio = 0.78;       // width of the sheet to its height
constexpr double kFoldRatio = 0.26;        // of the sheet's width
constexpr double kSmallestLettering = 28;  // pixels of the icon below which letters cannot be read
constexpr qsizetype kLongestLettering = 5;

QColor BandColor(const QString& extension) {
  static const QHash<QString, QRgb> kColors = {
      {QStringLiteral("htm"), 0xD2541E}, {QStringLiteral("html"), 0xD2541E},
      {QStringLiteral("css"), 0x2965B0}, {QStringLiteral("c"), 0x3F6F9F},
      {QStringLiteral("h"), 0x6A5FA8},   {QStringLiteral("bat"), 0x404A52},
      {QStringLiteral("ini"), 0x7A6A4F}, {QStringLiteral("java"), 0xB0403C},
      {QStringLiteral("vbs"), 0x2F7D7A}, {QStringLiteral("clped"), 0x9A5B8E},
      {QStringLiteral("aat"), 0x4F7F3A},
  };
  return QColor::fromRgb(kColors.value(extension.toLower(), 0x5F6B76));
}

class PageIconEngine : public QIconEngine {
 public:
  explicit PageIconEngine(const QString& extension) : extension_(extension) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mode == QIcon::Disabled) painter->setOpacity(0.5);
    const QRectF sheet = SheetIn(rect);
    PaintSheet(*painter, sheet);
    if (!extension_.isEmpty()) PaintBand(*painter, sheet, rect.height());
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new PageIconEngine(extension_); }

 private:
  static QRectF SheetIn(const QRect& rect) {
    const double height = rect.height() * 0.94;
    QRectF sheet(0, 0, height * kPaperRatio, height);
    sheet.moveCenter(QRectF(rect).center());
    return sheet;
  }

  static void PaintSheet(QPainter& painter, const QRectF& sheet) {
    const double fold = sheet.width() * kFoldRatio;
    QPainterPath outline(sheet.topLeft());
    outline.lineTo(sheet.right() - fold, sheet.top());
    outline.lineTo(sheet.right(), sheet.top() + fold);
    outline.lineTo(sheet.bottomRight());
    outline.lineTo(sheet.bottomLeft());
    outline.closeSubpath();
    painter.setPen(QPen(QColor(0x8A, 0x93, 0x9B), 1));
    painter.setBrush(QColor(0xFB, 0xFC, 0xFD));
    painter.drawPath(outline);
    QPainterPath corner(QPointF(sheet.right() - fold, sheet.top()));
    corner.lineTo(sheet.right() - fold, sheet.top() + fold);
    corner.lineTo(sheet.right(), sheet.top() + fold);
    corner.closeSubpath();
    painter.setBrush(QColor(0xD8, 0xDD, 0xE2));
    painter.drawPath(corner);
  }

  void PaintBand(QPainter& painter, const QRectF& sheet, double size) const {
    const double height = sheet.height() * 0.34;
    const QRectF band(sheet.left(), sheet.bottom() - height - sheet.height() * 0.1, sheet.width(), height);
    painter.fillRect(band, BandColor(extension_));
    if (size < kSmallestLettering) return;
    const QString lettering = extension_.left(kLongestLettering).toUpper();
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(qMax(1, qRound(height * 0.74)));
    const double wide = QFontMetricsF(font).horizontalAdvance(lettering);
    const double room = band.width() * 0.9;
    if (wide > room) font.setPixelSize(qMax(1, static_cast<int>(font.pixelSize() * room / wide)));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(band, Qt::AlignCenter, lettering);
  }

  QString extension_;
};

}  // namespace

QIcon PageIcon(const QString& extension) {
  return QIcon(new PageIconEngine(extension));
}

}  // namespace kestri
