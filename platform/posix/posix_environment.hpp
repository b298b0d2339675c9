// What the process knows of the machine, from /proc and the freedesktop folders.
//
// Windows folder: $XDG_STATE_HOME/kestrile. System folder: "lib" beside the executable. Send-To folder:
// Thunar's. The System and Program Files folders belong to the installation and are not created.
#pragma once

#include "platform/environment.hpp"

namespace kestri {

class PosixEnvironment : public Environment {
 public:
  std::u16string ExecutablePath() override;
  std::u16string Folder(SystemFolder folder) override;
  std::vector<std::u16string> Drives() override;
  std::u16string UserName() override;
  std::uint32_t ProcessId() override;
  std::vector<std::u16string> ProcessExecutables() override;
  bool ChangeFolder(std::u16string_view folder) override;
};

namespace posix {

// Mount points of a table in the form of /proc/self/mounts that a user takes for drives, sorted, "/" first.
std::vector<std::string> UserMounts(const std::string& table);

}  // namespace posix

}  // namespace kestri
