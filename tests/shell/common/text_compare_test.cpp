#include "shell/common/text_compare.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "shell/common/text.hpp"
#include "tests/fakes/oracle_rows.hpp"

namespace kestri::text_compare {
namespace {

using fakes::HexUnits;
using fakes::OracleRow;
using Pair = std::pair<std::u16string, std::u16string>;

const std::string kData = KESTRI_TEST_DATA;

// Recorded as unequal: the recording knows no voiced half-width kana. They are equal here.
const std::set<Pair> kVoicedPairs = {{u"ﾊﾟ", u"パ"},
                                     {u"ﾊﾟ", u"ぱ"},
                                     {u"ｳﾞ", u"ヴ"},
                                     {u"ｳﾞ", u"ゔ"},
                                     {u"ﾜﾞ", u"ヷ"},
                                     {u"ﾃﾞｨｽﾌﾟﾚｲ", u"ディスプレイ"},
                                     {u"ﾃﾞｨｽﾌﾟﾚｲ", u"でぃすぷれい"}};

// Recorded as equal by chance of the weights of iteration marks. They differ here.
const std::set<Pair> kEqualByChance = {{u"佐々木", u"佐佐木"}, {u"ゝ", u"々"}};

// Unequal here as recorded, but in the order of the folded units, not of the recorded weights.
const std::set<Pair> kOtherOrder = {{u"ヶ", u"ケ"},    {u"カ゛", u"ガ"}, {u"\\", u"＼"},
                                    {u"～", u"〜"},    {u"Ⅰ", u"I"},     {u"\t", u" "},
                                    {u"it's", u"its"}, {u"a-b", u"ab"},  {u"ヷ", u"わ゛"}};

int RecordedOrder(const std::string& sign) {
  return sign == "=" ? 0 : sign == "<" ? -1 : 1;
}

TEST(TextCompare, OrdersEveryRecordedPairAsRecorded) {
  int rows = 0;
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/compare.tsv")) {
    const Pair pair = {HexUnits(row.at(2)), HexUnits(row.at(3))};
    const int order = Compare(pair.first, pair.second);
    const std::string shown = row[0] + " against " + row[1];
    EXPECT_EQ(Compare(pair.second, pair.first), -order) << shown;
    if (kVoicedPairs.contains(pair)) {
      EXPECT_EQ(order, 0) << shown;
    } else if (kEqualByChance.contains(pair) || kOtherOrder.contains(pair)) {
      EXPECT_NE(order, 0) << shown;
    } else {
      EXPECT_EQ(order, RecordedOrder(row.at(4))) << shown;
    }
    ++rows;
  }
  EXPECT_GT(rows, 130);
}

TEST(TextCompare, EveryRecordedClassIsOneCharacterAndNoTwoClassesAreEqual) {
  std::u16string firstOfEach;
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/compare_fold.tsv")) {
    if (row.at(0) != "class") continue;
    const std::u16string members = HexUnits(row.at(2));
    const bool byChance = members.find(u'《') != members.npos || members.find(u'々') != members.npos;
    firstOfEach += members[0];
    for (const char16_t member : members.substr(1)) {
      EXPECT_EQ(Compare({&members[0], 1}, {&member, 1}) == 0, !byChance) << row[1];
    }
  }
  ASSERT_GT(firstOfEach.size(), 200u);
  for (const char16_t& left : firstOfEach) {
    for (const char16_t& right : firstOfEach) {
      EXPECT_EQ(Compare({&left, 1}, {&right, 1}) == 0, &left == &right)
          << ToUtf8(std::u16string{left, right});
    }
  }
}

// Whatever the recording does not put into one class stays apart, for every character of the code page.
TEST(TextCompare, CharactersOfTheCodePageOutsideTheClassesEqualOnlyThemselves) {
  std::set<std::set<char16_t>> recorded;
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/compare_fold.tsv")) {
    if (row.at(0) != "class") continue;
    const std::u16string members = HexUnits(row.at(2));
    recorded.insert({members.begin(), members.end()});
  }
  recorded.erase({u'《', u'￠'});
  recorded.erase({u'―', u'々', u'ゝ', u'ゞ', u'ー', u'ヽ', u'ヾ', u'ｰ'});
  recorded.insert({{u'ー', u'ｰ'}, {u'ゝ', u'ヽ'}, {u'ゞ', u'ヾ'}});

  const auto before = [](char16_t left, char16_t right) { return Compare({&left, 1}, {&right, 1}) < 0; };
  std::set<char16_t, decltype(before)> distinct(before);
  std::vector<std::set<char16_t>> classes;
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/cp932_encode.tsv")) {
    if (row.at(5) != "same") continue;
    const char16_t unit = HexUnits(row.at(0)).front();
    const auto inserted = distinct.insert(unit);
    if (inserted.second) continue;
    const char16_t first = *inserted.first;
    auto known = std::find_if(classes.begin(), classes.end(),
                              [first](const auto& one) { return one.contains(first); });
    if (known == classes.end()) known = classes.insert(classes.end(), {first});
    known->insert(unit);
  }
  EXPECT_EQ(std::set<std::set<char16_t>>(classes.begin(), classes.end()), recorded);
}

TEST(TextCompare, LengthAndIterationMarksAreEqualAcrossWidthAndKanaOnly) {
  EXPECT_EQ(Compare(u"ｶｰ", u"かー"), 0);
  EXPECT_EQ(Compare(u"いすゞ", u"イスヾ"), 0);
  EXPECT_EQ(Compare(u"こゝろ", u"コヽロ"), 0);
  EXPECT_NE(Compare(u"あゝ", u"ああ"), 0);
  EXPECT_NE(Compare(u"ー", u"―"), 0);
  EXPECT_NE(Compare(u"ゝ", u"ゞ"), 0);
}

TEST(TextCompare, VoicedHalfWidthKanaEqualTheOneFullWidthLetter) {
  const std::u16string half = u"ｶｷｸｹｺｻｼｽｾｿﾀﾁﾂﾃﾄﾊﾋﾌﾍﾎｳﾜｦ";
  const std::u16string voiced = u"ガギグゲゴザジズゼゾダヂヅデドバビブベボヴヷヺ";
  const std::u16string semiVoiced = u"パピプペポ";
  for (std::size_t i = 0; i < half.size(); ++i) {
    EXPECT_EQ(Compare(half.substr(i, 1) + u"ﾞ", voiced.substr(i, 1)), 0) << i;
    EXPECT_NE(Compare(half.substr(i, 1), voiced.substr(i, 1)), 0) << i;
  }
  for (std::size_t i = 0; i < 5; ++i)
    EXPECT_EQ(Compare(half.substr(15 + i, 1) + u"ﾟ", semiVoiced.substr(i, 1)), 0);
  EXPECT_EQ(Compare(u"ｶﾞ", u"が"), 0);
}

TEST(TextCompare, AMarkThatCannotJoinStaysACharacter) {
  EXPECT_EQ(Compare(u"ｱﾞ", u"あ゛"), 0);
  EXPECT_EQ(Compare(u"ｶﾟ", u"カ゜"), 0);
  EXPECT_NE(Compare(u"カ゛", u"ガ"), 0);
  EXPECT_EQ(Compare(u"ｶ゛", u"カﾞ"), 0);
}

TEST(TextCompare, AccentsCount) {
  EXPECT_NE(Compare(u"á", u"a"), 0);
  EXPECT_EQ(Compare(u"Á", u"á"), 0);
}

TEST(MatchPrefix, GivesTheLengthInTheText) {
  EXPECT_EQ(MatchPrefix(u"ｶﾞｷﾞx", u"がぎ"), 4u);
  EXPECT_EQ(MatchPrefix(u"がぎx", u"ｶﾞｷﾞ"), 2u);
  EXPECT_EQ(MatchPrefix(u"ＢＲ>", u"br"), 2u);
  EXPECT_EQ(MatchPrefix(u"b", u"br"), npos);
  EXPECT_EQ(MatchPrefix(u"xbr", u"br"), npos);
  EXPECT_EQ(MatchPrefix(u"abc", u""), 0u);
  EXPECT_EQ(MatchPrefix(u"", u""), 0u);
  EXPECT_EQ(MatchPrefix(u"", u"a"), npos);
}

TEST(MatchPrefix, LettersThatAreTwoMatchAsAWhole) {
  EXPECT_EQ(MatchPrefix(u"Straße", u"STRASSE"), 6u);
  EXPECT_EQ(MatchPrefix(u"STRASSE", u"straße"), 7u);
  EXPECT_EQ(MatchPrefix(u"ß", u"s"), npos);
  EXPECT_EQ(MatchPrefix(u"Æx", u"AE"), 1u);
  EXPECT_EQ(MatchPrefix(u"œ", u"oe"), 1u);
}

TEST(MatchPrefix, SoftHyphensInsideAHitBelongToItButNotThoseAround) {
  EXPECT_EQ(MatchPrefix(u"a\u00ADb", u"ab"), 3u);
  EXPECT_EQ(MatchPrefix(u"ab\u00AD", u"ab"), 2u);
  EXPECT_EQ(Find(u"\u00ADab", u"ab", 0), (Hit{1, 2}));
  EXPECT_EQ(Find(u"xab", u"a\u00ADb", 0), (Hit{1, 2}));
}

TEST(Find, GivesPlaceAndLengthOfTheFirstHitFromTheStart) {
  EXPECT_EQ(Find(u"x ｶﾞ が", u"ガ", 0), (Hit{2, 2}));
  EXPECT_EQ(Find(u"x ｶﾞ が", u"ガ", 3), (Hit{5, 1}));
  EXPECT_EQ(Find(u"<Body>", u"ＢＯＤＹ", 0), (Hit{1, 4}));
  EXPECT_EQ(Find(u"abc", u"c", 3), Hit{});
  EXPECT_EQ(Find(u"abc", u"a", 4), Hit{});
  EXPECT_EQ(Find(u"abc", u"x", 0), Hit{});
  EXPECT_EQ(Find(u"", u"x", 0), Hit{});
}

TEST(Find, AnEmptyFindTextIsHitAtTheStart) {
  EXPECT_EQ(Find(u"abc", u"", 2), (Hit{2, 0}));
  EXPECT_EQ(Find(u"abc", u"", 3), (Hit{3, 0}));
  EXPECT_EQ(Find(u"abc", u"", 4), Hit{});
}

TEST(Find, NoHitCutsACharacterInTwo) {
  EXPECT_EQ(Find(u"ｶﾞか", u"か", 0), (Hit{2, 1}));
  EXPECT_EQ(Find(u"ｶﾞﾞ", u"゛", 0), (Hit{2, 1}));
  EXPECT_EQ(Find(u"ｶﾞ", u"ﾞ", 1), Hit{});
  EXPECT_EQ(Find(u"ﾞ", u"゛", 0), (Hit{0, 1}));
}

TEST(FindLast, GivesTheLastHitThatEndsAtOrBeforeTheEnd) {
  EXPECT_EQ(FindLast(u"が ｶﾞ", u"ガ", 4), (Hit{2, 2}));
  EXPECT_EQ(FindLast(u"が ｶﾞ", u"ガ", 3), (Hit{0, 1}));
  EXPECT_EQ(FindLast(u"が ｶﾞ", u"ガ", 99), (Hit{2, 2}));
  EXPECT_EQ(FindLast(u"aA", u"ａ", 1), (Hit{0, 1}));
  EXPECT_EQ(FindLast(u"aA", u"ａ", 0), Hit{});
  EXPECT_EQ(FindLast(u"abc", u"", 2), (Hit{2, 0}));
  EXPECT_EQ(FindLast(u"ｶﾞ", u"か", 1), Hit{});
}

// Every length around the block size: the search finds what a try at each place finds.
TEST(Find, AgreesWithATryAtEveryPlace) {
  const std::u16string letters = u"aAａsSßæeがガｶﾞﾟはﾊ\u00ADx日本";
  std::mt19937 random(5);
  const auto pick = [&](std::size_t size) {
    std::u16string text;
    for (std::size_t i = 0; i < size; ++i)
      text += random() % 4 == 0 ? letters[random() % letters.size()] : u'y';
    return text;
  };
  int hits = 0;
  for (int round = 0; round < 5000; ++round) {
    const std::u16string text = pick(random() % 60);
    const std::u16string find = text.empty() || round % 3 == 0
                                    ? pick(1 + random() % 3)
                                    : text.substr(random() % text.size(), 1 + random() % 3);
    if (Compare(find, u"") == 0) continue;
    std::vector<Hit> all;
    for (std::size_t at = 0; at < text.size(); ++at) {
      const std::size_t length = MatchPrefix(text.substr(at), find);
      const bool joined = at > 0 && ((text[at - 1] == u'ｶ' && text[at] == u'ﾞ') ||
                                     (text[at - 1] == u'ﾊ' && (text[at] == u'ﾞ' || text[at] == u'ﾟ')));
      if (length != npos && !joined) all.push_back({at, length});
    }
    const std::size_t from = random() % (text.size() + 1);
    Hit first;
    Hit last;
    for (const Hit& hit : all) {
      if (hit.position >= from && first.position == npos) first = hit;
      if (hit.position + hit.length <= from) last = hit;
    }
    ASSERT_EQ(Find(text, find, from), first) << ToUtf8(text) << " / " << ToUtf8(find) << " from " << from;
    ASSERT_EQ(FindLast(text, find, from), last) << ToUtf8(text) << " / " << ToUtf8(find) << " end " << from;
    hits += static_cast<int>(all.size());
  }
  EXPECT_GT(hits, 5000);
}

TEST(Needle, ServesManyTexts) {
  const Needle needle(u"Ａb");
  EXPECT_EQ(needle.Find(u"xxab", 0), (Hit{2, 2}));
  EXPECT_EQ(needle.FindLast(u"ABab", 3), (Hit{0, 2}));
  EXPECT_EQ(needle.MatchPrefix(u"aB"), 2u);
  EXPECT_EQ(needle.Find(u"ba", 0), Hit{});
}

TEST(IgnoringCase, WidthAndKanaKindCount) {
  EXPECT_TRUE(EqualIgnoringCase(u"Body", u"bODY"));
  EXPECT_TRUE(EqualIgnoringCase(u"Ａ", u"ａ"));
  EXPECT_TRUE(EqualIgnoringCase(u"", u""));
  EXPECT_FALSE(EqualIgnoringCase(u"ａ", u"a"));
  EXPECT_FALSE(EqualIgnoringCase(u"あ", u"ア"));
  EXPECT_FALSE(EqualIgnoringCase(u"ab", u"a"));
  EXPECT_TRUE(StartsWithIgnoringCase(u"ABBR", u"ab"));
  EXPECT_TRUE(StartsWithIgnoringCase(u"x", u""));
  EXPECT_FALSE(StartsWithIgnoringCase(u"a", u"ab"));
}

TEST(IgnoringCase, SharpSIsTwoLettersInAWholeItemOnly) {
  EXPECT_TRUE(EqualIgnoringCase(u"Maß", u"MASS"));
  EXPECT_FALSE(StartsWithIgnoringCase(u"ss", u"ß"));
}

TEST(IgnoringCase, EveryRecordedPairIsEqualAsRecorded) {
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/compare.tsv")) {
    const Pair pair = {HexUnits(row.at(2)), HexUnits(row.at(3))};
    const bool equal = row.at(7) == "=" && !kEqualByChance.contains(pair);
    EXPECT_EQ(EqualIgnoringCase(pair.first, pair.second), equal) << row[0] << " against " << row[1];
  }
}

std::vector<std::u16string> ItemsOf(const std::string& field) {
  std::vector<std::u16string> items;
  const std::string separator = " | ";
  std::size_t begin = 0;
  for (std::size_t end = 0; end != std::string::npos; begin = end + separator.size()) {
    end = field.find(separator, begin);
    items.push_back(fakes::OracleText(field.substr(begin, end == std::string::npos ? end : end - begin)));
  }
  return items;
}

int FindInList(const std::vector<std::u16string>& items, const std::u16string& query, const OracleRow& row) {
  const bool wholeItem = row[3] == "STRING";
  const bool wraps = row[3].find("WRAP") != std::string::npos;
  const int count = static_cast<int>(items.size());
  const int start = std::stoi(row[4]) + 1;
  for (int i = 0; i < count; ++i) {
    if (start + i >= count && !wraps) return -1;
    const int index = (start + i) % count;
    const std::u16string& item = items[static_cast<std::size_t>(index)];
    if (wholeItem ? EqualIgnoringCase(item, query) : StartsWithIgnoringCase(item, query)) return index;
  }
  return -1;
}

TEST(IgnoringCase, EveryRecordedListSearchFindsTheRecordedItem) {
  std::vector<std::u16string> items;
  int rows = 0;
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/listfind.tsv")) {
    if (row.at(3).empty()) {
      items = ItemsOf(row.at(6));
      continue;
    }
    if (row[3].find("SUBSTRING") != std::string::npos) continue;  // not certain in the recording
    EXPECT_EQ(FindInList(items, fakes::OracleText(row.at(2)), row), std::stoi(row.at(5)))
        << row[2] << ' ' << row[3];
    ++rows;
  }
  EXPECT_EQ(rows, 3 * (94 + 47) + 11);
}

}  // namespace
}  // namespace kestri::text_compare
