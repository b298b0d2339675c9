// The command rows as a table: what holds for every row.
#include "shell/window/commands.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

char Mnemonic(std::u16string_view caption) {
  const std::size_t mark = caption.find(u'&');
  if (mark == std::u16string_view::npos || mark + 1 >= caption.size()) return 0;
  return static_cast<char>(std::toupper(static_cast<unsigned char>(caption[mark + 1])));
}

TEST(CommandRows, EveryCommandHasCaptionHintAndFunction) {
  for (const CommandRow& row : CommandRows()) {
    if (row.IsSeparator()) continue;
    EXPECT_FALSE(row.caption.empty());
    EXPECT_FALSE(row.hint.empty()) << ToUtf8(row.caption);
    EXPECT_NE(row.run, nullptr) << ToUtf8(row.caption);
    EXPECT_NE(row.enabled, nullptr) << ToUtf8(row.caption);
    EXPECT_TRUE(code_page::RoundTrips(row.caption)) << ToUtf8(row.caption);
  }
}

TEST(CommandRows, ArrayAndIndexNameOneCommand) {
  std::set<std::pair<std::string_view, int>> seen;
  for (const CommandRow& row : CommandRows()) {
    if (row.IsSeparator()) continue;
    EXPECT_TRUE(seen.emplace(row.array, row.index).second) << row.array << row.index;
    EXPECT_EQ(FindCommand(row.array, row.index), &row);
  }
}

TEST(CommandRows, ShortcutsAreUnique) {
  std::set<std::string_view> seen;
  for (const CommandRow& row : CommandRows()) {
    if (row.key.empty()) continue;
    EXPECT_TRUE(seen.insert(row.key).second) << row.key;
  }
}

TEST(CommandRows, MnemonicsNeverClashInsideOneMenu) {
  std::set<std::tuple<TopMenu, std::u16string_view, char>> seen;
  std::set<std::pair<TopMenu, std::u16string_view>> submenus;
  for (const CommandRow& row : CommandRows()) {
    if (!row.submenu.empty() && submenus.emplace(row.menu, row.submenu).second) {
      const char key = Mnemonic(row.submenu);
      EXPECT_TRUE(key == 0 || seen.emplace(row.menu, u"", key).second) << key;
    }
    const char key = Mnemonic(row.caption);
    EXPECT_TRUE(key == 0 || seen.emplace(row.menu, row.submenu, key).second) << ToUtf8(row.caption);
  }
}

TEST(CommandRows, TopLevelMnemonicsNeverClash) {
  std::set<char> seen;
  for (const TopMenu menu : TopMenus()) EXPECT_TRUE(seen.insert(Mnemonic(TopMenuCaption(menu))).second);
}

TEST(CommandRows, TheKeysThatAuthorsKnowAreThere) {
  const std::map<std::string_view, std::pair<std::string_view, int>> expected = {
      {"Ctrl+N", {"MenFileM", 0}},       {"Ctrl+O", {"MenFileM", 1}},    {"Ctrl+S", {"MenFileM", 3}},
      {"Ctrl+Shift+S", {"MenFileM", 4}}, {"Ctrl+Z", {"MenUNDO", 0}},     {"Ctrl+Y", {"MenUNDO", 1}},
      {"Ctrl+X", {"Edit", 0}},           {"Ctrl+C", {"Edit", 1}},        {"Ctrl+V", {"Edit", 2}},
      {"Ctrl+A", {"Edit", 5}},           {"Ctrl+Space", {"HTMLEdit", 4}}};
  for (const auto& [key, command] : expected) {
    const CommandRow* row = FindCommand(command.first, command.second);
    ASSERT_NE(row, nullptr) << key;
    EXPECT_EQ(row->key, key);
  }
}

TEST(ToolRows, EveryButtonAndDropDownEntryRunsACommand) {
  for (const ToolRow& row : ToolRows()) {
    if (row.key.empty()) continue;
    const CommandRow* command = FindCommand(row.array, row.index);
    ASSERT_NE(command, nullptr) << row.key;
    EXPECT_FALSE(command->icon.empty()) << row.key;
    for (const ToolRow::Entry& entry : row.entries) {
      EXPECT_TRUE(entry.caption == u"-" || FindCommand(entry.array, entry.index) != nullptr) << entry.key;
    }
  }
}

}  // namespace
}  // namespace kestri
