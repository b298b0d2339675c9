// Scroll positions and caret of each file, remembered in the main settings file under the file's path.
#pragma once

#include <cstdint>
#include <string_view>

#include "document/document_window.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

struct ReadingPosition {
  ScrollPosition scroll;
  std::int32_t selStart = 0;
};

class ReadingPositions {
 public:
  explicit ReadingPositions(const ClassCommon& common) : common_(common) {}

  // All zero for a file never saved here.
  ReadingPosition Of(std::u16string_view path) const;

  // A path that cannot be a key (see KeptAsKey) is not remembered.
  void Remember(std::u16string_view path, const ReadingPosition& position) const;

 private:
  const ClassCommon& common_;
};

}  // namespace kestri
