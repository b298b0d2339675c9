// The texts that a widget paints, in the pieces in which they reach the paint device.
#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainterPath>
#include <QStringList>
#include <QWidget>

namespace kestri::fakes {

class WordEngine : public QPaintEngine {
 public:
  explicit WordEngine(QStringList& words) : QPaintEngine(AllFeatures), words_(words) {}
  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  void updateState(const QPaintEngineState&) override {}
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
  void drawPath(const QPainterPath&) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  void drawTextItem(const QPointF&, const QTextItem& item) override { words_ << item.text(); }
  Type type() const override { return User; }

 private:
  QStringList& words_;
};

class WordPaper : public QPaintDevice {
 public:
  WordPaper(QSize size, QStringList& words) : size_(size), engine_(words) {}
  QPaintEngine* paintEngine() const override { return &engine_; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth:
        return size_.width();
      case PdmHeight:
        return size_.height();
      case PdmDepth:
        return 32;
      case PdmDpiX:
      case PdmDpiY:
      case PdmPhysicalDpiX:
      case PdmPhysicalDpiY:
        return 96;
      case PdmDevicePixelRatio:
        return 1;
      default:
        return QPaintDevice::metric(metric);
    }
  }

 private:
  QSize size_;
  mutable WordEngine engine_;
};

inline QStringList PaintedWords(QWidget& widget) {
  QStringList words;
  WordPaper paper(widget.size(), words);
  widget.render(&paper);
  return words;
}

}  // namespace kestri::fakes
