#include "shell/startup/forms/TopFrm.hpp"

#include <QCoreApplication>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr int kStripHeight = 56;
constexpr QColor kStripColor(255, 255, 255, 225);
constexpr QColor kInk(36, 52, 71);
constexpr QColor kPlainBack(31, 70, 119);

}  // namespace

TopFrm::TopFrm() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
  setObjectName(QStringLiteral("TopFrm"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFixedSize(kClientSize);
  label5_ = AddLabel("Label5", Qt::AlignLeft);
  label5_->setText(QStringLiteral("load"));
  label4_ = AddLabel("Label4", Qt::AlignRight);
  label3_ = AddLabel("Label3", Qt::AlignRight);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(14, kClientSize.height() - kStripHeight + 4, 14, 4);
  grid->setVerticalSpacing(0);
  grid->setColumnStretch(0, 1);
  grid->addWidget(label5_, 0, 0, 2, 1, Qt::AlignVCenter);
  grid->addWidget(label4_, 0, 1);
  grid->addWidget(label3_, 1, 1);
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  move(screen.x() + (screen.width() - width()) / 2, screen.y() + (screen.height() - height()) / 2);
}

// The strip behind the texts is always light, whatever the desktop's colours are.
QLabel* TopFrm::AddLabel(const char* name, Qt::Alignment alignment) {
  auto* label = new QLabel(this);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(alignment | Qt::AlignVCenter);
  QPalette colors = label->palette();
  colors.setColor(QPalette::WindowText, kInk);
  label->setPalette(colors);
  return label;
}

void TopFrm::SetPicture(const QImage& picture, QRect place) {
  picture_ = picture;
  place_ = place;
  failed_ = false;
  update();
}

void TopFrm::ShowFailure() {
  failed_ = true;
  update();
}

void TopFrm::SetVersion(const QString& text) {
  label4_->setText(text);
}

void TopFrm::SetCredit(const QString& text) {
  label3_->setText(text);
}

void TopFrm::Show(std::u16string_view text) {
  label5_->setText(ToQt(text));
  LetPaint();
}

void TopFrm::LetPaint() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
}

QRect TopFrm::Strip() const {
  return {0, height() - kStripHeight, width(), kStripHeight};
}

void TopFrm::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(rect(), kPlainBack);
  if (failed_) {
    painter.setPen(Qt::white);
    painter.drawText(rect().adjusted(14, 10, -14, -kStripHeight), Qt::AlignLeft | Qt::AlignTop,
                     QStringLiteral("TOP IMAGE PRINT REEOR !!\n   \"RES TOPTITLE\""));
  } else {
    painter.drawImage(place_, picture_);
  }
  painter.fillRect(Strip(), kStripColor);
}

}  // namespace kestri
