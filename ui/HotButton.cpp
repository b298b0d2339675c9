#include "ui/HotButton.hpp"

#include <QBitmap>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QStyleOptionButton>
#include <array>
#include <cmath>

namespace kestri {
namespace {

constexpr std::array kPersistent = {"Caption",      "Bold",         "FontSize",  "Default2",   "Cancel2",
                                    "ToolTipText2", "Enabled",      "BackColor", "PointColor", "OutRectangle",
                                    "Picture",      "UseMaskColor", "MaskColor"};
constexpr double kReadableContrast = 4.5;
constexpr int kPictureGap = 4;  // logical pixels between picture and caption

QColor Mixed(const QColor& base, const QColor& other, double share) {
  const auto mix = [share](int from, int to) { return static_cast<int>(from + (to - from) * share); };
  return {mix(base.red(), other.red()), mix(base.green(), other.green()), mix(base.blue(), other.blue())};
}

double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double first = Luminance(one) + 0.05;
  const double second = Luminance(other) + 0.05;
  return first > second ? first / second : second / first;
}

}  // namespace

QColor ReadableOnFace(const QColor& color, const QColor& face) {
  if (Contrast(color, face) >= kReadableContrast) return color;
  return Contrast(Qt::black, face) > Contrast(Qt::white, face) ? Qt::black : Qt::white;
}

HotButton::HotButton(const QString& caption, QWidget* parent) : QPushButton(caption, parent) {
  setMouseTracking(true);
  setAutoDefault(false);
}

void HotButton::SetBold(bool bold) {
  QFont changed = font();
  changed.setBold(bold);
  setFont(changed);
}

void HotButton::SetFontSize(double points) {
  if (!(points > 0)) return;
  QFont changed = font();
  changed.setPointSizeF(points);
  setFont(changed);
}

void HotButton::SetCancel2(bool cancels) {
  if (cancels == Cancel2()) return;
  if (cancels) {
    cancelKey_ = new QShortcut(Qt::Key_Escape, this);
    connect(cancelKey_, &QShortcut::activated, this, &HotButton::click);
  } else {
    delete cancelKey_;
    cancelKey_ = nullptr;
  }
}

void HotButton::SetBackColor(const QColor& color) {
  backColor_ = color;
  update();
}

void HotButton::SetPointColor(const QColor& color) {
  pointColor_ = color;
  update();
}

void HotButton::SetOutRectangle(bool outlined) {
  outRectangle_ = outlined;
  update();
}

void HotButton::SetPicture(const QPixmap& picture) {
  picture_ = picture;
  ShowPicture();
}

void HotButton::SetUseMaskColor(bool use) {
  useMaskColor_ = use;
  ShowPicture();
}

void HotButton::SetMaskColor(const QColor& color) {
  maskColor_ = color;
  ShowPicture();
}

void HotButton::ShowPicture() {
  QPixmap shown = picture_;
  if (useMaskColor_ && !shown.isNull()) shown.setMask(shown.createMaskFromColor(maskColor_));
  setIcon(QIcon(shown));
  if (!shown.isNull()) setIconSize(shown.deviceIndependentSize().toSize());
}

void HotButton::ReadProperties(const QVariantMap& bag) {
  for (const char* name : kPersistent) {
    const auto found = bag.constFind(QLatin1String(name));
    if (found != bag.constEnd()) setProperty(name, *found);
  }
}

QVariantMap HotButton::WriteProperties() const {
  QVariantMap bag;
  for (const char* name : kPersistent) bag.insert(QLatin1String(name), property(name));
  return bag;
}

QColor HotButton::ShownColor() const {
  const QColor rest = backColor_.isValid() ? backColor_ : palette().color(QPalette::Button);
  const QColor pointed =
      pointColor_.isValid() ? pointColor_ : Mixed(rest, palette().color(QPalette::Highlight), 0.3);
  const QColor face = hot_ ? pointed : rest;
  return isDown() || isChecked() ? Mixed(face, Qt::black, 0.15) : face;
}

void HotButton::SetHot(bool hot) {
  if (hot == hot_) return;
  hot_ = hot;
  update();
}

void HotButton::enterEvent(QEnterEvent* event) {
  QPushButton::enterEvent(event);
  SetHot(isEnabled());
}

void HotButton::leaveEvent(QEvent* event) {
  QPushButton::leaveEvent(event);
  SetHot(false);
}

void HotButton::hideEvent(QHideEvent* event) {
  QPushButton::hideEvent(event);
  SetHot(false);
}

void HotButton::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  if (event->type() == QEvent::EnabledChange) SetHot(isEnabled() && underMouse());
}

void HotButton::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isReturn) return QPushButton::keyPressEvent(event);
  if (!event->isAutoRepeat()) click();
}

void HotButton::mousePressEvent(QMouseEvent* event) {
  Q_EMIT MouseDown(event);
  QPushButton::mousePressEvent(event);
}

void HotButton::mouseMoveEvent(QMouseEvent* event) {
  SetHot(isEnabled() && rect().contains(event->position().toPoint()));
  Q_EMIT MouseMove(event);
  QPushButton::mouseMoveEvent(event);
}

void HotButton::mouseReleaseEvent(QMouseEvent* event) {
  Q_EMIT MouseUp(event);
  QPushButton::mouseReleaseEvent(event);
}

void HotButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), ShownColor());
  PaintFrame(painter);
  PaintLabel(painter);
}

void HotButton::PaintFrame(QPainter& painter) const {
  const QColor face = ShownColor();
  const QColor strong = ReadableOnFace(palette().color(QPalette::Highlight), face);
  const bool outlined = hot_ && outRectangle_;
  painter.setPen(outlined ? strong : Mixed(face, ReadableOnFace(Qt::black, face), isDefault() ? 0.6 : 0.25));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (!hasFocus()) return;
  painter.setPen(QPen(LabelColor(), 1, Qt::DotLine));
  painter.drawRect(rect().adjusted(3, 3, -4, -4));
}

QColor HotButton::LabelColor() const {
  const QColor face = ShownColor();
  const QColor readable = ReadableOnFace(palette().color(QPalette::Active, QPalette::ButtonText), face);
  return isEnabled() ? readable : Mixed(face, readable, 0.45);
}

// Picture and caption stand in the middle together.
void HotButton::PaintLabel(QPainter& painter) const {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect place = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
  const int textWidth = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
  const int pictureWidth = icon().isNull() ? 0 : iconSize().width();
  const int gap = pictureWidth > 0 && textWidth > 0 ? kPictureGap : 0;
  const int left = place.left() + qMax(0, (place.width() - pictureWidth - gap - textWidth) / 2);

  const QRect picturePlace(left, place.top(), pictureWidth, place.height());
  if (pictureWidth > 0)
    icon().paint(&painter, picturePlace, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
  const QRect textPlace(left + pictureWidth + gap, place.top(), qMin(textWidth, place.width()),
                        place.height());
  painter.setPen(LabelColor());
  painter.drawText(textPlace, Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

}  // namespace kestri
