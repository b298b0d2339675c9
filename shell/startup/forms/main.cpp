#include <QApplication>
#include <QTimer>
#include <memory>
#include <span>

#include "document/document_window.hpp"
#include "document/instance_log.hpp"
#include "platform/posix/posix_clock.hpp"
#include "platform/posix/posix_environment.hpp"
#include "platform/posix/posix_file_system.hpp"
#include "platform/qt/qt_clipboard.hpp"
#include "platform/qt/qt_file_dialog.hpp"
#include "platform/qt/qt_input_box.hpp"
#include "platform/qt/qt_instances.hpp"
#include "platform/qt/qt_message_box.hpp"
#include "platform/qt/qt_shell.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/qt_window_services.hpp"
#include "shell/forms/HTMLfrm.hpp"
#include "shell/startup/class_main.hpp"
#include "shell/startup/command_line.hpp"
#include "shell/startup/forms/toolkit_setup.hpp"

namespace kestri {
namespace {

// Everything that lives as long as the process.
class EditorProcess final : public StartupEditor {
 public:
  bool LoadEditor() override;
  void OpenDocument(std::u16string_view path) override { window_->OpenDocument(path); }
  std::int32_t Start(std::u16string_view commandLine) {
    return ClassMain(common_, state_, boxes_, *this).Main(commandLine);
  }

 private:
  void TellDamagedSettings();

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
  NoFallbacks fallbacks_;
  QtInstances instances_{common_.GetSystemDirectory(static_cast<int>(SystemFolder::Windows))};
  std::unique_ptr<HTMLfrm> window_;
};

bool EditorProcess::LoadEditor() {
  auto settings = LoadWindowSettings(common_, state_);
  if (!settings) {
    TellDamagedSettings();
    return false;
  }
  instances_.Appear();
  InstanceLog(common_, state_).AssignWindowNumber(AmongInstances(instances_));
  window_ = std::make_unique<HTMLfrm>(
      HTMLfrm::Services{.common = common_,
                        .state = state_,
                        .boxes = boxes_,
                        .dialogs = dialogs_,
                        .inputBox = inputBox_,
                        .clipboard = clipboard_,
                        .fallbacks = fallbacks_,
                        .instances = instances_,
                        .versionText = ToQt(VersionText(kVersionMajor, kVersionMinor, kVersionRevision))},
      std::move(*settings));
  boxes_.SetOwner(window_.get());
  dialogs_.SetOwner(window_.get());
  inputBox_.SetOwner(window_.get());
  window_->show();
  QTimer::singleShot(0, window_.get(), [this] { window_->FinishLoading(); });
  return true;
}

void EditorProcess::TellDamagedSettings() {
  boxes_.Ask({.text = u"INIのﾃﾞｰﾀが壊れています\r\nINIを削除してからこのﾌﾟﾛｸﾞﾗﾑを再起動して下さい",
              .caption = u"起動ｴﾗｰ " + std::u16string(kApplicationTitle),
              .icon = MessageIcon::Critical});
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  kestri::PrepareEnvironment();
  QApplication application(argc, argv);
  kestri::PrepareLook();
  kestri::EditorProcess process;
  const auto arguments = std::span<char* const>(argv + 1, static_cast<std::size_t>(argc - 1));
  if (process.Start(kestri::RawCommandLine(arguments)) == kestri::ClassMain::kEnd) return 0;
  return QApplication::exec();
}
