// Plays every folder of tests/cases/edit on the edit control with its key rules.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "tests/fakes/case_runner.hpp"
#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::FolderCase;
using fakes::MainTextDesk;

std::int16_t Number(std::u16string_view value) {
  const std::optional<std::int16_t> number = ToInteger(value);
  if (!number) throw std::runtime_error("no number in the settings: " + ToUtf8(value));
  return *number;
}

// "\t" and "\n" in a value are a tab and a lone line feed.
std::u16string Unescaped(std::u16string_view value) {
  return Replace(Replace(value, u"\\t", u"\t"), u"\\n", u"\n");
}

void Apply(MainTextDesk& desk, const std::string& name, std::u16string_view value) {
  using Setter = std::function<void(MainTextDesk&, std::u16string_view)>;
  static const std::map<std::string, Setter> setters = {
      {"TabASeT", [](auto& d, auto v) { d.state.tabASeT = Number(v); }},
      {"TabSpaceCount", [](auto& d, auto v) { d.state.tabSpaceCount = Number(v); }},
      {"htmlNAV", [](auto& d, auto v) { d.state.htmlNAV = Number(v); }},
      {"htmlNAVkeyB", [](auto& d, auto v) { d.state.htmlNAVkeyB = Number(v); }},
      {"htmlNAVkeyB_AUTO", [](auto& d, auto v) { d.state.htmlNAVkeyB_AUTO = Number(v); }},
      {"FileKind", [](auto& d, auto v) { d.state.fileKind = Number(v); }},
      {"Locked", [](auto& d, auto v) { d.control.SetLocked(Number(v) != 0); }},
      {"CaretTagKind", [](auto& d, auto v) { d.tags.caretTagKind = Number(v); }},
      {"Clipboard", [](auto& d, auto v) { d.clipboard.text = Unescaped(v); }},
      {"SubClass",
       [](auto& d, auto v) {
         d.SetSetting(u"SubClass", v);
         d.text.InstallSubclassAsSet();
       }},
  };
  const auto found = setters.find(name);
  if (found == setters.end()) throw std::runtime_error("no such setting: " + name);
  found->second(desk, value);
}

class EditCases : public testing::TestWithParam<FolderCase> {};

TEST_P(EditCases, Play) {
  const FolderCase& folderCase = GetParam();
  MainTextDesk desk;
  desk.Put(folderCase.in);
  for (const auto& [name, value] : folderCase.settings) Apply(desk, name, value);
  desk.journal.clear();
  desk.Press(folderCase.keys);
  EXPECT_EQ(desk.Row(), ToUtf8(folderCase.out));
  EXPECT_EQ(desk.Messages(), folderCase.messages);
}

INSTANTIATE_TEST_SUITE_P(Folders, EditCases,
                         testing::ValuesIn(fakes::LoadCases(KESTRI_SOURCE_DIR "/tests/cases/edit")),
                         [](const auto& test) { return fakes::TestNameOf(test.param); });

}  // namespace
}  // namespace kestri
