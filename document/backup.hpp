// The dated copy of a file that is made before it is overwritten.
#pragma once

#include <string>
#include <string_view>

#include "document/document_log.hpp"
#include "document/document_window.hpp"
#include "platform/message_box.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

// folder/name[yyyymmdd_hhmmss_digits].extension, a long name cut so that the whole is a possible file name
std::u16string BackupName(const ClassCommon& common, std::u16string_view folder, std::u16string_view path);

class Backup {
 public:
  Backup(const ClassCommon& common, MessageBox& boxes, OpenFallbacks& archiver)
      : common_(common), log_(common), boxes_(boxes), archiver_(archiver) {}

  // Copies the file as [Path] UserBackUp asks, packed when [Setting] ArcUnLha is on. True when the
  // overwriting may go on; otherwise the user has been told. A failed packing leaves the plain copy and lets
  // it go on.
  bool Make(std::u16string_view path) const;

 private:
  bool Refuse(std::u16string_view reason, std::u16string_view advice, std::u16string_view subject) const;
  void Pack(const std::u16string& copy) const;

  const ClassCommon& common_;
  DocumentLog log_;
  MessageBox& boxes_;
  OpenFallbacks& archiver_;
};

}  // namespace kestri
