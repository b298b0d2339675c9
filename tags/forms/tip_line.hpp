// The popup's status bar: icon and explanation of the selected row, and the grip that resizes the window.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "tags/candidate_list.hpp"

namespace kestri {

class TipLine : public QWidget {
  Q_OBJECT
 public:
  explicit TipLine(QWidget* parent);

  void SetTip(const QString& text, std::optional<CandidateIcon> icon);
  const QString& Text() const { return text_; }
  std::optional<CandidateIcon> Icon() const { return icon_; }

  std::function<void()> gripped;                // a drag of the grip begins
  std::function<void(QPoint moved)> gripMoved;  // since it began, logical pixels

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QRect Grip() const;

  QString text_;
  std::optional<CandidateIcon> icon_;
  std::optional<QPoint> dragStart_;
};

}  // namespace kestri
