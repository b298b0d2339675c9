// Names in lists: their order, what a pattern takes, and how they show.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "browse/file_pattern.hpp"
#include "browse/natural_order.hpp"
#include "browse/shown_name.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

using ::testing::ElementsAre;

TEST(NaturalOrder, NumbersCountByTheirValue) {
  std::vector<std::u16string> names{u"page10.htm", u"page9.htm", u"page.htm", u"page010.htm", u"page1.htm"};
  SortNaturally(names);
  EXPECT_THAT(names, ElementsAre(u"page.htm", u"page1.htm", u"page9.htm", u"page010.htm", u"page10.htm"));
}

TEST(NaturalOrder, CaseWidthAndKanaKindMingle) {
  std::vector<std::u16string> names{u"b", u"Ｃ", u"A", u"ウ", u"ｶﾞ", u"か", u"き", u"あ", u"２", u"10"};
  SortNaturally(names);
  EXPECT_THAT(names, ElementsAre(u"２", u"10", u"A", u"b", u"Ｃ", u"あ", u"ウ", u"か", u"ｶﾞ", u"き"));
}

TEST(NaturalOrder, NamesOfOneKeyGoByTheirUnits) {
  std::vector<std::u16string> names{u"a", u"A", u"01", u"1", u"001"};
  SortNaturally(names);
  EXPECT_THAT(names, ElementsAre(u"001", u"01", u"1", u"A", u"a"));
  EXPECT_TRUE(NaturallyBefore(u"A", u"a"));
  EXPECT_FALSE(NaturallyBefore(u"a", u"a"));
}

TEST(NaturalOrder, VeryLongNumbersAndEmptyNamesAreOrdered) {
  const std::u16string huge(70000, u'9');
  EXPECT_TRUE(NaturallyBefore(u"", u"0"));
  EXPECT_TRUE(NaturallyBefore(u"9", huge));
  EXPECT_FALSE(NaturallyBefore(huge, u"1"));
}

struct PatternRow {
  const char16_t* pattern;
  const char16_t* name;
  bool takes;
};

TEST(FilePattern, TakesByTheTable) {
  const PatternRow rows[] = {
      {u"*.htm;*.html", u"index.htm", true},
      {u"*.htm;*.html", u"INDEX.HTML", true},
      {u"*.HTM", u"日記.htm", true},
      {u"*.htm;*.html", u"index.html.bak", false},
      {u"*.htm", u"htm", false},
      {u"*.*", u"Makefile", true},
      {u"*.*", u".htaccess", true},
      {u"*", u"Makefile", true},
      {u"", u"a", false},
      {u";;", u"a", false},
      {u" *.c ; *.h ", u"a.h", true},
      {u"page?.htm", u"page1.htm", true},
      {u"page?.htm", u"page.htm", false},
      {u"page?.htm", u"page12.htm", false},
      {u"?.txt", u"𠮷.txt", true},
      {u"a*b*c", u"aXbXbXc", true},
      {u"a*b*c", u"aXbXbX", false},
      {u"*a*a*a*a*a*a*a*a*b", u"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa", false},
      {u"two\nlines*", u"two\nlines.txt", true},
      {u"*.", u"a", false},
      {u"[a].txt", u"[A].txt", true},
  };
  for (const PatternRow& row : rows)
    EXPECT_EQ(FilePattern(row.pattern).Takes(row.name), row.takes)
        << ToUtf8(row.pattern) << " on " << ToUtf8(row.name);
}

TEST(ShownName, ControlsAndBrokenCharactersShowAsSigns) {
  EXPECT_EQ(ShownName(u"日記 1.htm"), u"日記 1.htm");
  EXPECT_EQ(ShownName(u"two\nlines\x7F"), u"two\u240Alines\u2421");
  EXPECT_EQ(ShownName(u"\xDC93\xDCFA"), u"\uFFFD\uFFFD");
  EXPECT_EQ(ShownName(u"𠮷\xD842"), u"𠮷\uFFFD");
  EXPECT_EQ(ShownName(u"a\u202Efdp.exe"), u"a\uFFFDfdp.exe");
  EXPECT_EQ(ShownName(u"a\u2028b"), u"a\uFFFDb");
  EXPECT_EQ(ShownName(u""), u"");
}

}  // namespace
}  // namespace kestri
