#include "search/line_jump.hpp"

#include "document/settings_values.hpp"
#include "shell/common/text.hpp"
#include "shell/common/text_number.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kSection = u"LineIndexFrm";
constexpr std::u16string_view kKey = u"No";

}  // namespace

bool LineJump::JumpTo(std::u16string_view lineNumber) {
  const auto number = ToNumber(lineNumber);
  if (!number) {
    window_.MessageToStatusBar(u"行数は数字で指定してください");
    return false;
  }
  const auto line = RoundedToLong(*number);
  if (!line) {
    boxes_.Ask({.text = u"入力値がｵｰﾊﾞｰﾌﾛｰしました",
                .caption = std::u16string(kLineJumpTitle),
                .icon = MessageIcon::Exclamation});
    return false;
  }
  EditControl& control = text_.Control();
  if (*line < 1 || *line > control.EM_GETLINECOUNT()) {
    window_.MessageToStatusBar(ToText(*line) + u"行目が見つかりません");
    return false;
  }
  const Position offset = control.EM_LINEINDEX(*line - 1);
  text_.EM_SETSEL(offset, offset);
  control.EM_SCROLLCARET();
  window_.MessageToStatusBar(u"");
  text_.WM_PAINT();
  return true;
}

std::u16string LineJump::LastNumber() const {
  return common_.GetINI(common_.ExeName(), kSection, kKey, u"");
}

void LineJump::RememberNumber(std::u16string_view lineNumber) const {
  common_.SetINI(common_.ExeName(), kSection, kKey, WithoutControls(lineNumber));
}

}  // namespace kestri
