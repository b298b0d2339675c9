#include "tags/hint_text.hpp"

#include <algorithm>

#include "shell/common/class_common.hpp"

namespace kestri {
namespace {

constexpr int kNarrowest = 10;  // bytes
constexpr char16_t kWideBlank = u'\u3000';

bool IsBlank(char16_t unit) {
  return unit == u' ' || unit == kWideBlank;
}

bool IsLowSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

// Full-width blanks for each two bytes, a half-width one for the rest.
std::u16string Blanks(int bytes) {
  return std::u16string(static_cast<std::size_t>(bytes / 2), kWideBlank).append(bytes % 2 == 0 ? u"" : u" ");
}

std::u16string LinePrefix(std::u16string_view explanation, int width) {
  const auto blank = std::find_if(explanation.begin(), explanation.end(), IsBlank);
  if (blank == explanation.end()) return {};
  const auto word = explanation.substr(0, static_cast<std::size_t>(blank - explanation.begin() + 1));
  const int bytes = ClassCommon::GetTextByte(word);
  return bytes * 2 < width ? Blanks(bytes) : std::u16string();
}

// Units of the text that are at most width bytes; at least one character.
std::size_t UnitsWithin(std::u16string_view text, int width) {
  std::size_t units = 0;
  while (units < text.size()) {
    const bool isPair = units + 1 < text.size() && IsLowSurrogate(text[units + 1]);
    const std::size_t next = units + (isPair ? 2 : 1);
    if (units > 0 && ClassCommon::GetTextByte(text.substr(0, next)) > width) break;
    units = next;
  }
  return units;
}

// Where the line ends: behind a blank in its last third, else at the width.
std::size_t LineLength(std::u16string_view text, int width) {
  const std::size_t most = UnitsWithin(text, width);
  if (most == text.size() || IsBlank(text[most])) return most;
  for (std::size_t at = most; at > most - most / 3; --at) {
    if (IsBlank(text[at - 1])) return at;
  }
  return most;
}

std::u16string_view TrimBlanks(std::u16string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

class HintLines {
 public:
  HintLines(int width, std::u16string prefix)
      : width_(width), prefix_(std::move(prefix)), narrower_(width - ClassCommon::GetTextByte(prefix_)) {}

  void Append(std::u16string_view part) {
    part = TrimBlanks(part);
    while (!part.empty()) {
      const bool isFirst = lines_.empty();
      const std::size_t length = LineLength(part, isFirst ? width_ : narrower_);
      if (!isFirst) lines_.append(kCrLf).append(prefix_);
      lines_.append(TrimBlanks(part.substr(0, length)));
      part = TrimBlanks(part.substr(length));
    }
  }
  std::u16string Finish() { return std::move(lines_); }

 private:
  int width_;
  std::u16string prefix_;
  int narrower_;
  std::u16string lines_;
};

}  // namespace

std::u16string TipTagHelpStrings(std::u16string_view text, int width) {
  if (width < kNarrowest || ClassCommon::GetTextByte(text) <= width) return std::u16string(text);
  const std::size_t tag = std::min(text.find(u" <"), text.size());
  const std::u16string_view explanation = text.substr(0, tag);
  HintLines lines(width, LinePrefix(explanation, width));
  lines.Append(explanation);
  lines.Append(text.substr(tag));
  return lines.Finish();
}

}  // namespace kestri
