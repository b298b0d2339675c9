#include "browse/file_pattern.hpp"

#include <algorithm>

#include "shell/common/letter_case.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

std::u16string SmallLetters(std::u16string_view text) {
  std::u16string small(text);
  std::transform(small.begin(), small.end(), small.begin(), letter_case::ToLower);
  return small;
}

// Units of the character at the position: two for a surrogate pair.
std::size_t CharacterLength(std::u16string_view text, std::size_t position) {
  const bool leads = text[position] >= 0xD800 && text[position] <= 0xDBFF;
  const bool pair = leads && position + 1 < text.size() && (text[position + 1] & 0xFC00) == 0xDC00;
  return pair ? 2 : 1;
}

// Only the last "*" is ever tried again, so the time stays within pattern times name.
bool Matches(std::u16string_view pattern, std::u16string_view name) {
  std::size_t at = 0, in = 0, star = pattern.npos, resume = 0;
  while (in < name.size()) {
    if (at < pattern.size() && pattern[at] == u'*') {
      star = ++at;
      resume = in;
    } else if (at < pattern.size() && pattern[at] == u'?') {
      ++at;
      in += CharacterLength(name, in);
    } else if (at < pattern.size() && pattern[at] == name[in]) {
      ++at;
      ++in;
    } else if (star != pattern.npos) {
      at = star;
      in = ++resume;
    } else {
      return false;
    }
  }
  return pattern.substr(at).find_first_not_of(u'*') == pattern.npos;
}

}  // namespace

FilePattern::FilePattern(std::u16string_view text) {
  for (std::size_t from = 0; from <= text.size();) {
    const std::size_t end = std::min(text.find(u';', from), text.size());
    const std::u16string_view pattern = Trim(text.substr(from, end - from));
    if (!pattern.empty()) patterns_.push_back(pattern == u"*.*" ? u"*" : SmallLetters(pattern));
    from = end + 1;
  }
}

bool FilePattern::Takes(std::u16string_view name) const {
  const std::u16string small = SmallLetters(name);
  return std::any_of(patterns_.begin(), patterns_.end(),
                     [&small](const std::u16string& pattern) { return Matches(pattern, small); });
}

}  // namespace kestri
