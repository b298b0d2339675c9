// Port: the clipboard's text.
#pragma once

#include <string>
#include <string_view>

namespace kestri {

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual std::u16string Text() = 0;  // empty when it holds no text
  virtual void SetText(std::u16string_view text) = 0;
};

}  // namespace kestri
