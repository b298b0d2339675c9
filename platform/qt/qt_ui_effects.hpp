#pragma once

#include "platform/ui_effects.hpp"

namespace kestri {

class QtUiEffects : public UiEffects {
 public:
  void SetAnimation(std::int16_t value, std::int32_t which) override;
};

}  // namespace kestri
