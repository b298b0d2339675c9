#include "tags/show_at_caret.hpp"

namespace kestri {

std::optional<PopupPlacement> ShowAtCaret(ToolWindow& window, int xOffset, int yOffset, Animation animation,
                                          CaretPlace& place, MainTextHost& host, WindowServices& services) {
  const std::optional<PixelRect> caret = place.GetCaretPixel();
  if (!caret) {
    services.Beep();
    host.MessageToStatusBar(u"ｷｬﾚｯﾄがﾃｷｽﾄｴﾘｱ外です");
    return std::nullopt;
  }
  const CaretSurroundings around{*caret, place.ScreenOfCaret(), place.HintBox(), place.FontPoints()};
  const PopupPlacement placement =
      PlaceAtCaret(around, {window.Size(), xOffset, yOffset, services.TwipsPerPixel()});
  window.ShowAt(placement, animation);
  return placement;
}

Animation HintAnimation(const ClassCommon& common) {
  const auto value = ToLong(common.GetINI(common.ExeName(), u"Setting", u"HintAnimation", u"1"));
  return value == 1 ? Animation::Slide : Animation::Off;
}

}  // namespace kestri
