// Plays every folder of tests/cases/completion in the real editor window: the same keys, as key events.
#include <gtest/gtest.h>

#include "tests/fakes/case_runner.hpp"
#include "tests/shell/forms/editor_desk.hpp"

namespace kestri {
namespace {

using fakes::EditorDesk;
using fakes::FolderCase;

const std::map<std::string, std::int16_t ApplicationState::*> kSwitches = {
    {"htmlNAV", &ApplicationState::htmlNAV}, {"htmlNAVkeyB", &ApplicationState::htmlNAVkeyB}};

void PutBefore(EditorDesk& desk, const std::string& name, std::u16string_view value) {
  if (name == "USERINTO") {
    desk.Set(u"USERINTO", u"FILE", Replace(value, fakes::kProgramFolder, desk.folder.Text()));
  } else if (!kSwitches.contains(name) && name != "FileKind" && name != "Locked") {
    desk.Set(u"Setting", FromUtf8(name), value);
  }
}

void PutAfter(EditorDesk& desk, const std::string& name, std::u16string_view value) {
  const std::int16_t number = ToInteger(value).value_or(0);
  if (kSwitches.contains(name)) desk.state.*kSwitches.at(name) = number;
  if (name == "FileKind") desk.state.fileKind = number;
  if (name == "Locked") desk.window->Control().SetLocked(number != 0);
}

// Alt and a digit stand for the menu.
void Press(EditorDesk& desk, const fakes::Key& key) {
  if (!key.alt) return desk.keys->Press(key);
  if (key.name == u"0") return desk.Run("CEdit", 0);
  if (key.name == u"5") return desk.Run("mnuCallUserInTo", 0);
  desk.Run("HTMLEdit", key.name.front() - u'0');
}

class WindowCases : public testing::TestWithParam<FolderCase> {};

TEST_P(WindowCases, Play) {
  const FolderCase& folderCase = GetParam();
  EditorDesk desk;
  desk.Set(u"Setting", u"HintAnimation", u"0");
  if (folderCase.dictionaries) {
    fakes::ForEachDictionary(
        *folderCase.dictionaries,
        [&](std::u16string_view name, std::u16string_view content) { desk.PutDictionary(name, content); });
  }
  for (const auto& [name, value] : folderCase.settings) PutBefore(desk, name, value);
  desk.Open();
  desk.Put(folderCase.in);
  for (const auto& [name, value] : folderCase.settings) PutAfter(desk, name, value);
  for (const fakes::Key& key : fakes::ParseKeys(folderCase.keys)) Press(desk, key);
  EXPECT_EQ(desk.Row(), ToUtf8(folderCase.out));
  if (!folderCase.messages.empty()) {
    EXPECT_TRUE(desk.Pane(StatusPanes::kMessage).starts_with(folderCase.messages.back() + " ["))
        << desk.Pane(StatusPanes::kMessage);
  }
}

INSTANTIATE_TEST_SUITE_P(Folders, WindowCases,
                         testing::ValuesIn(fakes::LoadCases(KESTRI_SOURCE_DIR "/tests/cases/completion")),
                         [](const auto& test) { return fakes::TestNameOf(test.param); });

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
