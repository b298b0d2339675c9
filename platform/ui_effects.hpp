// Port: the animations of menus and combo boxes.
#pragma once

#include <cstdint>

namespace kestri {

class UiEffects {
 public:
  static constexpr std::int32_t kMenus = 0;
  static constexpr std::int32_t kComboBoxes = 2;

  virtual ~UiEffects() = default;
  // value: 0 off, anything else on. Any part but kComboBoxes means the menus.
  virtual void SetAnimation(std::int16_t value, std::int32_t which) = 0;
};

}  // namespace kestri
