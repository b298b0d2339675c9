// Start-up: tests the environment, shows the splash, counts the running instances, and decides by the command
// line which single window this process exists for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/message_box.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"
#include "shell/startup/command_line.hpp"
#include "shell/startup/startup_windows.hpp"

namespace kestri {

class ClassMain {
 public:
  static constexpr std::int32_t kEnd = -1;  // refused, or nothing left to do
  static constexpr std::int32_t kDone = 0;  // the image viewer was asked for; no window of this process opens
  static constexpr std::int32_t kLive = 1;  // a window is open

  ClassMain(const ClassCommon& common, ApplicationState& state, MessageBox& boxes, StartupWindows& windows)
      : common_(common), state_(state), boxes_(boxes), windows_(windows) {}

  // The raw command line, quotes included.
  std::int32_t Main(std::u16string_view commandLine);

 private:
  void ResetState();
  // False, here and below, when the start was refused.
  bool WarnOfSystem();
  bool DecideSplash(std::u16string_view commandLine);
  bool MayStart();
  bool InstanceLimitAllows();
  std::int32_t Dispatch(std::u16string_view commandLine);

  // The normal editor.
  std::int32_t StartEditor(std::u16string_view commandLine);
  std::int32_t ParseCommandLine(std::u16string_view line);
  bool ReadListAtStart();
  bool LoadEditor();
  void ActOnMode(std::u16string_view line);
  void ShowFileList(StartList list, StartListCheck check);

  // The other windows, each with the argument of its switch.
  std::int32_t ShowImageSlides(const std::u16string& folder);
  std::int32_t ShowImageConversion(const std::u16string& path);
  std::int32_t ShowCompileWindow(const std::u16string& path);
  using ArchiveWindow = bool (StartupWindows::*)(std::u16string_view);
  std::int32_t ShowArchive(const std::u16string& path, ArchiveWindow show, std::u16string_view windowName);
  std::int32_t TellMissingWindow(std::u16string_view name);

  bool SplashUp() const { return state_.startupState[0] == 1; }
  void Progress(std::u16string_view text);
  void UnloadSplash();
  void SetBusyPointer(bool busy);
  std::optional<std::int16_t> Setting(std::u16string_view section, std::u16string_view key,
                                      std::int16_t defaultValue);
  void Tell(std::u16string text, MessageIcon icon, std::u16string_view captionHead = {});
  std::int32_t Refuse(std::u16string text, std::u16string_view captionHead = {});
  void RefuseDamagedSettings();

  const ClassCommon& common_;
  ApplicationState& state_;
  MessageBox& boxes_;
  StartupWindows& windows_;
  bool listAtStart_ = false;  // of recent files, when nothing else is asked for
};

}  // namespace kestri
