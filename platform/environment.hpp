// Port: what the process knows of the machine, the user and its siblings.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kestri {

// Numbers of the folders that GetSystemDirectory knows.
enum class SystemFolder : int {
  Desktop = 0,
  Documents = 5,
  SendTo = 9,
  Windows = 36,
  System = 37,
  ProgramFiles = 38,
  Temporary = 153,
};

class Environment {
 public:
  virtual ~Environment() = default;

  virtual std::u16string ExecutablePath() = 0;
  virtual std::u16string Folder(SystemFolder folder) = 0;  // created when missing; empty on failure
  virtual std::vector<std::u16string> Drives() = 0;        // roots of mounted volumes, "/" first
  virtual std::u16string UserName() = 0;
  virtual std::uint32_t ProcessId() = 0;
  // Executable paths of all running processes; a process that cannot be looked at is left out.
  virtual std::vector<std::u16string> ProcessExecutables() = 0;
  virtual bool ChangeFolder(std::u16string_view folder) = 0;  // the process's current folder
};

}  // namespace kestri
