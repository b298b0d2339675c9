// The programs that the user registered or that the desktop knows, started on the current file.
#pragma once

#include <string>

#include "platform/message_box.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

class ExternalPrograms {
 public:
  static constexpr int kCount = 3;

  ExternalPrograms(const ClassCommon& common, const ApplicationState& state, MessageBox& boxes)
      : common_(common), state_(state), boxes_(boxes) {}

  // index 0 to 2: the registered command line, with %PATH% and %DIR% for the current file and its folder. A
  // path with blanks must be quoted in the setting itself.
  bool Registered(int index) const;
  std::u16string ProgramName(int index) const;  // file name of the program; empty when not registered
  std::u16string Caption(int index) const;      // the program's name, or "(未登録)"
  void MenOPg(int index);

  // The word processor and the paint program of the settings, or else the desktop's own.
  void MenOPgWord() { Start(WordProgram()); }
  void MenOPgPaint() { Start(PaintProgram()); }

 private:
  std::u16string CommandLine(int index) const;  // as registered; empty when it is not
  std::u16string Expand(std::u16string_view commandLine) const;
  std::u16string WordProgram() const;
  std::u16string PaintProgram() const;
  void Start(const std::u16string& program);
  void TellUnregistered(int index);
  void TellNoProgram(const std::u16string& commandLine);

  const ClassCommon& common_;
  const ApplicationState& state_;
  MessageBox& boxes_;
};

}  // namespace kestri
