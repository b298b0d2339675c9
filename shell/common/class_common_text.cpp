// Line ends, byte counts and replacements in a whole text.
#include <algorithm>
#include <limits>

#include "shell/common/class_common.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/text_compare.hpp"
#include "shell/common/unit_search.hpp"

namespace kestri {
namespace {

text_compare::Hit FindHit(std::u16string_view text, std::u16string_view find, std::size_t from,
                          Compare compare) {
  if (compare == Compare::Text) return text_compare::Find(text, find, from);
  return {unit_search::Find(text, find, from), find.size()};
}

// Replaces the first hit until there is none. A hit that a replacement makes begins less than a hit's length
// in front of it, so the search goes on from there. A hit is at most twice as long as the word: voiced
// half-width kana.
std::u16string ReplaceUntilGone(std::u16string text, std::u16string_view find,
                                std::u16string_view replacement, Compare compare) {
  const std::size_t reach = 2 * find.size();
  auto hit = FindHit(text, find, 0, compare);
  while (hit.position != text_compare::npos) {
    text.replace(hit.position, hit.length, replacement);
    hit = FindHit(text, find, hit.position - std::min(hit.position, reach), compare);
  }
  return text;
}

// The same for an exact find that never grows the text, in one pass: hits are seen at the end of what is done
// so far.
std::u16string ReduceUntilGone(std::u16string_view text, std::u16string_view find,
                               std::u16string_view replacement) {
  std::u16string done;
  std::u16string again;  // reversed
  done.reserve(text.size());
  for (std::size_t next = 0; next < text.size() || !again.empty();) {
    if (again.empty()) {
      done += text[next++];
    } else {
      done += again.back();
      again.pop_back();
    }
    if (!done.ends_with(find)) continue;
    done.resize(done.size() - find.size());
    again.append(replacement.rbegin(), replacement.rend());
  }
  return done;
}

}  // namespace

std::int32_t ClassCommon::GetTextByte(std::u16string_view text) {
  constexpr std::size_t kMost = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::min(code_page::EncodedLength(text), kMost));
}

std::u16string ClassCommon::CrLfWinOrMac(std::u16string_view text) {
  if (text.find(kCrLf) != std::u16string_view::npos) return u"CR+LF";
  const bool hasCr = text.find(u'\r') != std::u16string_view::npos;
  const bool hasLf = text.find(u'\n') != std::u16string_view::npos;
  if (hasCr && hasLf) return u"(不明)";
  if (hasCr) return u"CR";
  return hasLf ? u"LF" : u"CR+LF";
}

std::u16string ClassCommon::CrLfCurFirstSplitString(std::u16string_view text) {
  return std::u16string(text.substr(0, text.find(kCrLf)));
}

// A replacement that holds the find text would never end; such a call gets one pass instead.
std::u16string ClassCommon::Rermutation1(std::u16string_view text, std::u16string_view find,
                                         std::u16string_view replacement, Compare compare) {
  if (find.empty()) return std::u16string(text);
  if (InStr(replacement, find, compare) > 0) return Replace(text, find, replacement, -1, compare);
  if (compare == Compare::Binary && replacement.size() <= find.size())
    return ReduceUntilGone(text, find, replacement);
  return ReplaceUntilGone(std::u16string(text), find, replacement, compare);
}

std::u16string ClassCommon::Rermutation2(std::u16string_view text, std::u16string_view find,
                                         std::u16string_view replacement, Compare compare, int count) {
  return Replace(text, find, replacement, count > 0 ? count : -1, compare);
}

}  // namespace kestri
