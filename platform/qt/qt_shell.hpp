// The freedesktop shell: xdg-open, the file manager's D-Bus service through dbus-send, shared MIME names.
#pragma once

#include "platform/shell.hpp"

namespace kestri {

class QtShell : public Shell {
 public:
  bool Open(std::u16string_view path, std::u16string_view parameters) override;
  bool Explore(std::u16string_view folder) override;
  bool Properties(std::u16string_view path) override;
  std::u16string TypeName(std::u16string_view path) override;
  std::u16string IconName(std::u16string_view path) override;
  void AddToRecentDocuments(std::u16string_view path) override;
  std::u16string ProgramForMimeType(std::string_view mimeType) override;
  bool StartProgram(std::u16string_view program, std::u16string_view argument) override;
  bool StartCommandLine(std::u16string_view commandLine) override;
};

}  // namespace kestri
