#include "tags/tag_hint.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/completion_world.hpp"

namespace kestri {
namespace {

class FakeHintBox : public HintBox {
 public:
  PixelSize Size() override { return {200, 40}; }
  void ShowAt(const PopupPlacement& at, Animation) override {
    placement = at;
    visible = true;
    ++shows;
  }
  void SetText(std::u16string_view newText) override {
    text = newText;
    ++texts;
  }
  PixelRect Room() override { return {100, 50, 800, 600}; }
  bool Visible() override { return visible; }
  void Hide() override { visible = false; }

  std::u16string text;
  std::optional<PopupPlacement> placement;
  bool visible = false;
  int shows = 0;
  int texts = 0;
};

class TagHintTest : public testing::Test {
 protected:
  void Put(std::u16string_view marked) {
    world.SetText(marked);
    hint.seTagHint();
  }
  // The dictionary changes on the disk: only a reader that goes to the file notices.
  void ChangeDictionary() { world.SetTags(u"[NAME]\n001=A\n002=P\n[EXPLAIN]\n001=新しい\n002=新しい\n"); }

  fakes::CompletionWorld world;
  FakeHintBox box;
  TagHint hint{{world.control, world.common, world.place, box, 50}};
};

TEST_F(TagHintTest, ShowsExplanationAndDefaultTag) {
  Put(u"<a‸>");
  EXPECT_TRUE(box.visible);
  EXPECT_EQ(box.text, u"ｱﾝｶｰ <A href=\"\">");
  EXPECT_EQ(hint.Tag(), u"a_TiHeTag00_");
}

TEST_F(TagHintTest, ARowWithOneOfTheTwoShowsThatAlone) {
  Put(u"<abbr‸>");
  EXPECT_EQ(box.text, u"略語");
}

TEST_F(TagHintTest, LongWordsAreWrapped) {
  world.SetTags(
      u"[NAME]\n001=A\n[EXPLAIN]\n001=ほかの文書や同じ文書の別の場所へ移るための目印を作ります\n"
      u"[DEFTAG]\n001=<A href=\"\">\n");
  Put(u"<a‸>");
  EXPECT_EQ(box.text, u"ほかの文書や同じ文書の別の場所へ移るための目印を作\r\nります\r\n<A href=\"\">");
}

TEST_F(TagHintTest, OutsideATagNothingShows) {
  Put(u"text‸ <a>");
  EXPECT_FALSE(box.visible);
  EXPECT_EQ(hint.Tag(), u"");
}

TEST_F(TagHintTest, LeavingTheTagHidesTheHint) {
  Put(u"<a‸>text");
  Put(u"<a>te‸xt");
  EXPECT_FALSE(box.visible);
  EXPECT_EQ(hint.Tag(), u"");
}

TEST_F(TagHintTest, EndTagsUnfinishedValuesAndUnknownTagsShowNone) {
  for (const auto* text : {u"</a‸>", u"<a=‸>", u"<‸>", u"<nosuch‸>"}) {
    Put(u"<a‸>");
    EXPECT_TRUE(box.visible);
    Put(text);
    EXPECT_FALSE(box.visible) << ToUtf8(text);
    EXPECT_TRUE(hint.seTagHintPriSet()) << "the caret is in a tag";
  }
}

TEST_F(TagHintTest, TheSameTagTwiceCostsNoFileAccess) {
  Put(u"<a‸>");
  ChangeDictionary();
  Put(u"<a ‸>");
  EXPECT_EQ(box.texts, 1);
  EXPECT_EQ(box.shows, 2);  // it follows the caret
  Put(u"<p‸>");
  EXPECT_EQ(box.text, u"新しい");
}

TEST_F(TagHintTest, AnUnknownTagIsLookedUpOnce) {
  Put(u"<q‸>");
  world.SetTags(u"[NAME]\n001=Q\n[EXPLAIN]\n001=引用\n");
  Put(u"<q ‸>");
  EXPECT_FALSE(box.visible);
  Put(u"‸<q>");
  Put(u"<q‸>");
  EXPECT_EQ(box.text, u"引用");
}

TEST_F(TagHintTest, EscKeepsItAwayUntilTheTagIsLeft) {
  Put(u"<a‸>x");
  hint.DismissHint();
  EXPECT_FALSE(box.visible);
  EXPECT_EQ(hint.Tag(), u"_TiHenOTag00_");
  Put(u"<a ‸>x");
  EXPECT_FALSE(box.visible);
  Put(u"<a >x‸");
  Put(u"<a‸ >x");
  EXPECT_TRUE(box.visible);
}

TEST_F(TagHintTest, EscWithoutAHintKeepsNoneAway) {
  Put(u"x‸<a>");
  hint.DismissHint();
  Put(u"x<a‸>");
  EXPECT_TRUE(box.visible);
}

TEST_F(TagHintTest, AskedForItComesAfterADismissalToo) {
  Put(u"<a‸>");
  hint.DismissHint();
  EXPECT_TRUE(hint.seTagHintPriSet());
  EXPECT_TRUE(box.visible);
}

TEST_F(TagHintTest, AskedForOutsideATagItSaysSo) {
  world.SetText(u"text‸");
  EXPECT_FALSE(hint.seTagHintPriSet());
}

TEST_F(TagHintTest, NothingHappensWhileTheCaretStands) {
  Put(u"<a‸>");
  hint.seTagHint();
  EXPECT_EQ(box.shows, 1);
}

TEST_F(TagHintTest, FollowsAScrolledTextAndGoesWhenTheCaretIsOutOfSight) {
  Put(u"<a‸>");
  world.place.caret = PixelRect{400, 200, 1, 18};
  hint.seTagHint();
  EXPECT_EQ(box.placement->window.top, 218);
  world.place.caret.reset();
  hint.seTagHint();
  EXPECT_FALSE(box.visible);
  world.place.caret = PixelRect{400, 100, 1, 18};
  hint.seTagHint();
  EXPECT_TRUE(box.visible);
  EXPECT_EQ(box.texts, 1);
}

TEST_F(TagHintTest, StandsUnderTheLineAndAboveItAtTheBottom) {
  Put(u"<a‸>");
  EXPECT_EQ(box.placement->window, (PixelRect{400, 118, 200, 40}));
  world.place.caret = PixelRect{400, 620, 1, 18};
  hint.seTagHint();
  EXPECT_EQ(box.placement->window.Bottom(), 620);
}

TEST_F(TagHintTest, AMessageStaysUntilTheCaretMoves) {
  world.SetText(u"x‸y");
  hint.TipComments(u"一行目\r\n二行目");
  hint.seTagHint();
  EXPECT_TRUE(box.visible);
  EXPECT_EQ(box.text, u"一行目\r\n二行目");
  Put(u"xy‸");
  EXPECT_FALSE(box.visible);
}

TEST_F(TagHintTest, WithoutADictionaryItIsSilent) {
  world.files.contents.clear();
  Put(u"<a‸>");
  EXPECT_FALSE(box.visible);
  EXPECT_EQ(world.services.beeps, 0);
}

}  // namespace
}  // namespace kestri
