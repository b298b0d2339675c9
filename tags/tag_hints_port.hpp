// What completion needs of the tag hints.
#pragma once

#include <string_view>

namespace kestri {

class TagHints {
 public:
  virtual ~TagHints() = default;
  virtual bool HintVisible() = 0;
  virtual void seTagHide() = 0;
  virtual void seTagHint() = 0;
  virtual bool seTagHintPriSet() = 0;  // true when the caret is in a tag
  virtual void DismissHint() = 0;
  virtual void TipComments(std::u16string_view text) = 0;
};

}  // namespace kestri
