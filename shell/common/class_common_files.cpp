// Facts of a file in the user's words, and file operations.
#include <cstdio>

#include "shell/common/class_common.hpp"

namespace kestri {
namespace {

constexpr double kKilo = 1000;  // not 1024
constexpr double kMega = 1000 * kKilo;

std::u16string SizeText(std::uint64_t bytes) {
  const double number = static_cast<double>(bytes);
  const bool isSmall = number < kMega;
  std::u16string text = FormatThousands(number / (isSmall ? kKilo : kMega), 2);
  text += isSmall ? u" KB  " : u" MB  ";
  return text + u"(" + FormatThousands(number, 0) + u" byte)";
}

std::u16string DateTimeText(const std::tm& time) {
  return FormatZeros(time.tm_year + 1900, 4) + u"/" + FormatZeros(time.tm_mon + 1, 2) + u"/" +
         FormatZeros(time.tm_mday, 2) + u" " + FormatZeros(time.tm_hour, 2) + u":" +
         FormatZeros(time.tm_min, 2) + u":" + FormatZeros(time.tm_sec, 2);
}

bool IsFolder(FileSystem& files, std::u16string_view path) {
  const auto status = files.Status(path);
  return status && (status->attributes & kAttributeDirectory) != 0;
}

std::u16string Below(std::u16string_view folder, const std::u16string& name, char16_t separator) {
  return std::u16string(folder) + separator + name;
}

// A link is removed itself; what it points to stays.
bool DeleteTree(FileSystem& files, std::u16string_view path, char16_t separator) {
  if (files.Remove(path)) return true;
  if (!IsFolder(files, path)) return false;
  bool all = true;
  for (const std::u16string& name : files.List(path))
    all &= DeleteTree(files, Below(path, name, separator), separator);
  return all && files.RemoveFolder(path);
}

bool CopyTree(FileSystem& files, std::u16string_view from, std::u16string_view to, char16_t separator) {
  if (!IsFolder(files, from)) return files.Copy(from, to);
  if (!IsFolder(files, to) && !files.CreateFolder(to)) return false;
  bool all = true;
  for (const std::u16string& name : files.List(from)) {
    all &= CopyTree(files, Below(from, name, separator), Below(to, name, separator), separator);
  }
  return all;
}

bool LiesWithin(std::u16string_view path, std::u16string_view folder, char16_t separator) {
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == separator);
}

}  // namespace

std::u16string ClassCommon::GetFileSizeFormat(std::u16string_view path) const {
  const auto status = ports_.files.Status(path);
  if (!status) return u"";
  const bool isFolder = (status->attributes & kAttributeDirectory) != 0;
  return SizeText(isFolder ? ports_.files.FolderSize(path) : status->size);
}

std::u16string ClassCommon::GetFileType(std::u16string_view path) const {
  return PathExists(path) ? ports_.shell.TypeName(path) : std::u16string();
}

std::u16string ClassCommon::GetFileIcon(std::u16string_view path, std::uint32_t) const {
  return ports_.shell.IconName(path);
}

std::u16string ClassCommon::GetFileDateTimeFormat(std::u16string_view path) const {
  const auto status = ports_.files.Status(path);
  return status ? DateTimeText(ports_.clock.LocalTime(status->modified)) : std::u16string();
}

bool ClassCommon::IsFileAttribute(std::u16string_view path, std::uint32_t mask) const {
  const auto status = ports_.files.Status(path);
  return status && (status->attributes & mask) != 0;
}

std::u16string ClassCommon::GetFileAttribute(std::u16string_view path) const {
  struct Word {
    std::uint32_t bit;
    std::u16string_view text;
  };
  static constexpr Word kWords[] = {
      {kAttributeArchive, u"Archive  "},   {kAttributeDirectory, u"Directory & "},
      {kAttributeSystem, u"System  "},     {kAttributeHidden, u"Hidden  "},
      {kAttributeReadOnly, u"ReadOnly  "},
  };
  const auto status = ports_.files.Status(path);
  if (!status) return u"";
  std::u16string text;
  for (const Word& word : kWords) {
    if ((status->attributes & word.bit) != 0) text += word.text;
  }
  if (text.empty()) text = u"Normal  ";
  text.resize(text.size() - 2);
  return text;
}

bool ClassCommon::KillFile(std::u16string_view path) const {
  return ports_.files.Remove(path);
}

bool ClassCommon::FileEdit(FileOperation operation, std::u16string_view from, std::u16string_view to) const {
  const std::u16string source = AppPath2(from);
  const std::u16string target = AppPath2(to);
  if (source.empty() || source == CRoot(source, 0)) return false;
  const bool intoItself = LiesWithin(target, source, Separator());
  switch (operation) {
    case FileOperation::Delete:
      return DeleteTree(ports_.files, source, Separator());
    case FileOperation::Copy:
      return !intoItself && CopyTree(ports_.files, source, target, Separator());
    case FileOperation::Rename:
      return ports_.files.Rename(source, target);
    case FileOperation::Move:
      break;
  }
  if (ports_.files.Rename(source, target)) return true;
  return !intoItself && !PathExists(target) && CopyTree(ports_.files, source, target, Separator()) &&
         DeleteTree(ports_.files, source, Separator());
}

}  // namespace kestri
