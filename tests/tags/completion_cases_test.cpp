// Plays every folder of tests/cases/completion: keys on the edit control with its rules, popup and
// dictionaries.
#include <gtest/gtest.h>

#include "tests/fakes/case_runner.hpp"
#include "tests/fakes/completion_world.hpp"

namespace kestri {
namespace {

using fakes::CompletionWorld;
using fakes::FolderCase;

void PutDictionaries(CompletionWorld& world, std::u16string_view text) {
  fakes::ForEachDictionary(text, [&](std::u16string_view name, std::u16string_view content) {
    world.Put(u"DataFiles/" + std::u16string(name), content);
  });
}

// Settings of the section Setting; "FileKind", "htmlNAV..." and "Locked" are the program's state.
void Apply(CompletionWorld& world, const std::string& name, std::u16string_view value) {
  const std::int16_t number = ToInteger(value).value_or(0);
  if (name == "FileKind") {
    world.state.fileKind = number;
  } else if (name == "htmlNAV") {
    world.state.htmlNAV = number;
  } else if (name == "htmlNAVkeyB") {
    world.state.htmlNAVkeyB = number;
  } else if (name == "Locked") {
    world.control.SetLocked(number != 0);
  } else if (name == "USERINTO") {
    world.common.SetINI(world.common.ExeName(), u"USERINTO", u"FILE", value);
  } else {
    world.common.SetINI(world.common.ExeName(), u"Setting", FromUtf8(name), value);
  }
}

class CompletionCases : public testing::TestWithParam<FolderCase> {};

TEST_P(CompletionCases, Play) {
  const FolderCase& folderCase = GetParam();
  CompletionWorld world;
  world.SetText(folderCase.in);
  if (folderCase.dictionaries) PutDictionaries(world, *folderCase.dictionaries);
  for (const auto& [name, value] : folderCase.settings) Apply(world, name, value);
  fakes::CompletionKeys keys(world);
  fakes::PressAll(keys, folderCase.keys);
  EXPECT_EQ(ToUtf8(world.Shown()), ToUtf8(folderCase.out));
  std::vector<std::string> messages;
  for (const std::u16string& message : world.host.messages) messages.push_back(ToUtf8(message));
  EXPECT_EQ(messages, folderCase.messages);
}

INSTANTIATE_TEST_SUITE_P(Folders, CompletionCases,
                         testing::ValuesIn(fakes::LoadCases(KESTRI_SOURCE_DIR "/tests/cases/completion")),
                         [](const auto& test) { return fakes::TestNameOf(test.param); });

}  // namespace
}  // namespace kestri
