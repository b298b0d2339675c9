#include "tags/dictionaries.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/common_world.hpp"
#include "tests/fakes/completion_world.hpp"

namespace kestri {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class DictionariesTest : public testing::Test, public fakes::MemoryWorld {
 protected:
  DictionariesTest() { files.contents[u"/opt/Kestrile/Kestri"] = "the program"; }

  void Put(std::u16string_view file, std::u16string_view profile) {
    Bytes(file) = fakes::ProfileBytes(profile);
  }
  std::string& Bytes(std::u16string_view file) {
    return files.contents[u"/opt/Kestrile/DataFiles/" + std::u16string(file)];
  }

  Dictionaries dictionaries{common};
};

TEST_F(DictionariesTest, MissingFilesAreEmptyTables) {
  EXPECT_FALSE(dictionaries.HasTags());
  EXPECT_THAT(dictionaries.Tags(), IsEmpty());
  EXPECT_THAT(dictionaries.Options(), IsEmpty());
  EXPECT_THAT(dictionaries.Params(), IsEmpty());
  EXPECT_THAT(dictionaries.Favourites(), IsEmpty());
  EXPECT_THAT(dictionaries.UserWords(u"/home/author/words.def"), IsEmpty());
  EXPECT_EQ(files.reads, 0);
}

TEST_F(DictionariesTest, ARowIsTheSetOfEqualKeysAcrossTheSections) {
  Put(u"SelectTAG.lib",
      u"[EXPLAIN]\n002=略語\n001=ｱﾝｶｰ\n[NAME]\n001=A\n002=ABBR\n[DEFTAG]\n001=<A href=\"\">\n");
  EXPECT_TRUE(dictionaries.HasTags());
  EXPECT_THAT(dictionaries.Tags(),
              ElementsAre(TagRow{u"A", u"ｱﾝｶｰ", u"<A href=\"\">"}, TagRow{u"ABBR", u"略語", u""}));
}

TEST_F(DictionariesTest, AHoleInTheNumberingCutsOffTheRest) {
  Put(u"SelectTAG.lib", u"[NAME]\n001=A\n002=B\n004=D\n005=E\n");
  EXPECT_THAT(dictionaries.Tags(), SizeIs(2));
}

TEST_F(DictionariesTest, AnEmptyNameEndsTheTable) {
  Put(u"Option.lib", u"[PRO]\n001=href\n002=\n003=src\n");
  EXPECT_THAT(dictionaries.Options(), SizeIs(1));
}

TEST_F(DictionariesTest, AMissingFirstRowIsAnEmptyTable) {
  Put(u"Param.lib", u"[PARAM]\n000=zero\n002=two\n");
  EXPECT_THAT(dictionaries.Params(), IsEmpty());
}

TEST_F(DictionariesTest, KeysAreDecimalsOfAtLeastThreeDigits) {
  Put(u"Param.lib", u"[PARAM]\n1=one\n0001=four digits\n001=first\n02=short\n002x=odd\n");
  EXPECT_THAT(dictionaries.Params(), ElementsAre(u"first"));
}

TEST_F(DictionariesTest, SectionNamesCompareWithoutCaseAndRepeatedKeysReadAsTheirFirst) {
  Put(u"Param.lib", u"[Param]\n001=  first  \n001=again\n002=second\n");
  EXPECT_THAT(dictionaries.Params(), ElementsAre(u"first", u"second"));
}

TEST_F(DictionariesTest, OnlyTheFirstEmptyRowBoundsTheLoop) {
  std::u16string profile = u"[PARAM]\n";
  for (int row = 1; row <= 1200; ++row) profile += FormatZeros(row, 3) + u"=v" + ToText(row) + u"\n";
  Put(u"Param.lib", profile);
  EXPECT_THAT(dictionaries.Params(), SizeIs(1200));
}

TEST_F(DictionariesTest, KindFollowsFromTheNameOrItsMark) {
  Put(u"Option.lib",
      u"[PRO]\n001=href\n002=onclick\n003=!!nowrap\n004=ONCLICK\n005=!!\n006=once\n007=o\n008=!\n");
  const auto rows = dictionaries.Options();
  ASSERT_THAT(rows, SizeIs(8));
  EXPECT_EQ(rows[0], (OptionRow{u"href", u"", AttributeKind::Attribute}));
  EXPECT_EQ(rows[1], (OptionRow{u"onclick", u"", AttributeKind::EventHandler}));
  EXPECT_EQ(rows[2], (OptionRow{u"nowrap", u"", AttributeKind::Keyword}));
  EXPECT_EQ(rows[3], (OptionRow{u"ONCLICK", u"", AttributeKind::Attribute}));
  EXPECT_EQ(rows[4], (OptionRow{u"", u"", AttributeKind::Keyword}));
  EXPECT_EQ(rows[5], (OptionRow{u"once", u"", AttributeKind::EventHandler}));
  EXPECT_EQ(rows[6], (OptionRow{u"o", u"", AttributeKind::Attribute}));
  EXPECT_EQ(rows[7], (OptionRow{u"!", u"", AttributeKind::Attribute}));
}

TEST_F(DictionariesTest, KindsInTheWordsOfTheSettings) {
  EXPECT_EQ(KindInWords(AttributeKind::Attribute), u"属性");
  EXPECT_EQ(KindInWords(AttributeKind::EventHandler), u"onｲﾍﾞﾝﾄﾊﾝﾄﾞﾗ");
  EXPECT_EQ(KindInWords(AttributeKind::Keyword), u"ｷｰﾜｰﾄﾞ");
}

TEST_F(DictionariesTest, ALongValueReadsAsItsFirst1023Bytes) {
  Put(u"Param.lib",
      u"[PARAM]\n001=" + std::u16string(1500, u'x') + u"\n002=" + std::u16string(600, u'あ') + u"\n");
  const auto rows = dictionaries.Params();
  ASSERT_THAT(rows, SizeIs(2));
  EXPECT_EQ(rows[0], std::u16string(1023, u'x'));
  EXPECT_EQ(rows[1], std::u16string(511, u'あ')) << "no half character at the cut";
}

TEST_F(DictionariesTest, AValueEndsAtItsFirstNul) {
  Bytes(u"Param.lib") =
      std::string("[PARAM]\r\n001=left\0right\r\n002=", 28) + '\0' + std::string("x\r\n003=c\r\n");
  EXPECT_THAT(dictionaries.Params(), ElementsAre(u"left"));
}

TEST_F(DictionariesTest, FavouritesBeginAtZeroWithTheirPrefix) {
  Put(u"FabStr.lib", u"[FabStr]\nFabStr001=お気に入り\nFABSTR000=width\n002=bare\n");
  EXPECT_THAT(dictionaries.Favourites(), ElementsAre(u"width", u"お気に入り"));
}

TEST_F(DictionariesTest, AnEmptyFirstFavouriteHidesAllOthers) {
  Put(u"FabStr.lib", u"[FabStr]\nFabStr000=\nFabStr001=width\n");
  EXPECT_THAT(dictionaries.Favourites(), IsEmpty());
}

TEST_F(DictionariesTest, UserWordsComeFromAnyPath) {
  files.contents[u"/home/author/words.def"] =
      fakes::ProfileBytes(u"[KEY]\n001=署名\n002=date\n[HINTS]\n001=名前と日付\n");
  EXPECT_THAT(dictionaries.UserWords(u"/home/author/words.def"),
              ElementsAre(UserWordRow{u"署名", u"名前と日付"}, UserWordRow{u"date", u""}));
}

TEST_F(DictionariesTest, TagLookupIgnoresCase) {
  Put(u"SelectTAG.lib", u"[NAME]\n001=A\n002=Table\n[EXPLAIN]\n002=表\n");
  EXPECT_EQ(dictionaries.FindTag(u"a")->name, u"A");
  EXPECT_EQ(dictionaries.FindTag(u"TABLE")->explain, u"表");
  EXPECT_FALSE(dictionaries.FindTag(u"tab"));
  EXPECT_FALSE(dictionaries.FindTag(u""));
}

TEST_F(DictionariesTest, TagLookupStopsAtRow999) {
  std::u16string profile = u"[NAME]\n";
  for (int row = 1; row <= 1000; ++row) profile += FormatZeros(row, 3) + u"=t" + ToText(row) + u"\n";
  Put(u"SelectTAG.lib", profile);
  EXPECT_TRUE(dictionaries.FindTag(u"t999"));
  EXPECT_FALSE(dictionaries.FindTag(u"t1000"));
}

TEST_F(DictionariesTest, OneReadOfTheFilePerTable) {
  Put(u"SelectTAG.lib", u"[NAME]\n001=A\n002=B\n003=C\n[EXPLAIN]\n001=a\n[DEFTAG]\n001=<A>\n");
  dictionaries.Tags();
  EXPECT_EQ(files.reads, 1);
}

TEST_F(DictionariesTest, WrittenTagsAreNumberedAnewAndReadBack) {
  Put(u"SelectTAG.lib", u"[NAME]\n001=old\n002=old\n003=old\n[EXPLAIN]\n001=old\n[DEFTAG]\n003=old\n");
  const std::vector<TagRow> rows{{u"B", u"太字", u"<B>"}, {u"A", u"", u""}};
  EXPECT_TRUE(dictionaries.WriteTags(rows));
  EXPECT_EQ(dictionaries.Tags(), rows);
  EXPECT_EQ(files.writes, 1);
  EXPECT_EQ(
      Bytes(u"SelectTAG.lib"),
      fakes::ProfileBytes(u"[NAME]\n001=B\n002=A\n[EXPLAIN]\n001=太字\n002=\n[DEFTAG]\n001=<B>\n002=\n"));
}

TEST_F(DictionariesTest, WritingKeepsWhatIsNotOfTheTable) {
  Put(u"Option.lib", u"; 手書きのﾒﾓ\n[PRO]\n001=x\n[MY]\nkey=value");
  EXPECT_TRUE(dictionaries.WriteOptions(std::vector<OptionRow>{{u"href", u"ﾘﾝｸ", AttributeKind::Attribute}}));
  EXPECT_EQ(Bytes(u"Option.lib"),
            fakes::ProfileBytes(u"; 手書きのﾒﾓ\n[MY]\nkey=value\n[PRO]\n001=href\n[EXPLAIN]\n001=ﾘﾝｸ\n"));
}

TEST_F(DictionariesTest, ASectionThatStandsTwiceIsReplacedWhole) {
  Put(u"Param.lib", u"[PARAM]\n001=a\n[X]\nk=v\n[param]\n001=b\n");
  EXPECT_TRUE(dictionaries.WriteParams(std::vector<std::u16string>{u"left", u"right"}));
  EXPECT_THAT(dictionaries.Params(), ElementsAre(u"left", u"right"));
}

TEST_F(DictionariesTest, KeywordsAreWrittenWithTheirMark) {
  const std::vector<OptionRow> rows{{u"nowrap", u"折り返さない", AttributeKind::Keyword},
                                    {u"onclick", u"", AttributeKind::EventHandler},
                                    {u"href", u"ﾘﾝｸ先", AttributeKind::Attribute}};
  EXPECT_TRUE(dictionaries.WriteOptions(rows));
  EXPECT_EQ(dictionaries.Options(), rows);
  EXPECT_EQ(Bytes(u"Option.lib"), fakes::ProfileBytes(u"[PRO]\n001=!!nowrap\n002=onclick\n003=href\n"
                                                      u"[EXPLAIN]\n001=折り返さない\n002=\n003=ﾘﾝｸ先\n"));
}

TEST_F(DictionariesTest, ALineBreakInAFieldCannotBreakTheTable) {
  EXPECT_TRUE(dictionaries.WriteParams(std::vector<std::u16string>{u"one\r\n[PARAM]", u"two"}));
  EXPECT_THAT(dictionaries.Params(), ElementsAre(u"one  [PARAM]", u"two"));
}

TEST_F(DictionariesTest, ATableHolds999RowsAndNoMore) {
  std::vector<std::u16string> rows(999, u"v");
  EXPECT_TRUE(dictionaries.WriteParams(rows));
  EXPECT_THAT(dictionaries.Params(), SizeIs(999));
  rows.push_back(u"one too many");
  const std::string before = Bytes(u"Param.lib");
  EXPECT_FALSE(dictionaries.WriteParams(rows));
  EXPECT_FALSE(dictionaries.WriteTags(std::vector<TagRow>(1000, TagRow{u"A", u"", u""})));
  EXPECT_FALSE(dictionaries.WriteOptions(std::vector<OptionRow>(1000, OptionRow{u"a", u"", {}})));
  EXPECT_EQ(Bytes(u"Param.lib"), before);
}

TEST_F(DictionariesTest, AWideFileStaysWide) {
  Bytes(u"Param.lib") = std::string("\xFF\xFE[\0P\0A\0R\0A\0M\0]\0\r\0\n\0", 20);
  EXPECT_TRUE(dictionaries.WriteParams(std::vector<std::u16string>{u"left", u"中央"}));
  EXPECT_THAT(dictionaries.Params(), ElementsAre(u"left", u"中央"));
  EXPECT_TRUE(Bytes(u"Param.lib").starts_with("\xFF\xFE"));
}

TEST_F(DictionariesTest, AFailedWriteLeavesTheFileAsItWas) {
  Put(u"Param.lib", u"[PARAM]\n001=left\n");
  files.refuseWrites = true;
  EXPECT_FALSE(dictionaries.WriteParams(std::vector<std::u16string>{u"right"}));
  EXPECT_THAT(dictionaries.Params(), ElementsAre(u"left"));
}

TEST_F(DictionariesTest, FavouritesAreWrittenUnderTheirListIndex) {
  EXPECT_TRUE(dictionaries.WriteFavourites(std::vector<std::u16string>{u"width", u"", u"height"}));
  EXPECT_EQ(Bytes(u"FabStr.lib"), "[FabStr]\r\nFabStr000=width\r\nFabStr002=height\r\n");
  EXPECT_THAT(dictionaries.Favourites(), ElementsAre(u"width"));
}

TEST_F(DictionariesTest, AnEmptyFavouritesFileIsSeeded) {
  EXPECT_THAT(dictionaries.SeededFavourites(), ElementsAre(u"width", u"height"));
  EXPECT_THAT(dictionaries.Favourites(), ElementsAre(u"width", u"height"));
}

TEST_F(DictionariesTest, FilledFavouritesAreNotSeeded) {
  Put(u"FabStr.lib", u"[FabStr]\nFabStr000=border\n");
  EXPECT_THAT(dictionaries.SeededFavourites(), ElementsAre(u"border"));
  EXPECT_EQ(files.writes, 0);
}

TEST_F(DictionariesTest, FavouritesAreOneLineOfAtMost256Characters) {
  EXPECT_FALSE(FavouriteRefusal(std::u16string(256, u'あ')));
  EXPECT_EQ(FavouriteRefusal(std::u16string(257, u'a')), u"256以上は登録できません");
  EXPECT_EQ(FavouriteRefusal(u"a\r\nb"), u"改行が含まれている文字列は登録できません");
  EXPECT_EQ(FavouriteRefusal(u"a\nb"), u"改行が含まれている文字列は登録できません");
}

TEST_F(DictionariesTest, BothSpellingsOfTheCommentAreTheComment) {
  EXPECT_TRUE(IsCommentName(u"<!-- -->"));
  EXPECT_TRUE(IsCommentName(u"!-- --"));
  EXPECT_FALSE(IsCommentName(u"!--"));
}

}  // namespace
}  // namespace kestri
