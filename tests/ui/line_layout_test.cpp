// Where characters stand in a line, and which character stands at a place.
#include <gtest/gtest.h>

#include <QApplication>
#include <chrono>

#include "tests/ui/edit_view_desk.hpp"
#include "ui/line_layout_cache.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

bool CaretMayStand(const EditControl& control, Position at) {
  const char16_t unit = control.At(at);
  if (unit == u'\u200D' || control.At(at - 1) == u'\u200D') return false;
  return !QChar::isLowSurrogate(unit) && !QChar(unit).isMark();
}

void ExpectRoundTrip(EditViewDesk& desk, Position begin, Position end, Position step = 1) {
  EditControl& control = desk.Control();
  for (Position at = begin; at <= end; at += step) {
    if (!CaretMayStand(control, at)) continue;
    const double x = desk.view.XOf(at);
    EXPECT_EQ(desk.view.PositionAt(control.LineOf(at), x), at) << "x is " << x;
  }
}

TEST(LineLayout, AFullWidthCharacterIsExactlyTwoCells) {
  for (const double points : {9.0, 10.0, 11.0, 12.0, 14.0, 18.0, 20.5, 36.0}) {
    EditViewDesk desk;
    desk.view.SetTextFont(u"ＭＳ ゴシック", points);
    desk.PutText(u"ab漢字かなｶﾅ　。");
    const double cell = desk.view.Style().cell;
    EXPECT_DOUBLE_EQ(desk.view.XOf(2), 2 * cell);
    EXPECT_DOUBLE_EQ(desk.view.XOf(6), 10 * cell);
    EXPECT_DOUBLE_EQ(desk.view.XOf(8), 12 * cell);
    EXPECT_DOUBLE_EQ(desk.view.XOf(10), 16 * cell) << points << " points";
  }
}

TEST(LineLayout, TabsStandOnEveryEighthCell) {
  EditViewDesk desk;
  desk.PutText(u"\ta\t漢字漢字\tb");
  const double cell = desk.view.Style().cell;
  EXPECT_DOUBLE_EQ(desk.view.XOf(1), 8 * cell);
  EXPECT_DOUBLE_EQ(desk.view.XOf(3), 16 * cell);
  EXPECT_DOUBLE_EQ(desk.view.XOf(8), 32 * cell);
}

TEST(LineLayout, EveryCaretPlaceIsFoundAgain) {
  for (const std::u16string_view text :
       {u"", u"plain <b>text</b>", u"日本語の文章、ｶﾅ　と　空白。", u"\t\ttab\tと\t漢字", u"𠮷野家😀と𩸽",
        u"か\u3099き\u3099e\u0301x", u"a\rb\nc\x01 d\u200Ee", u"👨\u200D👩\u200D👧 family", u"末尾の空白   ",
        u"\xD842 lone \xDFB7 halves"}) {
    EditViewDesk desk;
    desk.PutText(std::u16string(text));
    if (text.find(u"halves") != std::u16string_view::npos) {
      desk.view.grab();  // no crash; a lone half is a character of its own
      continue;
    }
    ExpectRoundTrip(desk, 0, desk.Control().Length());
  }
}

TEST(LineLayout, EveryPlaceOfALongLineIsFoundAgain) {
  std::u16string text;
  while (text.size() < 30000) text += u"<td>漢字と𠮷 か\u3099\t</td>";
  EditViewDesk desk;
  desk.PutText(text);
  ExpectRoundTrip(desk, 0, 3000);
  ExpectRoundTrip(desk, 12000, 14500);
  ExpectRoundTrip(desk, desk.Control().Length() - 1500, desk.Control().Length());
}

TEST(LineLayout, XGrowsAlongALine) {
  EditViewDesk desk;
  desk.PutText(std::u16string(9000, u'あ') + std::u16string(9000, u'i'));
  double last = -1;
  for (Position at = 0; at <= desk.Control().Length(); at += 37) {
    const double x = desk.view.XOf(at);
    EXPECT_GT(x, last);
    last = x;
  }
}

TEST(LineLayout, ALongLineLaysOutOnlyTheSegmentsInView) {
  EditViewDesk desk;
  desk.PutText(std::u16string(1'000'000, u'x'));
  LineLayoutCache layouts(desk.Control());
  layouts.SetStyle(desk.view.Style());
  LineLayout& line = layouts.Line(0);
  EXPECT_GE(line.SegmentCount(), 900u);
  EXPECT_EQ(line.LaidOutCount(), 0u);
  EXPECT_EQ(line.ColumnAt(500'000 * desk.view.Style().cell), 500'000);
  EXPECT_LE(line.LaidOutCount(), 2u);
  EXPECT_DOUBLE_EQ(line.Width(), 1'000'000 * desk.view.Style().cell);
}

TEST(LineLayout, MarksStandOverTheirLetter) {
  for (const std::u16string_view text : {u"か\u3099", u"は\u309A", u"e\u0301", u"и\u0306"}) {
    EditViewDesk desk;
    desk.PutText(std::u16string(text));
    const auto length = static_cast<Position>(text.size());
    EditViewDesk alone;
    alone.PutText(std::u16string(text.substr(0, 1)));
    EXPECT_DOUBLE_EQ(desk.view.XOf(length), alone.view.XOf(1)) << ToUtf8(text);
  }
}

TEST(LineLayout, SegmentsNeverSplitACharacter) {
  std::u16string text;
  while (text.size() < 10000) text += u"か\u3099𠮷";
  EditViewDesk desk;
  desk.PutText(text);
  LineLayoutCache layouts(desk.Control());
  layouts.SetStyle(desk.view.Style());
  const double cell = desk.view.Style().cell;
  const double shown = layouts.Line(0).Width();
  for (Position at = 0; at < 10000; at += 500) layouts.Line(0).XOf(at);
  EXPECT_NEAR(layouts.Line(0).Width(), shown, cell * 200);
  ExpectRoundTrip(desk, 0, desk.Control().Length());
}

// The same edits through one cache and through layouts made afresh give the same places.
TEST(LineLayout, FollowsEditsInALongLine) {
  EditViewDesk desk;
  desk.PutText(std::u16string(8000, u'x'));
  EditControl& control = desk.Control();
  std::uint32_t seed = 20;
  const auto next = [&](Position below) {
    seed = seed * 1664525u + 1013904223u;
    return static_cast<Position>(seed >> 8) % below;
  };
  desk.view.XOf(0);
  for (int i = 0; i < 200; ++i) {
    const Position at = next(control.Length() + 1);
    control.EM_SETSEL(at, std::min(control.Length(), at + next(i % 7 == 0 ? 3000 : 5)));
    control.EM_REPLACESEL(
        true, std::u16string(static_cast<std::size_t>(next(i % 5 == 0 ? 4000 : 4)), i % 2 ? u'漢' : u'y'));
    const Position probe = next(control.Length() + 1);
    LineLayoutCache fresh(control);
    fresh.SetStyle(desk.view.Style());
    ASSERT_DOUBLE_EQ(desk.view.XOf(probe), fresh.Line(0).XOf(probe)) << "edit " << i;
    ASSERT_EQ(desk.view.PositionAt(0, desk.view.XOf(probe)), probe);
  }
}

TEST(LineLayout, FollowsEditsOverSeveralLines) {
  EditViewDesk desk;
  EditControl& control = desk.Control();
  std::u16string text;
  for (int i = 0; i < 40; ++i) text += std::u16string(static_cast<std::size_t>(i), u'a') + u"漢\r\n";
  desk.PutText(text);
  std::uint32_t seed = 7;
  const auto next = [&](Position below) {
    seed = seed * 1664525u + 1013904223u;
    return static_cast<Position>(seed >> 8) % below;
  };
  const std::u16string_view pieces[] = {u"", u"x", u"\r\n", u"a\r\n漢\r\nb", u"字"};
  for (int i = 0; i < 300; ++i) {
    desk.view.grab();
    const Position at = next(control.Length() + 1);
    control.EM_SETSEL(at, std::min(control.Length(), at + next(30)));
    control.EM_REPLACESEL(true, pieces[next(5)]);
    for (std::int32_t line = 0; line < control.LineCount(); line += 3) {
      LineLayoutCache fresh(control);
      fresh.SetStyle(desk.view.Style());
      const Position end = control.LineEnd(line);
      ASSERT_DOUBLE_EQ(desk.view.XOf(end), fresh.Line(line).XOf(end - control.LineStart(line)));
    }
  }
}

TEST(LineLayout, AnEstimateCountsCells) {
  TextStyle style;
  style.cell = 10;
  style.tabWidth = 80;
  EXPECT_EQ(EstimatedWidth(u"ab", style), 20);
  EXPECT_EQ(EstimatedWidth(u"漢a", style), 30);
  EXPECT_EQ(EstimatedWidth(u"ｶ", style), 10);
  EXPECT_EQ(EstimatedWidth(u"a\tb", style), 90);
  EXPECT_EQ(EstimatedWidth(u"か\u3099", style), 20);
  EXPECT_EQ(EstimatedWidth(u"𠮷", style), 20);
  EXPECT_EQ(EstimatedWidth(u"\r", style), 20);
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
