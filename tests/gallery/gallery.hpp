// Pictures of windows in one palette and one scale, and the faults that can be told of them.
#pragma once

#include <QImage>
#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace kestri::gallery {

class Gallery {
 public:
  // Pictures go into the folder, which is made, and replace those of an earlier run; one logical pixel
  // becomes `scale` pixels.
  Gallery(QString path, qreal scale);

  // A window and whatever menus and tool windows stand open over it.
  void Take(const QString& name, QWidget& window);
  // A window alone, with the checks of its texts.
  void TakeTool(const QString& name, QWidget& window);
  // A window alone, with every check for dialogs.
  void TakeDialog(const QString& name, QWidget& dialog);
  // The call opens a modal dialog; it is taken as such and closed by Esc.
  void TakeModal(const QString& name, const std::function<void()>& open);
  // A check of the caller's own.
  void Tell(const QString& name, const QStringList& faults);

  const QStringList& Faults() const { return faults_; }
  int Pictures() const { return pictures_; }

 private:
  void Save(const QString& name, const QImage& picture, QSize logicalSize);
  void CheckPicture(const QString& name, const QString& path, QSize logicalSize);

  QString folder_;
  qreal scale_;
  QStringList faults_;
  int pictures_ = 0;
};

// Lets the event loop run until the windows stand as they will stay.
void Settle();

}  // namespace kestri::gallery
