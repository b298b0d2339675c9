// Scripted ports: they record what was asked and answer what the test told them to.
#pragma once

#include <deque>
#include <map>
#include <new>
#include <string>
#include <vector>

#include "platform/clipboard.hpp"
#include "platform/clock.hpp"
#include "platform/environment.hpp"
#include "platform/file_dialog.hpp"
#include "platform/message_box.hpp"
#include "platform/shell.hpp"
#include "platform/window_services.hpp"

namespace kestri::fakes {

class FakeClipboard : public Clipboard {
 public:
  std::u16string Text() override { return text; }
  void SetText(std::u16string_view value) override { text = value; }
  std::u16string text;
};

class FakeClock : public Clock {
 public:
  std::tm Now() override { return now; }
  std::tm LocalTime(std::time_t seconds) override {
    std::tm result{};
    gmtime_r(&seconds, &result);
    return result;
  }
  float RandomSingle() override { return random; }
  std::tm now = Moment(2003, 2, 1, 4, 5, 6);
  float random = 0.5f;

  static std::tm Moment(int year, int month, int day, int hour, int minute, int second) {
    std::tm time{};
    time.tm_year = year - 1900;
    time.tm_mon = month - 1;
    time.tm_mday = day;
    time.tm_hour = hour;
    time.tm_min = minute;
    time.tm_sec = second;
    return time;
  }
};

class FakeWindowServices : public WindowServices {
 public:
  void Beep() override { ++beeps; }
  void SetBusyPointer(bool value) override { busy = value; }
  void ProcessEvents() override {}
  int TwipsPerPixel() override { return twipsPerPixel; }
  int beeps = 0;
  bool busy = false;
  int twipsPerPixel = 15;
};

// Answers in the order given; with none left, the button that a careful user would press.
class FakeMessageBox : public MessageBox {
 public:
  MessageAnswer Ask(const MessageRequest& request) override {
    asked.push_back(request);
    if (!answers.empty()) {
      const MessageAnswer answer = answers.front();
      answers.pop_front();
      return answer;
    }
    switch (request.buttons) {
      case MessageButtons::Ok:
        return MessageAnswer::Ok;
      case MessageButtons::YesNo:
        return MessageAnswer::No;
      default:
        return MessageAnswer::Cancel;
    }
  }
  std::vector<MessageRequest> asked;
  std::deque<MessageAnswer> answers;
};

class FakeFileDialog : public FileDialog {
 public:
  std::optional<FileDialogAnswer> AskOpen(const FileDialogRequest& request) override {
    opens.push_back(request);
    return Next();
  }
  std::optional<FileDialogAnswer> AskSave(const FileDialogRequest& request) override {
    saves.push_back(request);
    return Next();
  }
  std::optional<std::u16string> AskFolder(const std::u16string& title, const std::u16string&) override {
    folderTitles.push_back(title);
    const auto answer = Next();
    if (!answer) return std::nullopt;
    return answer->fileName;
  }
  std::vector<FileDialogRequest> opens;
  std::vector<FileDialogRequest> saves;
  std::vector<std::u16string> folderTitles;
  std::deque<std::optional<FileDialogAnswer>> answers;  // empty: cancel

 private:
  std::optional<FileDialogAnswer> Next() {
    if (answers.empty()) return std::nullopt;
    auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

class FakeShell : public Shell {
 public:
  bool Open(std::u16string_view path, std::u16string_view parameters) override {
    opened.emplace_back(path, parameters);
    return opens;
  }
  bool Explore(std::u16string_view folder) override {
    if (outOfMemory) throw std::bad_alloc();
    explored.emplace_back(folder);
    return true;
  }
  bool Properties(std::u16string_view path) override {
    properties.emplace_back(path);
    return true;
  }
  std::u16string TypeName(std::u16string_view) override { return typeName; }
  std::u16string IconName(std::u16string_view) override { return iconName; }
  void AddToRecentDocuments(std::u16string_view path) override { recent.emplace_back(path); }
  std::u16string ProgramForMimeType(std::string_view mimeType) override {
    const auto found = programs.find(std::string(mimeType));
    return found == programs.end() ? std::u16string() : found->second;
  }
  bool StartProgram(std::u16string_view program, std::u16string_view argument) override {
    started.emplace_back(program, argument);
    return true;
  }
  bool StartCommandLine(std::u16string_view commandLine) override {
    commandLines.emplace_back(commandLine);
    return startsCommandLines;
  }
  bool opens = true;
  bool outOfMemory = false;
  std::vector<std::u16string> commandLines;
  bool startsCommandLines = true;
  std::vector<std::pair<std::u16string, std::u16string>> opened;
  std::vector<std::u16string> explored;
  std::vector<std::u16string> properties;
  std::vector<std::u16string> recent;
  std::vector<std::pair<std::u16string, std::u16string>> started;
  std::map<std::string, std::u16string> programs;
  std::u16string typeName = u"HTML 文書";
  std::u16string iconName = u"text-html";
};

class FakeEnvironment : public Environment {
 public:
  std::u16string ExecutablePath() override { return executable; }
  std::u16string Folder(SystemFolder folder) override {
    const auto found = folders.find(folder);
    return found == folders.end() ? std::u16string() : found->second;
  }
  std::vector<std::u16string> Drives() override { return drives; }
  std::u16string UserName() override { return u"author"; }
  std::uint32_t ProcessId() override { return processId; }
  std::vector<std::u16string> ProcessExecutables() override { return processes; }
  bool ChangeFolder(std::u16string_view folder) override {
    currentFolder = folder;
    return true;
  }
  std::uint32_t processId = 4711;
  std::u16string executable = u"/opt/Kestrile/Kestri";
  std::map<SystemFolder, std::u16string> folders;
  std::vector<std::u16string> drives{u"/"};
  std::vector<std::u16string> processes{u"/opt/Kestrile/Kestri"};
  std::u16string currentFolder;
};

}  // namespace kestri::fakes
