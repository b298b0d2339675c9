// A folder of its own for a test, removed with all in it; and small helpers for real files.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "shell/common/text.hpp"

namespace kestri::fakes {

class TemporaryFolder {
 public:
  enum class Medium { Disk, Memory };

  // In memory where the system offers that: for tests of many thousand writes that do not wait for a disk.
  explicit TemporaryFolder(Medium medium = Medium::Disk) {
    if (medium == Medium::Memory) Make("/dev/shm");
    if (path_.empty()) Make(std::filesystem::temp_directory_path().string());
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }

  const std::string& Path() const { return path_; }
  std::string Path(std::string_view name) const { return path_ + "/" + std::string(name); }
  std::u16string Text() const { return FromUtf8(path_); }
  std::u16string Text(std::u16string_view name) const {
    return FromUtf8(path_) + u"/" + std::u16string(name);
  }

  void Write(std::string_view name, std::string_view bytes) const {
    std::ofstream(Path(name), std::ios::binary) << bytes;
  }
  std::string Read(std::string_view name) const {
    std::ifstream file(Path(name), std::ios::binary | std::ios::ate);
    std::string bytes(file ? static_cast<std::size_t>(file.tellg()) : 0, '\0');
    file.seekg(0);
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
  }
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      names.push_back(entry.path().filename());
    return names;
  }

 private:
  void Make(const std::string& parent) {
    std::string name = parent + "/kestrile-test-XXXXXX";
    if (::mkdtemp(name.data()) != nullptr) path_ = name;
  }

  std::string path_;
};

// An environment variable with another value until the end of the scope.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const std::string& value) : name_(name) {
    const char* old = ::getenv(name);
    wasSet_ = old != nullptr;
    if (wasSet_) old_ = old;
    ::setenv(name, value.c_str(), 1);
  }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;
  ~ScopedVariable() {
    if (wasSet_) {
      ::setenv(name_, old_.c_str(), 1);
    } else {
      ::unsetenv(name_);
    }
  }

 private:
  const char* name_;
  bool wasSet_ = false;
  std::string old_;
};

}  // namespace kestri::fakes
