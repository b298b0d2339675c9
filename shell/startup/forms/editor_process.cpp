#include "shell/startup/forms/editor_process.hpp"

#include <QTimer>

#include "document/instance_log.hpp"
#include "platform/qt/qt_text.hpp"
#include "shell/startup/class_main.hpp"
#include "shell/startup/forms/ClassIMGTopFrm.hpp"
#include "shell/startup/forms/RunArtFrm.hpp"

namespace kestri {

ProcessFate EditorProcess::Start(std::u16string_view commandLine) {
  const std::int32_t result = ClassMain(common_, state_, boxes_, *this).Main(commandLine);
  // A signal may have closed it under the list or the box that the start ends with.
  const bool closedMeanwhile = window_ != nullptr && !window_->isVisible();
  return closedMeanwhile ? ProcessFate::Ends : ActOnResult(result, environment_, effects_);
}

void EditorProcess::TellUnknownError() {
  boxes_.Ask({.text = u"不明なｴﾗｰが発生しました",
              .caption = std::u16string(kApplicationTitle),
              .icon = MessageIcon::Exclamation});
}

void EditorProcess::ShowOsWarning(std::u16string_view text) {
  RunArtFrm form(common_);
  form.SetChecked(true);
  form.SetText(text);
  form.exec();
}

void EditorProcess::ShowSplash() {
  splash_ = ClassIMGTopFrm(common_).IMGTopFrm();
  splash_->LetPaint();
}

void EditorProcess::UnloadSplash() {
  splash_.reset();
  TopFrm::LetPaint();
}

bool EditorProcess::LoadEditor(EditorInput input) {
  auto settings = LoadWindowSettings(common_, state_);
  if (!settings) return false;
  instances_.Appear();
  InstanceLog(common_, state_).AssignWindowNumber(AmongInstances(instances_));
  OpenWindow(std::move(*settings));
  if (input == EditorInput::Disabled) window_->SetLoading(true);
  window_->show();
  return true;
}

void EditorProcess::OpenWindow(WindowSettings settings) {
  window_ = std::make_unique<HTMLfrm>(
      HTMLfrm::Services{.common = common_,
                        .state = state_,
                        .boxes = boxes_,
                        .dialogs = dialogs_,
                        .inputBox = inputBox_,
                        .clipboard = clipboard_,
                        .fallbacks = fallbacks_,
                        .instances = instances_,
                        .effects = effects_,
                        .inputMethodTools = inputMethodTools_,
                        .progress = splash_.get(),
                        .versionText = ToQt(VersionText(kVersionMajor, kVersionMinor, kVersionRevision))},
      std::move(settings));
  boxes_.SetOwner(window_.get());
  dialogs_.SetOwner(window_.get());
  inputBox_.SetOwner(window_.get());
}

// Building the window here keeps the first candidate from waiting for it.
void EditorProcess::LoadPopup() {
  window_->Popup().Size();
}

// What can wait comes once the window stands.
void EditorProcess::EndLoading() {
  window_->SetLoading(false);
  QTimer::singleShot(0, window_.get(), [this] {
    window_->FinishLoading();
    signals_.emplace(*window_, [this] { return state_.modified != 0; });
  });
}

void EditorProcess::ShowFileList(StartList list, StartListCheck check) {
  window_->FillFolderBar();
  window_->ShowFileList({.view = list == StartList::NewDocument ? FileListView::New : FileListView::Recent,
                         .startBoxGrey = check == StartListCheck::Greyed});
}

void EditorProcess::ActivateEditor() {
  window_->activateWindow();
  window_->TextView().setFocus();
  // Behind the first painting of the document.
  constexpr int kMilliseconds = 50;
  QTimer::singleShot(kMilliseconds, window_.get(), [this] { window_->FillFolderBar(); });
}

}  // namespace kestri
