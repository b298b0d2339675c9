// INI access.
#include "shell/common/class_common.hpp"

namespace kestri {
namespace {

// Bytes with the end mark, as the two pairs of calls have them.
constexpr std::size_t kBuffer = 256;
constexpr std::size_t kBufferEx = 1024;

bool Store(const ProfileFile& profiles, const std::u16string& path, std::u16string_view section,
           std::u16string_view key, std::u16string_view value) {
  if (!value.empty()) return profiles.Set(path, section, key, value);
  return key.empty() ? profiles.DeleteSection(path, section) : profiles.DeleteKey(path, section, key);
}

// Field of a comma-separated list, one-based; empty when there are fewer.
std::u16string_view Field(std::u16string_view list, int number) {
  for (; number > 1; --number) {
    const auto comma = list.find(u',');
    if (comma == std::u16string_view::npos) return {};
    list.remove_prefix(comma + 1);
  }
  return list.substr(0, list.find(u','));
}

}  // namespace

std::u16string ClassCommon::IniPath(int mode, std::u16string_view file) const {
  constexpr int kWithExtension = 0;
  constexpr int kInProgramFolder = 1;
  if (mode == kWithExtension) return Join(programFolder_, file) + u".ini";
  return mode == kInProgramFolder ? Join(programFolder_, file) : std::u16string(file);
}

std::u16string ClassCommon::GetINI(std::u16string_view file, std::u16string_view section,
                                   std::u16string_view key, std::u16string_view defaultValue) const {
  return std::u16string(DeleteNull(profiles_.Get(IniPath(0, file), section, key, defaultValue, kBuffer)));
}

bool ClassCommon::SetINI(std::u16string_view file, std::u16string_view section, std::u16string_view key,
                         std::u16string_view value) const {
  return Store(profiles_, IniPath(0, file), section, key, value);
}

std::u16string ClassCommon::GetINIex(int mode, std::u16string_view file, std::u16string_view section,
                                     std::u16string_view key, std::u16string_view defaultValue) const {
  return std::u16string(
      DeleteNull(profiles_.Get(IniPath(mode, file), section, key, defaultValue, kBufferEx)));
}

bool ClassCommon::SetINIex(int mode, std::u16string_view file, std::u16string_view section,
                           std::u16string_view key, std::u16string_view value) const {
  return Store(profiles_, IniPath(mode, file), section, key, value);
}

// An entry of WIN.INI counts first; without one the desktop knows which program opens such files.
std::u16string ClassCommon::GetWindowsAppPathForWinINI(int number) const {
  struct Program {
    std::u16string_view key;
    std::string_view mimeType;
  };
  static constexpr Program kPrograms[] = {{u"PBrush", "image/bmp"},
                                          {u"Wordpad.Document.1", "application/rtf"}};
  if (number != 1 && number != 2) return u"";
  const Program& program = kPrograms[number - 1];
  const std::u16string ini = Join(GetSystemDirectory(static_cast<int>(SystemFolder::Windows)), u"WIN.INI");
  const std::u16string value = GetINIex(2, ini, u"embedding", program.key, u"");
  if (value.empty()) return ports_.shell.ProgramForMimeType(program.mimeType);
  return GetLongPath(Trim(Field(value, 3)));
}

}  // namespace kestri
