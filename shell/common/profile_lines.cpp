#include "shell/common/profile_lines.hpp"

#include <algorithm>
#include <cstdint>

#include "shell/common/code_page.hpp"

namespace kestri::profile_lines {
namespace {

constexpr std::string_view kBlanks = " \t\v\f\x1A";
constexpr std::size_t npos = std::string_view::npos;

char Lower(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

bool IsLead(char byte) {
  return code_page::IsLeadByte(static_cast<unsigned char>(byte));
}

// The last "]" that is not the second byte of a character.
std::size_t LastBracket(std::string_view text) {
  std::size_t last = npos;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (IsLead(text[i])) {
      ++i;
    } else if (text[i] == ']') {
      last = i;
    }
  }
  return last;
}

}  // namespace

bool LineCursor::Next(Line& line) {
  if (position_ >= bytes_.size()) return false;
  if (!isLineFeedKnown_ || lineFeed_ < position_) {
    lineFeed_ = std::min(bytes_.find('\n', position_), bytes_.size());
    isLineFeedKnown_ = true;
  }
  const std::string_view upToLineFeed = bytes_.substr(position_, lineFeed_ - position_);
  const std::size_t length = std::min(upToLineFeed.find('\r'), upToLineFeed.size());
  line.start = position_;
  line.text = upToLineFeed.substr(0, length);
  const std::size_t mark = position_ + length;
  const bool isPair = mark < lineFeed_ && mark + 1 == lineFeed_ && lineFeed_ < bytes_.size();
  line.end = std::min(mark + (isPair ? 2 : 1), bytes_.size());
  position_ = line.end;
  return true;
}

std::string_view TrimLeadingBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  return first == npos ? text.substr(text.size()) : text.substr(first);
}

std::string_view TrimBlanks(std::string_view text) {
  text = TrimLeadingBlanks(text);
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::string_view WithoutQuotes(std::string_view text) {
  const bool isQuoted =
      text.size() >= 2 && text.front() == text.back() && (text.front() == '"' || text.front() == '\'');
  return isQuoted ? text.substr(1, text.size() - 2) : text;
}

std::string_view FirstLine(std::string_view text) {
  constexpr std::string_view kEnds("\r\n\0", 3);
  return text.substr(0, text.find_first_of(kEnds));
}

bool IsSameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const bool isDouble = IsLead(a[i]) && i + 1 < a.size();
    if (isDouble ? a[i] != b[i] || a[i + 1] != b[i + 1] : Lower(a[i]) != Lower(b[i])) return false;
    if (isDouble) ++i;
  }
  return true;
}

std::size_t NameHash(std::string_view name) {
  std::uint64_t hash = 0xCBF29CE484222325u;
  for (const char byte : name) hash = (hash ^ static_cast<unsigned char>(Lower(byte))) * 0x100000001B3u;
  return static_cast<std::size_t>(hash);
}

std::optional<std::string_view> HeaderName(std::string_view text) {
  text = TrimLeadingBlanks(text);
  if (!text.starts_with('[')) return std::nullopt;
  const auto bracket = LastBracket(text);
  if (bracket == npos) return std::nullopt;
  return TrimBlanks(text.substr(1, bracket - 1));
}

std::optional<KeyLine> ParseKeyLine(std::string_view text) {
  const auto equals = text.find('=');
  if (equals == npos || TrimLeadingBlanks(text).starts_with(';')) return std::nullopt;
  return KeyLine{TrimBlanks(text.substr(0, equals)), TrimBlanks(text.substr(equals + 1))};
}

std::optional<SectionRange> FindSection(std::string_view bytes, std::string_view name) {
  SectionRange range;
  bool isFound = name.empty();
  LineCursor cursor(bytes);
  for (Line line; cursor.Next(line);) {
    const auto header = HeaderName(line.text);
    if (!header) continue;
    if (isFound) {
      range.end = line.start;
      return range;
    }
    isFound = IsSameName(*header, name);
    if (isFound) range = {line.start, line.end, 0};
  }
  if (!isFound) return std::nullopt;
  range.end = bytes.size();
  return range;
}

std::optional<Line> FindKey(std::string_view bytes, const SectionRange& section, std::string_view key) {
  LineCursor cursor(bytes.substr(0, section.end), section.body);
  for (Line line; cursor.Next(line);) {
    const auto parsed = ParseKeyLine(line.text);
    if (parsed && IsSameName(parsed->key, key)) return line;
  }
  return std::nullopt;
}

std::optional<Line> FindUnreadableKey(std::string_view bytes, const SectionRange& section,
                                      std::string_view key) {
  LineCursor cursor(bytes.substr(0, section.end), section.body);
  for (Line line; cursor.Next(line);) {
    if (line.text.starts_with(key) && line.text.substr(key.size()).starts_with('=')) return line;
  }
  return std::nullopt;
}

std::size_t InsertPosition(std::string_view bytes, const SectionRange& section) {
  std::size_t position = section.body;
  LineCursor cursor(bytes.substr(0, section.end), section.body);
  for (Line line; cursor.Next(line);) {
    if (!TrimBlanks(line.text).empty()) position = line.end;
  }
  return position;
}

}  // namespace kestri::profile_lines
