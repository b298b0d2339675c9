#include "document/edit_control/line_index.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace kestri {
namespace {

std::vector<Position> StartsOf(const LineIndex& lines) {
  std::vector<Position> starts;
  for (std::int32_t line = 0; line < lines.LineCount(); ++line) starts.push_back(lines.LineStart(line));
  return starts;
}

struct IndexedText {
  explicit IndexedText(std::u16string units) {
    text.Assign(std::move(units));
    lines.Rebuild(text);
  }
  void Replace(Position at, Position removed, std::u16string_view inserted) {
    text.Replace(at, removed, inserted);
    lines.Replaced(text, at, removed, static_cast<Position>(inserted.size()));
  }
  std::u16string All() const { return text.Slice(0, text.Length()); }
  GapBuffer text;
  LineIndex lines;
};

std::vector<Position> Starts(std::u16string_view text) {
  std::vector<Position> starts{0};
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i - 1] == u'\r' && text[i] == u'\n') starts.push_back(static_cast<Position>(i) + 1);
  }
  return starts;
}

TEST(LineIndex, OnlyCrLfEndsALine) {
  struct Row {
    std::u16string text;
    std::vector<Position> starts;
  };
  const Row rows[] = {
      {u"", {0}},
      {u"一行", {0}},
      {u"\r\n", {0, 2}},
      {u"ab\r\ncde\r\nf", {0, 4, 9}},
      {u"最後\r\n", {0, 4}},
      {u"a\rb\nc", {0}},
      {u"a\n\rb", {0}},
      {u"ab\r\r\ncd", {0, 5}},
      {u"\r\n\r\n\r\n", {0, 2, 4, 6}},
      {u"\n\r\n", {0, 3}},
      {u"\r", {0}},
      {u"\n", {0}},
  };
  for (const Row& row : rows) EXPECT_EQ(StartsOf(IndexedText(row.text).lines), row.starts);
}

TEST(LineIndex, FindsLineEndsAtEveryOffsetOfAVector) {
  for (std::size_t before = 0; before < 70; ++before) {
    for (std::size_t after = 0; after < 20; ++after) {
      const std::u16string text = std::u16string(before, u'あ') + u"\r\n" + std::u16string(after, u'い');
      EXPECT_EQ(StartsOf(IndexedText(text).lines), Starts(text)) << before << ' ' << after;
    }
  }
}

TEST(LineIndex, IndexesALongTextWithLineEndsAcrossChunks) {
  for (const std::size_t shift : {0u, 1u, 2u, 3u}) {
    std::u16string text(shift, u'x');
    for (int i = 0; i < 150'000; ++i) text += i % 3 == 0 ? u"\r\n" : u"ab\r\n";
    EXPECT_EQ(StartsOf(IndexedText(text).lines), Starts(text));
  }
}

TEST(LineIndex, IndexesDenseLinesAfterSparseOnesAndTheOtherWayRound) {
  std::u16string dense;
  for (int i = 0; i < 100'000; ++i) dense += u"\r\n";
  const std::u16string sparse(400'000, u'x');
  for (const std::u16string& text : {dense + sparse, sparse + dense, dense + sparse + dense}) {
    EXPECT_EQ(StartsOf(IndexedText(text).lines), Starts(text));
  }
}

TEST(LineIndex, FindsALineEndAcrossTheGap) {
  GapBuffer text;
  text.Assign(u"ab\r\ncd\r\n");
  text.EnsureGap(4);
  text.MoveGap(3);
  LineIndex lines;
  lines.Rebuild(text);
  EXPECT_EQ(StartsOf(lines), (std::vector<Position>{0, 4, 8}));
}

TEST(LineIndex, TellsTheLineOfEveryPosition) {
  const IndexedText indexed(u"ab\r\ncde\r\nf");
  const std::int32_t expected[] = {0, 0, 0, 0, 1, 1, 1, 1, 1, 2, 2};
  for (Position p = 0; p <= 10; ++p) EXPECT_EQ(indexed.lines.LineOf(p), expected[p]) << p;
  EXPECT_EQ(indexed.lines.LineOf(1'000), 2);
  EXPECT_EQ(indexed.lines.LineOf(-3), 0);
}

TEST(LineIndex, FollowsEveryReplacementOfASmallText) {
  const std::u16string text = u"a\r\n\r\n\rb\n\r\nc";
  const std::u16string insertions[] = {u"", u"x", u"\r", u"\n", u"\r\n", u"\n\r", u"x\r\ny", u"\r\n\r\n"};
  const auto length = static_cast<Position>(text.size());
  for (Position at = 0; at <= length; ++at) {
    for (Position removed = 0; at + removed <= length; ++removed) {
      for (const std::u16string& inserted : insertions) {
        IndexedText indexed(text);
        indexed.Replace(at, removed, inserted);
        EXPECT_EQ(StartsOf(indexed.lines), Starts(indexed.All())) << at << ' ' << removed;
      }
    }
  }
}

TEST(LineIndex, KeepsOnePendingStepThroughEditsNearAndFar) {
  std::u16string text;
  for (int i = 0; i < 200; ++i) text += u"行\r\n";
  IndexedText indexed(text);
  for (const Position at : {300, 303, 30, 33, 590, 0, 600, 299, 1, 450, 150}) {
    indexed.Replace(at, 0, u"xyz");
    EXPECT_EQ(StartsOf(indexed.lines), Starts(indexed.All())) << at;
    indexed.Replace(at, 2, u"\r\n\r\n");
    EXPECT_EQ(StartsOf(indexed.lines), Starts(indexed.All())) << at;
    indexed.lines.PrepareAt(indexed.lines.LineOf(at));
    EXPECT_EQ(StartsOf(indexed.lines), Starts(indexed.All())) << at;
  }
}

}  // namespace
}  // namespace kestri
