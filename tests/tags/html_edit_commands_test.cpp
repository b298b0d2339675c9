#include "tags/html_edit_commands.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/completion_world.hpp"

namespace kestri {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::u16string_view kReadOnly = u"読み取り専用で開かれています";
constexpr std::u16string_view kNoDefault = u"ﾀｸﾞのﾃﾞﾌｫﾙﾄﾊﾟﾗﾒｰﾀが見つかりませんでした";

class HtmlEditCommandsTest : public testing::Test {
 protected:
  std::u16string AfterDefaultTag(std::u16string_view text) {
    world.SetText(text);
    world.commands.CEdit_Click(0);
    return world.Shown();
  }

  fakes::CompletionWorld world;
};

TEST_F(HtmlEditCommandsTest, EachCommandOpensThePopupInItsMode) {
  for (int index = 1; index <= 3; ++index) {
    world.SetText(u"<a ‸>");
    world.commands.HTMLEdit_Click(index);
    EXPECT_TRUE(world.view.visible);
    EXPECT_EQ(world.popup.EditMode(), index);
    world.popup.HidePopup(PopupFocus::Stay);
  }
  EXPECT_EQ(world.analyses, 0);
}

TEST_F(HtmlEditCommandsTest, CompletionTakesTheWordThatStandsThere) {
  world.SetText(u"<p hr‸>");
  world.commands.HTMLEdit_Click(2);
  EXPECT_EQ(world.popup.StartPos(), 3);
  EXPECT_EQ(world.view.placement->window.left, 400 - (310 + 240) / 15);
  world.Type(u"e\t");
  EXPECT_EQ(world.Shown(), u"<p href‸>");
}

TEST_F(HtmlEditCommandsTest, WithoutAWordThePopupStandsAtTheCaret) {
  world.SetText(u"x ‸");
  world.commands.HTMLEdit_Click(1);
  EXPECT_EQ(world.popup.StartPos(), 2);
  EXPECT_EQ(world.view.placement->window.left, 400 - 310 / 15);
  EXPECT_EQ(world.popup.Typed(), u"");
}

TEST_F(HtmlEditCommandsTest, IndexZeroOpensTheAnalysis) {
  world.SetText(u"<a‸>");
  world.commands.HTMLEdit_Click(0);
  EXPECT_EQ(world.analyses, 1);
  EXPECT_FALSE(world.view.visible);
}

TEST_F(HtmlEditCommandsTest, ReadOnlyTextsRefuseEveryCommand) {
  for (int index = 0; index <= 3; ++index) {
    world.SetText(u"<a‸>");
    world.control.SetLocked(true);
    world.commands.HTMLEdit_Click(index);
  }
  world.commands.CEdit_Click(0);
  world.commands.mnuCallUserInTo_Click();
  EXPECT_EQ(world.services.beeps, 6);
  EXPECT_THAT(world.host.messages, testing::Each(kReadOnly));
  EXPECT_EQ(world.host.messages.size(), 6u);
  EXPECT_EQ(world.analyses, 0);
  EXPECT_FALSE(world.popup.Loaded());
}

TEST_F(HtmlEditCommandsTest, HintsComeFirstWhenTheyFollowTheCaretAndTheTextHasTheFocus) {
  world.SetText(u"<a ‸>");
  world.commands.HTMLEdit_Click(2);
  EXPECT_THAT(world.hints.calls, IsEmpty());
  world.state.htmlNAVkeyB_AUTO = 1;
  world.commands.HTMLEdit_Click(2);
  EXPECT_THAT(world.hints.calls, ElementsAre("set"));
  world.place.focus = false;
  world.commands.HTMLEdit_Click(2);
  EXPECT_THAT(world.hints.calls, ElementsAre("set"));
}

TEST_F(HtmlEditCommandsTest, HintCommandOutsideATagSaysSo) {
  world.hints.inTag = false;
  world.commands.HTMLEditHINTS();
  EXPECT_THAT(world.host.messages, ElementsAre(u"ｶｰｿﾙ位置がﾀｸﾞ内ではありません"));
}

TEST_F(HtmlEditCommandsTest, HintCommandInATagSaysNothing) {
  world.commands.HTMLEditHINTS();
  EXPECT_THAT(world.host.messages, IsEmpty());
}

TEST_F(HtmlEditCommandsTest, DefaultTagReplacesTheInsideAndSelectsIt) {
  EXPECT_EQ(AfterDefaultTag(u"本文<a‸>終"), u"本文<⟦A href=\"\"⟧>終");
}

TEST_F(HtmlEditCommandsTest, DefaultTagMayStandWithoutItsDelimiters) {
  EXPECT_EQ(AfterDefaultTag(u"<P x‸ y>"), u"<⟦P align=\"left\"⟧>");
}

TEST_F(HtmlEditCommandsTest, DefaultTagIsOneUndoStep) {
  AfterDefaultTag(u"<a‸>");
  world.control.EM_UNDO();
  EXPECT_EQ(world.control.Text(), u"<a>");
}

TEST_F(HtmlEditCommandsTest, DefaultTagThatStandsThereAlreadyIsOnlySelected) {
  EXPECT_EQ(AfterDefaultTag(u"<A href=\"\"‸>"), u"<⟦A href=\"\"⟧>");
  EXPECT_FALSE(world.control.EM_CANUNDO());
}

TEST_F(HtmlEditCommandsTest, DefaultTagOutsideATagFails) {
  EXPECT_EQ(AfterDefaultTag(u"a‸b"), u"a‸b");
  EXPECT_THAT(world.host.messages, ElementsAre(u"ﾀｸﾞが取得できません"));
  EXPECT_EQ(world.services.beeps, 1);
}

TEST_F(HtmlEditCommandsTest, DefaultTagWithoutDictionaryRowOrTextFails) {
  EXPECT_EQ(AfterDefaultTag(u"<nosuch‸>"), u"<⟦nosuch⟧>");
  EXPECT_EQ(AfterDefaultTag(u"<abbr‸>"), u"<⟦abbr⟧>");
  EXPECT_EQ(AfterDefaultTag(u"<‸>"), u"<‸>");
  world.files.contents.clear();
  EXPECT_EQ(AfterDefaultTag(u"<a‸>"), u"<⟦a⟧>");
  EXPECT_THAT(world.host.messages, ElementsAre(kNoDefault, kNoDefault, kNoDefault, kNoDefault));
  EXPECT_EQ(world.services.beeps, 4);
}

TEST_F(HtmlEditCommandsTest, UserWordsTakeThePlaceOfTheHint) {
  world.Put(u"words.def", u"[KEY]\n001=signature\n");
  world.SetSettings(u"[USERINTO]\nFILE=/opt/Kestrile/words.def\n");
  world.SetText(u"x sig‸");
  world.commands.mnuCallUserInTo_Click();
  EXPECT_THAT(world.hints.calls, ElementsAre("hide"));
  EXPECT_TRUE(world.view.visible);
  EXPECT_EQ(world.popup.EditMode(), 5);
  world.Type(u"\r");
  EXPECT_EQ(world.Shown(), u"x signature‸");
}

TEST_F(HtmlEditCommandsTest, WithoutUserWordsNothingOpensAndTheTipStays) {
  world.SetText(u"x‸");
  world.commands.mnuCallUserInTo_Click();
  EXPECT_FALSE(world.view.visible);
  EXPECT_THAT(world.hints.calls, ElementsAre("hide", "tip"));
}

TEST(TagServicesTest, WithoutPartsItOnlyLocates) {
  fakes::FakeClipboard clipboard;
  EditControl control(clipboard);
  TagServices services(control);
  fakes::SetMarked(control, u"</a‸>");
  EXPECT_EQ(services.CaretTagKind(1, Compare::Binary), -2);
  services.Preset(1);
  services.ShowPopup();
  services.UnloadPopups();
  services.seTagHide();
  services.seTagHint();
  services.DismissHint();
  EXPECT_FALSE(services.HintVisible());
  EXPECT_FALSE(services.seTagHintPriSet());
}

TEST_F(HtmlEditCommandsTest, DroppedFilesUnloadThePopupAndItsSiblings) {
  int others = 0;
  world.tags.OnUnloadPopups([&] { ++others; });
  world.popup.Preset(kModeTag);
  world.tags.UnloadPopups();
  EXPECT_FALSE(world.popup.Loaded());
  EXPECT_EQ(others, 1);
}

}  // namespace
}  // namespace kestri
