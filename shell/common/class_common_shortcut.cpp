// Shortcuts: links for drive paths, desktop entries elsewhere.
#include "shell/common/class_common.hpp"

namespace kestri {
namespace {

// A quoted argument of an Exec line: the shell's four special characters are escaped, "%" is doubled, and
// each backslash counts twice because the value is a string of the entry file too.
std::string ExecArgument(const std::string& path) {
  std::string text = "\"";
  for (const char byte : path) {
    switch (byte) {
      case '\\':
        text += "\\\\\\\\";
        break;
      case '"':
      case '`':
      case '$':
        text += std::string("\\\\") + byte;
        break;
      case '%':
        text += "%%";
        break;
      default:
        text += byte;
    }
  }
  return text + "\"";
}

std::string FileAddress(const std::string& path) {
  static constexpr std::string_view kPlain =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~/";
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string address = "file://";
  for (const char byte : path) {
    const auto value = static_cast<unsigned char>(byte);
    if (kPlain.find(byte) != std::string_view::npos) {
      address += byte;
    } else {
      address += {'%', kHex[value >> 4], kHex[value & 15]};
    }
  }
  return address;
}

std::string OneLine(std::string text) {
  for (char& byte : text) {
    if (byte == '\n' || byte == '\r') byte = ' ';
  }
  return text;
}

std::string DesktopEntry(const std::string& target, const std::string& name, bool isFolder) {
  std::string entry = "[Desktop Entry]\nVersion=1.0\nName=" + OneLine(name) + "\n";
  if (isFolder) return entry + "Type=Link\nURL=" + FileAddress(target) + "\n";
  return entry + "Type=Application\nExec=" + ExecArgument(target) + " %F\n";
}

}  // namespace

std::u16string ClassCommon::ShortcutPath(std::u16string_view folder, std::u16string_view name) const {
  const std::u16string extension = style_ == PathStyle::Windows ? u".lnk" : u".desktop";
  return Join(folder, std::u16string(name) + extension);
}

bool ClassCommon::CreateShortcut(std::u16string_view target, std::u16string_view folder,
                                 std::u16string_view name) const {
  const std::u16string path = ShortcutPath(folder, name);
  if (style_ == PathStyle::Windows) return ports_.files.CreateLink(target, path);
  if (target.find_first_of(u"\r\n") != std::u16string_view::npos) return false;
  const std::string entry =
      DesktopEntry(ToUtf8(target), ToUtf8(name), IsFileAttribute(target, kAttributeDirectory));
  return ports_.files.Replace(path, [&](const FileSystem::ByteConsumer& write) { return write(entry); });
}

}  // namespace kestri
