#include "tags/completion.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/fakes/completion_world.hpp"

namespace kestri {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CompletionTest : public testing::Test {
 protected:
  // Text with a caret, keys as the window routes them, and what stands there afterwards.
  std::u16string After(std::u16string_view text, std::u16string_view keys) {
    world.SetText(text);
    world.Type(keys);
    return world.Shown();
  }
  void Choose(std::u16string_view word) { world.popup.ItemClick(world.RowOf(word)); }

  fakes::CompletionWorld world;
  fakes::RecordingView& view = world.view;
  InToTAG& popup = world.popup;
};

// Loading and switching modes.

TEST_F(CompletionTest, LoadsAtItsFirstUseWithStatusMessages) {
  EXPECT_FALSE(popup.Loaded());
  popup.Preset(kModeTag);
  EXPECT_TRUE(popup.Loaded());
  EXPECT_THAT(world.host.panes, ElementsAre(u"1:ﾃﾞｰﾀ展開中...  しばらくお待ちください...",
                                            u"1:ﾏｰｷﾝｸﾞ中...  しばらくお待ちください...", u"1:"));
  EXPECT_EQ(popup.EditMode(), 1);
  EXPECT_EQ(popup.Selected(), 0);
  EXPECT_EQ(view.tip, u"ﾀｸﾞ:ｱﾝｶｰ");
  EXPECT_EQ(view.icon, CandidateIcon::Tag);
  EXPECT_EQ(view.listSwitches.front(), false);
  EXPECT_EQ(view.listSwitches.back(), true);
  EXPECT_EQ(view.rows, popup.Rows());
}

TEST_F(CompletionTest, TheLoadTextIsPaintedOnceBeforeTheFilesAreRead) {
  std::vector<std::u16string> painted;
  InToTAG slow{{.text = world.text,
                .state = world.state,
                .common = world.common,
                .host = world.host,
                .view = world.view,
                .place = world.place,
                .hints = world.hints,
                .tagAnalyse = {},
                .screenFonts = {},
                .paintStatus = [&] {
                  EXPECT_TRUE(slow.Rows().empty()) << "nothing is read yet";
                  painted.push_back(world.host.panes.back());
                }}};
  slow.Preset(kModeTag);
  slow.Preset(kModeAttribute);
  EXPECT_THAT(painted, ElementsAre(u"1:ﾃﾞｰﾀ展開中...  しばらくお待ちください..."));
  slow.Unload();
  slow.Preset(kModeTag);
  EXPECT_EQ(painted.size(), 2u) << "each load says so";
}

TEST_F(CompletionTest, LoadsOnlyOnce) {
  popup.Preset(kModeTag);
  const int reads = world.files.reads;
  world.SetTags(u"[NAME]\n001=NEW\n");
  popup.Preset(kModeAttribute);
  popup.Preset(kModeTag);
  EXPECT_EQ(world.files.reads, reads);
  EXPECT_EQ(popup.Rows()[0].text, u"A");
}

TEST_F(CompletionTest, WithoutAnyDataItsStatusBarSaysSo) {
  world.files.contents.clear();
  popup.Preset(kModeTag);
  EXPECT_EQ(view.tip, u"展開するﾃﾞｰﾀありませんでした");
  EXPECT_EQ(view.icon, std::nullopt);
  EXPECT_EQ(world.host.panes.back(), u"1:");
  EXPECT_EQ(popup.Selected(), -1);
}

TEST_F(CompletionTest, PresetGhostsTheRowsOfOtherModes) {
  popup.Preset(kModeAttribute);
  EXPECT_EQ(popup.EditMode(), 2);
  EXPECT_TRUE(popup.Ghosted(world.RowOf(u"A")));
  EXPECT_FALSE(popup.Ghosted(world.RowOf(u"href")));
  EXPECT_TRUE(popup.Ghosted(world.RowOf(u"left")));
  popup.Preset(kModeValue);
  EXPECT_TRUE(popup.Ghosted(world.RowOf(u"href")));
  EXPECT_FALSE(popup.Ghosted(world.RowOf(u"left")));
  EXPECT_EQ(popup.Rows().size(), 19u) << "the list is never made shorter";
}

TEST_F(CompletionTest, PresetOfTheSameModeRepaintsNothing) {
  popup.Preset(kModeTag);
  view.marks.clear();
  view.listSwitches.clear();
  popup.Preset(kModeTag);
  EXPECT_THAT(view.marks, IsEmpty());
  EXPECT_THAT(view.listSwitches, IsEmpty());
}

TEST_F(CompletionTest, ListIsHiddenWhileAModeIsMarked) {
  popup.Preset(kModeTag);
  view.listSwitches.clear();
  popup.Preset(kModeValue);
  EXPECT_THAT(view.listSwitches, ElementsAre(false, true));
  EXPECT_EQ(view.marks.back(), 3);
}

TEST_F(CompletionTest, AnotherModeBringsItsRowsToTheTopAndSelectsTheFirst) {
  popup.Preset(kModeTag);
  Choose(u"P");
  popup.Preset(kModeAttribute);
  EXPECT_EQ(world.SelectedText(), u"href");
  EXPECT_EQ(popup.Selected(), 0);
  const auto firstGhosted =
      std::ranges::find_if(popup.Rows(), [](const auto& row) { return row.tag != kModeAttribute; });
  EXPECT_TRUE(std::all_of(firstGhosted, popup.Rows().end(),
                          [](const auto& row) { return row.tag != kModeAttribute; }));
  popup.Preset(kModeTag);
  EXPECT_TRUE(std::ranges::is_sorted(popup.Rows(), {}, &CandidateRow::tag))
      << "the order of the tables again";
}

TEST_F(CompletionTest, TheSameModeAgainKeepsTheSelection) {
  popup.Preset(kModeTag);
  Choose(u"P");
  popup.Preset(kModeTag);
  EXPECT_EQ(world.SelectedText(), u"P");
}

TEST_F(CompletionTest, SettingsAreReadAtLoad) {
  popup.Preset(kModeTag);
  EXPECT_EQ(popup.AutoSelect(), 1);
  EXPECT_EQ(popup.AutoAnalyse(), 0);
  EXPECT_EQ(popup.AutoHint(), 0);
  world.SetSettings(u"[Setting]\nAutTag=0\nhtmlReEdit_AUTO=7\n");
  world.state.htmlNAVkeyB_AUTO = 1;
  popup.Unload();
  popup.Preset(kModeTag);
  EXPECT_EQ(popup.AutoSelect(), 0);
  EXPECT_EQ(popup.AutoAnalyse(), 1);
  EXPECT_EQ(popup.AutoHint(), 1);
}

TEST_F(CompletionTest, UnloadForgetsEverythingAndTheNextUseReadsTheFilesAnew) {
  world.SetText(u"‸");
  world.Type(u"<p");
  popup.Unload();
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(popup.EditMode(), 0);
  EXPECT_EQ(popup.StartPos(), 0);
  EXPECT_EQ(popup.NextStart(), -1);
  EXPECT_EQ(popup.Typed(), u"");
  EXPECT_EQ(popup.AutoSelect(), 0);
  EXPECT_THAT(popup.Rows(), IsEmpty());
  world.SetTags(u"[NAME]\n001=NEW\n");
  popup.Preset(kModeTag);
  EXPECT_EQ(popup.Rows()[0].text, u"NEW");
}

// The road of one tag.

TEST_F(CompletionTest, LessSignOpensThePopupAtTheCaret) {
  EXPECT_EQ(After(u"本文‸", u"<"), u"本文<‸");
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(view.placement->window, (PixelRect{380, 118, 300, 240}));
  EXPECT_EQ(view.shownWith, Animation::Slide);
  EXPECT_EQ(popup.StartPos(), 3);
  EXPECT_EQ(popup.Typed(), u"");
  EXPECT_FALSE(popup.UpClose());
}

TEST_F(CompletionTest, TypedPrefixAndEnterInsertTheTag) {
  EXPECT_EQ(After(u"‸", u"<a\r"), u"<A‸>");
  EXPECT_FALSE(view.visible);
  EXPECT_GT(world.host.focused, 0);
}

TEST_F(CompletionTest, TabAcceptsAsEnterDoes) {
  EXPECT_EQ(After(u"‸", u"<ab\t"), u"<ABBR‸>");
}

TEST_F(CompletionTest, EnterAtOnceTakesTheSelectedRow) {
  EXPECT_EQ(After(u"x‸y", u"<\r"), u"x<A‸>y");
}

TEST_F(CompletionTest, SlashMakesAClosingTag) {
  EXPECT_EQ(After(u"‸", u"</a\r"), u"</A‸>");
}

TEST_F(CompletionTest, SlashAloneClosesWithTheFirstRow) {
  EXPECT_EQ(After(u"<p>x‸", u"</\r"), u"<p>x</A‸>");
}

TEST_F(CompletionTest, SlashIsOrdinaryInOtherModes) {
  EXPECT_EQ(After(u"<a‸>", u" /"), u"<a /‸>");
  EXPECT_EQ(popup.CloseTag(), 0);
}

TEST_F(CompletionTest, EscapeLeavesWhatWasTyped) {
  EXPECT_EQ(After(u"‸", u"<a\x1B"), u"<a‸");
  EXPECT_FALSE(view.visible);
  EXPECT_GT(world.host.focused, 0);
}

TEST_F(CompletionTest, BackspacePastTheWordsStartCloses) {
  EXPECT_EQ(After(u"‸", u"<\b"), u"‸");
  EXPECT_FALSE(view.visible);
}

TEST_F(CompletionTest, BackspaceTakesTheLastTypedCharacterBack) {
  EXPECT_EQ(After(u"‸", u"<pa\b"), u"<p‸");
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(popup.Typed(), u"p");
  EXPECT_EQ(world.SelectedText(), u"P");
  world.Type(u"\b");
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(popup.Typed(), u"");
  EXPECT_EQ(popup.Selected(), 0) << "every row begins with nothing";
  world.Type(u"\b");
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(world.Shown(), u"‸");
}

TEST_F(CompletionTest, BackspaceOverTheSlashOpensATagAgain) {
  EXPECT_EQ(After(u"‸", u"</\ba\r"), u"<A‸>");
}

TEST_F(CompletionTest, ALetterWithoutARowLeavesTheSelectionAndEnterInsertsIt) {
  world.SetText(u"‸");
  world.Type(u"<pq");
  EXPECT_EQ(world.SelectedText(), u"P");
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<P‸>");
}

TEST_F(CompletionTest, PrefixIgnoresCase) {
  EXPECT_EQ(After(u"‸", u"<AbB\r"), u"<ABBR‸>");
}

TEST_F(CompletionTest, TheFoundRowStandsAtTheTop) {
  world.SetText(u"‸");
  world.Type(u"<p");
  EXPECT_EQ(view.topRow, 2);
  EXPECT_EQ(view.tip, u"ﾀｸﾞ:段落");
}

TEST_F(CompletionTest, BlankInAnOpeningTagOffersAttributes) {
  EXPECT_EQ(After(u"<a‸>", u" "), u"<a ‸>");
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(popup.EditMode(), 2);
  world.Type(u"hr\r");
  EXPECT_EQ(world.Shown(), u"<a href‸>");
}

TEST_F(CompletionTest, EqualsBehindAnAttributeOffersValues) {
  EXPECT_EQ(After(u"<p align‸>", u"=le\r"), u"<p align=\"left\"‸>");
}

TEST_F(CompletionTest, EnterOnAChosenValueQuotesIt) {
  world.SetText(u"<p align‸>");
  world.Type(u"=");
  Choose(u"left");
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<p align=\"left\"‸>");
}

TEST_F(CompletionTest, AQuoteThatStandsThereIsNotDoubled) {
  world.SetText(u"<p align=‸\">");
  popup.Preset(kModeValue);
  popup.ShowPopup();
  Choose(u"center");
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<p align=\"center‸\">");
}

TEST_F(CompletionTest, ATypedOpeningQuoteBelongsToTheWordAndIsReplaced) {
  EXPECT_EQ(After(u"<p align‸>", u"=\"left\"\r"), u"<p align=\"left\"‸>")
      << "no row begins with a quote, so the selection stayed where it was";
}

TEST_F(CompletionTest, BothQuotesThere) {
  world.SetText(u"<p align=\"‸\">");
  popup.Preset(kModeValue);
  popup.ShowPopup();
  Choose(u"left");
  world.Type(u"\t");
  EXPECT_EQ(world.Shown(), u"<p align=\"left‸\">");
}

TEST_F(CompletionTest, AClosingSignThatStandsThereIsNotDoubled) {
  EXPECT_EQ(After(u"‸>", u"<p\r"), u"<P‸>");
}

TEST_F(CompletionTest, AttributesAndUserWordsGetNoDelimiters) {
  world.Put(u"words.def", u"[KEY]\n001=signature\n");
  world.SetSettings(u"[USERINTO]\nFILE=/opt/Kestrile/words.def\n");
  world.SetText(u"x ‸");
  EXPECT_EQ(popup.Preset(kModeUser), PresetResult::Ready);
  popup.ShowPopup();
  world.Type(u"sig\r");
  EXPECT_EQ(world.Shown(), u"x signature‸");
}

TEST_F(CompletionTest, AGhostedRowIsTakenWhenOnlyItMatches) {
  EXPECT_EQ(After(u"‸", u"<hre\r"), u"<href‸>");
}

TEST_F(CompletionTest, ARowOfTheModeWinsOverAGhostedOneWithTheSamePrefix) {
  world.SetText(u"<p‸>");
  world.Type(u" a");
  EXPECT_EQ(world.SelectedText(), u"align") << "the tag A is a hit too, but stands behind";
  world.Type(u"li\r");
  EXPECT_EQ(world.Shown(), u"<p align‸>");
}

TEST_F(CompletionTest, AJapaneseFavouriteGoesInWhole) {
  world.SetFavourites(u"[FabStr]\nFabStr000=お気に入り\n");
  world.SetSettings(u"[Setting]\nValFabStr=1\n");
  world.SetText(u"<a title‸>");
  world.Type(u"=");
  Choose(u"お気に入り");
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<a title=\"お気に入り\"‸>");
}

TEST_F(CompletionTest, HalfWidthKatakanaIsSingleByteText) {
  world.SetFavourites(u"[FabStr]\nFabStr000=ｵｷﾆｲﾘ\n");
  world.SetSettings(u"[Setting]\nValFabStr=1\n");
  world.SetText(u"<a title‸>");
  world.Type(u"=");
  Choose(u"ｵｷﾆｲﾘ");
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<a title=\"ｵｷﾆｲﾘ\"‸>");
}

TEST_F(CompletionTest, ALessSignInACandidateOpensNoPopup) {
  world.SetFavourites(u"[FabStr]\nFabStr000=<b> =\n");
  world.SetSettings(u"[Setting]\nValFabStr=1\n");
  world.SetText(u"<a title‸>");
  world.Type(u"=");
  Choose(u"<b> =");
  const int shows = view.shows;
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<a title=\"<b> =\"‸>");
  EXPECT_EQ(view.shows, shows);
  EXPECT_FALSE(view.visible);
}

TEST_F(CompletionTest, TypedStraightThroughOrSlowlyTheTextIsTheSame) {
  world.SetText(u"‸");
  world.Type(u"<a href=");
  EXPECT_EQ(world.Shown(), u"<a href=‸");
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(popup.EditMode(), 1) << "what is typed into the popup opens no other";
  EXPECT_EQ(view.shows, 1);
  EXPECT_EQ(popup.Typed(), u"a href=");
}

TEST_F(CompletionTest, CharactersOutsideAsciiAreSwallowed) {
  for (const char16_t key : {u'あ', u'ｱ', u'\x7F', u'\x01', u'\x1C', u'é'}) {
    EXPECT_EQ(After(u"‸", std::u16string(u"<a") + key), u"<a‸");
    EXPECT_TRUE(view.visible);
    EXPECT_EQ(popup.Typed(), u"a");
    popup.HidePopup(PopupFocus::Stay);
  }
}

TEST_F(CompletionTest, CommittedFullWidthTextClosesThePopupAndStaysInTheText) {
  world.SetText(u"‸");
  world.Type(u"<a");
  popup.CommitText(u"あ𠮷");
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(world.Shown(), u"<aあ𠮷‸");
  EXPECT_EQ(popup.Typed(), u"a");
  world.control.EM_UNDO();
  EXPECT_EQ(world.control.Text(), u"<a") << "one commit, one step";
}

TEST_F(CompletionTest, CommittedPlainTextCountsAsTyped) {
  world.SetText(u"‸");
  world.Type(u"<");
  popup.CommitText(u"abb");
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(popup.Typed(), u"abb");
  EXPECT_EQ(world.SelectedText(), u"ABBR");
}

TEST_F(CompletionTest, EachPartOfACommitGoesItsWay) {
  world.SetText(u"‸");
  world.Type(u"<");
  popup.CommitText(u"pｱ<");
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(world.Shown(), u"<pｱ<‸");
  EXPECT_EQ(view.shows, 1) << "a sign inside a commit opens nothing";
}

TEST_F(CompletionTest, ALockedTextTakesNoCommit) {
  world.SetText(u"a‸");
  popup.Preset(kModeTag);
  popup.ShowPopup();
  world.control.SetLocked(true);
  popup.CommitText(u"bあ");
  EXPECT_EQ(world.Shown(), u"a‸");
}

TEST_F(CompletionTest, EveryPrintableAsciiKeyReachesTheText) {
  for (char16_t key = 32; key <= 126; ++key) {
    EXPECT_EQ(After(u"‸", std::u16string(u"<") + key), std::u16string(u"<") + key + u"‸");
    EXPECT_EQ(popup.Typed(), std::u16string(1, key));
    popup.HidePopup(PopupFocus::Stay);
  }
}

TEST_F(CompletionTest, WithoutAutomaticCompletionTypingMovesNoSelection) {
  world.SetSettings(u"[Setting]\nAutTag=0\n");
  world.SetText(u"‸");
  world.Type(u"<p");
  EXPECT_EQ(popup.Selected(), 0);
  EXPECT_FALSE(popup.JumpToPrefix());
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<A‸>");
}

TEST_F(CompletionTest, WithoutAutomaticCompletionASlashMakesNoClosingTag) {
  world.SetSettings(u"[Setting]\nAutTag=0\n");
  EXPECT_EQ(After(u"‸", u"</\r"), u"<A‸>");
}

TEST_F(CompletionTest, AcceptanceIsOneUndoStep) {
  world.SetText(u"本文‸");
  world.Type(u"<abb\r");
  ASSERT_EQ(world.Shown(), u"本文<ABBR‸>");
  world.control.EM_UNDO();
  EXPECT_EQ(world.control.Text(), u"本文<abb");
}

TEST_F(CompletionTest, WithNoRowSelectedAcceptanceBeepsAndChangesNothing) {
  world.files.contents.clear();
  EXPECT_EQ(After(u"‸", u"<\r"), u"<‸");
  EXPECT_EQ(world.services.beeps, 1);
  EXPECT_TRUE(view.visible);
}

TEST_F(CompletionTest, AnEmptyCandidateTakesBackTheTypedWord) {
  world.SetOptions(u"[PRO]\n001=!!\n");
  world.SetText(u"<a‸>");
  world.Type(u" xy");
  Choose(u"");
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<a ‸>");
}

TEST_F(CompletionTest, AReadOnlyTextTakesNothingAndThePopupCloses) {
  world.SetText(u"<a ‸>");
  popup.Preset(kModeAttribute);
  popup.ShowPopup();
  world.Type(u"hre");
  world.control.SetLocked(true);
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<a hre‸>");
  EXPECT_FALSE(view.visible);
  EXPECT_THAT(world.host.messages, ElementsAre(u"読み取り専用で開かれています"));
}

TEST_F(CompletionTest, BackspacesAreMadeThroughLineBreaksToo) {
  world.SetText(u"<a ‸>");
  popup.Preset(kModeAttribute);
  popup.ShowPopup();
  world.text.ReplaceSelHwnd(u"x\r\ny", false, false);
  Choose(u"href");
  world.Type(u"\t");
  EXPECT_EQ(world.Shown(), u"<a href‸>");
}

// Arrows, mouse, closing.

TEST_F(CompletionTest, ArrowsLeftAndRightCloseWithoutMovingTheCaret) {
  for (const ListKey key : {ListKey::Left, ListKey::Right}) {
    world.SetText(u"x‸y");
    world.Type(u"<");
    popup.KeyDown(key);
    EXPECT_FALSE(view.visible);
    EXPECT_EQ(world.Shown(), u"x<‸y");
  }
}

TEST_F(CompletionTest, UpDownAndPageKeysMoveTheSelectionWithinTheList) {
  popup.Preset(kModeTag);
  const std::vector<std::pair<ListKey, int>> steps{
      {ListKey::Down, 1},      {ListKey::Up, 0},     {ListKey::Up, 0},     {ListKey::PageDown, 11},
      {ListKey::PageDown, 18}, {ListKey::Down, 18},  {ListKey::PageUp, 7}, {ListKey::Home, 0},
      {ListKey::End, 18},      {ListKey::PageUp, 7}, {ListKey::PageUp, 0}};
  for (const auto& [key, row] : steps) {
    popup.KeyDown(key);
    EXPECT_EQ(popup.Selected(), row);
    EXPECT_EQ(view.selected, row);
  }
}

TEST_F(CompletionTest, SelectingARowShowsItsTipAndIcon) {
  popup.Preset(kModeTag);
  Choose(u"onclick");
  EXPECT_EQ(view.tip, u"ｲﾍﾞﾝﾄﾊﾝﾄﾞﾗ:ｸﾘｯｸ時");
  EXPECT_EQ(view.icon, CandidateIcon::EventHandler);
  popup.ItemClick(-1);
  popup.ItemClick(1000);
  EXPECT_EQ(world.SelectedText(), u"onclick");
}

TEST_F(CompletionTest, DoubleClickActsAsTab) {
  world.SetText(u"‸");
  world.Type(u"<");
  popup.DoubleClick(world.RowOf(u"P"));
  EXPECT_EQ(world.Shown(), u"<P‸>");
}

TEST_F(CompletionTest, LosingActivationHidesAtOnceAndLeavesTheFocusAlone) {
  world.SetText(u"‸");
  world.Type(u"<");
  popup.Deactivate();
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(view.hiddenWith, Animation::Off);
  EXPECT_EQ(world.host.focused, 0);
}

TEST_F(CompletionTest, AnimationFollowsItsSetting) {
  world.SetText(u"‸");
  world.Type(u"<\x1B");
  EXPECT_EQ(view.shownWith, Animation::Slide);
  EXPECT_EQ(view.hiddenWith, Animation::Slide);
  EXPECT_EQ(view.foldedBack, Opens::Down);
  world.SetSettings(u"[Setting]\nHintAnimation=0\n");
  world.Type(u"<\x1B");
  EXPECT_EQ(view.shownWith, Animation::Off);
  EXPECT_EQ(view.hiddenWith, Animation::Off);
}

TEST_F(CompletionTest, OpenedAboveTheCaretItFoldsUpward) {
  world.place.caret = PixelRect{400, 760, 1, 18};
  world.SetText(u"‸");
  world.Type(u"<");
  EXPECT_TRUE(popup.UpClose());
  EXPECT_EQ(view.placement->window.Bottom(), 760);
  world.Type(u"\x1B");
  EXPECT_EQ(view.foldedBack, Opens::Up);
}

TEST_F(CompletionTest, ACaretOutsideTheTextAreaOpensNothing) {
  world.place.caret.reset();
  EXPECT_EQ(After(u"‸", u"<"), u"<‸");
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(world.services.beeps, 1);
  EXPECT_THAT(world.host.messages, ElementsAre(u"ｷｬﾚｯﾄがﾃｷｽﾄｴﾘｱ外です"));
}

TEST_F(CompletionTest, AFailedOpeningLeavesNoWordStartBehind) {
  world.SetText(u"x abb‸");
  popup.Preset(kModeTag);
  int offset = 0;
  ASSERT_TRUE(popup.PrefixFromCaret(offset));
  world.place.caret.reset();
  popup.ShowPopup(offset);
  world.place.caret = PixelRect{400, 100, 1, 18};
  world.Type(u"<");
  EXPECT_EQ(popup.StartPos(), 6);
}

// A word that stands already.

TEST_F(CompletionTest, TheWordLeftOfTheCaretBecomesThePrefix) {
  world.SetText(u"本文 abb‸r");
  popup.Preset(kModeTag);
  int offset = -1;
  EXPECT_TRUE(popup.PrefixFromCaret(offset));
  EXPECT_EQ(popup.NextStart(), 3);
  EXPECT_EQ(popup.Typed(), u"abb");
  EXPECT_EQ(offset, 3 * 120);
  EXPECT_EQ(world.SelectedText(), u"ABBR");
  popup.ShowPopup(offset);
  EXPECT_EQ(popup.StartPos(), 3);
  EXPECT_EQ(popup.NextStart(), -1);
  EXPECT_EQ(popup.Typed(), u"abb");
  EXPECT_EQ(view.placement->window.left, 400 - (310 + 360) / 15);
}

TEST_F(CompletionTest, TheLongestMatchingPrefixIsSelectedAndTheWholeWordKept) {
  world.SetText(u"abx‸");
  popup.Preset(kModeTag);
  int offset = 0;
  EXPECT_TRUE(popup.PrefixFromCaret(offset));
  EXPECT_EQ(world.SelectedText(), u"ABBR");
  EXPECT_EQ(popup.Typed(), u"abx");
}

struct BreakRow {
  std::u16string_view text;
  std::int32_t start;  // -1: no word
};

TEST_F(CompletionTest, WordsBeginBehindBlanksLineBreaksAndTheBreakCharacters) {
  const std::vector<BreakRow> rows{{u"‸", -1},      {u"‸abc", -1},    {u"abc‸", 0},    {u"x abc‸", 2},
                                   {u"x　abc‸", 2}, {u"x\tabc‸", 2},  {u"x\nabc‸", 3}, {u"<abc‸", 1},
                                   {u"a=abc‸", 2},  {u"a=\"abc‸", 3}, {u"、abc‸", 1},  {u"x ‸", -1},
                                   {u"<‸", -1},     {u"x\n‸", -1},    {u"</abc‸", 1},  {u"漢字‸", 0},
                                   {u"a-b‸", 2},    {u"a#b‸", 0},     {u"a ab⟦c⟧", 2}};
  popup.Preset(kModeTag);
  for (const BreakRow& row : rows) {
    world.SetText(row.text);
    int offset = 0;
    EXPECT_EQ(popup.PrefixFromCaret(offset), row.start >= 0) << ToUtf8(row.text);
    if (row.start >= 0) {
      EXPECT_EQ(popup.NextStart(), row.start) << ToUtf8(row.text);
    }
  }
}

TEST_F(CompletionTest, AcceptanceReplacesTheWordThatStoodThere) {
  world.SetText(u"<ab‸");
  popup.Preset(kModeTag);
  int offset = 0;
  popup.PrefixFromCaret(offset);
  popup.ShowPopup(offset);
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<ABBR‸>");
}

TEST_F(CompletionTest, AWordWithoutItsLessSignGetsOne) {
  world.SetText(u"text ab‸ text");
  popup.Preset(kModeTag);
  int offset = 0;
  popup.PrefixFromCaret(offset);
  popup.ShowPopup(offset);
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"text <ABBR‸> text");
}

TEST_F(CompletionTest, AtTheVeryStartTheLessSignIsAlwaysTyped) {
  world.SetText(u"ab‸");
  popup.Preset(kModeTag);
  int offset = 0;
  popup.PrefixFromCaret(offset);
  popup.ShowPopup(offset);
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"<ABBR‸>");
}

// What follows an acceptance.

TEST_F(CompletionTest, AutomaticHintFollowsTheNewTag) {
  world.state.htmlNAVkeyB_AUTO = 1;
  world.SetText(u"‸");
  world.Type(u"<");
  world.hints.calls.clear();
  world.Type(u"a\r");
  EXPECT_THAT(world.hints.calls, ElementsAre("set"));
}

TEST_F(CompletionTest, AutomaticAnalysisOpensOnANewOpeningTagOnly) {
  world.SetSettings(u"[Setting]\nhtmlReEdit_AUTO=1\n");
  world.SetText(u"‸");
  world.Type(u"<a\r");
  EXPECT_EQ(world.analyses, 1);
  world.SetText(u"‸");
  world.Type(u"</a\r");
  EXPECT_EQ(world.analyses, 1) << "a closing tag has nothing to analyse";
  world.SetText(u"<a‸>");
  world.Type(u" hre\r");
  EXPECT_EQ(world.analyses, 1) << "an attribute is no new tag";
}

// The user's own words.

TEST_F(CompletionTest, WithoutUserWordsTheHintBoxSaysHowToGetThem) {
  EXPECT_EQ(popup.Preset(kModeUser), PresetResult::NoUserWords);
  EXPECT_THAT(world.hints.calls, ElementsAre("hide", "tip"));
  EXPECT_TRUE(StartsWith(world.hints.tip, u" 定義ﾌｧｲﾙを設定してください "));
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(world.host.panes.back(), u"1:");
  EXPECT_EQ(popup.Preset(kModeUser), PresetResult::NoUserWords) << "asked again, it says so again";
  EXPECT_EQ(world.hints.calls.size(), 4u);
}

TEST_F(CompletionTest, AUserWordInJapaneseGoesInWhole) {
  world.Put(u"words.def", u"[KEY]\n001=署名\n[HINTS]\n001=名前\n");
  world.SetSettings(u"[USERINTO]\nFILE=/opt/Kestrile/words.def\n");
  world.SetText(u"あ ‸");
  popup.Preset(kModeUser);
  popup.ShowPopup();
  Choose(u"署名");
  EXPECT_EQ(view.tip, u"名前");
  EXPECT_EQ(view.icon, CandidateIcon::UserWord);
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"あ 署名‸");
}

TEST_F(CompletionTest, AnErrorInAKeyOfThePopupBeepsAndTheTypedTextStays) {
  world.SetText(u"‸");
  world.Type(u"<a");
  view.failing = true;
  popup.KeyPress(u'b');
  EXPECT_EQ(world.services.beeps, 1);
  popup.CommitText(u"b");
  popup.KeyDown(ListKey::Down);
  EXPECT_EQ(world.services.beeps, 3);
  EXPECT_EQ(world.Shown(), u"<abb‸");
}

TEST_F(CompletionTest, WhatIsLongerThanAnyCandidateIsNoWord) {
  world.SetText(std::u16string(256, u'a') + u"‸");
  world.commands.HTMLEdit_Click(1);
  EXPECT_EQ(popup.Typed().size(), 256u);
  popup.KeyPress(27);
  world.SetText(std::u16string(257, u'a') + u"‸");
  world.commands.HTMLEdit_Click(1);
  EXPECT_EQ(popup.Typed(), u"");
  popup.KeyPress(13);
  EXPECT_EQ(world.Shown(), std::u16string(257, u'a') + u"<A‸>");
}

}  // namespace
}  // namespace kestri
