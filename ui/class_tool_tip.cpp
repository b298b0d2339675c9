#include "ui/class_tool_tip.hpp"

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QToolTip>
#include <QVBoxLayout>

namespace kestri {

// The window itself: title above text on a plain face.
class ToolTipWindow : public QWidget {
 public:
  explicit ToolTipWindow(QWidget* owner)
      : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput),
        title_(new QLabel(this)),
        text_(new QLabel(this)) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    for (QLabel* label : {title_, text_}) {
      label->setTextFormat(Qt::PlainText);
      layout->addWidget(label);
    }
    QFont font = QToolTip::font();
    text_->setFont(font);
    font.setBold(true);
    title_->setFont(font);
  }

  void SetTexts(const QString& title, const QString& text) {
    title_->setText(title);
    title_->setVisible(!title.isEmpty());
    text_->setText(text);
    text_->setVisible(!text.isEmpty());
    setAccessibleName(title.isEmpty() ? text : title + QLatin1Char('\n') + text);
  }

  void SetLook(ToolTipShape shape, const QColor& fore, const QColor& back) {
    shape_ = shape;
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, fore);
    colors.setColor(QPalette::Window, back);
    setPalette(colors);
    const int margin = shape == ToolTipShape::Balloon ? kBalloonMargin : kMargin;
    layout()->setContentsMargins(margin, margin, margin, margin);
    layout()->setSpacing(kMargin);
  }

  void PlaceAt(QPoint place) {
    place_ = place;
    adjustSize();
    KeepOnScreen();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    KeepOnScreen();
    CutShape();
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const double radius = shape_ == ToolTipShape::Balloon ? kBalloonRadius : 0;
    painter.setRenderHint(QPainter::Antialiasing, radius > 0);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
  }

 private:
  void KeepOnScreen() {
    const QScreen* screen = QGuiApplication::screenAt(place_);
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    const QRect area = screen->availableGeometry();
    const int left = qMax(area.left(), qMin(place_.x(), area.right() + 1 - width()));
    const int top = qMax(area.top(), qMin(place_.y(), area.bottom() + 1 - height()));
    move(left, top);
  }

  void CutShape() {
    if (shape_ == ToolTipShape::Rectangle) return clearMask();
    QPainterPath outline;
    outline.addRoundedRect(rect(), kBalloonRadius, kBalloonRadius);
    setMask(QRegion(outline.toFillPolygon().toPolygon()));
  }

  static constexpr int kMargin = 4;  // logical pixels
  static constexpr int kBalloonMargin = 7;
  static constexpr int kBalloonRadius = 7;

  QLabel* title_;
  QLabel* text_;
  ToolTipShape shape_ = ToolTipShape::Rectangle;
  QPoint place_;  // asked for, global logical pixels
};

ClassToolTip::ClassToolTip() = default;

ClassToolTip::~ClassToolTip() {
  DestroyToolTip();
}

void ClassToolTip::SetToolTipString(const QString& text) {
  string_ = text;
  Refresh();
}

void ClassToolTip::SetToolTipTitle(const QString& title) {
  title_ = title;
  Refresh();
}

void ClassToolTip::SetToolTipType(ToolTipShape type) {
  type_ = type;
  Refresh();
}

QColor ClassToolTip::ForeColor() const {
  return foreColor_.isValid() ? foreColor_ : QToolTip::palette().color(QPalette::ToolTipText);
}

void ClassToolTip::SetForeColor(const QColor& color) {
  foreColor_ = color;
  Refresh();
}

QColor ClassToolTip::BackColor() const {
  return backColor_.isValid() ? backColor_ : QToolTip::palette().color(QPalette::ToolTipBase);
}

void ClassToolTip::SetBackColor(const QColor& color) {
  backColor_ = color;
  Refresh();
}

void ClassToolTip::CreateToolTip(QPoint place) {
  DestroyToolTip();
  place_ = place;
  window_ = new ToolTipWindow(QApplication::activeWindow());
  Refresh();
  window_->show();
}

void ClassToolTip::Refresh() {
  if (window_.isNull()) return;
  window_->SetLook(type_, ForeColor(), BackColor());
  window_->SetTexts(title_, string_);
  window_->PlaceAt(place_);
  window_->update();
}

void ClassToolTip::DestroyToolTip() {
  delete window_;
}

bool ClassToolTip::Visible() const {
  return !window_.isNull() && window_->isVisible();
}

QWidget* ClassToolTip::Window() const {
  return window_;
}

}  // namespace kestri
