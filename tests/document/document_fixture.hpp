// A document with a real edit control on real files in a folder of its own; everything else is scripted.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <new>
#include <string>
#include <vector>

#include "document/document.hpp"
#include "document/edit_control/edit_control.hpp"
#include "platform/posix/posix_file_system.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"
#include "tests/fakes/document_recorder.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {

// The real file system, with faults on demand.
class FaultyFileSystem : public PosixFileSystem {
 public:
  bool Replace(std::u16string_view path, const ByteProducer& producer) override {
    if (path != faultyReplace) return PosixFileSystem::Replace(path, producer);
    return false;
  }
  bool ReplaceOrdered(std::u16string_view path, const ByteProducer& producer) override {
    return path != faultyReplace && PosixFileSystem::ReplaceOrdered(path, producer);
  }
  bool ReplaceUnsynced(std::u16string_view path, const ByteProducer& producer) override {
    return path != faultyReplace && PosixFileSystem::ReplaceUnsynced(path, producer);
  }
  bool Copy(std::u16string_view from, std::u16string_view to) override {
    return !faultyCopy && PosixFileSystem::Copy(from, to);
  }
  bool Append(std::u16string_view path, std::string_view bytes) override {
    return !faultyAppend && PosixFileSystem::Append(path, bytes);
  }
  bool Read(std::u16string_view path, const ByteConsumer& consumer) override {
    if (path == tooMuch) throw std::bad_alloc();
    if (path != endless) return PosixFileSystem::Read(path, consumer);
    for (piecesRead = 1; piecesRead < 1000 && consumer(std::string(1000, 'x')); ++piecesRead) {
    }
    return true;
  }
  std::u16string endless;  // a file that tells no size and delivers without end
  int piecesRead = 0;
  std::u16string tooMuch;  // a file that finds no memory
  std::u16string faultyReplace;
  bool faultyCopy = false;
  bool faultyAppend = false;
};

// A box must never stand under the waiting pointer.
class VisibleMessageBox : public fakes::FakeMessageBox {
 public:
  explicit VisibleMessageBox(const fakes::FakeWindowServices& services) : services_(services) {}
  MessageAnswer Ask(const MessageRequest& request) override {
    EXPECT_FALSE(services_.busy) << ToUtf8(request.text);
    return FakeMessageBox::Ask(request);
  }

 private:
  const fakes::FakeWindowServices& services_;
};

class DocumentTest : public ::testing::Test {
 protected:
  DocumentTest() {
    for (const char* name : {"program", "state", "documents", "work"}) {
      std::filesystem::create_directory(std::filesystem::path(folder.Path()) / name);
    }
    environment.executable = Whole("program/Kestri");
    environment.folders[SystemFolder::Windows] = Whole("state");
    environment.folders[SystemFolder::Documents] = Whole("documents");
    common.emplace(Ports{files, environment, shell, clock, services}, PathStyle::Posix);
    state.captionTail = u" - tail";
    state.currentFolder = Whole("work");
    document.emplace(control, state, *common, boxes, dialogs, window, fallbacks);
    events.document = &*document;
    control.SetEvents(&events);
  }
  ~DocumentTest() override { control.SetEvents(nullptr); }

  std::u16string Whole(const std::string& name) const {
    return FromUtf8((std::filesystem::path(folder.Path()) / name).string());
  }
  std::u16string Work(const std::string& name) const { return Whole("work/" + name); }

  std::u16string MakeFile(const std::string& name, std::string_view bytes) {
    const auto path = std::filesystem::path(folder.Path()) / "work" / name;
    std::ofstream(path, std::ios::binary) << bytes;
    return FromUtf8(path.string());
  }
  static std::string Bytes(std::u16string_view path) {
    std::ifstream file(ToUtf8(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  static std::string Encoded(std::u16string_view text) { return code_page::Encode(text); }
  static bool Exists(std::u16string_view path) { return std::filesystem::exists(ToUtf8(path)); }
  static void MakeReadOnly(std::u16string_view path) { ::chmod(ToUtf8(path).c_str(), 0444); }
  std::string Log() const { return Bytes(Whole("program/Kestri.log")); }

  void Set(std::u16string_view section, std::u16string_view key, std::u16string_view value) {
    ASSERT_TRUE(common->SetINI(u"Kestri", section, key, value));
  }
  std::u16string Get(std::u16string_view section, std::u16string_view key) const {
    return common->GetINI(u"Kestri", section, key, u"(none)");
  }
  std::u16string FromInstanceLog(std::u16string_view section, std::u16string_view key) const {
    return common->GetINIex(2, Whole("state/Kestri_TEMP_FileLog.INI"), section, key, u"(none)");
  }

  bool Open(std::u16string_view path) { return document->OpenDocument(path, ReadOnly::No); }
  void Type(std::u16string_view text) { control.EM_REPLACESEL(true, text); }
  // Leaves the file with other bytes and another time than the document knows.
  static void ChangeBehindTheBack(std::u16string_view path, std::string_view bytes) {
    std::ofstream(ToUtf8(path), std::ios::binary) << bytes;
  }

  const MessageRequest& OnlyBox() const {
    static const MessageRequest none;
    EXPECT_EQ(boxes.asked.size(), 1U);
    return boxes.asked.empty() ? none : boxes.asked.back();
  }
  static void ExpectBox(const MessageRequest& box, std::u16string_view caption, std::u16string_view text,
                        MessageIcon icon, MessageButtons buttons, int defaultButton) {
    EXPECT_EQ(ToUtf8(box.caption), ToUtf8(caption));
    EXPECT_EQ(ToUtf8(box.text), ToUtf8(text));
    EXPECT_EQ(box.icon, icon);
    EXPECT_EQ(box.buttons, buttons);
    EXPECT_EQ(box.defaultButton, defaultButton);
  }

  struct Events : EditControlEvents {
    void Change() override {
      ++changes;
      document->TextChanged();
    }
    Document* document = nullptr;
    int changes = 0;
  };

  fakes::TemporaryFolder folder;
  fakes::ScopedVariable runtime{"XDG_RUNTIME_DIR", folder.Path("run")};  // where locks are kept
  FaultyFileSystem files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
  fakes::FakeClipboard clipboard;
  VisibleMessageBox boxes{services};
  fakes::FakeFileDialog dialogs;
  fakes::DocumentRecorder window;
  fakes::ScriptedFallbacks fallbacks;
  ApplicationState state;
  EditControl control{clipboard};
  Events events;
  std::optional<ClassCommon> common;
  std::optional<Document> document;
};

}  // namespace kestri
