// A profile file of any bytes under random calls: a value that was set is read back, and no call touches a
// line that it is not about.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "shell/common/code_page.hpp"
#include "shell/common/profile_file.hpp"
#include "shell/common/profile_lines.hpp"

namespace {

using namespace kestri;
using namespace kestri::profile_lines;

void Require(bool holds) {
  if (!holds) std::abort();
}

// The parts in which two texts differ.
struct Difference {
  std::string_view before;
  std::string_view after;
};

Difference Differ(std::string_view before, std::string_view after) {
  const std::size_t shorter = std::min(before.size(), after.size());
  std::size_t head = 0;
  while (head < shorter && before[head] == after[head]) ++head;
  std::size_t tail = 0;
  while (tail < shorter - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
  return {before.substr(head, before.size() - head - tail), after.substr(head, after.size() - head - tail)};
}

std::size_t CountLines(std::string_view text) {
  std::size_t count = 0;
  LineCursor cursor(text);
  for (Line line; cursor.Next(line);) ++count;
  return count;
}

bool HasLineEnd(std::string_view text) {
  return text.find_first_of("\r\n") != std::string_view::npos;
}

// What a caller can hand over: bytes that encode a text.
std::string Text(FuzzedDataProvider& data) {
  static constexpr const char* kUsual[] = {"S",     "s", "a",        "A",        " b", "1",
                                           "\"x\"", "",  "\x93\xFA", "\x83\x5D", "]",  "x=y"};
  if (data.ConsumeBool()) return data.PickValueInArray(kUsual);
  return code_page::Encode(code_page::Decode(data.ConsumeRandomLengthString(12)));
}

bool IsPlainKey(std::string_view key) {
  key = TrimBlanks(FirstLine(key));
  return !key.starts_with(';') && !key.starts_with('[') && key.find('=') == std::string_view::npos;
}

// Reading the file again gives the same. Left out: a nameless key of two private characters at the very
// start, whose bytes are those of the UTF-16 mark.
void CheckInStep(const ProfileContent& content) {
  if (content.Bytes().starts_with("\xFF\xFE")) return;
  Require(ProfileContent(content.FileBytes()).Bytes() == content.Bytes());
}

void CheckSet(ProfileContent& content, const std::string& section, const std::string& key,
              const std::string& value) {
  const std::string before = content.Bytes();
  content.Set(section, key, value);
  const Difference difference = Differ(before, content.Bytes());
  Require(!HasLineEnd(difference.before));
  Require(CountLines(content.Bytes()) - CountLines(before) <= 2);
  if (IsPlainKey(key)) {
    const auto expected = WithoutQuotes(TrimBlanks(FirstLine(value)));
    Require(content.Get(FirstLine(section), FirstLine(key)) == expected);
  }
  if (TrimBlanks(key).starts_with('[')) return;  // its line reads as a header
  const std::string once = content.Bytes();
  content.Set(section, key, value);
  Require(content.Bytes() == once);
}

void CheckDeleteKey(ProfileContent& content, const std::string& section, const std::string& key) {
  const std::string before = content.Bytes();
  const bool isThere = IsPlainKey(key) && content.Get(FirstLine(section), FirstLine(key)).has_value();
  content.DeleteKey(section, key);
  const Difference difference = Differ(before, content.Bytes());
  Require(difference.after.empty());
  Require(CountLines(difference.before) <= 2);
  if (isThere) Require(content.Bytes().size() < before.size());
}

void CheckDeleteSection(ProfileContent& content, const std::string& section) {
  const std::string before = content.Bytes();
  content.DeleteSection(section);
  Require(Differ(before, content.Bytes()).after.empty());
}

void CheckList(const ProfileContent& content, const std::string& section) {
  for (const auto& entry : content.Section(section)) Require(content.Get(section, entry.key) == entry.value);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  FuzzedDataProvider data(bytes, size);
  ProfileContent content(data.ConsumeRandomLengthString(400));
  CheckInStep(content);
  for (int call = 0; call < 8 && data.remaining_bytes() > 0; ++call) {
    const std::string section = Text(data);
    const std::string key = Text(data);
    switch (data.ConsumeIntegralInRange(0, 3)) {
      case 0:
        CheckSet(content, section, key, Text(data));
        break;
      case 1:
        CheckDeleteKey(content, section, key);
        break;
      case 2:
        CheckDeleteSection(content, section);
        break;
      default:
        CheckList(content, section);
    }
    CheckInStep(content);
  }
  return 0;
}
