// The program's shared utilities: paths, file probes, INI access, text files, line ends, colours.
// One instance, created first; it has no state of its own.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.hpp"
#include "platform/environment.hpp"
#include "platform/file_system.hpp"
#include "platform/shell.hpp"
#include "platform/window_services.hpp"
#include "shell/common/profile_file.hpp"
#include "shell/common/text.hpp"

namespace kestri {

enum class PathStyle { Windows, Posix };

// FileTypeReturn codes.
enum FileType : std::int32_t {
  kFileTypeText = 1001,
  kFileTypeHtml = 1002,
  kFileTypeC = 1004,
  kFileTypeBasic = 1005,
  kFileTypeAsciiArt = 1007,
  kFileTypeOther = 9999,
};

// Flags of FileEdit, numbered as the platform's own call has them. Its other ones are about windows and
// questions of that call, or the wastebasket, and change nothing here.
enum FileEditFlag : std::uint32_t {
  kMultipleDestinations = 1,  // to names the new path itself, one for each path in from
  kRenameOnCollision = 8,     // a path that is taken gets a number: "a (2).htm"
};

struct Ports {
  FileSystem& files;
  Environment& environment;
  Shell& shell;
  Clock& clock;
  WindowServices& window;
};

// Line end of a document on disk; in memory it is always CR LF.
enum class LineEnd { CrLf, Cr, Lf };

struct HtmlColor {
  int red = 0;
  int green = 0;
  int blue = 0;
  std::int32_t rgb = 0;  // red + green * 256 + blue * 65536
};

class ClassCommon {
 public:
  ClassCommon(Ports ports, PathStyle style);

  const std::u16string& ProgramFolder() const { return programFolder_; }
  const std::u16string& ExeName() const { return exeName_; }
  PathStyle Style() const { return style_; }
  char16_t Separator() const { return style_ == PathStyle::Windows ? u'\\' : u'/'; }
  // folder + separator + name, with one separator between them.
  std::u16string Join(std::u16string_view folder, std::u16string_view name) const;

  // Words and characters.
  static std::int32_t ConvertUpWord16_Point(std::int16_t low, std::int16_t high);
  static std::string GetStringPointer(std::u16string_view text);  // code page bytes with a NUL behind
  static std::u16string_view DeleteNull(std::u16string_view text);
  int ConvPixelX(int twips) const;
  int ConvPixelY(int twips) const;
  int ConvTwipX(int pixels) const;
  int ConvTwipY(int pixels) const;

  // Paths.
  std::u16string AppPath(std::u16string_view path) const;
  std::u16string AppPath2(std::u16string_view path) const;
  std::u16string CRoot(std::u16string_view path, int mode) const;
  std::u16string CPath(std::u16string_view path, int mode) const;
  std::u16string CFile(std::u16string_view path, int mode) const;
  std::u16string CFile2(std::u16string_view path) const;
  std::u16string CDir(std::u16string_view path, int flag) const;
  std::u16string RelaPath(std::u16string_view from, std::u16string_view to,
                          std::u16string_view separator) const;
  bool PathExists(std::u16string_view path) const;
  std::int32_t FileTypeReturn(std::u16string_view path) const;
  std::u16string GetSystemDirectory(int folderNumber) const;
  std::u16string GetLongPath(std::u16string_view path) const;
  std::u16string GetShortPath(std::u16string_view path) const;
  bool DLLCheckReturn(std::u16string& name) const;
  bool MakeDirectory(std::u16string_view path) const;
  bool DriveExists(std::u16string_view drive) const;
  std::u16string SameFileName(std::u16string_view folder, std::u16string_view base,
                              std::u16string_view extension) const;
  std::u16string GetRandomFileName(std::u16string_view prefix, std::u16string_view middle,
                                   std::u16string_view extension) const;
  // The characters of a random single from the third one on: only digits.
  std::u16string RandomDigits() const;

  // Files.
  std::u16string GetFileSizeFormat(std::u16string_view path) const;
  std::u16string GetFileType(std::u16string_view path) const;
  std::u16string GetFileIcon(std::u16string_view path,
                             std::uint32_t flags) const;  // icon name for the window system
  std::u16string GetFileDateTimeFormat(std::u16string_view path) const;
  bool IsFileAttribute(std::u16string_view path, std::uint32_t mask) const;
  std::u16string GetFileAttribute(std::u16string_view path) const;
  bool KillFile(std::u16string_view path) const;
  enum class FileOperation : std::uint32_t { Move = 1, Copy = 2, Delete = 3, Rename = 4 };
  // Several paths in one list are separated by NULs. Without kMultipleDestinations a folder that exists takes
  // what is copied or moved in under its own name. A file in the way is replaced by Copy and stops Move and
  // Rename; a folder in the way of a copied one takes its entries in. Nothing is asked or shown. True when
  // all was done.
  bool FileEdit(FileOperation operation, std::u16string_view from, std::u16string_view to,
                std::uint32_t flags = 0) const;
  // Complete path of the shortcut that CreateShortcut makes.
  std::u16string ShortcutPath(std::u16string_view folder, std::u16string_view name) const;
  bool CreateShortcut(std::u16string_view target, std::u16string_view folder, std::u16string_view name) const;
  bool ExecuteShow(std::u16string_view path, int mode, std::u16string_view parameters) const;

  // INI access. Values and defaults are texts; see ProfileFile.
  std::u16string GetINI(std::u16string_view file, std::u16string_view section, std::u16string_view key,
                        std::u16string_view defaultValue) const;
  bool SetINI(std::u16string_view file, std::u16string_view section, std::u16string_view key,
              std::u16string_view value) const;
  std::u16string GetINIex(int mode, std::u16string_view file, std::u16string_view section,
                          std::u16string_view key, std::u16string_view defaultValue) const;
  bool SetINIex(int mode, std::u16string_view file, std::u16string_view section, std::u16string_view key,
                std::u16string_view value) const;
  // Complete path of the file that GetINIex means by mode and file.
  std::u16string IniPath(int mode, std::u16string_view file) const;
  const ProfileFile& Profiles() const { return profiles_; }
  std::u16string GetWindowsAppPathForWinINI(int number) const;

  // Text files. length -1 reads the whole file, otherwise that many bytes. text is untouched on failure.
  bool ReadTextFile(std::u16string_view path, std::u16string& text, std::int64_t length) const;
  enum class TextRead { Done, NoText, TooLong };  // too long: for the asked limit or for the memory there is
  TextRead ReadWholeText(std::u16string_view path, std::u16string& text, std::size_t mostUnits) const;
  // What the code page lacks is written as code_page.hpp says, and U+001A as "?": a file with that byte in it
  // would be no text when read again.
  bool WriteTextFile(std::u16string_view path, std::u16string_view text) const;
  // Writes first + second as one text, without joining them, and one final CR LF. Each CR LF of the text
  // becomes the asked line end on the way; the final one stays CR LF.
  bool WriteTextPieces(std::u16string_view path, std::u16string_view first, std::u16string_view second,
                       LineEnd lineEnd) const;
  static std::int32_t GetTextByte(std::u16string_view text);
  static std::u16string CrLfWinOrMac(std::u16string_view text);
  static std::u16string CrLfCurFirstSplitString(std::u16string_view text);
  static std::u16string Rermutation1(std::u16string_view text, std::u16string_view find,
                                     std::u16string_view replacement, Compare compare);
  static std::u16string Rermutation2(std::u16string_view text, std::u16string_view find,
                                     std::u16string_view replacement, Compare compare, int count);

  // Colours.
  static std::u16string DecimalToHtmlColor(int red, int green, int blue);
  static HtmlColor HtmlColorToDecimal(std::u16string_view text);

  enum class Surround { Remove, Add };
  static std::u16string StringSurround(std::u16string_view text, Surround mode, std::u16string_view left,
                                       std::u16string_view right, Compare compare, bool trim);
  std::int32_t GetOSType() const;
  std::u16string GetUserName() const;

  const Ports& PortSet() const { return ports_; }

 private:
  TextRead ReadText(std::u16string_view path, std::u16string& text, std::int64_t length,
                    std::size_t limit) const;
  bool EditFile(FileOperation operation, const std::u16string& source, std::u16string target,
                std::uint32_t flags) const;

  Ports ports_;
  PathStyle style_;
  ProfileFile profiles_;
  std::u16string programFolder_;
  std::u16string exeName_;
};

}  // namespace kestri
