// Start-up: tests the environment, counts the running instances, and decides by the command line what opens.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/message_box.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

// The editor window, as start-up sees it.
class StartupEditor {
 public:
  virtual ~StartupEditor() = default;
  // Loads and shows the window. False when the settings are damaged; the user has been told.
  virtual bool LoadEditor() = 0;
  virtual void OpenDocument(std::u16string_view path) = 0;
};

class ClassMain {
 public:
  static constexpr std::int32_t kEnd = -1;  // refused, or nothing left to do
  static constexpr std::int32_t kLive = 1;  // a window is open

  ClassMain(const ClassCommon& common, ApplicationState& state, MessageBox& boxes, StartupEditor& editor)
      : common_(common), state_(state), boxes_(boxes), editor_(editor) {}

  std::int32_t Main(std::u16string_view commandLine);

 private:
  bool EnvironmentAllows();
  bool InstanceLimitAllows();
  std::int32_t ParseCommandLine(std::u16string_view line);
  void ActOn(std::u16string_view line);
  void Refuse(std::u16string text);

  const ClassCommon& common_;
  ApplicationState& state_;
  MessageBox& boxes_;
  StartupEditor& editor_;
};

}  // namespace kestri
