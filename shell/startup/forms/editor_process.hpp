// Everything that lives as long as the process, and the windows that start-up asks for.
#pragma once

#include <memory>
#include <optional>

#include "document/document_window.hpp"
#include "platform/posix/posix_clock.hpp"
#include "platform/posix/posix_environment.hpp"
#include "platform/posix/posix_file_system.hpp"
#include "platform/qt/qt_clipboard.hpp"
#include "platform/qt/qt_file_dialog.hpp"
#include "platform/qt/qt_input_box.hpp"
#include "platform/qt/qt_input_method_tools.hpp"
#include "platform/qt/qt_instances.hpp"
#include "platform/qt/qt_message_box.hpp"
#include "platform/qt/qt_shell.hpp"
#include "platform/qt/qt_ui_effects.hpp"
#include "platform/qt/qt_window_services.hpp"
#include "shell/forms/HTMLfrm.hpp"
#include "shell/startup/entry_routine.hpp"
#include "shell/startup/forms/TopFrm.hpp"
#include "shell/startup/forms/end_by_signal.hpp"
#include "shell/startup/startup_windows.hpp"

namespace kestri {

class EditorProcess final : public StartupWindows {
 public:
  ProcessFate Start(std::u16string_view commandLine);
  void TellUnknownError();

  void ShowOsWarning(std::u16string_view text) override;
  void ShowSplash() override;
  void ShowProgress(std::u16string_view text) override { splash_->Show(text); }
  void UnloadSplash() override;
  bool LoadEditor(EditorInput input) override;
  void LoadPopup() override;
  void EndLoading() override;
  void ActivateEditor() override;
  void OpenDocument(std::u16string_view path) override { window_->OpenDocument(path); }
  void ShowFileList(StartList list, StartListCheck check) override;

 private:
  void OpenWindow(WindowSettings settings);

  PosixFileSystem files_;
  PosixEnvironment environment_;
  PosixClock clock_;
  QtShell shell_;
  QtWindowServices windowServices_;
  ClassCommon common_{{files_, environment_, shell_, clock_, windowServices_}, PathStyle::Posix};
  ApplicationState state_;
  QtMessageBox boxes_;
  QtFileDialog dialogs_;
  QtInputBox inputBox_;
  QtClipboard clipboard_;
  QtUiEffects effects_;
  QtInputMethodTools inputMethodTools_;
  NoFallbacks fallbacks_;
  QtInstances instances_{common_.GetSystemDirectory(static_cast<int>(SystemFolder::Windows))};
  std::unique_ptr<TopFrm> splash_;
  std::unique_ptr<HTMLfrm> window_;
  std::optional<EndBySignal> signals_;
};

}  // namespace kestri
