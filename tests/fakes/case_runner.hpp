// Cases that are folders of small UTF-8 files, named by what happens:
//   in            the text before, with its caret: see visible_caret.hpp
//   keys          the keys pressed: see key_script.hpp
//   out           the text after
//   settings      optional, Name=value a line
//   messages      optional, what the user is told, one a line; without the file, nothing
//   dictionaries  optional
// A line end means CR LF in the document. The final line end of a file is not part of it.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "shell/common/text.hpp"

namespace kestri::fakes {

struct FolderCase {
  std::string name;
  std::u16string in;
  std::u16string keys;
  std::u16string out;
  std::vector<std::pair<std::string, std::u16string>> settings;
  std::vector<std::string> messages;
  std::optional<std::u16string> dictionaries;

  friend void PrintTo(const FolderCase& folderCase, std::ostream* stream) { *stream << folderCase.name; }
};

namespace case_files {

inline std::optional<std::string> Read(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::string text{std::istreambuf_iterator<char>(file), {}};
  if (text.ends_with('\n')) text.pop_back();
  return text;
}

inline std::string Need(const std::filesystem::path& path) {
  std::optional<std::string> text = Read(path);
  if (!text) throw std::runtime_error("missing file of a case: " + path.string());
  return *text;
}

inline std::vector<std::string> Lines(const std::optional<std::string>& text) {
  std::vector<std::string> lines;
  if (!text || text->empty()) return lines;
  std::size_t begin = 0;
  for (std::size_t end = text->find('\n'); end != std::string::npos; end = text->find('\n', begin)) {
    lines.push_back(text->substr(begin, end - begin));
    begin = end + 1;
  }
  lines.push_back(text->substr(begin));
  return lines;
}

inline std::vector<std::pair<std::string, std::u16string>> Settings(const std::optional<std::string>& text) {
  std::vector<std::pair<std::string, std::u16string>> settings;
  for (const std::string& line : Lines(text)) {
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) throw std::runtime_error("no value in the setting " + line);
    settings.emplace_back(line.substr(0, equals), FromUtf8(std::string_view(line).substr(equals + 1)));
  }
  return settings;
}

}  // namespace case_files

inline FolderCase LoadCase(const std::filesystem::path& folder) {
  const std::optional<std::string> dictionaries = case_files::Read(folder / "dictionaries");
  return {
      .name = folder.filename().string(),
      .in = FromUtf8(case_files::Need(folder / "in")),
      .keys = FromUtf8(case_files::Need(folder / "keys")),
      .out = FromUtf8(case_files::Need(folder / "out")),
      .settings = case_files::Settings(case_files::Read(folder / "settings")),
      .messages = case_files::Lines(case_files::Read(folder / "messages")),
      .dictionaries = dictionaries ? std::optional(FromUtf8(*dictionaries)) : std::nullopt,
  };
}

// Every folder below, by name. A folder without cases throws, so that no runner passes for want of them.
inline std::vector<FolderCase> LoadCases(const std::filesystem::path& folder) {
  std::vector<FolderCase> cases;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.is_directory()) cases.push_back(LoadCase(entry.path()));
  }
  if (cases.empty()) throw std::runtime_error("no cases in " + folder.string());
  std::sort(cases.begin(), cases.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
  return cases;
}

// Calls take(file name, content) for each file of a case's dictionaries: "== Option.lib" begins the content
// of a file in DataFiles.
template <class Take>
void ForEachDictionary(std::u16string_view text, Take take) {
  constexpr std::u16string_view kHead = u"== ";
  std::size_t begin = 0;
  while (begin < text.size()) {
    if (text.substr(begin, kHead.size()) != kHead)
      throw std::runtime_error("dictionaries without a file name");
    const std::size_t nameEnd = std::min(text.find(u'\n', begin), text.size());
    const std::size_t next = std::min(text.find(u"\n== ", nameEnd), text.size());
    take(text.substr(begin + kHead.size(), nameEnd - begin - kHead.size()),
         text.substr(nameEnd, next - nameEnd));
    begin = next + 1;
  }
}

// The name of a case as a test's name.
inline std::string TestNameOf(const FolderCase& folderCase) {
  std::string name = folderCase.name;
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

}  // namespace kestri::fakes
