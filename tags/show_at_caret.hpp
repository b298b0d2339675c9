// ShowAtCaret: a tool window opens beside the text's caret.
#pragma once

#include <optional>
#include <string_view>

#include "document/main_text.hpp"
#include "tags/popup_placement.hpp"

namespace kestri {

enum class Animation { Off, Slide };

// Where the caret of MainText stands, as its window knows it.
class CaretPlace {
 public:
  virtual ~CaretPlace() = default;
  virtual std::optional<PixelRect> GetCaretPixel() = 0;  // nothing when the caret lies outside the text area
  virtual PixelRect ScreenOfCaret() = 0;
  virtual PixelRect HintBox() = 0;  // LabelText; empty while hidden
  virtual int FontPoints() = 0;
  virtual int TextWidth(std::u16string_view text) = 0;  // twips, in the font of MainText
  virtual bool TextHasFocus() = 0;
};

class ToolWindow {
 public:
  virtual ~ToolWindow() = default;
  virtual PixelSize Size() = 0;
  virtual void ShowAt(const PopupPlacement& placement, Animation animation) = 0;
};

// Offsets in twips. Nothing, after a beep and a message, when the caret lies outside the text area.
std::optional<PopupPlacement> ShowAtCaret(ToolWindow& window, int xOffset, int yOffset, Animation animation,
                                          CaretPlace& place, MainTextHost& host, WindowServices& services);

// HintAnimation of the settings, read now.
Animation HintAnimation(const ClassCommon& common);

}  // namespace kestri
