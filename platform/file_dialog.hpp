// Port: the desktop's file and folder dialogs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kestri {

// Flag bits that the callers pass; all others are ignored.
enum FileDialogFlag : std::uint32_t {
  kOverwritePrompt = 0x2,
  kHideReadOnly = 0x4,
  kPathMustExist = 0x800,
  kFileMustExist = 0x1000,
  kNoReadOnlyReturn = 0x8000,
};

struct FileDialogRequest {
  std::u16string title;
  std::u16string filter;  // "caption|pattern;pattern|caption|pattern"
  int filterIndex = 1;    // one-based row
  std::u16string folder;
  std::u16string fileName;  // suggestion, a name or a whole path
  // Whole path that AskSave answers when suggestion, folder and row are left as they are; empty: what stands
  // there is answered.
  std::u16string unchangedName = {};
  std::uint32_t flags = 0;
};

struct FileDialogAnswer {
  std::u16string fileName;  // whole path
  int filterIndex = 1;      // one-based
  bool readOnly = false;    // the dialog's read-only box
};

class FileDialog {
 public:
  virtual ~FileDialog() = default;
  // Nothing on cancel.
  virtual std::optional<FileDialogAnswer> AskOpen(const FileDialogRequest& request) = 0;
  virtual std::optional<FileDialogAnswer> AskSave(const FileDialogRequest& request) = 0;
  virtual std::optional<std::u16string> AskFolder(const std::u16string& title,
                                                  const std::u16string& folder) = 0;
};

}  // namespace kestri
