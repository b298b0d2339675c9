#include "tags/dictionary_columns.hpp"

#include <algorithm>
#include <charconv>
#include <optional>

#include "shell/common/code_page.hpp"

namespace kestri {
namespace {

constexpr std::size_t kLongestValue = 1023;  // bytes: a buffer of 1024 with its end mark
constexpr std::size_t kFewestDigits = 3;

char LowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool StartsWithName(std::string_view key, std::string_view prefix) {
  if (key.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i) {
    if (LowerAscii(key[i]) != LowerAscii(prefix[i])) return false;
  }
  return true;
}

// "007" is 7 and "1000" is 1000; "7", "0007" and "7a" number no row.
std::optional<std::size_t> RowNumber(std::string_view digits) {
  if (digits.size() < kFewestDigits || (digits.size() > kFewestDigits && digits[0] == '0'))
    return std::nullopt;
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

std::string_view ReadableBytes(std::string_view value) {
  const std::string_view cut = code_page::Truncate(value, kLongestValue);
  return cut.substr(0, cut.find('\0'));
}

std::string OneLine(std::u16string_view value) {
  std::string bytes = code_page::Encode(value);
  for (char& byte : bytes) {
    if (byte == '\r' || byte == '\n') byte = ' ';
  }
  return bytes;
}

std::string NumberKey(int number) {
  std::string digits = std::to_string(number);
  return digits.size() < kFewestDigits ? std::string(kFewestDigits - digits.size(), '0') + digits : digits;
}

// A file edited by hand may hold a section twice.
void DeleteEverySection(ProfileContent& content, std::string_view section) {
  std::size_t before = 0;
  do {
    before = content.Bytes().size();
    content.DeleteSection(section);
  } while (content.Bytes().size() < before);
}

}  // namespace

DictionaryColumn::DictionaryColumn(const ProfileContent& content, const ColumnShape& shape) {
  const std::vector<ProfileContent::Entry> entries = content.Section(shape.section);
  values_.resize(entries.size());  // rows numbered higher than that lie behind a hole
  Fill(entries, shape);
  values_.erase(std::ranges::find_if(values_, &std::string::empty), values_.end());
}

DictionaryColumn::DictionaryColumn(const ProfileContent& content, const ColumnShape& shape, std::size_t rows)
    : values_(rows) {
  Fill(content.Section(shape.section), shape);
}

void DictionaryColumn::Fill(const std::vector<ProfileContent::Entry>& entries, const ColumnShape& shape) {
  const auto first = static_cast<std::size_t>(shape.first);
  std::vector<bool> seen(values_.size(), false);
  for (const ProfileContent::Entry& entry : entries) {
    if (!StartsWithName(entry.key, shape.keyPrefix)) continue;
    const auto number = RowNumber(entry.key.substr(shape.keyPrefix.size()));
    if (!number || *number < first || *number - first >= values_.size() || seen[*number - first]) continue;
    seen[*number - first] = true;
    values_[*number - first] = ReadableBytes(entry.value);
  }
}

std::u16string DictionaryColumn::Value(std::size_t row) const {
  return row < values_.size() ? code_page::Decode(values_[row]) : std::u16string();
}

void ColumnWriter::Add(int number, std::u16string_view value) {
  lines_.push_back({std::string(shape_.keyPrefix) + NumberKey(number), OneLine(value)});
}

void ColumnWriter::WriteTo(ProfileContent& content) const {
  DeleteEverySection(content, shape_.section);
  const bool isWide = content.FileBytes() != content.Bytes();
  if (!isWide) return AppendTo(content);
  for (const Line& line : lines_) content.Set(shape_.section, line.key, line.value);
}

// What Set would do for each line of a section that is not there, without a search for each.
void ColumnWriter::AppendTo(ProfileContent& content) const {
  if (lines_.empty()) return;
  std::string bytes = content.Bytes();
  if (!bytes.empty() && bytes.back() != '\n' && bytes.back() != '\r') bytes += "\r\n";
  bytes += "[" + std::string(shape_.section) + "]\r\n";
  for (const Line& line : lines_) bytes += line.key + "=" + line.value + "\r\n";
  content = ProfileContent(std::move(bytes));
}

}  // namespace kestri
