// The lines of a profile file and what each says. Views and positions point into the file's bytes.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace kestri::profile_lines {

struct Line {
  std::string_view text;  // without its line end
  std::size_t start = 0;
  std::size_t end = 0;  // behind its line end: CR LF, a lone LF or a lone CR
};

class LineCursor {
 public:
  explicit LineCursor(std::string_view bytes, std::size_t start = 0) : bytes_(bytes), position_(start) {}
  bool Next(Line& line);

 private:
  std::string_view bytes_;
  std::size_t position_;
  std::size_t lineFeed_ = 0;  // the first LF at or behind position_, once looked for
  bool isLineFeedKnown_ = false;
};

std::string_view TrimBlanks(std::string_view text);
std::string_view TrimLeadingBlanks(std::string_view text);
// Takes off one pair of equal quotes around the text.
std::string_view WithoutQuotes(std::string_view text);
// A name or value holds no line end.
std::string_view FirstLine(std::string_view text);

// Letter case of ASCII does not count; a trail byte is no letter.
bool IsSameName(std::string_view a, std::string_view b);
std::size_t NameHash(std::string_view name);

// The section's name when the text is a header.
std::optional<std::string_view> HeaderName(std::string_view text);

struct KeyLine {
  std::string_view key;
  std::string_view value;  // trimmed, quotes kept
};
std::optional<KeyLine> ParseKeyLine(std::string_view text);

// The first section of the name: its header and the lines up to the next header.
struct SectionRange {
  std::size_t start = 0;
  std::size_t body = 0;  // behind the header
  std::size_t end = 0;
};
std::optional<SectionRange> FindSection(std::string_view bytes, std::string_view name);

std::optional<Line> FindKey(std::string_view bytes, const SectionRange& section, std::string_view key);

// The same for a key that a reader would take for something else, such as "a=b" or ";a".
std::optional<Line> FindUnreadableKey(std::string_view bytes, const SectionRange& section,
                                      std::string_view key);

// Where a new line of the section goes: behind its last line that is not blank.
std::size_t InsertPosition(std::string_view bytes, const SectionRange& section);

}  // namespace kestri::profile_lines
