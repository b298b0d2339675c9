#include "ui/window_helpers.hpp"

#include <QApplication>
#include <QBackingStore>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QTimer>

#include "platform/qt/dialog_owner.hpp"
#include "platform/qt/japanese_labels.hpp"
#include "shell/common/pixel_rect.hpp"

namespace kestri {
namespace {

void BringToFront(QWidget& window) {
  window.raise();
  window.activateWindow();
}

// The dialog as a window over the owner, for as long as this lives.
class StandingFree {
 public:
  StandingFree(QDialog& dialog, QWidget* owner)
      : dialog_(&dialog), home_(dialog.parentWidget()), flags_(dialog.windowFlags()) {
    moved_ = owner != &dialog && (!dialog.isWindow() || dialog.parentWidget() != owner);
    if (moved_) dialog.setParent(owner, (flags_ & ~Qt::WindowType_Mask) | Qt::Dialog);
  }
  StandingFree(const StandingFree&) = delete;
  StandingFree& operator=(const StandingFree&) = delete;
  ~StandingFree() {
    if (moved_ && dialog_ != nullptr) dialog_->setParent(home_, flags_);
  }

 private:
  QPointer<QDialog> dialog_;
  QPointer<QWidget> home_;
  Qt::WindowFlags flags_;
  bool moved_ = false;
};

int ExecuteFree(QDialog& dialog, QWidget* owner) {
  LetWindowBePlaced(owner);
  const StandingFree standing(dialog, owner);
  QTimer::singleShot(0, &dialog, [&dialog] { BringToFront(dialog); });
  return dialog.exec();
}

QRect ScreenAt(QPoint place, const QWidget& widget) {
  const QScreen* screen = QGuiApplication::screenAt(place);
  return (screen != nullptr ? screen : widget.screen())->availableGeometry();
}

QRect AreaOf(const QWidget& widget, QPoint place) {
  return widget.isWindow() ? ScreenAt(place, widget) : widget.parentWidget()->rect();
}

PixelRect ToPixelRect(const QRect& rect) {
  return {rect.left(), rect.top(), rect.width(), rect.height()};
}

class DownOpensList : public QObject {
 public:
  explicit DownOpensList(QComboBox& combo) : QObject(&combo), combo_(combo) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (key.key() != Qt::Key_Down || !plain || combo_.count() == 0) return false;
    combo_.showPopup();
    return true;
  }

 private:
  QComboBox& combo_;
};

QStyle::StandardPixmap StandardOf(StockIcon icon) {
  switch (icon) {
    case StockIcon::Hand:
      return QStyle::SP_MessageBoxCritical;
    case StockIcon::Question:
      return QStyle::SP_MessageBoxQuestion;
    case StockIcon::Exclamation:
      return QStyle::SP_MessageBoxWarning;
    case StockIcon::Asterisk:
      return QStyle::SP_MessageBoxInformation;
    case StockIcon::Application:
      break;
  }
  return QStyle::SP_DesktopIcon;
}

QIcon IconOf(const QWidget& over, StockIcon icon) {
  if (icon == StockIcon::Application && !QApplication::windowIcon().isNull())
    return QApplication::windowIcon();
  return over.style()->standardIcon(StandardOf(icon), nullptr, &over);
}

}  // namespace

int ShowModalWindow(QDialog& dialog, QWidget* owner) {
  InstallJapaneseLabels();
  const QPointer<QWidget> window = owner == nullptr ? nullptr : owner->window();
  const int result = ExecuteFree(dialog, window);
  if (window != nullptr && window->isVisible() && !window->isMinimized()) BringToFront(*window);
  return result;
}

void FormAllControlsRefresh(QWidget& form) {
  const QPointer<QWidget> living = &form;
  const auto controls = form.findChildren<QWidget*>();
  const QList<QPointer<QWidget>> alive(controls.begin(), controls.end());
  for (const QPointer<QWidget>& control : alive) {
    if (control != nullptr && !control->isWindow()) control->repaint();
  }
  if (living != nullptr) form.repaint();
}

void MoveEx(QWidget& widget, int left, int top, int width, int height, const QRect* parentArea) {
  const QSize frame = widget.isWindow() ? widget.frameGeometry().size() - widget.size() : QSize(0, 0);
  const QRect area = parentArea != nullptr ? *parentArea : AreaOf(widget, {left, top});
  const PixelRect place =
      MoveEx(PixelRect{left, top, width + frame.width(), height + frame.height()}, ToPixelRect(area));
  widget.resize(width, height);
  widget.move(place.left, place.top);
}

void AwaitPictureRead(const QWidget& window, QPoint painted) {
  QBackingStore* store = window.backingStore();
  const bool sharesPictures = QGuiApplication::platformName() == QLatin1String("xcb");
  // The beginning of a painting clears what can be seen through.
  if (!sharesPictures || store == nullptr || window.testAttribute(Qt::WA_TranslucentBackground)) return;
  store->beginPaint(QRect(painted, QSize(1, 1)));
  store->endPaint();
}

void TextBoxSetSel(QLineEdit& text) {
  text.selectAll();
}

void TextBoxSetSel(QPlainTextEdit& text) {
  text.selectAll();
}

QPixmap ConvertIcon(const QIcon& icon, QSize size) {
  return icon.isNull() || size.isEmpty() ? QPixmap() : icon.pixmap(size);
}

void SetRedraw(QWidget& control, Redraw redraw) {
  control.setUpdatesEnabled(redraw == Redraw::On);
}

void SetExtendedUI(QComboBox& combo) {
  combo.installEventFilter(new DownOpensList(combo));
}

QPixmap StockPicture(const QWidget& over, StockIcon icon, QSize size) {
  return ConvertIcon(IconOf(over, icon), size);
}

void DrawStockIcon(QPainter& painter, const QRect& place, const QWidget& over, StockIcon icon) {
  IconOf(over, icon).paint(&painter, place);
}

}  // namespace kestri
