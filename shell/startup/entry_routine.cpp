#include "shell/startup/entry_routine.hpp"

#include "shell/common/own_processes.hpp"
#include "shell/startup/class_main.hpp"

namespace kestri {

ProcessFate ActOnResult(std::int32_t result, Environment& environment, UiEffects& effects) {
  if (result == ClassMain::kEnd) return ProcessFate::Ends;
  if (result != ClassMain::kDone) return ProcessFate::LivesOn;
  if (CountOwnProcesses(environment) < 2) {
    effects.SetAnimation(-1, UiEffects::kMenus);
    effects.SetAnimation(-1, UiEffects::kComboBoxes);
  }
  return ProcessFate::Ends;
}

}  // namespace kestri
