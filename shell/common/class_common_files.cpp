// Facts of a file in the user's words.
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

}  // namespace kestri
