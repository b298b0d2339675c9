// The commands that change the selection or put a piece into the text.
#include "document/text_transforms.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::Journal;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

class Transforms : public testing::Test {
 protected:
  std::string After(std::u16string_view row, const std::function<void()>& command) {
    desk.Put(row);
    command();
    return desk.Row();
  }
  std::string Undone() {
    desk.text.MenUNDO(0);
    return desk.Row();
  }

  fakes::MainTextDesk desk;
  TextTransforms transforms{desk.text, desk.state, desk.common, desk.host};
};

struct ConversionRow {
  int index;
  std::u16string_view before;
  std::string after;
};

TEST_F(Transforms, HighEditConvertsTheSelectionAndLeavesItSelected) {
  for (const ConversionRow& row :
       {ConversionRow{4, u"x⟦<a href>⟧y", "x⟦<A HREF>⟧y"}, ConversionRow{5, u"⟦ＡBC⟧", "⟦ａbc⟧"},
        ConversionRow{6, u"⟦HTMLｴﾃﾞｨﾀ⟧", "⟦ＨＴＭＬエディタ⟧"},
        ConversionRow{7, u"ア⟦ガ１　⟧ア", "ア⟦ｶﾞ1 ⟧ア"}, ConversionRow{8, u"⟦ひらがな⟧", "⟦ヒラガナ⟧"},
        ConversionRow{9, u"⟦カタカナ⟧", "⟦かたかな⟧"}}) {
    EXPECT_EQ(After(row.before, [&] { transforms.HighEdit(row.index); }), row.after);
    EXPECT_EQ(Undone(), ToUtf8(row.before)) << "one step takes it back";
    EXPECT_FALSE(desk.control.EM_CANUNDO());
  }
}

TEST_F(Transforms, ConversionOfAnEmptySelectionDoesNothing) {
  for (int index = 4; index <= 9; ++index) {
    EXPECT_EQ(After(u"aア‸b", [&] { transforms.HighEdit(index); }), "aア‸b");
    EXPECT_FALSE(desk.control.EM_CANUNDO());
    EXPECT_EQ(desk.state.modified, 0);
  }
}

TEST_F(Transforms, ASelectionThatConversionDoesNotChangeIsNotRewritten) {
  EXPECT_EQ(After(u"⟦ABC\t漢字⟧", [&] { transforms.HighEdit(4); }), "⟦ABC\t漢字⟧");
  EXPECT_FALSE(desk.control.EM_CANUNDO());
  EXPECT_EQ(desk.state.modified, 0);
}

TEST_F(Transforms, IndentLevelsMoveTheSelectedLines) {
  EXPECT_EQ(After(u"a\n⟦b⟧", [&] { transforms.HighEdit(0); }), "a\n⟦    b⟧");
  transforms.HighEdit(1);
  EXPECT_EQ(desk.Row(), "a\n⟦b⟧");
}

TEST_F(Transforms, IndentLevelWithoutASelectionTypesTheTab) {
  EXPECT_EQ(After(u"a‸b", [&] { transforms.HighEdit(0); }), "a    ‸b");
  desk.state.tabSpaceCount = 0;
  EXPECT_EQ(After(u"a‸b", [&] { transforms.HighEdit(0); }), "a\t‸b");
  EXPECT_EQ(After(u"a‸b", [&] { transforms.HighEdit(1); }), "a‸b");
}

struct BracketCase {
  int index;
  std::string narrow;
  std::string wide;
};

TEST_F(Transforms, KakkoMenuPutsEachPairAroundTheSelectionInTheWidthThatIsSet) {
  const std::vector<BracketCase> rows = {
      {0, "｢x｣", "「x」"},   {1, "(x)", "（x）"},        {2, "『x』", "『x』"},
      {3, "【x】", "【x】"}, {4, "{x}", "｛x｝"},        {5, "[x]", "［x］"},
      {6, "〔x〕", "〔x〕"}, {7, "<x>", "＜x＞"},        {8, "\"x\"", "＂x＂"},
      {9, "'x'", "＇x＇"},   {10, "/*x*/", "／＊x＊／"}, {11, "<!--x-->", "＜！－－x－－＞"}};
  ASSERT_EQ(rows.size(), BracketRows().size());
  for (const BracketCase& row : rows) {
    transforms.KakkoFSet(0);
    EXPECT_EQ(After(u"a⟦x⟧b", [&] { transforms.KakkoMenu(row.index); }), "a⟦" + row.narrow + "⟧b");
    transforms.KakkoFSet(1);
    EXPECT_EQ(After(u"a⟦x⟧b", [&] { transforms.KakkoMenu(row.index); }), "a⟦" + row.wide + "⟧b");
    EXPECT_EQ(Undone(), "a⟦x⟧b");
  }
}

TEST_F(Transforms, KakkoMenuIsNarrowUnlessTheSettingSaysOtherwise) {
  EXPECT_EQ(After(u"‸", [&] { transforms.KakkoMenu(1); }), "⟦()⟧");
  for (const auto& [value, expected] : std::vector<std::pair<std::u16string, std::string>>{
           {u"1", "⟦（）⟧"}, {u"-1", "⟦（）⟧"}, {u"0", "⟦()⟧"}}) {
    desk.SetSetting(u"KAKKO_HorZ", value);
    EXPECT_EQ(After(u"‸", [&] { transforms.KakkoMenu(1); }), expected);
  }
}

TEST_F(Transforms, KakkoMenuWithoutASelectionPutsInThePairAlone) {
  EXPECT_EQ(After(u"a‸b", [&] { transforms.KakkoMenu(5); }), "a⟦[]⟧b");
}

TEST_F(Transforms, ATwoLineSelectionInACommentKeepsItsLineEnd) {
  EXPECT_EQ(After(u"⟦a\nb⟧", [&] { transforms.KakkoMenu(11); }), "⟦<!--a\nb-->⟧");
}

TEST_F(Transforms, KakkoFSetWritesTheSettingAndChecksTheRow) {
  EXPECT_EQ(transforms.CheckedBracketWidth(), 0);
  transforms.KakkoFSet(1);
  EXPECT_EQ(transforms.CheckedBracketWidth(), 1);
  EXPECT_EQ(desk.common.GetINI(desk.common.ExeName(), u"Setting", u"KAKKO_HorZ", u""), u"1");
  transforms.KakkoFSet(7);
  EXPECT_EQ(transforms.CheckedBracketWidth(), 1);
  transforms.KakkoFSet(0);
  EXPECT_EQ(desk.common.GetINI(desk.common.ExeName(), u"Setting", u"KAKKO_HorZ", u""), u"0");
}

TEST_F(Transforms, LineCodeSetsThePanelAndMarksTheDocumentChanged) {
  for (const auto& [index, panel] :
       std::vector<std::pair<int, std::string>>{{0, "CR+LF"}, {1, "CR"}, {2, "LF"}}) {
    EXPECT_EQ(After(u"a\nb‸", [&, i = index] { transforms.LineCode(i); }), "a\nb‸") << "the text keeps CR LF";
    EXPECT_THAT(desk.Lines({"pane"}), ElementsAre("pane 3: " + panel, "pane 2: 変更あり"));
    EXPECT_EQ(ToUtf8(desk.state.lineEnd), panel);
    EXPECT_EQ(desk.state.modified, -1);
    EXPECT_EQ(transforms.CheckedLineCode(), index);
  }
}

TEST_F(Transforms, LineCodeCaptionTellsTheKind) {
  EXPECT_EQ(transforms.LineCodeCaption(), u"改行ｺｰﾄﾞ  [CR + LF]");
  desk.state.lineEnd = u"LF";
  EXPECT_EQ(transforms.LineCodeCaption(), u"改行ｺｰﾄﾞ  [LF]");
  desk.state.lineEnd = u"(不明)";
  EXPECT_EQ(transforms.CheckedLineCode(), -1);
  EXPECT_EQ(transforms.LineCodeCaption(), u"改行ｺｰﾄﾞ  [(不明)]");
}

FreeIndentChoice Choice(IndentCharacter character, int count, IndentDirection direction,
                        std::u16string free = u"") {
  return {.character = character, .freeCharacter = std::move(free), .count = count, .direction = direction};
}

TEST_F(Transforms, FreeIndentPutsTheUnitBeforeEachLine) {
  desk.state.tabSpaceCount = 0;
  for (const auto& [choice, after] : std::vector<std::pair<FreeIndentChoice, std::string>>{
           {Choice(IndentCharacter::Tab, 2, IndentDirection::More), "⟦\t\tab\n\t\tcd⟧\ne"},
           {Choice(IndentCharacter::HalfWidthBlank, 3, IndentDirection::More), "⟦   ab\n   cd⟧\ne"},
           {Choice(IndentCharacter::FullWidthBlank, 1, IndentDirection::More), "⟦　ab\n　cd⟧\ne"},
           {Choice(IndentCharacter::Free, 2, IndentDirection::More, u"> "), "⟦> > ab\n> > cd⟧\ne"},
           {Choice(IndentCharacter::Free, 1, IndentDirection::More, u"𠮷"), "⟦𠮷ab\n𠮷cd⟧\ne"}}) {
    EXPECT_EQ(After(u"a⟦b\nc⟧d\ne", [&, c = choice] { transforms.FreeIndent(c); }), after);
    EXPECT_EQ(Undone(), "a⟦b\nc⟧d\ne");
    EXPECT_FALSE(desk.control.EM_CANUNDO());
  }
}

TEST_F(Transforms, FreeIndentWithLevelMinusLeavesALineThatIsShortOfAUnit) {
  const FreeIndentChoice less = Choice(IndentCharacter::HalfWidthBlank, 2, IndentDirection::Less);
  EXPECT_EQ(After(u"⟦  a\n b\n    c⟧", [&] { transforms.FreeIndent(less); }), "⟦a\n b\n  c⟧");
}

TEST_F(Transforms, FreeIndentTakesBackTheBlanksThatStandForATab) {
  EXPECT_EQ(After(u"⟦a\nb⟧", [&] { transforms.FreeIndent({}); }), "⟦    a\n    b⟧");
  transforms.FreeIndent(Choice(IndentCharacter::Tab, 1, IndentDirection::Less));
  EXPECT_EQ(desk.Row(), "⟦a\nb⟧");
}

TEST_F(Transforms, FreeIndentThatChangesNothingMakesNoUndoStep) {
  const FreeIndentChoice less = Choice(IndentCharacter::FullWidthBlank, 1, IndentDirection::Less);
  After(u"a⟦b\n c⟧", [&] { transforms.FreeIndent(less); });
  EXPECT_EQ(desk.control.Text(), u"ab\r\n c");
  EXPECT_FALSE(desk.control.EM_CANUNDO());
}

TEST_F(Transforms, FreeIndentWithoutASelectionWorksOnTheCaretsLine) {
  const FreeIndentChoice more = Choice(IndentCharacter::HalfWidthBlank, 1, IndentDirection::More);
  EXPECT_EQ(After(u"a\nb‸c\nd", [&] { transforms.FreeIndent(more); }), "a\n⟦ bc⟧\nd");
  EXPECT_EQ(Undone(), "a\nb‸c\nd");
}

TEST_F(Transforms, FreeIndentWithAnIncompleteChoiceDoesNothing) {
  for (const FreeIndentChoice& choice : {Choice(IndentCharacter::Tab, 0, IndentDirection::More),
                                         Choice(IndentCharacter::Tab, -3, IndentDirection::More),
                                         Choice(IndentCharacter::Free, 4, IndentDirection::More)})
    EXPECT_EQ(After(u"a‸", [&] { transforms.FreeIndent(choice); }), "a‸");
}

TEST_F(Transforms, ToMPutsInTheCharacterReference) {
  const std::vector<std::string> references = {"&lt;",     "&gt;",    "&quot;",   "&amp;",
                                               "&nbsp;",   "&trade;", "&copy;",   "&reg;",
                                               "&spades;", "&clubs;", "&hearts;", "&diams;"};
  ASSERT_EQ(references.size(), SpecialCharacterRows().size());
  for (std::size_t i = 0; i < references.size(); ++i) {
    EXPECT_EQ(After(u"a⟦x⟧b", [&] { transforms.ToM(static_cast<int>(i)); }), "a" + references[i] + "‸b");
    EXPECT_EQ(Undone(), "a⟦x⟧b");
  }
}

TEST_F(Transforms, ColorPutsInTheWordBeforeTheTab) {
  EXPECT_EQ(After(u"color=\"‸\"", [&] { transforms.Color(0); }), "color=\"Black‸\"");
  EXPECT_EQ(After(u"‸", [&] { transforms.Color(15); }), "Fuchsia‸");
  for (std::size_t i = 0; i < ColorRows().size(); ++i)
    EXPECT_EQ(After(u"‸", [&] { transforms.Color(static_cast<int>(i)); }).find('\t'), std::string::npos);
}

TEST_F(Transforms, NFontPutsInTheFontsName) {
  for (std::size_t i = 0; i < FontRows().size(); ++i)
    EXPECT_EQ(After(u"‸", [&] { transforms.nFont(static_cast<int>(i)); }), ToUtf8(FontRows()[i]) + "‸");
}

TEST_F(Transforms, DayPutsInTheMomentAndSelectsIt) {
  const std::vector<std::string> texts = {
      "04時05分",   "04時05分06秒",        "04:05",    "04:05:06",  "2003年02月01日",
      "2003/02/01", "2003/02/01 04:05:06", "04:05:06", "2003/02/01"};
  ASSERT_EQ(texts.size(), DayRows().size());
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(After(u"a⟦x⟧b", [&] { transforms.Day(static_cast<int>(i)); }), "a⟦" + texts[i] + "⟧b");
    EXPECT_THAT(desk.journal, Contains("focus text"));
    EXPECT_EQ(Undone(), "a⟦x⟧b");
  }
}

TEST_F(Transforms, ReadOnlyTextRefusesEveryCommandWithABeep) {
  const std::vector<std::function<void()>> commands = {
      [&] { transforms.HighEdit(0); },    [&] { transforms.HighEdit(1); },
      [&] { transforms.HighEdit(4); },    [&] { transforms.HighEdit(9); },
      [&] { transforms.KakkoMenu(1); },   [&] { transforms.LineCode(2); },
      [&] { transforms.FreeIndent({}); }, [&] { transforms.ToM(0); },
      [&] { transforms.Color(0); },       [&] { transforms.nFont(0); },
      [&] { transforms.Day(0); },         [&] { transforms.Insert(u"#FF0000"); },
  };
  for (const auto& command : commands) {
    desk.control.SetLocked(false);
    desk.Put(u"⟦aア⟧");
    desk.control.SetLocked(true);
    command();
    EXPECT_EQ(desk.Row(), "⟦aア⟧");
    EXPECT_THAT(desk.Messages(), ElementsAre("beep", "status: 読み取り専用で開かれています"));
    EXPECT_EQ(desk.state.modified, 0);
    EXPECT_EQ(desk.state.lineEnd, u"CR+LF");
  }
}

TEST_F(Transforms, AnIndexWithoutARowDoesNothing) {
  for (const int index : {-1, 3, 12, 99}) {
    desk.Put(u"⟦aア⟧");
    transforms.HighEdit(index);
    if (index != 3) {
      transforms.KakkoMenu(index);
      transforms.ToM(index);
      transforms.Day(index);
      if (index != 12) transforms.Color(index);
      transforms.nFont(index);
    }
    transforms.LineCode(index);
    EXPECT_EQ(desk.Row(), "⟦aア⟧");
    EXPECT_THAT(desk.Messages(), IsEmpty());
    EXPECT_EQ(desk.state.modified, 0);
  }
}

TEST(TransformRows, CaptionsDivideTheWordFromItsRemarkByATab) {
  EXPECT_EQ(HighEditRows()[1].caption, u"ｲﾝﾃﾞﾝﾄ ﾚﾍﾞﾙ -1\tCtrl+Bksp");
  EXPECT_EQ(BracketRows()[0].caption, u"「  」 で囲む");
  EXPECT_EQ(SpecialCharacterRows()[3].caption, u"&&\t(ｱﾝﾊﾟｻﾝﾄ)");
  EXPECT_EQ(ColorRows()[3], u"Silver\t(銀)");
  EXPECT_EQ(CaptionWord(ColorRows()[3]), u"Silver");
  EXPECT_EQ(CaptionWord(u"Teal"), u"Teal");
}

TEST_F(Transforms, AnIndentThatNoTextCanHoldIsRefused) {
  std::u16string lines;
  for (int line = 0; line < 1'100'000; ++line) lines += kCrLf;
  desk.control.SetText(lines);
  desk.control.EM_SETSEL(0, -1);
  transforms.FreeIndent(Choice(IndentCharacter::HalfWidthBlank, 999, IndentDirection::More));
  EXPECT_EQ(static_cast<std::size_t>(desk.control.Length()), lines.size());
  EXPECT_THAT(desk.Messages(), Contains("status: ﾃｷｽﾄが長くなりすぎるので ｲﾝﾃﾞﾝﾄできません"));
}

}  // namespace
}  // namespace kestri
