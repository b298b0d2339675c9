// What a long load tells the user while it works.
#pragma once

#include <string_view>

namespace kestri {

class LoadProgress {
 public:
  virtual ~LoadProgress() = default;
  // The text stands on the screen when the call returns, as far as the screen is ready. No key and no click
  // is handled meanwhile.
  virtual void Show(std::u16string_view text) = 0;
};

}  // namespace kestri
