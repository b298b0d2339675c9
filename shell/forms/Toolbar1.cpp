#include "shell/forms/Toolbar1.hpp"

#include <QCloseEvent>
#include <QMainWindow>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/qt_text.hpp"
#include "shell/forms/window_rectangles.hpp"

namespace kestri {
namespace {

constexpr Qt::WindowFlags kSmallWindow = Qt::Tool | Qt::WindowDoesNotAcceptFocus | Qt::CustomizeWindowHint |
                                         Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

}  // namespace

// It never takes the keys from the text.
Toolbar1::Toolbar1(Surroundings around, ToolBarPlace place)
    : QWidget(&around.owner, kSmallWindow),
      around_(std::move(around)),
      place_{.state = BarState::Docked, .left = place.left, .top = place.top} {
  setObjectName(QStringLiteral("Toolbar1"));
  setWindowTitle(ToQt(FloatingBarCaption()));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSizeConstraint(QLayout::SetNoConstraint);
  around_.owner.installEventFilter(this);
  if (place.state == BarState::Floating) Float();
}

void Toolbar1::SetDocked(bool docked) {
  if (docked == Docked()) return;
  if (docked) {
    Dock();
  } else {
    Float();
  }
}

void Toolbar1::Float() {
  place_.state = BarState::Floating;
  around_.owner.removeToolBar(&around_.bar);
  layout()->addWidget(&around_.bar);
  around_.bar.show();
  FitToBar();
  MoveOntoScreen();
  FollowOwner();
}

void Toolbar1::Dock() {
  WritePosition();
  place_.state = BarState::Docked;
  hide();
  layout()->removeWidget(&around_.bar);
  around_.owner.addToolBar(&around_.bar);
  around_.bar.setVisible(barShown_);
}

void Toolbar1::ShowBar(bool shown) {
  barShown_ = shown;
  if (Docked()) {
    around_.bar.setVisible(shown);
  } else {
    FollowOwner();
  }
}

void Toolbar1::FollowOwner() {
  setVisible(!Docked() && barShown_ && around_.owner.isVisible() && !around_.owner.isMinimized());
}

void Toolbar1::FitToBar() {
  const int widest =
      ScreenAreaAt({place_.left / kTwipsPerPixel, place_.top / kTwipsPerPixel}, around_.owner).width();
  const QSize wanted = around_.bar.sizeHint();
  setFixedSize(std::min(wanted.width(), widest), wanted.height());
}

// The desktop tells the frame's own size only when the window stands.
QSize Toolbar1::FrameAllowance() const {
  const QSize usual(2 * style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth),
                    style()->pixelMetric(QStyle::PM_TitleBarHeight));
  return usual.expandedTo(frameGeometry().size() - size());
}

void Toolbar1::MoveOntoScreen() {
  const QPoint wanted(place_.left / kTwipsPerPixel, place_.top / kTwipsPerPixel);
  const QRect area = ScreenAreaAt(wanted, around_.owner);
  const QSize whole = size() + FrameAllowance();
  const QPoint farthest = area.bottomRight() - QPoint(whole.width(), whole.height());
  move(std::clamp(wanted.x(), area.left(), std::max(area.left(), farthest.x())),
       std::clamp(wanted.y(), area.top(), std::max(area.top(), farthest.y())));
}

void Toolbar1::WritePosition() {
  place_.left = x() * kTwipsPerPixel;
  place_.top = y() * kTwipsPerPixel;
  WriteFloatingPosition(around_.common, place_);
}

void Toolbar1::SaveSettings() {
  WriteBarState(around_.common, place_.state);
  if (!Docked()) WritePosition();
}

// The user's close brings the bar back; the program's own hides the form with all others.
void Toolbar1::closeEvent(QCloseEvent* event) {
  event->accept();
  if (Docked() || !event->spontaneous()) return;
  Dock();
  if (around_.closeRequested) around_.closeRequested();
}

bool Toolbar1::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest && !Docked()) FitToBar();
  return QWidget::event(event);
}

bool Toolbar1::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::Show || type == QEvent::Hide || type == QEvent::WindowStateChange) FollowOwner();
  return QWidget::eventFilter(watched, event);
}

}  // namespace kestri
