#include "tags/mode_at_caret.hpp"

#include <algorithm>
#include <string>
#include <string_view>

namespace kestri {
namespace {

constexpr std::int32_t kTags = 1;
constexpr std::int32_t kAttributes = 2;
constexpr std::int32_t kValues = 3;

constexpr Position kFarthestLook = 64 * 1024;
constexpr std::u16string_view kBlanks = u" \t\r\n\u3000";

// What stands between the tag's "<" and the caret; a lone ">" when the caret is outside.
std::u16string HeadOfTag(const EditControl& control) {
  const Position caret = control.SelStart();
  const Position begin = std::max<Position>(0, caret - kFarthestLook);
  const std::u16string before = control.Slice(begin, caret - begin);
  const std::size_t delimiter = before.find_last_of(u"<>");
  if (delimiter == std::u16string::npos || before[delimiter] == u'>') return u">";
  return before.substr(delimiter + 1);
}

// The quote that is open at the end of the head, 0 when none is.
char16_t OpenQuote(std::u16string_view head) {
  char16_t open = 0;
  for (const char16_t unit : head) {
    if (open == 0 && (unit == u'"' || unit == u'\'')) {
      open = unit;
    } else if (unit == open) {
      open = 0;
    }
  }
  return open;
}

bool InUnquotedValue(std::u16string_view head) {
  const std::size_t blank = head.find_last_of(kBlanks);
  const std::size_t equals = head.find_last_of(u'=');
  if (equals == std::u16string_view::npos) return false;
  if (blank == std::u16string_view::npos || equals > blank)
    return head.find_first_of(u"\"'", equals) == head.npos;
  return head.find_first_not_of(kBlanks, equals + 1) == std::u16string_view::npos;
}

}  // namespace

std::int32_t ModeAtCaret(const EditControl& control) {
  const std::u16string head = HeadOfTag(control);
  if (head.find_first_of(kBlanks) == std::u16string::npos) return kTags;
  if (head.front() == u'/' || head.front() == u'!') return kTags;
  return OpenQuote(head) != 0 || InUnquotedValue(head) ? kValues : kAttributes;
}

}  // namespace kestri
