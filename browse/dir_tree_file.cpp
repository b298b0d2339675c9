#include "browse/dir_tree_file.hpp"

#include <algorithm>

#include "browse/natural_order.hpp"

namespace kestri {

void DirTreeFile::SetPath(std::u16string_view path) {
  const bool same = path == path_;
  path_ = path;
  Read(same ? FileName() : std::u16string());
}

void DirTreeFile::SetPattern(std::u16string_view pattern) {
  patternText_ = pattern;
  pattern_ = FilePattern(pattern);
  Read({});
}

void DirTreeFile::Refresh() {
  Read(FileName());
}

void DirTreeFile::Read(const std::u16string& selected) {
  listIndex_.reset();
  names_.clear();
  if (!path_.empty() && patternText_ != kNoFile) names_ = common_.PortSet().files.FileNames(path_);
  std::erase_if(names_, [this](const std::u16string& name) { return !pattern_.Takes(name); });
  names_.shrink_to_fit();
  SortNaturally(names_);
  const auto again = std::find(names_.begin(), names_.end(), selected);
  if (again != names_.end()) listIndex_ = static_cast<std::size_t>(again - names_.begin());
  if (ListChanged) ListChanged();
}

void DirTreeFile::SetListIndex(std::optional<std::size_t> index) {
  const bool exists = index && *index < names_.size();
  listIndex_ = exists ? index : std::nullopt;
}

std::u16string DirTreeFile::FileName() const {
  return listIndex_ ? names_[*listIndex_] : std::u16string();
}

std::u16string DirTreeFile::FilePath() const {
  return listIndex_ ? common_.Join(path_, FileName()) : std::u16string();
}

}  // namespace kestri
