// The program's log: one line an event, appended to ExeName.log beside the program.
#pragma once

#include <string>
#include <string_view>

#include "shell/common/class_common.hpp"

namespace kestri {

class DocumentLog {
 public:
  explicit DocumentLog(const ClassCommon& common) : common_(common) {}

  // "yyyy/mm/dd hh:mm:ss message "subject"". Control characters become blanks, so that one event stays one
  // line. False when the line could not be written.
  bool WriteLog(std::u16string_view message, std::u16string_view subject) const;

  std::u16string Path() const;

 private:
  const ClassCommon& common_;
};

}  // namespace kestri
