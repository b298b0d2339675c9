// ClassMain over real files, with windows that only write down what is asked of them, in order.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/posix/posix_file_system.hpp"
#include "shell/startup/class_main.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri::fakes {

using Steps = std::vector<std::string>;

class RecordedWindows : public StartupWindows {
 public:
  RecordedWindows(ApplicationState& state, FakeWindowServices& services)
      : state_(state), services_(services) {}

  void ShowOsWarning(std::u16string_view text) override {
    osWarnings.emplace_back(text);
    Add(services_.busy ? "warning, busy" : "warning");
  }
  void ShowSplash() override { Add("splash"); }
  void ShowProgress(std::u16string_view text) override { Add("progress " + ToUtf8(text)); }
  void UnloadSplash() override { Add("splash away"); }
  bool LoadEditor(EditorInput input) override {
    modeAtLoad = state_.startupState[1];
    splashAtLoad = state_.startupState[0];
    Add(input == EditorInput::Disabled ? "editor, disabled" : "editor");
    if (modeLeftByLoad) state_.startupState[1] = *modeLeftByLoad;
    return settingsUsable;
  }
  void LoadPopup() override { Add("popup"); }
  void EndLoading() override { Add("loaded"); }
  void ActivateEditor() override { Add("active"); }
  void OpenDocument(std::u16string_view path) override { Add("open " + ToUtf8(path)); }
  void ShowFileList(StartList list, StartListCheck check) override {
    std::string step = services_.busy ? "busy list " : "list ";
    step += list == StartList::NewDocument ? "new" : "recent";
    Add(step + (check == StartListCheck::Greyed ? ", greyed" : ""));
  }

  void Add(std::string step) {
    steps.push_back(std::move(step));
    busyAt.push_back(services_.busy);
  }

  Steps steps;
  std::vector<bool> busyAt;  // the pointer, at each step
  std::vector<std::u16string> osWarnings;
  bool settingsUsable = true;
  std::int64_t modeAtLoad = 0;
  std::int64_t splashAtLoad = 0;
  std::optional<std::int64_t> modeLeftByLoad;

 private:
  ApplicationState& state_;
  FakeWindowServices& services_;
};

// The same program with the windows of all subsystems.
class AllRecordedWindows : public RecordedWindows {
 public:
  using RecordedWindows::RecordedWindows;
  bool ShowImageConversion() override {
    Add("IMGCFrm");
    return true;
  }
  std::optional<std::int64_t> ShowCompileWindow() override {
    Add("ComplForm");
    return 815;
  }
  bool ShowUnpackWindow(std::u16string_view path) override {
    Add("ArchiverFrm " + ToUtf8(path));
    return true;
  }
  bool ShowPackWindow(std::u16string_view path) override {
    Add("ArchiverZFrm " + ToUtf8(path));
    return true;
  }
};

class TimedMessageBox : public FakeMessageBox {
 public:
  explicit TimedMessageBox(RecordedWindows& windows) : windows_(windows) {}
  MessageAnswer Ask(const MessageRequest& request) override {
    windows_.Add("box");
    return FakeMessageBox::Ask(request);
  }

 private:
  RecordedWindows& windows_;
};

class RecordedPointer : public FakeWindowServices {
 public:
  void SetBusyPointer(bool value) override {
    FakeWindowServices::SetBusyPointer(value);
    shown.push_back(value);
  }
  std::vector<bool> shown;
};

// The warning of the system is off and so is the splash; a test switches on what it is about.
template <typename Windows>
class StartupDesk : public testing::Test {
 protected:
  StartupDesk() {
    environment.executable = folder.Text(u"Kestri");
    environment.processes = {environment.executable};
    environment.folders[SystemFolder::Windows] = folder.Text();
    environment.folders[SystemFolder::System] = folder.Text();
    Set(u"RunArt", u"RunArt", u"1");
    Set(u"Setting", u"TopWinShow", u"0");
  }

  ClassCommon Common() { return ClassCommon({files, environment, shell, clock, services}, PathStyle::Posix); }
  void Set(std::u16string_view section, std::u16string_view key, std::u16string_view value) {
    Common().SetINI(u"Kestri", section, key, value);
  }
  std::string Path(std::string_view name) const { return folder.Path(name); }

  std::int32_t Start(std::u16string_view line) {
    windows.steps.clear();
    windows.busyAt.clear();
    services.shown.clear();
    const ClassCommon common = Common();
    return ClassMain(common, state, boxes, windows).Main(line);
  }
  // The only box there was.
  void ExpectBox(MessageIcon icon, std::u16string_view caption, std::u16string_view text) {
    ASSERT_EQ(boxes.asked.size(), 1u);
    EXPECT_EQ(boxes.asked[0].icon, icon);
    EXPECT_EQ(ToUtf8(boxes.asked[0].caption), ToUtf8(caption));
    EXPECT_EQ(ToUtf8(boxes.asked[0].text), ToUtf8(text));
    EXPECT_EQ(boxes.asked[0].buttons, MessageButtons::Ok);
  }

  TemporaryFolder folder;
  PosixFileSystem files;
  FakeEnvironment environment;
  FakeShell shell;
  FakeClock clock;
  RecordedPointer services;
  ApplicationState state;
  Windows windows{state, services};
  TimedMessageBox boxes{windows};
};

}  // namespace kestri::fakes
