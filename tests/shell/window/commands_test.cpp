// The command rows as a table: what holds for every row.
#include "shell/window/commands.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"
#include "shell/window/menu_hints.hpp"

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
    EXPECT_GE(row.hint, kFirstMenuHint) << ToUtf8(row.caption);
    EXPECT_LE(row.hint, kLastMenuHint) << ToUtf8(row.caption);
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

// Every menu array of the window by its name, with the number of its items.
TEST(CommandRows, EveryMenuArrayIsThere) {
  const std::map<std::string_view, int> expected = {
      {"MenFileM", 8},        {"OpenFileReg", 22}, {"MenFileOpenEx", 3}, {"MenFileMs", 15},
      {"MenUNDO", 2},         {"Edit", 6},         {"HighEdit", 9},      {"KakkoMenu", 12},
      {"KakkoFSet", 2},       {"LineCode", 3},     {"ColorEdit", 1},     {"FilePathEdit", 1},
      {"StyleSEdit", 1},      {"mnuCnvImg", 1},    {"menFabStr", 1},     {"menURLmove", 1},
      {"SearEdit", 7},        {"CEdit", 1},        {"HTMLEdit", 5},      {"MenHTMLEdit", 4},
      {"HTMLEditHINTS", 1},   {"TmpLEdit", 12},    {"DefSlotSave", 1},   {"SaveSlot", 10},
      {"LoadSlot", 10},       {"DefSlotLoad", 1},  {"Slot", 10},         {"mnuCmpl", 1},
      {"MenTool", 4},         {"MenOPg", 3},       {"MenOPgWord", 1},    {"MenOPgPaint", 1},
      {"Setting", 1},         {"SettingT", 1},     {"MenV", 8},          {"MenV2", 1},
      {"MenV3", 2},           {"MenH", 1},         {"MenH2", 4},         {"MenIMES", 8},
      {"MenIMERe", 1},        {"MenIMEsub", 3},    {"Day", 9},           {"WinShow", 1},
      {"mnuCallUserInTo", 1}, {"mnuFreeInd", 1}};
  std::map<std::string_view, int> counts;
  for (const CommandRow& row : CommandRows()) {
    if (!row.IsSeparator()) ++counts[row.array];
  }
  EXPECT_EQ(counts, expected);
}

}  // namespace
}  // namespace kestri
