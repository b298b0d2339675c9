// LabelText: the pale box over the text that tells of the tag at the caret, and what the window has to say
// while it closes.
#pragma once

#include <QFrame>
#include <functional>

#include "tags/tag_hint.hpp"

namespace kestri {

struct HintFont {
  int points = 9;
  int style = 0;  // 1 bold, 2 italic, 3 both
};

class LabelText final : public QFrame, public HintBox {
 public:
  // textArea: the part of the owner that it may cover, in the owner's pixels.
  LabelText(QWidget& owner, std::function<QRect()> textArea, HintFont font);

  std::function<void()> pressed;  // a mouse button went down on it; may be left out

  QStringList Lines() const { return lines_; }
  QStringList ShownLines() const;
  QSize sizeHint() const override;

  void SetText(std::u16string_view text) override;
  PixelSize Size() override;
  void ShowAt(const PopupPlacement& placement, Animation animation) override;
  PixelRect Room() override;
  bool Visible() override { return !isHidden(); }
  void Hide() override { hide(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  std::function<QRect()> textArea_;
  HintFont hintFont_;
  QStringList lines_;
};

}  // namespace kestri
