#pragma once

#include "platform/clipboard.hpp"

namespace kestri {

class QtClipboard : public Clipboard {
 public:
  std::u16string Text() override;
  void SetText(std::u16string_view text) override;
};

}  // namespace kestri
