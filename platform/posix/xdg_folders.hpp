// Base and user folders of the freedesktop standard, as native paths without a trailing "/".
#pragma once

#include <string>

namespace kestri::posix {

std::string HomeFolder();
std::string StateFolder();  // $XDG_STATE_HOME/kestrile
std::string DataFolder();   // $XDG_DATA_HOME
std::string TemporaryFolder();
// Folder of the name "DESKTOP", "DOCUMENTS", ... from user-dirs.dirs, else fallback below the home folder
// when that exists, else the home folder.
std::string UserFolder(const std::string& name, const std::string& fallback);

// Makes all missing levels, private to the user. False when the folder does not exist afterwards.
bool MakeFolders(const std::string& path);

}  // namespace kestri::posix
