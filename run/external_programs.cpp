#include "run/external_programs.hpp"

#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kNone = u"(なし)";

// The first word of a command line, its quotes taken off.
std::u16string ProgramOf(std::u16string_view commandLine) {
  const std::u16string line(Trim(commandLine));
  const bool quoted = StartsWith(line, u"\"");
  const std::size_t start = quoted ? 1 : 0;
  return line.substr(start, line.find(quoted ? u'"' : u' ', start) - start);
}

}  // namespace

std::u16string ExternalPrograms::CommandLine(int index) const {
  const std::u16string value = common_.GetINI(common_.ExeName(), u"PrgReg", u"PrgReg" + ToText(index), kNone);
  return value == kNone ? std::u16string() : value;
}

bool ExternalPrograms::Registered(int index) const {
  return !CommandLine(index).empty();
}

std::u16string ExternalPrograms::ProgramName(int index) const {
  return common_.CFile(ProgramOf(CommandLine(index)), 0);
}

std::u16string ExternalPrograms::Caption(int index) const {
  return Registered(index) ? ProgramName(index) : u"(未登録)";
}

std::u16string ExternalPrograms::Expand(std::u16string_view commandLine) const {
  const std::u16string withFile = Replace(commandLine, u"%PATH%", state_.currentFile);
  return Replace(withFile, u"%DIR%", common_.Join(common_.CPath(state_.currentFile, -2), u""));
}

void ExternalPrograms::MenOPg(int index) {
  if (!Registered(index)) return TellUnregistered(index);
  const std::u16string commandLine = Expand(CommandLine(index));
  if (!common_.PortSet().shell.StartCommandLine(commandLine)) TellNoProgram(commandLine);
}

std::u16string ExternalPrograms::WordProgram() const {
  return common_.GetINI(common_.ExeName(), u"Path", u"WordPath", common_.GetWindowsAppPathForWinINI(2));
}

std::u16string ExternalPrograms::PaintProgram() const {
  return common_.GetINI(common_.ExeName(), u"Path", u"PaintPath", common_.GetWindowsAppPathForWinINI(1));
}

void ExternalPrograms::Start(const std::u16string& program) {
  if (program.empty() || !common_.ExecuteShow(program, 3, state_.currentFile)) TellNoProgram(program);
}

void ExternalPrograms::TellUnregistered(int index) {
  boxes_.Ask({.text = u"外部ﾂｰﾙ(" + ToText(index) + u")は 登録されていません",
              .caption = std::u16string(kApplicationTitle)});
}

void ExternalPrograms::TellNoProgram(const std::u16string& commandLine) {
  boxes_.Ask({.text = u"\"" + commandLine + u"\"\r\n・実行ﾌｧｲﾙではありません!!",
              .caption = u"ﾌｧｲﾙ実行ｴﾗｰ " + std::u16string(kApplicationTitle),
              .icon = MessageIcon::Exclamation});
}

}  // namespace kestri
