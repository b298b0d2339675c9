#include "browse/file_ext_combo.hpp"

#include "document/file_filters.hpp"

namespace kestri {

void FileExtCombo::Fill() {
  captions_.clear();
  for (FilterRow& row : OpenFilterRows(common_)) captions_.push_back(std::move(row.caption));
  SetListIndex(StartFilterRow(common_, captions_.size()) - 1);
}

void FileExtCombo::SetListIndex(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= captions_.size()) return;
  listIndex_ = index;
  if (Click) Click();
}

std::u16string FileExtCombo::PatternOf(std::u16string_view caption) {
  const std::size_t open = caption.find(u'(');
  if (open == caption.npos || open + 1 >= caption.size()) return {};
  caption.remove_prefix(open + 1);
  caption.remove_suffix(1);
  return std::u16string(caption);
}

std::u16string FileExtCombo::Pattern() const {
  return listIndex_ < 0 ? std::u16string() : PatternOf(captions_[static_cast<std::size_t>(listIndex_)]);
}

void FileExtCombo::RememberRow() const {
  common_.SetINI(common_.ExeName(), u"Setting", u"ExtIndexNo", ToText(listIndex_ + 1));
}

}  // namespace kestri
