// Moves the caret to the head of a line by its number.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/document_window.hpp"
#include "document/main_text.hpp"
#include "platform/message_box.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

class LineJump {
 public:
  LineJump(MainText& text, const ClassCommon& common, MessageBox& boxes, DocumentWindow& window)
      : text_(text), common_(common), boxes_(boxes), window_(window) {}

  // A number counts as the user writes it: full-width digits, thousands separators and a fraction, rounded
  // half to even, are taken. False: there is no such line and the user was told why.
  bool JumpTo(std::u16string_view lineNumber);

  // What stood in the box when it last closed: key No of section LineIndexFrm.
  std::u16string LastNumber() const;
  void RememberNumber(std::u16string_view lineNumber) const;

 private:
  MainText& text_;
  const ClassCommon& common_;
  MessageBox& boxes_;
  DocumentWindow& window_;
};

inline constexpr std::u16string_view kLineJumpTitle = u"指定行の検索";

}  // namespace kestri
