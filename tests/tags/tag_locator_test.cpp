#include "tags/tag_locator.hpp"

#include <gtest/gtest.h>

#include "tests/fakes/ports.hpp"
#include "tests/fakes/visible_caret.hpp"

namespace kestri {
namespace {

struct SpanRow {
  const char* what;
  std::u16string_view text;
  std::optional<std::u16string_view> inside;  // nothing: outside
  CaretKind kind;
};

class CaretSpanTest : public testing::TestWithParam<SpanRow> {
 protected:
  CaretSpanTest() { fakes::SetMarked(control, GetParam().text); }

  fakes::FakeClipboard clipboard;
  EditControl control{clipboard};
};

TEST_P(CaretSpanTest, InsideIsWhatStandsBetweenTheNearestDelimiters) {
  std::u16string inside = u"left over";
  const bool found = FindCaretSpan(control, kLookOnly, inside, u"<", u">", Compare::Binary);
  EXPECT_EQ(found, GetParam().inside.has_value());
  EXPECT_EQ(inside, GetParam().inside.value_or(u""));
  EXPECT_EQ(fakes::Marked(control), GetParam().text) << "looking must not move the selection";
}

TEST_P(CaretSpanTest, TextCompareSeesTheSameAsciiDelimiters) {
  std::u16string inside;
  EXPECT_EQ(FindCaretSpan(control, kLookOnly, inside, u"<", u">", Compare::Text),
            GetParam().inside.has_value());
  EXPECT_EQ(inside, GetParam().inside.value_or(u""));
}

TEST_P(CaretSpanTest, KindFollowsFromTheFirstCharacterInside) {
  EXPECT_EQ(CaretTagKind(control, kLookOnly, Compare::Binary), GetParam().kind);
}

TEST_P(CaretSpanTest, OtherModesSelectTheInsideAndOnlyThat) {
  std::u16string inside;
  const Position start = control.SelStart();
  const bool found = FindCaretSpan(control, kSelectSpan, inside, u"<", u">", Compare::Binary);
  if (found) {
    EXPECT_EQ(Replace(control.SelText(), kCrLf, u" "), inside);
    EXPECT_EQ(control.At(control.SelStart() - 1), u'<');
  } else {
    EXPECT_EQ(control.SelStart(), start);
    EXPECT_EQ(fakes::Marked(control), GetParam().text);
  }
}

constexpr auto kNot = std::nullopt;

INSTANTIATE_TEST_SUITE_P(
    Cases, CaretSpanTest,
    testing::Values(
        SpanRow{"CaretAtTheVeryStart", u"‸<a>", kNot, CaretKind::Outside},
        SpanRow{"EmptyText", u"‸", kNot, CaretKind::Outside},
        SpanRow{"CaretBeforeTheTag", u"x‸<a>", kNot, CaretKind::Outside},
        SpanRow{"CaretBehindTheOpening", u"<‸a>", u"a", CaretKind::OpeningTag},
        SpanRow{"CaretBeforeTheClosing", u"<a‸>", u"a", CaretKind::OpeningTag},
        SpanRow{"CaretBehindTheClosing", u"<a>‸", kNot, CaretKind::Outside},
        SpanRow{"GreaterSignInsideQuotesEndsTheTag", u"<a href=\"b>c‸\">", kNot, CaretKind::Outside},
        SpanRow{"NextTagOpensFirst", u"<a ‸<b>", kNot, CaretKind::Outside},
        SpanRow{"UnclosedAtTheEndOfTheText", u"<a ‸", kNot, CaretKind::Outside},
        SpanRow{"OnlyAFurtherOpening", u"<a ‸ <b", kNot, CaretKind::Outside},
        SpanRow{"EmptyTag", u"<‸>", u"", CaretKind::OpeningTag},
        SpanRow{"BlankTag", u"< ‸ >", u"  ", CaretKind::OpeningTag},
        SpanRow{"ClosingTag", u"</a‸>", u"/a", CaretKind::ClosingTag},
        SpanRow{"BlankBeforeTheSlash", u"< /a‸>", u" /a", CaretKind::ClosingTag},
        SpanRow{"LineBreakBeforeTheSlash", u"<\n/a‸>", u" /a", CaretKind::ClosingTag},
        SpanRow{"Declaration", u"<!DOCTYPE ‸html>", u"!DOCTYPE html", CaretKind::Declaration},
        SpanRow{"Comment", u"<!-- a‸ -->", u"!-- a --", CaretKind::Declaration},
        SpanRow{"CommentEndsAtItsFirstGreaterSign", u"<!-- a > b‸ -->", kNot, CaretKind::Outside},
        SpanRow{"ProcessingInstruction", u"<?xml ‸?>", u"?xml ?", CaretKind::OpeningTag},
        SpanRow{"TagOverSeveralLines", u"<a\nhref\n=‸b>", u"a href =b", CaretKind::OpeningTag},
        SpanRow{"TabIsNoBlank", u"<\t/a‸>", u"\t/a", CaretKind::OpeningTag},
        SpanRow{"FullWidthBlankIsNoBlank", u"<　/a‸>", u"　/a", CaretKind::OpeningTag},
        SpanRow{"LoneCarriageReturnIsNoLineBreak", u"<\r/a‸>", u"\r/a", CaretKind::OpeningTag},
        SpanRow{"OnlyTheSelectionsStartCounts", u"<a ⟦b>c⟧", u"a b", CaretKind::OpeningTag},
        SpanRow{"SelectionAfterItsStartOutside", u"⟦<a⟧>", kNot, CaretKind::SelectionStraddles},
        SpanRow{"SelectedLessSign", u"⟦x<y⟧", kNot, CaretKind::SelectionStraddles},
        SpanRow{"SelectedWholeTag", u"⟦x<y>⟧", kNot, CaretKind::Outside},
        SpanRow{"SelectedGreaterThenLess", u"z⟦>x<y⟧", kNot, CaretKind::SelectionStraddles},
        SpanRow{"SelectionWithoutDelimiters", u"<p>⟦xy⟧<", kNot, CaretKind::Outside},
        SpanRow{"JapaneseInside", u"本文<画像 ‸説明=\"あ\">終", u"画像 説明=\"あ\"", CaretKind::OpeningTag}),
    [](const auto& row) { return row.param.what; });

class TagLocatorTest : public testing::Test {
 protected:
  fakes::FakeClipboard clipboard;
  EditControl control{clipboard};
  std::u16string inside;
};

TEST_F(TagLocatorTest, DelimitersMayBeWords) {
  fakes::SetMarked(control, u"p { color: /* red‸ */ }");
  EXPECT_TRUE(FindCaretSpan(control, kLookOnly, inside, u"/*", u"*/", Compare::Binary));
  EXPECT_EQ(inside, u"* red ");
  EXPECT_TRUE(FindCaretSpan(control, kSelectSpan, inside, u"{", u"}", Compare::Binary));
  EXPECT_EQ(fakes::Marked(control), u"p {⟦ color: /* red */ ⟧}");
}

TEST_F(TagLocatorTest, ADelimiterThatTheCaretSplitsIsNotThere) {
  fakes::SetMarked(control, u"/‸* a */");
  EXPECT_FALSE(FindCaretSpan(control, kLookOnly, inside, u"/*", u"*/", Compare::Binary));
}

TEST_F(TagLocatorTest, EqualDelimitersAreNeverASpan) {
  fakes::SetMarked(control, u"\"a‸b\"");
  EXPECT_FALSE(FindCaretSpan(control, kLookOnly, inside, u"\"", u"\"", Compare::Binary));
}

TEST_F(TagLocatorTest, TextCompareTakesFullWidthDelimiters) {
  fakes::SetMarked(control, u"＜a‸＞");
  EXPECT_FALSE(FindCaretSpan(control, kLookOnly, inside, u"<", u">", Compare::Binary));
  EXPECT_TRUE(FindCaretSpan(control, kLookOnly, inside, u"<", u">", Compare::Text));
  EXPECT_EQ(inside, u"a");
}

TEST_F(TagLocatorTest, FarDelimitersAreFoundAcrossTheWholeText) {
  std::u16string far = u"<" + std::u16string(300, u'あ') + u"‸" + std::u16string(5000, u'x') + u">";
  fakes::SetMarked(control, far);
  EXPECT_EQ(CaretTagKind(control, kLookOnly, Compare::Binary), CaretKind::OpeningTag);
  EXPECT_TRUE(FindCaretSpan(control, kSelectSpan, inside, u"<", u">", Compare::Binary));
  EXPECT_EQ(control.SelStart(), 1);
  EXPECT_EQ(control.SelLength(), 5300);
}

struct NameRow {
  const char* what;
  std::u16string_view text;
  std::u16string_view name;
};

class TagNameTest : public testing::TestWithParam<NameRow> {};

TEST_P(TagNameTest, NameEndsAtTheFirstBlank) {
  EXPECT_EQ(TagNameOf(GetParam().text, Compare::Binary), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TagNameTest,
    testing::Values(NameRow{"Attributes", u"a href=\"b\"", u"a"}, NameRow{"NameAlone", u"br", u"br"},
                    NameRow{"Empty", u"", u""}, NameRow{"BlanksAround", u"  a b ", u"a"},
                    NameRow{"WithItsDelimiters", u"<a href>", u"a"},
                    NameRow{"BlanksInsideDelimiters", u" < a href > ", u"a"},
                    NameRow{"OnlyOneDelimiterGoes", u"<<a>>", u"<a>"}, NameRow{"DelimitersAlone", u"<>", u""},
                    NameRow{"OneSignIsBoth", u"<", u""},
                    NameRow{"TabDoesNotSeparate", u"a\thref=b c", u"a\thref=b"},
                    NameRow{"LineBreakSeparates", u"a\r\nhref", u"a"}, NameRow{"ClosingTag", u"/a", u"/a"},
                    NameRow{"Comment", u"!-- x --", u"!--"}),
    [](const auto& row) { return row.param.what; });

}  // namespace
}  // namespace kestri
