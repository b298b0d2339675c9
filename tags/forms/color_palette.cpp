#include "tags/forms/color_palette.hpp"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QGridLayout>
#include <QPainter>

#include "platform/qt/qt_text.hpp"
#include "ui/HotButton.hpp"

namespace kestri {
namespace {

constexpr int kPerRow = 8;
constexpr int kSwatchSize = 22;  // logical pixels

QColor ColorOf(const NamedColor& color) {
  return {color.red, color.green, color.blue};
}

class Swatch : public QAbstractButton {
 public:
  explicit Swatch(const NamedColor& color) : color_(ColorOf(color)) {
    setCheckable(true);
    setAccessibleName(ToQt(color.name));
    setToolTip(ToQt(color.name) + u' ' + color_.name().toUpper());
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override { return {kSwatchSize, kSwatchSize}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Dark));
    painter.setBrush(color_);
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
    painter.setBrush(Qt::NoBrush);
    const QColor contrast = ReadableOnFace(color_, color_);
    if (isChecked()) {
      painter.setPen(QPen(contrast, 2));
      painter.drawRect(rect().adjusted(5, 5, -5, -5));
    }
    if (!hasFocus()) return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }

 private:
  QColor color_;
};

}  // namespace

ColorPalette::ColorPalette(QWidget* parent) : QWidget(parent), swatches_(new QButtonGroup(this)) {
  setAccessibleName(QStringLiteral("名前のある色"));
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(3);
  for (int i = 0; const NamedColor& color : kNamedColors) {
    auto* swatch = new Swatch(color);
    // One stop of the Tab key; the arrows go on from there.
    swatch->setFocusPolicy(i == 0 ? Qt::StrongFocus : Qt::ClickFocus);
    swatches_->addButton(swatch, i);
    grid->addWidget(swatch, i / kPerRow, i % kPerRow);
    ++i;
  }
  connect(swatches_, &QButtonGroup::idClicked, this, [this](int index) {
    if (chosen) chosen(kNamedColors[static_cast<std::size_t>(index)]);
  });
}

void ColorPalette::Mark(const QColor& color) {
  swatches_->setExclusive(false);
  for (int i = 0; const NamedColor& named : kNamedColors) {
    swatches_->button(i++)->setChecked(ColorOf(named) == color);
  }
  swatches_->setExclusive(true);
}

}  // namespace kestri
