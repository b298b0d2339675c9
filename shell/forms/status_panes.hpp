// The status bar's panes: one message that stretches, the others as wide as their text needs, within bounds.
#pragma once

#include <QStatusBar>
#include <QWidget>
#include <array>

namespace kestri {

// One line that is cut with dots where it has no room; the whole stands in its tool tip then.
class StatusPane : public QWidget {
 public:
  StatusPane(const QString& name, Qt::Alignment alignment, QWidget* parent);

  void SetText(const QString& text);
  const QString& Text() const { return text_; }
  int WidthOf(const QString& text) const;  // pixels, padding included
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QString text_;
  Qt::Alignment alignment_;
};

class StatusPanes : public QStatusBar {
 public:
  explicit StatusPanes(QWidget* parent);

  static constexpr int kMessage = 1;
  static constexpr int kState = 2;
  static constexpr int kLineEnd = 3;
  static constexpr int kFileKind = 4;
  static constexpr int kCaret = 5;
  static constexpr int kClock = 6;

  // Panes count from 1; an unknown pane is ignored.
  void SetPane(int pane, const QString& text);
  QString Pane(int pane) const;

 private:
  StatusPane* At(int pane) const;

  std::array<StatusPane*, 6> panes_{};
};

}  // namespace kestri
