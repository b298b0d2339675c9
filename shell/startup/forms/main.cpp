#include <QApplication>
#include <span>

#include "shell/startup/command_line.hpp"
#include "shell/startup/forms/editor_process.hpp"
#include "shell/startup/forms/toolkit_setup.hpp"

int main(int argc, char** argv) {
  kestri::PrepareEnvironment();
  QApplication application(argc, argv);
  kestri::PrepareLook();
  kestri::EditorProcess process;
  const auto arguments = std::span<char* const>(argv + 1, static_cast<std::size_t>(argc - 1));
  if (process.Start(kestri::RawCommandLine(arguments)) == kestri::ProcessFate::Ends) return 0;
  return QApplication::exec();
}
