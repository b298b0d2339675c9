#include <unordered_set>

#include "shell/common/code_page.hpp"
#include "shell/common/profile_file.hpp"
#include "shell/common/profile_lines.hpp"

namespace kestri {

using namespace profile_lines;

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kNewLine = "\r\n";

std::u16string FromUtf16Bytes(std::string_view bytes) {
  std::u16string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto low = static_cast<unsigned char>(bytes[i]);
    const auto high = static_cast<unsigned char>(bytes[i + 1]);
    text += static_cast<char16_t>(high << 8 | low);
  }
  return text;
}

std::string ToUtf16Bytes(std::u16string_view text) {
  std::string bytes(kUtf16Mark);
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

// Number of units of the text that make the first count bytes in the code page.
std::size_t UnitsOf(std::u16string_view text, std::size_t count) {
  std::size_t units = 0;
  for (std::size_t bytes = 0; bytes < count && units < text.size();) {
    const bool isPair =
        (text[units] & 0xFC00) == 0xD800 && units + 1 < text.size() && (text[units + 1] & 0xFC00) == 0xDC00;
    const std::size_t length = isPair ? 2 : 1;
    bytes += code_page::EncodedLength(text.substr(units, length));
    units += length;
  }
  return units;
}

// A name as a caller gives it, on its way into a file.
std::string_view CleanName(std::string_view name) {
  return TrimBlanks(FirstLine(name));
}

bool IsReadableKey(std::string_view key) {
  return !key.starts_with(';') && !key.starts_with('[') && key.find('=') == std::string_view::npos;
}

std::optional<Line> FindLine(std::string_view bytes, const SectionRange& section, std::string_view key) {
  return IsReadableKey(key) ? FindKey(bytes, section, key) : FindUnreadableKey(bytes, section, key);
}

struct NameEqual {
  bool operator()(std::string_view a, std::string_view b) const { return IsSameName(a, b); }
};
struct NameHasher {
  std::size_t operator()(std::string_view name) const { return NameHash(name); }
};

}  // namespace

ProfileContent::ProfileContent(std::string bytes) : bytes_(std::move(bytes)) {
  if (!bytes_.starts_with(kUtf16Mark)) return;
  wide_ = FromUtf16Bytes(std::string_view(bytes_).substr(kUtf16Mark.size()));
  bytes_ = code_page::Encode(*wide_);
}

std::string ProfileContent::FileBytes() const {
  return wide_ ? ToUtf16Bytes(*wide_) : bytes_;
}

std::optional<std::string> ProfileContent::Get(std::string_view section, std::string_view key) const {
  const auto range = FindSection(bytes_, TrimBlanks(section));
  if (!range) return std::nullopt;
  const auto line = FindKey(bytes_, *range, TrimBlanks(key));
  if (!line) return std::nullopt;
  return std::string(WithoutQuotes(ParseKeyLine(line->text)->value));
}

std::vector<ProfileContent::Entry> ProfileContent::Section(std::string_view section) const {
  std::vector<Entry> entries;
  const auto range = FindSection(bytes_, TrimBlanks(section));
  if (!range) return entries;
  std::unordered_set<std::string_view, NameHasher, NameEqual> seen;
  LineCursor cursor(std::string_view(bytes_).substr(0, range->end), range->body);
  for (Line line; cursor.Next(line);) {
    const auto parsed = ParseKeyLine(line.text);
    if (parsed && seen.insert(parsed->key).second)
      entries.push_back({parsed->key, WithoutQuotes(parsed->value)});
  }
  return entries;
}

void ProfileContent::Set(std::string_view section, std::string_view key, std::string_view value) {
  section = CleanName(section);
  key = CleanName(key);
  value = TrimLeadingBlanks(FirstLine(value));
  const std::string newLine = std::string(key).append("=").append(value);
  const auto range = FindSection(bytes_, section);
  if (!range) {
    InsertLine(bytes_.size(), std::string("[").append(section).append("]"));
    return InsertLine(bytes_.size(), newLine);
  }
  const auto line = FindLine(bytes_, *range, key);
  if (!line) return InsertLine(InsertPosition(bytes_, *range), newLine);
  const std::size_t equals = line->text.find('=', IsReadableKey(key) ? 0 : key.size());
  const std::string_view old = TrimLeadingBlanks(line->text.substr(equals + 1));
  if (TrimBlanks(old) == TrimBlanks(value)) return;
  const auto start = static_cast<std::size_t>(old.data() - bytes_.data());
  Splice(start, old.size(), value);
}

void ProfileContent::DeleteKey(std::string_view section, std::string_view key) {
  const auto range = FindSection(bytes_, CleanName(section));
  if (!range) return;
  const auto line = FindLine(bytes_, *range, CleanName(key));
  if (line) Splice(line->start, line->end - line->start, {});
}

void ProfileContent::DeleteSection(std::string_view section) {
  section = CleanName(section);
  const auto range = section.empty() ? std::nullopt : FindSection(bytes_, section);
  if (range) Splice(range->start, range->end - range->start, {});
}

// Every change passes here. The two forms of a UTF-16 file stay in step.
void ProfileContent::Splice(std::size_t start, std::size_t length, std::string_view text) {
  if (wide_) {
    const std::size_t from = UnitsOf(*wide_, start);
    const std::size_t to = UnitsOf(*wide_, start + length);
    wide_->replace(from, to - from, code_page::Decode(text));
  }
  bytes_.replace(start, length, text);
}

void ProfileContent::InsertLine(std::size_t position, std::string_view text) {
  const bool isOpen = position > 0 && bytes_[position - 1] != '\n' && bytes_[position - 1] != '\r';
  std::string line(isOpen ? kNewLine : std::string_view());
  Splice(position, 0, line.append(text).append(kNewLine));
}

}  // namespace kestri
