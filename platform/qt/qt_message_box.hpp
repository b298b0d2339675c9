// Message boxes with Japanese buttons. Texts are plain: a file name never becomes markup.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/message_box.hpp"

namespace kestri {

class QtMessageBox : public MessageBox {
 public:
  MessageAnswer Ask(const MessageRequest& request) override;
  void SetOwner(QWidget* owner) { owner_ = owner; }

 private:
  QPointer<QWidget> owner_;
};

}  // namespace kestri
