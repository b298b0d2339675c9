// The input method's menu: in which script its text enters the document, and its tools.
//
// The mode inside an input method is the method's own affair. Here a mode says whether the method may take
// keys in the text at all, and what becomes of the text that it commits. Keys typed past the method enter as
// they are.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/input_method_tools.hpp"
#include "platform/message_box.hpp"

namespace kestri {

enum class InputMode {
  Default,
  Off,       // until the input method's key is pressed
  OffFixed,  // until another mode is chosen
  Hiragana,
  Katakana,
  HalfKatakana,
  FullAlphanumeric,
  HalfAlphanumeric,
};

// Captions of MenIMES by index, the shortcut behind the tab.
inline constexpr std::array<std::u16string_view, 8> kInputModeCaptions = {
    u"(ﾃﾞﾌｫﾙﾄ)",
    u"OFF\tAlt+Ctrl+F6",
    u"OFF固定",
    u"全角ひらがな\tAlt+Ctrl+F1",
    u"全角カタカナ\tAlt+Ctrl+F2",
    u"半角ｶﾀｶﾅ\tAlt+Ctrl+F3",
    u"全角英数\tAlt+Ctrl+F4",
    u"半角英数\tAlt+Ctrl+F5",
};

// Of an index of MenIMES; Default outside of them.
InputMode InputModeAt(int index);

constexpr bool SwitchesOff(InputMode mode) {
  return mode == InputMode::Off || mode == InputMode::OffFixed;
}

// What enters the document for a commit. The katakana modes turn hiragana over, the half-width one narrows
// everything; the full-width one widens everything; half-width letters narrow letters, digits, signs and
// blanks and leave kana alone. All other modes keep the text.
std::u16string CommittedAs(InputMode mode, std::u16string_view committed);

class InputMethodMenu {
 public:
  InputMethodMenu(InputMethodTools& tools, MessageBox& boxes) : tools_(tools), boxes_(boxes) {}

  void MenIMERe();            // takes the selection back into conversion
  void MenIMEsub(int index);  // 0 properties, 1 word registration, 2 pad; others do nothing

 private:
  void Tell(std::u16string text);

  InputMethodTools& tools_;
  MessageBox& boxes_;
};

}  // namespace kestri
