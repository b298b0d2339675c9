// Port: modal message boxes.
#pragma once

#include <string>

namespace kestri {

enum class MessageIcon { None, Critical, Question, Exclamation, Information };
enum class MessageButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Cancel, Yes, No };

struct MessageRequest {
  std::u16string text;
  std::u16string caption;
  MessageIcon icon = MessageIcon::None;
  MessageButtons buttons = MessageButtons::Ok;
  int defaultButton = 1;  // one-based
};

class MessageBox {
 public:
  virtual ~MessageBox() = default;
  // Closing the box by Esc or its frame answers Cancel where there is one, else Ok or No.
  virtual MessageAnswer Ask(const MessageRequest& request) = 0;
};

}  // namespace kestri
