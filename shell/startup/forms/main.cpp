#include <span>

#include "shell/startup/command_line.hpp"
#include "shell/startup/forms/editor_application.hpp"
#include "shell/startup/forms/editor_process.hpp"
#include "shell/startup/forms/toolkit_setup.hpp"

int main(int argc, char** argv) {
  // Before the toolkit looks at it: every word belongs to the one path or switch.
  const auto arguments = std::span<char* const>(argv, static_cast<std::size_t>(argc)).subspan(1);
  const std::u16string commandLine = kestri::RawCommandLine(arguments);
  kestri::PrepareEnvironment();
  int programOnly = 1;
  kestri::EditorApplication application(programOnly, argv);
  kestri::PrepareLook();
  kestri::EditorProcess process;
  application.unknownError = [&process] { process.TellUnknownError(); };
  if (process.Start(commandLine) == kestri::ProcessFate::Ends) return 0;
  return kestri::EditorApplication::exec();
}
