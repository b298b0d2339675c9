// Plays every folder of tests/cases/edit through the view: the same keys, as key events.
#include <gtest/gtest.h>

#include "tests/fakes/case_runner.hpp"
#include "tests/ui/edit_view_desk.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;
using fakes::FolderCase;

std::u16string Unescaped(std::u16string_view value) {
  return Replace(Replace(value, u"\\t", u"\t"), u"\\n", u"\n");
}

void Apply(EditViewDesk& desk, const std::string& name, std::u16string_view value) {
  ApplicationState& state = desk.desk.state;
  const std::map<std::string, std::int16_t*> switches = {{"TabASeT", &state.tabASeT},
                                                         {"TabSpaceCount", &state.tabSpaceCount},
                                                         {"htmlNAV", &state.htmlNAV},
                                                         {"htmlNAVkeyB", &state.htmlNAVkeyB},
                                                         {"htmlNAVkeyB_AUTO", &state.htmlNAVkeyB_AUTO},
                                                         {"CaretTagKind", &desk.desk.tags.caretTagKind}};
  if (const auto found = switches.find(name); found != switches.end()) {
    *found->second = ToInteger(value).value();
  } else if (name == "FileKind") {
    state.fileKind = ToLong(value).value();
  } else if (name == "Locked") {
    desk.Control().SetLocked(value != u"0");
  } else if (name == "Clipboard") {
    desk.desk.clipboard.text = Unescaped(value);
  } else if (name == "SubClass") {
    desk.desk.SetSetting(u"SubClass", value);
    desk.text.InstallSubclassAsSet();
  } else {
    throw std::runtime_error("no such setting: " + name);
  }
}

class EditViewCases : public testing::TestWithParam<FolderCase> {};

TEST_P(EditViewCases, Play) {
  const FolderCase& folderCase = GetParam();
  EditViewDesk desk;
  desk.Put(folderCase.in);
  for (const auto& [name, value] : folderCase.settings) Apply(desk, name, value);
  desk.desk.journal.clear();
  desk.Press(folderCase.keys);
  EXPECT_EQ(desk.Row(), ToUtf8(folderCase.out));
  EXPECT_EQ(desk.desk.Messages(), folderCase.messages);
}

INSTANTIATE_TEST_SUITE_P(Folders, EditViewCases,
                         testing::ValuesIn(fakes::LoadCases(KESTRI_SOURCE_DIR "/tests/cases/edit")),
                         [](const auto& row) { return fakes::TestNameOf(row.param); });

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
