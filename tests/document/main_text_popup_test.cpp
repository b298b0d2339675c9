// Which keys open the candidates, and which are just typed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::Journal;
using fakes::MainTextDesk;
using testing::ElementsAre;
using testing::IsEmpty;

struct PopupRow {
  std::string name;
  std::u16string before;
  std::u16string keys;
  std::u16string after;
  Journal tagCalls;
  std::function<void(MainTextDesk&)> setUp = [](MainTextDesk&) {};
};

class PopupRows : public testing::TestWithParam<PopupRow> {};

TEST_P(PopupRows, AskTheTagAssistanceForThis) {
  MainTextDesk desk;
  GetParam().setUp(desk);
  desk.Put(GetParam().before);
  desk.Press(GetParam().keys);
  EXPECT_EQ(desk.Row(), ToUtf8(GetParam().after));
  EXPECT_EQ(desk.Lines({"preset", "popup", "set hint", "hide hint"}), GetParam().tagCalls);
}

std::string RowName(const testing::TestParamInfo<PopupRow>& info) {
  return info.param.name;
}

void InTag(MainTextDesk& desk) {
  desk.tags.caretTagKind = -1;
}
void InClosingTag(MainTextDesk& desk) {
  desk.tags.caretTagKind = -2;
}
void InComment(MainTextDesk& desk) {
  desk.tags.caretTagKind = -3;
}
void OverTag(MainTextDesk& desk) {
  desk.tags.caretTagKind = -4;
}
void PopupsOff(MainTextDesk& desk) {
  InTag(desk), desk.state.htmlNAVkeyB = 1;
}
void HintsOff(MainTextDesk& desk) {
  InTag(desk), desk.state.htmlNAVkeyB_AUTO = 0;
}
void PlainText(MainTextDesk& desk) {
  InTag(desk), desk.state.fileKind = kFileTypeText;
}
void PlainTextAllowed(MainTextDesk& desk) {
  PlainText(desk), desk.state.htmlNAV = 0;
}
void Locked(MainTextDesk& desk) {
  InTag(desk), desk.control.SetLocked(true);
}
void AsciiArtAllowed(MainTextDesk& desk) {
  PlainTextAllowed(desk);
  desk.state.fileKind = kFileTypeAsciiArt;
}

INSTANTIATE_TEST_SUITE_P(
    TagOpen, PopupRows,
    testing::Values(PopupRow{"OpensTheTags", u"a‸", u"<", u"a<‸", {"preset: 1", "popup: 1"}},
                    PopupRow{
                        "OpensTheTagsBesideJapanese", u"春‸夏", u"<", u"春<‸夏", {"preset: 1", "popup: 1"}},
                    PopupRow{"WithASelectionIsTyped", u"a⟦b⟧", u"<", u"a<‸", {}},
                    PopupRow{"WithPopupsOffIsTyped", u"‸", u"<", u"<‸", {}, PopupsOff},
                    PopupRow{"InAPlainTextIsTyped", u"‸", u"<", u"<‸", {}, PlainText},
                    PopupRow{"InAPlainTextOpensTheTagsWhereAllowed",
                             u"‸",
                             u"<",
                             u"<‸",
                             {"preset: 1", "popup: 1"},
                             PlainTextAllowed},
                    PopupRow{"InAReadOnlyDocumentDoesNothing", u"‸a", u"<", u"‸a", {}, Locked}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Blank, PopupRows,
    testing::Values(PopupRow{"InATagOpensTheAttributes",
                             u"<a‸>",
                             u" ",
                             u"<a ‸>",
                             {"preset: 2", "set hint", "popup: 2"},
                             InTag},
                    PopupRow{
                        "WithHintsOffSetsNone", u"<a‸>", u" ", u"<a ‸>", {"preset: 2", "popup: 2"}, HintsOff},
                    PopupRow{"OutsideATagIsTyped", u"a‸", u" ", u"a ‸", {}},
                    PopupRow{"InAClosingTagIsTyped", u"</a‸>", u" ", u"</a ‸>", {}, InClosingTag},
                    PopupRow{"InACommentIsTyped", u"<!--‸-->", u" ", u"<!-- ‸-->", {}, InComment},
                    PopupRow{"WithASelectionHidesTheHint", u"<a⟦b⟧>", u" ", u"<a ‸>", {"hide hint"}, InTag},
                    PopupRow{"OverATagHidesTheHint", u"a⟦<b⟧>", u" ", u"a ‸>", {"hide hint"}, OverTag},
                    PopupRow{"WithPopupsOffIsTyped", u"<a‸>", u" ", u"<a ‸>", {}, PopupsOff},
                    PopupRow{"InAPlainTextIsTyped", u"<a‸>", u" ", u"<a ‸>", {}, PlainText},
                    PopupRow{"InAPlainTextOpensTheAttributesWhereAllowed",
                             u"<a‸>",
                             u" ",
                             u"<a ‸>",
                             {"preset: 2", "set hint", "popup: 2"},
                             PlainTextAllowed},
                    PopupRow{"InAsciiArtOpensTheAttributesWhereAllowed",
                             u"<a‸>",
                             u" ",
                             u"<a ‸>",
                             {"preset: 2", "set hint", "popup: 2"},
                             AsciiArtAllowed},
                    PopupRow{"FullWidthIsTyped", u"<a‸>", u"　", u"<a　‸>", {}, InTag},
                    PopupRow{"InAReadOnlyDocumentDoesNothing", u"<a‸>", u" ", u"<a‸>", {}, Locked}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Equals, PopupRows,
    testing::Values(PopupRow{"InATagOpensTheValues",
                             u"<a href‸>",
                             u"=",
                             u"<a href=‸>",
                             {"preset: 3", "set hint", "popup: 3"},
                             InTag},
                    PopupRow{"BehindABlankIsTyped", u"<a ‸>", u"=", u"<a =‸>", {}, InTag},
                    PopupRow{"BehindADoubleQuoteIsTyped", u"<a href=\"‸>", u"=", u"<a href=\"=‸>", {}, InTag},
                    PopupRow{"BehindAnotherIsTyped", u"<a href=‸>", u"=", u"<a href==‸>", {}, InTag},
                    PopupRow{"OutsideATagIsTyped", u"a‸", u"=", u"a=‸", {}},
                    PopupRow{"AtTheTextsStartIsTyped", u"‸", u"=", u"=‸", {}},
                    PopupRow{"InACommentIsTyped", u"<!--a‸-->", u"=", u"<!--a=‸-->", {}, InComment},
                    PopupRow{"WithASelectionHidesTheHint", u"<a ⟦b⟧>", u"=", u"<a =‸>", {"hide hint"}, InTag},
                    PopupRow{"WithPopupsOffIsTyped", u"<a b‸>", u"=", u"<a b=‸>", {}, PopupsOff},
                    PopupRow{"InAPlainTextIsTyped", u"<a b‸>", u"=", u"<a b=‸>", {}, PlainText}),
    RowName);

TEST(Popup, OpensWithTheKeyAlreadyInTheText) {
  MainTextDesk desk;
  desk.Put(u"‸");
  desk.Press(u"<");
  EXPECT_THAT(desk.Lines({"preset", "paint", "popup"}),
              ElementsAre("preset: 1", "paint changed rows", "popup: 1", "paint changed rows"));
}

TEST(Popup, IsOpenedByNoCharacterOfTheProgram) {
  MainTextDesk desk;
  InTag(desk);
  desk.Put(u"‸");
  for (const char16_t character : std::u16string_view(u"<a b=")) desk.text.WM_CHAR(character, 0);
  EXPECT_EQ(desk.Row(), "<a b=‸");
  EXPECT_THAT(desk.Messages(), IsEmpty());
}

TEST(Popup, AsksForTheTagAtTheCaretWithExactCompare) {
  MainTextDesk desk;
  desk.Put(u"<a‸");
  desk.Press(u" ");
  EXPECT_EQ(desk.tags.askedMode, 1);
  EXPECT_EQ(desk.tags.askedCompare, Compare::Binary);
}

}  // namespace
}  // namespace kestri
