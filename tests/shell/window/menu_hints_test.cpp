#include "shell/window/menu_hints.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"
#include "shell/window/commands.hpp"

namespace kestri {
namespace {

std::map<int, std::u16string> Strings() {
  std::map<int, std::u16string> strings;
  std::ifstream in(KESTRI_SOURCE_DIR "/data/resources/strings.txt");
  for (std::string line; std::getline(in, line);) {
    const std::size_t tab = line.find('\t');
    strings.emplace(std::stoi(line.substr(0, tab)), FromUtf8(line.substr(tab + 1)));
  }
  return strings;
}

TEST(MenuHints, AllSeventyEightNumbersHaveTheirText) {
  const auto strings = Strings();
  EXPECT_EQ(strings.size(), 78u);
  for (int number = kFirstMenuHint; number <= kLastMenuHint; ++number) {
    ASSERT_TRUE(strings.contains(number)) << number;
    EXPECT_FALSE(strings.at(number).empty()) << number;
    EXPECT_TRUE(code_page::RoundTrips(strings.at(number))) << number;
  }
}

TEST(MenuHints, EveryCommandPointsAtATextAndEveryTextIsPointedAt) {
  const auto strings = Strings();
  std::set<int> used;
  for (const CommandRow& row : CommandRows()) {
    if (row.IsSeparator()) continue;
    EXPECT_NE(strings.at(row.hint), u"-") << ToUtf8(row.caption);
    used.insert(row.hint);
  }
  for (const auto& [number, text] : strings) EXPECT_EQ(used.contains(number), text != u"-") << number;
}

TEST(MenuHints, FiveTextsNameTheProduct) {
  int named = 0;
  for (const auto& [number, text] : Strings()) {
    const std::u16string expanded = ExpandProductNames(text);
    EXPECT_EQ(expanded.find(u'%'), std::u16string::npos) << number;
    if (expanded != text) ++named;
  }
  EXPECT_EQ(named, 5);
}

TEST(MenuHints, PlaceholdersBecomeNameCreditAndWindowTitle) {
  EXPECT_EQ(ExpandProductNames(u"%TITLE% を終了"), u"Kestrile を終了");
  EXPECT_EQ(ExpandProductNames(u"[%WINDOWTITLE%]"), u"[Kestrile (Version 1.0.0e07)]");
  EXPECT_EQ(ExpandProductNames(u"%(C)%"), u"(C) Kestrile の作者たち");
}

}  // namespace
}  // namespace kestri
