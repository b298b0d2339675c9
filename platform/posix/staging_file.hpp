// A new file that holds content until it stands where it belongs; removed at the end of its scope unless
// released.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/posix_calls.hpp"

namespace kestri::posix {

class StagingFile {
 public:
  StagingFile(PosixCalls& calls, std::string path, OpenFile file)
      : calls_(&calls), path_(std::move(path)), file_(std::move(file)) {}
  StagingFile(StagingFile&& other) noexcept
      : calls_(other.calls_), path_(std::move(other.path_)), file_(std::move(other.file_)) {
    other.path_.clear();
  }
  StagingFile& operator=(StagingFile&&) = delete;
  ~StagingFile() { Remove(); }

  int Get() const { return file_.Get(); }
  const std::string& Path() const { return path_; }
  bool Close() { return file_.Close(); }
  void Remove();
  // The file stays on the disk.
  void Release() { path_.clear(); }

 private:
  PosixCalls* calls_;
  std::string path_;
  OpenFile file_;
};

struct StagingResult {
  std::optional<StagingFile> file;
  int error = 0;  // errno of the failed creation
};

// An unpredictable hidden name. The file is locked for as long as it is open, which tells a living save from
// a killed one.
StagingResult CreateHiddenFile(PosixCalls& calls, const std::string& folder, mode_t mode);

// Whether the name is of the form that CreateHiddenFile gives.
bool IsHiddenFileName(std::string_view name);

// "<name>.kestrile-recovery", with a number behind it when that is taken.
StagingResult CreateRecoveryFile(PosixCalls& calls, const std::string& folder, const std::string& name);

}  // namespace kestri::posix
