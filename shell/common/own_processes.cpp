#include "shell/common/own_processes.hpp"

#include <algorithm>

namespace kestri {

std::int32_t CountOwnProcesses(Environment& environment, std::u16string_view fullPath) {
  const auto processes = environment.ProcessExecutables();
  return static_cast<std::int32_t>(std::count(processes.begin(), processes.end(), fullPath));
}

std::int32_t CountOwnProcesses(Environment& environment) {
  return CountOwnProcesses(environment, environment.ExecutablePath());
}

}  // namespace kestri
