// What stands on the disk: probes, folders, and names that are still free.
#include <algorithm>
#include <array>
#include <charconv>

#include "shell/common/class_common.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kLibraryExtension = u".dll";

// "UNLHA32.DLL" names unlha32.so here; any other name stands for itself.
std::u16string NativeLibraryName(std::u16string_view name, PathStyle style) {
  std::u16string lower = LCase(name);
  if (style == PathStyle::Windows || !lower.ends_with(kLibraryExtension)) return std::u16string(name);
  return lower.substr(0, lower.size() - kLibraryExtension.size()) + u".so";
}

char16_t UpperLetter(char16_t letter) {
  return letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - u'a' + u'A') : letter;
}

}  // namespace

bool ClassCommon::PathExists(std::u16string_view path) const {
  return !path.empty() && ports_.files.Status(path).has_value();
}

std::u16string ClassCommon::GetSystemDirectory(int folderNumber) const {
  return AppPath2(ports_.environment.Folder(static_cast<SystemFolder>(folderNumber)));
}

// There is but one form of a path here; as for the long and short forms, a path that does not exist has none.
std::u16string ClassCommon::GetLongPath(std::u16string_view path) const {
  return PathExists(path) ? std::u16string(path) : std::u16string();
}

std::u16string ClassCommon::GetShortPath(std::u16string_view path) const {
  return GetLongPath(path);
}

bool ClassCommon::DLLCheckReturn(std::u16string& name) const {
  if (name.empty()) return false;
  if (!CRoot(name, 0).empty()) return PathExists(name);
  const std::u16string library = NativeLibraryName(name, style_);
  const std::u16string systemFolder = GetSystemDirectory(static_cast<int>(SystemFolder::System));
  for (const std::u16string& folder : {programFolder_, systemFolder}) {
    std::u16string path = Join(folder, library);
    if (folder.empty() || !PathExists(path)) continue;
    name = std::move(path);
    return true;
  }
  return false;
}

bool ClassCommon::MakeDirectory(std::u16string_view path) const {
  const std::u16string folder = AppPath2(CPath(path, -2));
  if (PathExists(folder)) return true;
  const std::u16string root = CRoot(folder, 0);
  const bool isUnc = style_ == PathStyle::Windows && folder.size() >= 3 && folder.starts_with(u"\\\\");
  if (root.empty() && !isUnc) return false;
  for (auto end = folder.find(Separator(), 1); end != std::u16string::npos;
       end = folder.find(Separator(), end + 1)) {
    const std::u16string level = AppPath2(folder.substr(0, end));
    if (!PathExists(level)) ports_.files.CreateFolder(level);
  }
  return ports_.files.CreateFolder(folder) || PathExists(folder);
}

bool ClassCommon::DriveExists(std::u16string_view drive) const {
  if (drive.empty()) return false;
  const std::vector<std::u16string> drives = ports_.environment.Drives();
  return std::any_of(drives.begin(), drives.end(), [&](const std::u16string& root) {
    if (style_ == PathStyle::Posix) return root == AppPath2(drive);
    return !root.empty() && UpperLetter(root.front()) == UpperLetter(drive.front());
  });
}

std::u16string ClassCommon::SameFileName(std::u16string_view folder, std::u16string_view base,
                                         std::u16string_view extension) const {
  for (std::int64_t counter = 0;; ++counter) {
    const std::u16string number = counter == 0 ? std::u16string() : ToText(counter);
    std::u16string name = std::u16string(base) + number + u"." + std::u16string(extension);
    std::u16string path = Join(folder, name);
    if (!PathExists(path)) return path;
  }
}

std::u16string ClassCommon::GetRandomFileName(std::u16string_view prefix, std::u16string_view middle,
                                              std::u16string_view extension) const {
  std::u16string name(prefix);
  name.append(u"(").append(middle).append(u"_").append(RandomDigits()).append(u").").append(extension);
  return name;
}

std::u16string ClassCommon::RandomDigits() const {
  std::array<char, 64> buffer;
  const float number = ports_.clock.RandomSingle();
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed).ptr;
  constexpr std::ptrdiff_t kLeadingZeroAndPoint = 2;
  if (end - buffer.data() <= kLeadingZeroAndPoint) return u"0";
  return std::u16string(buffer.data() + kLeadingZeroAndPoint, end);
}

}  // namespace kestri
