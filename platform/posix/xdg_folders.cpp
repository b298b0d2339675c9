#include "platform/posix/xdg_folders.hpp"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>

namespace kestri::posix {
namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

std::string WithoutTrailingSlash(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

// The standard bids to ignore a base folder that is not absolute.
std::string BaseFolder(const char* variable, const char* fallback) {
  const std::string value = Variable(variable);
  return value.starts_with('/') ? WithoutTrailingSlash(value) : HomeFolder() + fallback;
}

bool IsFolder(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

std::string Unquoted(std::string_view value) {
  std::string text;
  for (std::size_t i = 0; i < value.size() && value[i] != '"'; ++i) {
    if (value[i] == '\\' && i + 1 < value.size()) ++i;
    text += value[i];
  }
  return text;
}

// The value of a line such as XDG_DESKTOP_DIR="$HOME/Desktop"; empty when it is another line or not absolute.
std::string UserFolderOfLine(std::string_view line, const std::string& prefix) {
  constexpr std::string_view kHome = "$HOME";
  const auto start = line.find_first_not_of(" \t");
  if (start == std::string_view::npos || !line.substr(start).starts_with(prefix)) return {};
  std::string value = Unquoted(line.substr(start + prefix.size()));
  if (value.starts_with(kHome)) value.replace(0, kHome.size(), HomeFolder());
  return value.starts_with('/') ? WithoutTrailingSlash(value) : std::string();
}

std::string ConfiguredUserFolder(const std::string& name) {
  std::ifstream file(BaseFolder("XDG_CONFIG_HOME", "/.config") + "/user-dirs.dirs");
  const std::string prefix = "XDG_" + name + "_DIR=\"";
  std::string found;
  for (std::string line; std::getline(file, line);) {
    if (std::string value = UserFolderOfLine(line, prefix); !value.empty()) found = std::move(value);
  }
  return found;
}

}  // namespace

std::string HomeFolder() {
  if (const std::string home = Variable("HOME"); home.starts_with('/')) return WithoutTrailingSlash(home);
  struct passwd entry {};
  struct passwd* found = nullptr;
  std::array<char, 4096> buffer;
  const bool known =
      ::getpwuid_r(::geteuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr;
  return known ? WithoutTrailingSlash(entry.pw_dir) : "/";
}

std::string StateFolder() {
  return BaseFolder("XDG_STATE_HOME", "/.local/state") + "/kestrile";
}

std::string DataFolder() {
  return BaseFolder("XDG_DATA_HOME", "/.local/share");
}

std::string TemporaryFolder() {
  const std::string folder = Variable("TMPDIR");
  return folder.starts_with('/') && IsFolder(folder) ? WithoutTrailingSlash(folder) : "/tmp";
}

std::string UserFolder(const std::string& name, const std::string& fallback) {
  const std::string configured = ConfiguredUserFolder(name);
  if (!configured.empty() && MakeFolders(configured)) return configured;
  const std::string usual = HomeFolder() + "/" + fallback;
  return IsFolder(usual) ? usual : HomeFolder();
}

bool MakeFolders(const std::string& path) {
  constexpr mode_t kPrivateFolder = 0700;
  if (IsFolder(path)) return true;
  const auto slash = path.rfind('/');
  if (slash != 0 && slash != std::string::npos && !MakeFolders(path.substr(0, slash))) return false;
  ::mkdir(path.c_str(), kPrivateFolder);
  return IsFolder(path);
}

}  // namespace kestri::posix
