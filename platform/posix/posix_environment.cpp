#include "platform/posix/posix_environment.hpp"

#include <dirent.h>
#include <limits.h>
#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>

#include "platform/posix/native_path.hpp"
#include "platform/posix/xdg_folders.hpp"

namespace kestri {
namespace {

std::string LinkText(const std::string& path) {
  std::array<char, PATH_MAX> buffer;
  const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
  return length > 0 ? std::string(buffer.data(), static_cast<std::size_t>(length)) : std::string();
}

// The executable of a running process may have been replaced by an update; its path still counts.
std::string ExecutableOf(const std::string& process) {
  constexpr std::string_view kDeleted = " (deleted)";
  std::string path = LinkText("/proc/" + process + "/exe");
  if (path.ends_with(kDeleted)) path.resize(path.size() - kDeleted.size());
  return path;
}

std::string Made(const std::string& folder) {
  return posix::MakeFolders(folder) ? folder : std::string();
}

std::string NativeFolder(SystemFolder folder) {
  switch (folder) {
    case SystemFolder::Desktop:
      return posix::UserFolder("DESKTOP", "Desktop");
    case SystemFolder::Documents:
      return posix::UserFolder("DOCUMENTS", "Documents");
    case SystemFolder::SendTo:
      return Made(posix::DataFolder() + "/Thunar/sendto");
    case SystemFolder::Windows:
      return Made(posix::StateFolder());
    case SystemFolder::System:
      return posix::FolderOf(ExecutableOf("self")) + "/lib";
    case SystemFolder::ProgramFiles:
      return "/usr/share/applications";
    case SystemFolder::Temporary:
      return posix::TemporaryFolder();
  }
  return {};
}

bool IsOctal(char digit) {
  return digit >= '0' && digit <= '7';
}

// The table writes blanks and the like as "\040".
std::string WithoutEscapes(const std::string& field) {
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    const bool escaped = field[i] == '\\' && i + 3 < field.size() && IsOctal(field[i + 1]) &&
                         IsOctal(field[i + 2]) && IsOctal(field[i + 3]);
    text += escaped ? static_cast<char>(std::stoi(field.substr(i + 1, 3), nullptr, 8)) : field[i];
    if (escaped) i += 3;
  }
  return text;
}

bool IsUserMount(const std::string& path) {
  return path.starts_with("/media/") || path.starts_with("/run/media/") || path.starts_with("/mnt/") ||
         path == "/mnt";
}

bool IsProcess(const std::string& name) {
  return std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

std::vector<std::string> posix::UserMounts(const std::string& table) {
  std::vector<std::string> mounts;
  std::istringstream lines(table);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream fields(line);
    std::string device, point;
    fields >> device >> point;
    if (std::string path = WithoutEscapes(point); IsUserMount(path)) mounts.push_back(std::move(path));
  }
  std::sort(mounts.begin(), mounts.end());
  mounts.erase(std::unique(mounts.begin(), mounts.end()), mounts.end());
  mounts.insert(mounts.begin(), "/");
  return mounts;
}

std::u16string PosixEnvironment::ExecutablePath() {
  return posix::PathText(ExecutableOf("self"));
}

std::u16string PosixEnvironment::Folder(SystemFolder folder) {
  return posix::PathText(NativeFolder(folder));
}

std::vector<std::u16string> PosixEnvironment::Drives() {
  std::ifstream file("/proc/self/mounts");
  std::stringstream table;
  table << file.rdbuf();
  std::vector<std::u16string> drives;
  for (const std::string& mount : posix::UserMounts(table.str())) drives.push_back(posix::PathText(mount));
  return drives;
}

std::u16string PosixEnvironment::UserName() {
  struct passwd entry {};
  struct passwd* found = nullptr;
  std::array<char, 4096> buffer;
  if (::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr) {
    return posix::PathText(entry.pw_name);
  }
  const char* name = std::getenv("USER");
  return name == nullptr ? std::u16string() : posix::PathText(name);
}

std::uint32_t PosixEnvironment::ProcessId() {
  return static_cast<std::uint32_t>(::getpid());
}

std::vector<std::u16string> PosixEnvironment::ProcessExecutables() {
  std::vector<std::u16string> executables;
  const std::unique_ptr<DIR, int (*)(DIR*)> processes(::opendir("/proc"), &::closedir);
  if (!processes) return executables;
  while (const dirent* entry = ::readdir(processes.get())) {
    const std::string name = entry->d_name;
    if (!IsProcess(name)) continue;
    if (const std::string path = ExecutableOf(name); !path.empty())
      executables.push_back(posix::PathText(path));
  }
  return executables;
}

bool PosixEnvironment::ChangeFolder(std::u16string_view folder) {
  const auto native = posix::NativePath(folder);
  return native && ::chdir(native->c_str()) == 0;
}

}  // namespace kestri
