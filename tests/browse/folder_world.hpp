// Drives, folders and files in memory, under either style of paths, and a desk with a folder bar on them.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "browse/folder_bar.hpp"
#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {

class FolderWorld : public fakes::MemoryFileSystem {
 public:
  explicit FolderWorld(char16_t separator) : separator_(separator) {}

  // With every folder above it.
  void AddFolder(const std::u16string& path, std::uint32_t attributes = 0) {
    for (auto end = path.find(separator_, 1); end != path.npos; end = path.find(separator_, end + 1))
      folders.emplace(Bare(path.substr(0, end)), kAttributeDirectory);
    folders[Bare(path)] = kAttributeDirectory | attributes;
  }
  void RemoveTree(const std::u16string& path) {
    std::erase_if(folders, [&](const auto& entry) { return LiesIn(entry.first, path); });
    std::erase_if(contents, [&](const auto& entry) { return LiesIn(entry.first, path); });
  }

  std::optional<FileStatus> Status(std::u16string_view path) override {
    ++statusCalls;
    const auto file = contents.find(std::u16string(path));
    if (file != contents.end())
      return FileStatus{.attributes = fileAttributes[file->first], .size = file->second.size()};
    const auto folder = folders.find(Bare(path));
    if (folder == folders.end()) return std::nullopt;
    return FileStatus{.attributes = folder->second};
  }
  std::vector<FolderEntry> Folders(std::u16string_view folder) override {
    std::vector<FolderEntry> entries;
    if (unreadable.contains(Bare(folder))) return entries;
    for (const auto& [path, attributes] : folders) {
      if (IsChild(path, folder)) entries.push_back({NameOf(path), attributes});
    }
    std::reverse(entries.begin(), entries.end());  // volumes list in no order at all
    for (const std::u16string& gone : std::exchange(vanishAfterListing, {})) RemoveTree(gone);
    return entries;
  }
  bool HasFolder(std::u16string_view folder) override {
    ++subFolderTests;
    if (unreadable.contains(Bare(folder))) return false;
    return std::any_of(folders.begin(), folders.end(),
                       [&](const auto& entry) { return IsChild(entry.first, folder); });
  }
  std::vector<std::u16string> FileNames(std::u16string_view folder) override {
    ++fileLists;
    std::vector<std::u16string> names;
    for (const auto& [path, bytes] : contents)
      if (IsChild(path, folder)) names.push_back(NameOf(path));
    return names;
  }
  bool CreateFolder(std::u16string_view path) override {
    if (refuseWrites || Status(path)) return false;
    folders[Bare(path)] = kAttributeDirectory;
    return true;
  }
  bool Rename(std::u16string_view from, std::u16string_view to) override {
    if (refuseWrites || Status(to) || !Status(from)) return false;
    std::map<std::u16string, std::uint32_t> moved;
    for (const auto& [path, attributes] : folders)
      if (LiesIn(path, from)) moved[std::u16string(to) + path.substr(from.size())] = attributes;
    RemoveTree(std::u16string(from));
    folders.merge(moved);
    return true;
  }

  std::map<std::u16string, std::uint32_t> folders;
  std::map<std::u16string, std::uint32_t> fileAttributes;
  std::set<std::u16string> unreadable;
  std::vector<std::u16string> vanishAfterListing;
  int subFolderTests = 0;
  int statusCalls = 0;
  int fileLists = 0;

 private:
  std::u16string Bare(std::u16string_view path) const {
    if (!path.empty() && path.back() == separator_) path.remove_suffix(1);
    return std::u16string(path);
  }
  bool LiesIn(std::u16string_view path, std::u16string_view folder) const {
    return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == separator_);
  }
  bool IsChild(std::u16string_view path, std::u16string_view folder) const {
    const std::u16string bare = Bare(folder);
    return LiesIn(path, bare) && path.size() > bare.size() + 1 && path.rfind(separator_) == bare.size();
  }
  std::u16string NameOf(const std::u16string& path) const { return path.substr(path.rfind(separator_) + 1); }

  char16_t separator_;
};

class RecordingHost : public FolderBarHost {
 public:
  bool ConfirmDiscard(std::u16string_view verb) override {
    verbs.emplace_back(verb);
    return confirms;
  }
  bool OpenDocument(std::u16string_view path, bool readOnly) override {
    opened.emplace_back(path, readOnly);
    return opens;
  }
  void OpenDialogAt(std::u16string_view folder) override { did.emplace_back(u"open at", folder); }
  void SaveAsDialogAt(std::u16string_view folder) override { did.emplace_back(u"save at", folder); }
  void OpenInNewInstance(std::u16string_view path) override { did.emplace_back(u"new instance", path); }
  void ConvertToHtml(std::u16string_view path) override { did.emplace_back(u"convert", path); }
  void InsertAtCaret(std::u16string_view text) override { did.emplace_back(u"insert", text); }
  std::u16string CurrentFile() const override { return currentFile; }
  void FocusText() override { ++focused; }
  void MessageToStatusBar(std::u16string_view text) override { messages.emplace_back(text); }
  bool Offers(FolderBarTool tool) const override { return offered.contains(tool); }
  void Run(FolderBarTool tool, std::u16string_view path) override { ran.emplace_back(tool, path); }
  void ShowFileInformation(std::u16string_view path, ShowFileView view) override {
    informed.emplace_back(path, view);
  }
  void DismissFileTip() override { ++tipsDismissed; }

  std::vector<std::u16string> verbs;
  std::vector<std::pair<std::u16string, bool>> opened;
  std::vector<std::pair<std::u16string, std::u16string>> did;
  std::vector<std::pair<FolderBarTool, std::u16string>> ran;
  std::vector<std::pair<std::u16string, ShowFileView>> informed;
  std::vector<std::u16string> messages;
  std::set<FolderBarTool> offered;
  std::u16string currentFile;
  bool confirms = true;
  bool opens = true;
  int focused = 0;
  int tipsDismissed = 0;
};

// Paths of the tests are written with "/"; under Windows they lie on drive C.
struct FolderDesk {
  explicit FolderDesk(PathStyle pathStyle)
      : style(pathStyle), files(style == PathStyle::Posix ? u'/' : u'\\') {
    environment.drives = {P(u"/")};
    environment.folders = {{SystemFolder::Documents, P(u"/home/author/Documents")},
                           {SystemFolder::Desktop, P(u"/home/author/Desktop")},
                           {SystemFolder::Windows, P(u"/state")},
                           {SystemFolder::System, P(u"/opt/lib")},
                           {SystemFolder::ProgramFiles, P(u"/programs")}};
    files.AddFolder(P(u"/"));
    for (const char16_t* path :
         {u"/home/author/Documents", u"/home/author/Desktop", u"/home/author/pages/img",
          u"/home/author/pages/日記", u"/home/author/empty", u"/state"})
      files.AddFolder(P(path));
  }

  // "/a/b" in the desk's style.
  std::u16string P(std::u16string path) const {
    if (style == PathStyle::Posix) return path;
    std::replace(path.begin(), path.end(), u'/', u'\\');
    return u"C:" + path;
  }
  void AddFile(const std::u16string& path, std::uint32_t attributes = 0) {
    files.contents[path] = "x";
    files.fileAttributes[path] = attributes;
  }
  std::u16string Setting(std::u16string_view key) const {
    return common.GetINI(common.ExeName(), u"Setting", key, u"(none)");
  }
  void Set(std::u16string_view key, std::u16string_view value) {
    common.SetINI(common.ExeName(), u"Setting", key, value);
  }

  PathStyle style;
  FolderWorld files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
  fakes::FakeMessageBox boxes;
  ApplicationState state;
  RecordingHost host;
  ClassCommon common{Ports{files, environment, shell, clock, services}, style};
};

}  // namespace kestri
