#include "tags/candidate_list.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/completion_world.hpp"
#include "tests/fakes/oracle_rows.hpp"

namespace kestri {
namespace {

using testing::ElementsAre;

class CandidateListTest : public testing::Test {
 protected:
  std::vector<CandidateRow> Build() {
    return BuildCandidates(Dictionaries(world.common), ReadCandidateSources(world.common),
                           [this] { return world.fonts; });
  }
  std::vector<std::u16string> Texts() {
    std::vector<std::u16string> texts;
    for (const CandidateRow& row : Build()) texts.push_back(row.text);
    return texts;
  }

  fakes::CompletionWorld world;
};

TEST_F(CandidateListTest, EachKindHasItsTipIconAndColour) {
  const auto rows = Build();
  ASSERT_GE(rows.size(), 11u);
  EXPECT_EQ(rows[0], (CandidateRow{u"A", u"ﾀｸﾞ:ｱﾝｶｰ", 1, CandidateIcon::Tag, RGB(0, 0, 255)}));
  EXPECT_EQ(rows[3], (CandidateRow{u"!-- --", u"ﾀｸﾞ:ｺﾒﾝﾄ", 1, CandidateIcon::Tag, RGB(0, 0, 255)}));
  EXPECT_EQ(rows[4], (CandidateRow{u"href", u"属性:ﾘﾝｸ先", 2, CandidateIcon::Attribute, RGB(0, 0, 0)}));
  EXPECT_EQ(rows[6],
            (CandidateRow{u"onclick", u"ｲﾍﾞﾝﾄﾊﾝﾄﾞﾗ:ｸﾘｯｸ時", 2, CandidateIcon::EventHandler, RGB(150, 0, 0)}));
  EXPECT_EQ(rows[7], (CandidateRow{u"nowrap", u"ｷｰﾜｰﾄﾞ:", 2, CandidateIcon::Keyword, RGB(0, 150, 0)}));
  EXPECT_EQ(rows[8], (CandidateRow{u"left", u"", 3, CandidateIcon::Value, RGB(100, 100, 100)}));
  EXPECT_EQ(rows[10], (CandidateRow{u"-1", u"", 3, CandidateIcon::Value, RGB(100, 100, 100)}));
}

TEST_F(CandidateListTest, OrderIsTagsAttributesValuesFontsNumbersFavouritesUserWords) {
  world.SetFavourites(u"[FabStr]\nFabStr000=お気に入り\n");
  world.Put(u"words.def", u"[KEY]\n001=署名\n[HINTS]\n001=名前\n");
  world.SetSettings(u"[Setting]\nValFont=1\nValFabStr=1\n[USERINTO]\nFILE=/opt/Kestrile/words.def\n");
  EXPECT_THAT(Texts(), ElementsAre(u"A", u"ABBR", u"P", u"!-- --", u"href", u"align", u"onclick", u"nowrap",
                                   u"left", u"center", u"ＭＳ ゴシック", u"Arial", u"-1", u"0", u"1", u"2",
                                   u"3", u"4", u"5", u"6", u"7", u"お気に入り", u"署名"));
  const auto rows = Build();
  EXPECT_EQ(rows[10],
            (CandidateRow{u"ＭＳ ゴシック", u"(ﾌｫﾝﾄ)", 3, CandidateIcon::Font, RGB(100, 100, 100)}));
  EXPECT_EQ(rows[21],
            (CandidateRow{u"お気に入り", u"(お気に入り)", 3, CandidateIcon::Favourite, RGB(100, 100, 100)}));
  EXPECT_EQ(rows[22], (CandidateRow{u"署名", u"名前", 5, CandidateIcon::UserWord, RGB(100, 100, 100)}));
}

TEST_F(CandidateListTest, FontsAndFavouritesStayOutUnlessAskedFor) {
  world.SetFavourites(u"[FabStr]\nFabStr000=お気に入り\n");
  EXPECT_EQ(Build().size(), 19u);
}

TEST_F(CandidateListTest, LowerCaseReachesTagsAttributesAndValuesOnly) {
  world.SetOptions(u"[PRO]\n001=HREF\n002=!!NOWRAP\n");
  world.SetParams(u"[PARAM]\n001=LEFT\n002=ＬＥＦＴ\n");
  world.SetFavourites(u"[FabStr]\nFabStr000=WIDTH\n");
  world.Put(u"words.def", u"[KEY]\n001=WORD\n");
  world.SetSettings(
      u"[Setting]\nInputUL=1\nValFont=1\nValFabStr=1\n[USERINTO]\nFILE=/opt/Kestrile/words.def\n");
  const auto texts = Texts();
  EXPECT_EQ(texts[0], u"a");
  EXPECT_EQ(texts[4], u"href");
  EXPECT_EQ(texts[5], u"nowrap");
  EXPECT_EQ(texts[6], u"left");
  EXPECT_EQ(texts[7], u"ｌｅｆｔ");
  EXPECT_EQ(texts[9], u"Arial");
  EXPECT_EQ(texts[texts.size() - 2], u"WIDTH");
  EXPECT_EQ(texts.back(), u"WORD");
}

TEST_F(CandidateListTest, BothSpellingsOfTheCommentAreOneCandidate) {
  world.SetTags(u"[NAME]\n001=<!-- -->\n002=B\n003=!-- --\n[EXPLAIN]\n001=説明\n");
  const auto rows = Build();
  EXPECT_EQ(rows[0].text, u"!-- --");
  EXPECT_EQ(rows[0].toolTipText, u"ﾀｸﾞ:ｺﾒﾝﾄ");
  EXPECT_EQ(rows[1].text, u"B");
  EXPECT_EQ(rows[2].text, u"href");
}

TEST_F(CandidateListTest, AKeywordWithoutANameIsAnEmptyLine) {
  world.SetOptions(u"[PRO]\n001=!!\n002=href\n");
  const auto rows = Build();
  EXPECT_EQ(rows[4], (CandidateRow{u"", u"ｷｰﾜｰﾄﾞ:", 2, CandidateIcon::Keyword, RGB(0, 150, 0)}));
  EXPECT_EQ(rows[5].text, u"href");
}

TEST_F(CandidateListTest, AMissingUserFileAddsNothing) {
  world.SetSettings(u"[USERINTO]\nFILE=/nowhere/words.def\n");
  EXPECT_EQ(Build().size(), 19u);
}

std::vector<CandidateRow> RowsOf(const std::vector<std::u16string>& texts) {
  std::vector<CandidateRow> rows;
  for (const std::u16string& text : texts) rows.push_back({text, u"", kModeTag, CandidateIcon::Tag, 0});
  return rows;
}

std::vector<std::u16string> Items(const std::string& field) {
  std::vector<std::u16string> items;
  const std::u16string all = fakes::OracleText(field);
  std::size_t begin = 0;
  for (std::size_t bar = all.find(u" | "); bar != std::u16string::npos; bar = all.find(u" | ", begin)) {
    items.push_back(all.substr(begin, bar - begin));
    begin = bar + 3;
  }
  items.push_back(all.substr(begin));
  return items;
}

TEST(FindItemTest, FindsWhatTheListControlFound) {
  std::vector<CandidateRow> rows;
  int compared = 0;
  for (const auto& row : fakes::ReadOracleRows(KESTRI_TEST_DATA "/listfind.tsv")) {
    if (row[2] == "(items in order)") rows = RowsOf(Items(row[6]));
    if (row[3] != "STRING|PARTIAL" || row[4] != "-1") continue;
    EXPECT_EQ(FindItem(rows, fakes::OracleText(row[2])), std::stoi(row[5])) << row[0] << ' ' << row[2];
    ++compared;
  }
  EXPECT_GT(compared, 250);
}

TEST(FindItemTest, AnEmptyListHasNoHit) {
  EXPECT_EQ(FindItem({}, u""), -1);
}

}  // namespace
}  // namespace kestri
