#include "platform/posix/native_path.hpp"

#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>

#include "shell/common/text.hpp"

namespace kestri::posix {
namespace {

constexpr int kMostLinks = 40;

std::string Beside(const std::string& path, const std::string& target) {
  return target.starts_with('/') ? target : FolderOf(path) + "/" + target;
}

}  // namespace

std::optional<std::string> NativePath(std::u16string_view path) {
  if (path.empty() || path.find(u'\0') != std::u16string_view::npos) return std::nullopt;
  return ToUtf8(path);
}

std::u16string PathText(std::string_view path) {
  return FromUtf8(path);
}

std::string FolderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

std::string NameOf(const std::string& path) {
  return path.substr(path.rfind('/') + 1);
}

std::optional<std::string> LinkTarget(std::string path) {
  for (int links = 0; links <= kMostLinks; ++links) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) return path;
    std::array<char, PATH_MAX> buffer;
    const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
    if (length <= 0 || length == static_cast<ssize_t>(buffer.size())) return std::nullopt;
    path = Beside(path, std::string(buffer.data(), static_cast<std::size_t>(length)));
  }
  return std::nullopt;
}

}  // namespace kestri::posix
