// How many processes of this program run.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/environment.hpp"

namespace kestri {

// Processes with exactly this executable path.
std::int32_t CountOwnProcesses(Environment& environment, std::u16string_view fullPath);

// This process and its siblings.
std::int32_t CountOwnProcesses(Environment& environment);

}  // namespace kestri
