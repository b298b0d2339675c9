// Moving, copying, deleting and renaming of files and folders.
#include <algorithm>

#include "shell/common/class_common.hpp"

namespace kestri {
namespace {

bool LiesWithin(std::u16string_view path, std::u16string_view folder, char16_t separator) {
  return !folder.empty() && path.starts_with(folder) &&
         (path.size() == folder.size() || path[folder.size()] == separator);
}

class FileEditor {
 public:
  FileEditor(FileSystem& files, char16_t separator) : files_(files), separator_(separator) {}

  bool IsFolder(std::u16string_view path) const {
    const auto status = files_.Status(path);
    return status && (status->attributes & kAttributeDirectory) != 0;
  }

  std::u16string Below(std::u16string_view folder, std::u16string_view name) const {
    return std::u16string(folder).append(1, separator_).append(name);
  }

  // The path, or with a number in front of its extension when it is taken.
  std::u16string FreePath(const std::u16string& path) const {
    const auto name = path.rfind(separator_) + 1;
    const auto dot = path.rfind(u'.');
    const auto end = dot == path.npos || dot <= name ? path.size() : dot;
    std::u16string free = path;
    for (int number = 2; files_.Status(free); ++number) {
      free = path.substr(0, end) + u" (" + ToText(number) + u")" + path.substr(end);
    }
    return free;
  }

  // A link is removed itself; what it points to stays.
  bool Delete(std::u16string_view path) const {
    if (files_.Remove(path)) return true;
    if (!IsFolder(path)) return false;
    bool all = true;
    for (const std::u16string& name : files_.List(path)) all &= Delete(Below(path, name));
    return all && files_.RemoveFolder(path);
  }

  // The path itself may be a link to what is copied; links within a folder are copied as links, so that none
  // leads out of the tree or round in it.
  bool Copy(std::u16string_view from, std::u16string_view to) const {
    return !WouldHoldItself(from, to) && CopyTree(from, to);
  }

  bool Move(std::u16string_view from, std::u16string_view to) const {
    if (files_.Rename(from, to)) return true;
    return !files_.Status(to) && !WouldHoldItself(from, to) && CopyEntry(from, to) && Delete(from);
  }

  bool Rename(std::u16string_view from, std::u16string_view to) const { return files_.Rename(from, to); }

 private:
  bool WouldHoldItself(std::u16string_view from, std::u16string_view to) const {
    const std::u16string whole = files_.Canonical(from);
    const std::u16string_view folder = to.substr(0, std::min(to.rfind(separator_), to.size()));
    return LiesWithin(to, from, separator_) || LiesWithin(files_.Canonical(folder), whole, separator_) ||
           LiesWithin(files_.Canonical(to), whole, separator_);
  }

  bool CopyTree(std::u16string_view from, std::u16string_view to) const {
    if (!IsFolder(from)) return files_.Copy(from, to);
    if (!IsFolder(to) && !files_.CreateFolder(to)) return false;
    bool all = true;
    for (const std::u16string& name : files_.List(from)) all &= CopyEntry(Below(from, name), Below(to, name));
    return all;
  }

  bool CopyEntry(std::u16string_view from, std::u16string_view to) const {
    const auto link = files_.LinkText(from);
    return link ? CopyLink(*link, to) : CopyTree(from, to);
  }

  bool CopyLink(const std::u16string& link, std::u16string_view to) const {
    if (files_.CreateLink(link, to)) return true;
    return files_.LinkText(to) && files_.Remove(to) && files_.CreateLink(link, to);
  }

  FileSystem& files_;
  char16_t separator_;
};

std::vector<std::u16string_view> PathsIn(std::u16string_view list) {
  std::vector<std::u16string_view> paths;
  while (!list.empty()) {
    const std::size_t length = std::min(list.find(u'\0'), list.size());
    if (length > 0) paths.push_back(list.substr(0, length));
    list.remove_prefix(std::min(length + 1, list.size()));
  }
  return paths;
}

}  // namespace

bool ClassCommon::FileEdit(FileOperation operation, std::u16string_view from, std::u16string_view to,
                           std::uint32_t flags) const {
  const auto sources = PathsIn(from);
  auto targets = PathsIn(to);
  const bool needsTarget = operation != FileOperation::Delete;
  const bool oneEach = (flags & kMultipleDestinations) != 0;
  if (sources.empty() || (needsTarget && targets.size() != (oneEach ? sources.size() : 1))) return false;
  const bool intoFolder = sources.size() > 1 && !oneEach;
  if (needsTarget && intoFolder && !FileEditor(ports_.files, Separator()).IsFolder(targets.front()))
    return false;
  targets.resize(sources.size(), targets.empty() ? std::u16string_view() : targets.front());
  bool all = true;
  for (std::size_t i = 0; i < sources.size(); ++i) {
    all &= EditFile(operation, AppPath2(sources[i]), AppPath2(targets[i]), flags);
  }
  return all;
}

bool ClassCommon::EditFile(FileOperation operation, const std::u16string& source, std::u16string target,
                           std::uint32_t flags) const {
  if (source.empty() || source == CRoot(source, 0)) return false;
  const FileEditor editor(ports_.files, Separator());
  if (operation == FileOperation::Delete) return editor.Delete(source);
  const bool takesIn = operation != FileOperation::Rename && (flags & kMultipleDestinations) == 0;
  if (takesIn && editor.IsFolder(target)) target = Join(target, source.substr(source.rfind(Separator()) + 1));
  if ((flags & kRenameOnCollision) != 0) target = editor.FreePath(target);
  switch (operation) {
    case FileOperation::Copy:
      return editor.Copy(source, target);
    case FileOperation::Move:
      return editor.Move(source, target);
    default:
      return editor.Rename(source, target);
  }
}

}  // namespace kestri
