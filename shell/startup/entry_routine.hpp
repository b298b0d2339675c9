// The last step of the process's entry: what the result of ClassMain::Main means.
#pragma once

#include <cstdint>

#include "platform/environment.hpp"
#include "platform/ui_effects.hpp"

namespace kestri {

enum class ProcessFate { Ends, LivesOn };

// A process that ends in good order gives menus and combo boxes their animation back, unless a sibling still
// runs that may have taken it away.
ProcessFate ActOnResult(std::int32_t result, Environment& environment, UiEffects& effects);

}  // namespace kestri
