#include "tests/gallery/gallery.hpp"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <algorithm>

#include "tests/gallery/layout_checks.hpp"

namespace kestri::gallery {
namespace {

constexpr int kSettleTime = 60;     // ms
constexpr int kLongestWait = 5000;  // ms until a modal dialog stands

QList<QWidget*> StandingOver(const QWidget& window) {
  QList<QWidget*> others;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget != &window && widget->isVisible()) others.append(widget);
  std::stable_sort(others.begin(), others.end(), [](const QWidget* a, const QWidget* b) {
    return a->windowType() != Qt::Popup && b->windowType() == Qt::Popup;
  });
  return others;
}

bool HasOneColourOnly(const QImage& picture) {
  const QRgb first = picture.pixel(0, 0);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixel(x, y) != first) return false;
  }
  return true;
}

}  // namespace

void Settle() {
  QTest::qWait(kSettleTime);
}

Gallery::Gallery(QString path, qreal scale) : folder_(std::move(path)), scale_(scale) {
  QDir().mkpath(folder_);
  QDir folder(folder_);
  for (const QString& old : folder.entryList({QStringLiteral("*.png")}, QDir::Files)) folder.remove(old);
}

void Gallery::Take(const QString& name, QWidget& window) {
  Settle();
  const QList<QWidget*> others = StandingOver(window);
  QRect area = window.geometry();
  for (const QWidget* other : others) area |= other->geometry();
  QImage picture(area.size() * scale_, QImage::Format_RGB32);
  picture.setDevicePixelRatio(scale_);
  picture.fill(Qt::gray);
  QPainter painter(&picture);
  painter.drawPixmap(window.geometry().topLeft() - area.topLeft(), window.grab());
  for (QWidget* other : others)
    painter.drawPixmap(other->geometry().topLeft() - area.topLeft(), other->grab());
  painter.end();
  Save(name, picture, area.size());
  Tell(name, CutTexts(window) + ClashingMnemonics(window));
}

void Gallery::TakeTool(const QString& name, QWidget& window) {
  Settle();
  Save(name, window.grab().toImage(), window.size());
  Tell(name, CutTexts(window) + ClashingMnemonics(window));
}

void Gallery::TakeDialog(const QString& name, QWidget& dialog) {
  TakeTool(name, dialog);
  Tell(name, FieldsWithoutMnemonic(dialog) + NoDefaultButton(dialog) + FieldsOutOfReach(dialog));
}

void Gallery::TakeModal(const QString& name, const std::function<void()>& open) {
  bool taken = false;
  int waited = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) {
      waited += timer.interval();
      if (waited > kLongestWait) timer.stop();
      return;
    }
    timer.stop();
    taken = true;
    QApplication::setActiveWindow(dialog);
    TakeDialog(name, *dialog);
    QTest::keyClick(dialog, Qt::Key_Escape);
    if (!dialog->isVisible()) return;
    Tell(name, {QStringLiteral("Esc does not close it")});
    dialog->close();
  });
  timer.start(10);
  open();
  while (!taken && timer.isActive()) QTest::qWait(10);
  if (!taken) Tell(name, {QStringLiteral("did not open")});
}

void Gallery::Tell(const QString& name, const QStringList& faults) {
  for (const QString& fault : faults) faults_ << name + QStringLiteral(": ") + fault;
}

void Gallery::Save(const QString& name, const QImage& picture, QSize logicalSize) {
  const QString path = folder_ + u'/' + name + QStringLiteral(".png");
  picture.save(path);
  ++pictures_;
  CheckPicture(name, path, logicalSize);
}

void Gallery::CheckPicture(const QString& name, const QString& path, QSize logicalSize) {
  const QImage kept(path);
  if (kept.isNull()) return Tell(name, {QStringLiteral("no picture was written")});
  if (kept.size() != logicalSize * scale_) Tell(name, {QStringLiteral("the picture has the wrong size")});
  if (HasOneColourOnly(kept)) Tell(name, {QStringLiteral("the picture is empty")});
}

}  // namespace kestri::gallery
