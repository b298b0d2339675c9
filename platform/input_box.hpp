// Port: asks for one line of text.
#pragma once

#include <optional>
#include <string>

namespace kestri {

class InputBox {
 public:
  virtual ~InputBox() = default;
  // Nothing on cancel.
  virtual std::optional<std::u16string> Ask(const std::u16string& prompt, const std::u16string& title,
                                            const std::u16string& defaultText) = 0;
};

}  // namespace kestri
