// The whole editor window over real files in a folder of its own, with scripted dialogs and real key events.
#pragma once

#include <QApplication>
#include <QTest>

#include "platform/posix/posix_file_system.hpp"
#include "platform/qt/qt_text.hpp"
#include "shell/forms/HTMLfrm.hpp"
#include "tests/fakes/completion_world.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/running_instances.hpp"
#include "tests/fakes/temporary_folder.hpp"
#include "tests/fakes/view_keys.hpp"
#include "tests/fakes/visible_caret.hpp"
#include "tests/fakes/window_ports.hpp"

namespace kestri::fakes {

class FakeInputBox : public InputBox {
 public:
  std::optional<std::u16string> Ask(const std::u16string&, const std::u16string&,
                                    const std::u16string&) override {
    return answer;
  }
  std::optional<std::u16string> answer;
};

class EditorDesk {
 public:
  EditorDesk() {
    environment.executable = folder.Text(u"Kestri");
    environment.folders[SystemFolder::Windows] = folder.Text();
    environment.folders[SystemFolder::Documents] = folder.Text();
    files.CreateFolder(folder.Text(u"DataFiles"));
    PutDictionary(u"SelectTAG.lib", kSmallTags);
    PutDictionary(u"Option.lib", kSmallOptions);
    PutDictionary(u"Param.lib", kSmallParams);
    state.captionTail = CaptionTail(1);
    common =
        std::make_unique<ClassCommon>(Ports{files, environment, shell, clock, services}, PathStyle::Posix);
  }

  void PutDictionary(std::u16string_view name, std::u16string_view profile) {
    folder.Write("DataFiles/" + ToUtf8(name), ProfileBytes(profile));
  }
  void Set(std::u16string_view section, std::u16string_view key, std::u16string_view value) {
    common->SetINI(u"Kestri", section, key, value);
  }

  // Settings and dictionaries are put before the window opens.
  HTMLfrm& Open() {
    auto settings = LoadWindowSettings(*common, state);
    window = std::make_unique<HTMLfrm>(HTMLfrm::Services{.common = *common,
                                                         .state = state,
                                                         .boxes = boxes,
                                                         .dialogs = dialogs,
                                                         .inputBox = inputBox,
                                                         .clipboard = clipboard,
                                                         .fallbacks = fallbacks,
                                                         .instances = instances,
                                                         .effects = effects,
                                                         .inputMethodTools = inputMethodTools,
                                                         .progress = progress,
                                                         .versionText = QStringLiteral("version")},
                                       settings.value());
    window->show();
    window->activateWindow();
    QApplication::processEvents();
    window->TextView().setFocus();
    keys = std::make_unique<ViewKeys>(window->TextView());
    return *window;
  }

  void Put(std::u16string_view marked) { SetMarked(window->Control(), marked); }
  std::string Row() const { return ToUtf8(Marked(window->Control())); }
  void Press(std::u16string_view script) { PressAll(*keys, script); }
  void Run(std::string_view array, int index) { window->Commands().Run(*FindCommand(array, index)); }
  std::string Pane(int pane) const { return window->Panes().Pane(pane).toStdString(); }

  TemporaryFolder folder;
  PosixFileSystem files;
  FakeEnvironment environment;
  FakeShell shell;
  FakeClock clock;
  FakeWindowServices services;
  FakeClipboard clipboard;
  FakeMessageBox boxes;
  FakeFileDialog dialogs;
  FakeInputBox inputBox;
  NoFallbacks fallbacks;
  RunningInstances instances;
  FakeUiEffects effects;
  FakeInputMethodTools inputMethodTools;
  LoadProgress* progress = nullptr;
  ApplicationState state;
  std::unique_ptr<ClassCommon> common;
  std::unique_ptr<HTMLfrm> window;
  std::unique_ptr<ViewKeys> keys;
};

}  // namespace kestri::fakes

#define KESTRI_WINDOW_TEST_MAIN()                                                                \
  int main(int argc, char** argv) {                                                              \
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen"); \
    testing::InitGoogleTest(&argc, argv);                                                        \
    QApplication application(argc, argv);                                                        \
    QApplication::setStyle("Fusion");                                                            \
    return RUN_ALL_TESTS();                                                                      \
  }
