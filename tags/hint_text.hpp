// How the words of a hint are laid out in its box.
#pragma once

#include <string>
#include <string_view>

namespace kestri {

// Lines of at most width bytes of the code page, with CR LF between them. A text that fits stays as it is, as
// does any text when the width is below 10. A longer one has its default tag, from " <" on, on lines of its
// own; further lines stand under the second word of the explanation, unless the first one takes half of the
// width.
std::u16string TipTagHelpStrings(std::u16string_view text, int width);

}  // namespace kestri
