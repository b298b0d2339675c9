// FileExtCombo: the kinds of file that the file list shows, as the open dialog names them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/common/class_common.hpp"

namespace kestri {

class FileExtCombo {
 public:
  explicit FileExtCombo(const ClassCommon& common) : common_(common) {}

  // A row was chosen, or stands chosen after Fill.
  std::function<void()> Click;

  // Rows and the one to start with by the settings as they stand now.
  void Fill();
  const std::vector<std::u16string>& Captions() const { return captions_; }
  int ListIndex() const { return listIndex_; }  // -1 before Fill
  void SetListIndex(int index);                 // one that does not exist is ignored
  // The text of the chosen row between its first "(" and its last character.
  std::u16string Pattern() const;
  static std::u16string PatternOf(std::u16string_view caption);
  void RememberRow() const;  // for the next start and the open dialog

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { enabled_ = enabled; }

 private:
  const ClassCommon& common_;
  std::vector<std::u16string> captions_;
  int listIndex_ = -1;
  bool enabled_ = true;
};

}  // namespace kestri
