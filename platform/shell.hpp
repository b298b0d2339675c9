// Port: the desktop's shell.
#pragma once

#include <string>
#include <string_view>

namespace kestri {

class Shell {
 public:
  virtual ~Shell() = default;

  // With parameters: starts the program. Without: opens a file or an address with the desktop's choice for
  // its kind, and never runs the file itself, whatever its mode.
  virtual bool Open(std::u16string_view path, std::u16string_view parameters) = 0;
  virtual bool Explore(std::u16string_view folder) = 0;
  virtual bool Properties(std::u16string_view path) = 0;
  virtual std::u16string TypeName(std::u16string_view path) = 0;  // words for the user; empty when unknown
  virtual std::u16string IconName(std::u16string_view path) = 0;  // freedesktop icon name; empty when unknown
  virtual void AddToRecentDocuments(std::u16string_view path) = 0;
  // Program that opens the MIME type by the desktop's choice or, failing that, the first of a list of
  // well-known ones on PATH; empty when there is none.
  virtual std::u16string ProgramForMimeType(std::string_view mimeType) = 0;
  // Starts a program detached from this process. Arguments are passed as they stand.
  virtual bool StartProgram(std::u16string_view program, std::u16string_view argument) = 0;
  // Starts a whole command line detached: words at blanks, double quotes hold a word together. False when the
  // first word is no program.
  virtual bool StartCommandLine(std::u16string_view commandLine) = 0;
};

}  // namespace kestri
