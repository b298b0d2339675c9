// The status bar's panes: one message that stretches, the others as wide as their widest text.
#pragma once

#include <QLabel>
#include <QStatusBar>
#include <array>

namespace kestri {

class StatusPanes : public QStatusBar {
 public:
  explicit StatusPanes(QWidget* parent);

  static constexpr int kMessage = 1;
  static constexpr int kState = 2;
  static constexpr int kLineEnd = 3;
  static constexpr int kFileKind = 4;
  static constexpr int kClock = 5;

  // Panes count from 1; an unknown pane is ignored.
  void SetPane(int pane, const QString& text);
  QString Pane(int pane) const;

 private:
  std::array<QLabel*, 5> panes_{};
};

}  // namespace kestri
