// ClassCommon on scripted ports, with drive paths in a file system that only knows which paths exist, or with
// native paths on the real one.
#pragma once

#include <map>
#include <set>
#include <string>

#include "platform/posix/posix_file_system.hpp"
#include "shell/common/class_common.hpp"
#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri::fakes {

class KnownPaths : public MemoryFileSystem {
 public:
  std::optional<FileStatus> Status(std::u16string_view path) override {
    const std::u16string text(path);
    if (folders.contains(text)) return FileStatus{.attributes = kAttributeDirectory};
    if (const auto known = attributes.find(text); known != attributes.end())
      return FileStatus{.attributes = known->second};
    return MemoryFileSystem::Status(path);
  }
  bool CreateFolder(std::u16string_view path) override {
    const std::u16string text(path);
    const std::u16string parent = text.substr(0, text.rfind(u'\\'));
    const bool hasParent = folders.contains(parent) || folders.contains(parent + u"\\");
    return (hasParent || anyFolderCanBeMade) && folders.insert(text).second;
  }
  bool CreateLink(std::u16string_view target, std::u16string_view link) override {
    links.emplace_back(target, link);
    return true;
  }
  std::set<std::u16string> folders;
  bool anyFolderCanBeMade = false;                     // even one whose parent is unknown
  std::map<std::u16string, std::uint32_t> attributes;  // of files
  std::vector<std::pair<std::u16string, std::u16string>> links;
};

struct FakePorts {
  FakeEnvironment environment;
  FakeShell shell;
  FakeClock clock;
  FakeWindowServices window;
};

struct WindowsWorld : FakePorts {
  WindowsWorld() {
    environment.executable = u"C:\\Kestrile\\Kestri.exe";
    environment.folders = {
        {SystemFolder::Windows, u"C:\\WINDOWS"},       {SystemFolder::System, u"C:\\WINDOWS\\system32"},
        {SystemFolder::Documents, u"C:\\Documents\\"}, {SystemFolder::ProgramFiles, u"C:\\Program Files"},
        {SystemFolder::Desktop, u"C:\\Desktop"},       {SystemFolder::Temporary, u"C:\\TEMP\\"}};
    environment.drives = {u"A:\\", u"C:\\"};
  }
  KnownPaths files;
  ClassCommon Common() { return ClassCommon({files, environment, shell, clock, window}, PathStyle::Windows); }
};

struct PosixWorld : FakePorts {
  PosixWorld() {
    environment.executable = folder.Text(u"program/Kestri");
    environment.folders = {{SystemFolder::Windows, folder.Text(u"state")},
                           {SystemFolder::System, folder.Text(u"program/lib")},
                           {SystemFolder::Documents, folder.Text(u"documents/")},
                           {SystemFolder::Temporary, folder.Text(u"temporary")}};
    std::filesystem::create_directories(folder.Path("program/lib"));
    std::filesystem::create_directories(folder.Path("state"));
  }
  TemporaryFolder folder;
  ScopedVariable runtime{"XDG_RUNTIME_DIR", folder.Path("run")};
  PosixFileSystem files;
  ClassCommon Common() { return ClassCommon({files, environment, shell, clock, window}, PathStyle::Posix); }
};

}  // namespace kestri::fakes
