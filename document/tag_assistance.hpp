// What the key rules of the text need of the tag assistance.
#pragma once

#include <cstdint>

#include "shell/common/text.hpp"

namespace kestri {

class TagAssistance {
 public:
  virtual ~TagAssistance() = default;

  // 0 outside, -1 opening tag, -2 closing tag, -3 comment or declaration, -4 a selection that straddles "<".
  virtual std::int16_t CaretTagKind(std::int16_t mode, Compare compare) = 0;

  virtual void Preset(std::int32_t mode) = 0;  // 1 tags, 2 attributes, 3 values
  virtual void ShowPopup() = 0;                // at the caret, after the key went into the text
  virtual void UnloadPopups() = 0;

  virtual bool HintVisible() { return false; }
  virtual void seTagHide() = 0;
  virtual void seTagHint() = 0;        // the caret-driven check
  virtual bool seTagHintPriSet() = 0;  // builds and shows; true when the caret is in a tag
  virtual void DismissHint() = 0;      // Esc: hides a visible hint and keeps it away until the tag is left
};

}  // namespace kestri
