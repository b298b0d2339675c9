// Where the caret stands, told by the text's view.
#pragma once

#include <QRect>
#include <functional>

#include "tags/show_at_caret.hpp"

namespace kestri {

class EditView;

class ViewCaretPlace : public CaretPlace {
 public:
  explicit ViewCaretPlace(EditView& view) : view_(view) {}

  std::function<QRect()> hintBox;  // global pixels, empty while hidden; may be left out

  std::optional<PixelRect> GetCaretPixel() override;
  PixelRect ScreenOfCaret() override;
  PixelRect HintBox() override;
  int FontPoints() override;
  int TextWidth(std::u16string_view text) override;
  bool TextHasFocus() override;

 private:
  EditView& view_;
};

}  // namespace kestri
