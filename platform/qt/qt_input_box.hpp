#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/input_box.hpp"

namespace kestri {

class QtInputBox : public InputBox {
 public:
  std::optional<std::u16string> Ask(const std::u16string& prompt, const std::u16string& title,
                                    const std::u16string& defaultText) override;
  void SetOwner(QWidget* owner) { owner_ = owner; }

 private:
  QPointer<QWidget> owner_;
};

}  // namespace kestri
