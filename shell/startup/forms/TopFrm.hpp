// The splash: a picture with the progress of the load, the version and the credit line.
#pragma once

#include <QImage>
#include <QWidget>

#include "shell/window/load_progress.hpp"

class QLabel;

namespace kestri {

class TopFrm : public QWidget, public LoadProgress {
  Q_OBJECT
 public:
  static constexpr QSize kClientSize{480, 300};

  // Centred on the screen, in front of everything, never with the keyboard.
  TopFrm();

  // The picture fills this part of the client area.
  void SetPicture(const QImage& picture, QRect place);
  // Two lines in place of a picture that could not be painted.
  void ShowFailure();
  void SetVersion(const QString& text);
  void SetCredit(const QString& text);

  void Show(std::u16string_view text) override;
  // Paints what is due. Keys and clicks wait until the window that they are meant for can take them.
  static void LetPaint();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLabel* AddLabel(const char* name, Qt::Alignment alignment);
  QRect Strip() const;

  QImage picture_;
  QRect place_;
  bool failed_ = false;
  QLabel* label5_ = nullptr;  // progress
  QLabel* label4_ = nullptr;  // version
  QLabel* label3_ = nullptr;  // credit
};

}  // namespace kestri
