// A log of running instances in memory, among them this process under the handle 4711.
#pragma once

#include <string>

#include "browse/window_list.hpp"
#include "shell/common/code_page.hpp"
#include "tests/fakes/common_world.hpp"
#include "tests/fakes/running_instances.hpp"

namespace kestri {

struct WindowListDesk : fakes::MemoryWorld {
  WindowListDesk() { environment.folders[SystemFolder::Windows] = u"/state"; }

  // Records a window in the log and lets it run under its caption.
  void StartWindow(std::int32_t number, std::int64_t handle, const std::u16string& path) {
    Record(number, handle, path);
    instances.captions[handle] = path + CaptionTail(number);
  }
  void Record(std::int32_t number, std::int64_t handle, const std::u16string& path) {
    const std::u16string digits = FormatZeros(number, 3);
    common.SetINIex(2, log.Path(), u"HWND", digits + u"HWND", ToText(handle));
    if (!path.empty()) common.SetINIex(2, log.Path(), u"OPENFILE", digits + u"FILE", path);
  }

  ApplicationState state;
  fakes::RunningInstances instances;
  InstanceLog log{common, state};
  WindowList windows{common, state, instances};
};

}  // namespace kestri
