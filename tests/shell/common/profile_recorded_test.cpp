// The recorded calls of the platform's own profile functions, one row a call.
//
// The recorder parses a file and writes it anew, without blank lines and without the blanks around names;
// here a write changes its own line only. So files are compared after both were brought to that plain form.
#include <gtest/gtest.h>

#include <map>
#include <regex>

#include "shell/common/code_page.hpp"
#include "shell/common/profile_file.hpp"
#include "shell/common/profile_lines.hpp"
#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/oracle_rows.hpp"

namespace kestri {
namespace {

using fakes::OracleBytes;

constexpr char16_t kPath[] = u"/s.ini";

// Rows that do not count, and why.
const std::map<std::string, std::string> kLeftOut = {
    {"28.1", "the recorded file is shortened"},
    {"28.2", "the recorded file is shortened"},
    {"28.3", "the recorded file is shortened"},
    {"28.4", "the recorded file is shortened"},
    {"29.1", "the recorded file is shortened"},
    {"29.2", "the recorded file is shortened"},
    {"31.1", "the recorder honours a UTF-8 mark; on the platform it stands before the header"},
    {"31.3", "as 31.1"},
    {"35.1", "a list of keys is ProfileContent::Section"},
    {"35.2", "there is no list of sections"},
    {"35.3", "there is no list of sections"},
    {"63.5", "the platform takes the line for a comment"},
    {"64.5", "there is no section without a name to be given"},
    {"64.6", "there is no section without a name to be given"},
    {"68.1", "the recorded value is shortened"},
    {"68.2", "the recorded file is shortened"},
    {"68.3", "the recorded file is shortened"},
};

std::string PlainLine(std::string_view line) {
  using namespace profile_lines;
  if (const auto header = HeaderName(line)) return "[" + std::string(*header) + "]";
  const auto equals = line.find('=');
  if (equals == std::string_view::npos) return std::string(TrimBlanks(line));
  return std::string(TrimBlanks(line.substr(0, equals))) + "=" +
         std::string(TrimBlanks(line.substr(equals + 1)));
}

std::string PlainForm(const std::string& file) {
  const ProfileContent content(file);
  std::string plain;
  profile_lines::LineCursor cursor(content.Bytes());
  for (profile_lines::Line line; cursor.Next(line);) {
    const std::string text = PlainLine(line.text);
    if (!text.empty()) plain += code_page::Encode(code_page::Decode(text)) + "\n";
  }
  return plain;
}

struct Call {
  bool isGet = false;
  std::vector<std::optional<std::string>> arguments;  // nothing for NULL
  std::size_t size = 0;
};

std::optional<std::string> Argument(const std::string& text) {
  if (text == "NULL") return std::nullopt;
  return OracleBytes(text.substr(1, text.size() - 2));
}

Call ParseCall(const std::string& text) {
  static const std::regex kGet(R"--(Get\((NULL|".*"),(NULL|".*"),(NULL|".*"),size=(\d+)\))--");
  static const std::regex kWrite(R"--(Write\((NULL|".*"),(NULL|".*"),(NULL|".*")\))--");
  std::smatch match;
  Call call;
  call.isGet = std::regex_match(text, match, kGet);
  if (!call.isGet && !std::regex_match(text, match, kWrite)) throw std::runtime_error("unknown call " + text);
  for (int i = 1; i <= 3; ++i) call.arguments.push_back(Argument(match[i]));
  if (call.isGet) call.size = std::stoul(match[4]);
  return call;
}

std::u16string Wide(const std::optional<std::string>& bytes) {
  return code_page::Decode(bytes.value_or(""));
}

bool Write(const ProfileFile& profiles, const Call& call) {
  const auto& [section, key, value] = std::tie(call.arguments[0], call.arguments[1], call.arguments[2]);
  if (!key) return profiles.DeleteSection(kPath, Wide(section));
  if (!value) return profiles.DeleteKey(kPath, Wide(section), Wide(key));
  return profiles.Set(kPath, Wide(section), Wide(key), Wide(value));
}

// A long buffer is recorded by its two ends; a half character at its end shows as the filler 7F, where here
// nothing is.
void ExpectBuffer(const std::u16string& result, const std::string& field) {
  constexpr std::string_view kCut = "...";
  std::string buffer = OracleBytes(field);
  if (buffer.ends_with('\x7F')) buffer.pop_back();
  const auto cut = buffer.find(kCut);
  if (cut == std::string::npos) {
    EXPECT_EQ(ToUtf8(result), ToUtf8(code_page::Decode(buffer)));
    return;
  }
  const std::string bytes = code_page::Encode(result);
  EXPECT_TRUE(bytes.starts_with(buffer.substr(0, cut)));
  EXPECT_TRUE(bytes.ends_with(buffer.substr(cut + kCut.size())));
}

TEST(RecordedProfileCalls, AreAgreedWith) {
  int compared = 0;
  for (const auto& row : fakes::ReadOracleRows(KESTRI_TEST_DATA "/profile.tsv")) {
    if (kLeftOut.contains(row[0])) continue;
    SCOPED_TRACE(row[0] + " " + row[1] + " " + row[3]);
    fakes::MemoryFileSystem files;
    if (row[2] != "<nofile>") files.contents[kPath] = OracleBytes(row[2]);
    files.refuseWrites = row[1].find("folder missing") != std::string::npos;
    const ProfileFile profiles(files);
    const Call call = ParseCall(row[3]);
    ++compared;
    if (call.isGet) {
      const auto& [section, key, missing] = std::tie(call.arguments[0], call.arguments[1], call.arguments[2]);
      ExpectBuffer(profiles.Get(kPath, Wide(section), Wide(key), Wide(missing), call.size), row[5]);
      continue;
    }
    EXPECT_EQ(Write(profiles, call), row[4].starts_with("ret=1"));
    if (row[7] == "<nofile>") {
      EXPECT_FALSE(files.contents.contains(kPath));
    } else {
      EXPECT_EQ(PlainForm(files.contents[kPath]), PlainForm(OracleBytes(row[7])));
    }
  }
  EXPECT_EQ(compared, 223 - static_cast<int>(kLeftOut.size()));
}

}  // namespace
}  // namespace kestri
