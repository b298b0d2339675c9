// The last twenty files, shared by all instances through the main settings file.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "shell/common/class_common.hpp"

namespace kestri {

class FileHistory {
 public:
  static constexpr int kLength = 20;

  explicit FileHistory(const ClassCommon& common) : common_(common) {}

  // Puts the path first; an entry that differs only in case is the same file. A path that a settings file
  // cannot hold (see KeptAsValue) is not remembered.
  void RegisterHistory(std::u16string_view path) const;

  // Newest first, defaultValue for each empty place.
  std::array<std::u16string, kLength> Entries(std::u16string_view defaultValue) const;

  void Clear() const;

 private:
  const ClassCommon& common_;
};

}  // namespace kestri
