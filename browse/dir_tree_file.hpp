// DirTreeFile: the files of one folder that a pattern takes.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "browse/file_pattern.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

class DirTreeFile {
 public:
  // No file can have this name: it empties the list, which keeps its path.
  static constexpr std::u16string_view kNoFile = u"＿＿NOT_FOUND_DIR_絶対に選択されません_ERROR_STIRNG___";

  explicit DirTreeFile(const ClassCommon& common) : common_(common) {}

  std::function<void()> ListChanged;  // names and selection were read anew

  // Each reads the folder anew. The selection stays when path and file are the same.
  const std::u16string& Path() const { return path_; }
  void SetPath(std::u16string_view path);
  const std::u16string& Pattern() const { return patternText_; }
  void SetPattern(std::u16string_view pattern);
  void Refresh();

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { enabled_ = enabled; }

  const std::vector<std::u16string>& Names() const { return names_; }
  std::optional<std::size_t> ListIndex() const { return listIndex_; }
  void SetListIndex(std::optional<std::size_t> index);
  // Of the selected file; empty without one.
  std::u16string FileName() const;
  std::u16string FilePath() const;

 private:
  void Read(const std::u16string& selected);

  const ClassCommon& common_;
  std::u16string path_;
  std::u16string patternText_;
  FilePattern pattern_;
  bool enabled_ = true;
  std::vector<std::u16string> names_;
  std::optional<std::size_t> listIndex_;
};

}  // namespace kestri
