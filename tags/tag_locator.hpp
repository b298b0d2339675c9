// Which tag the caret is in, told from the nearest delimiters alone: quotes, comments and scripts are not
// understood.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/edit_control/edit_control.hpp"
#include "shell/common/text.hpp"

namespace kestri {

enum class CaretKind : std::int16_t {
  Outside = 0,
  OpeningTag = -1,  // also an empty one
  ClosingTag = -2,
  Declaration = -3,         // comment or declaration
  SelectionStraddles = -4,  // not in a tag, but the selected text holds a "<" right of its last ">"
};

inline constexpr std::int16_t kLookOnly = 1;
inline constexpr std::int16_t kSelectSpan = 2;

// The text between the last opening delimiter left of the caret and the first closing one right of it, every
// CR LF a blank. True only inside such a span; outText is empty otherwise. Mode 1 only looks, any other mode
// also selects the inside. The caret is SelStart; the selection's length plays no part.
bool FindCaretSpan(EditControl& control, std::int16_t mode, std::u16string& outText, std::u16string_view open,
                   std::u16string_view close, Compare compare);

CaretKind CaretTagKind(EditControl& control, std::int16_t mode, Compare compare);

// The text up to its first blank, without delimiters around it. Tabs do not separate.
std::u16string TagNameOf(std::u16string_view tagText, Compare compare);

}  // namespace kestri
