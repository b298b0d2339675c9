// The blank in an ascii-art draft. Bulletin boards collapse half-width blanks at a line's head and beside
// each other, so neither can be typed.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "document/edit_control/edit_control.hpp"

namespace kestri {

inline constexpr std::u16string_view kNoTabInAsciiArt = u"AAﾓｰﾄﾞでTabは挿入せきません";

struct BlankRefusal {
  std::u16string_view message;
  std::optional<Position> offender;  // the blank that stands in the way
};

// Why a blank typed over the selection would not do; nothing when it may be typed. Both characters at either
// end of the selection count, the one inside it too.
std::optional<BlankRefusal> RefuseBlank(const EditControl& control);

}  // namespace kestri
