#include "ui/editor_style.hpp"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStyleOption>

namespace kestri {
namespace {

// "»", pointing to the right or down.
class CutArrow : public QIconEngine {
 public:
  explicit CutArrow(Qt::Orientation bar) : bar_(bar) {}

  QIconEngine* clone() const override { return new CutArrow(bar_); }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const qreal reach = std::min(rect.width(), rect.height()) / 4.0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QApplication::palette().color(group, QPalette::WindowText), reach / 2.5));
    painter->translate(QRectF(rect).center());
    if (bar_ == Qt::Vertical) painter->rotate(90);
    for (const qreal start : {-reach, reach * 0.2}) {
      QPainterPath chevron(QPointF(start, -reach));
      chevron.lineTo(start + reach, 0);
      chevron.lineTo(start, reach);
      painter->drawPath(chevron);
    }
    painter->restore();
  }

 private:
  Qt::Orientation bar_;
};

}  // namespace

QColor EdgeColor(const QPalette& palette) {
  constexpr int kOutOf = 10;
  constexpr int kInk = 4;
  const QColor ink = palette.color(QPalette::Text);
  const QColor paper = palette.color(QPalette::Base);
  const auto blend = [](int over, int under) { return (over * kInk + under * (kOutOf - kInk)) / kOutOf; };
  return {blend(ink.red(), paper.red()), blend(ink.green(), paper.green()), blend(ink.blue(), paper.blue())};
}

EditorStyle::EditorStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon EditorStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                const QWidget* widget) const {
  if (which == SP_ToolBarHorizontalExtensionButton) return QIcon(new CutArrow(Qt::Horizontal));
  if (which == SP_ToolBarVerticalExtensionButton) return QIcon(new CutArrow(Qt::Vertical));
  return QProxyStyle::standardIcon(which, option, widget);
}

// A grey shade of the icon that lets what is under it through.
QPixmap EditorStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                         const QStyleOption* option) const {
  if (mode != QIcon::Disabled) return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
  QImage shade = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < shade.height(); ++y) {
    auto* row = reinterpret_cast<QRgb*>(shade.scanLine(y));
    for (int x = 0; x < shade.width(); ++x) {
      const int grey = qGray(row[x]);
      row[x] = qRgba(grey, grey, grey, qAlpha(row[x]) * 2 / 5);
    }
  }
  QPixmap made = QPixmap::fromImage(shade);
  made.setDevicePixelRatio(pixmap.devicePixelRatio());
  return made;
}

// The light shadow of disabled words makes small kana hard to read.
int EditorStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
  return hint == SH_EtchDisabledText ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
}

int EditorStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int size = QProxyStyle::pixelMetric(metric, option, widget);
  return metric == PM_MenuPanelWidth ? std::max(size, 1) : size;
}

void EditorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element != PE_FrameMenu) return;
  painter->save();
  painter->setPen(EdgeColor(option->palette));
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

}  // namespace kestri
