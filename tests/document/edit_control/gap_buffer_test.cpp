#include "document/edit_control/gap_buffer.hpp"

#include <gtest/gtest.h>

namespace kestri {
namespace {

GapBuffer BufferWith(std::u16string text) {
  GapBuffer buffer;
  buffer.Assign(std::move(text));
  return buffer;
}

std::u16string All(const GapBuffer& buffer) {
  return buffer.Slice(0, buffer.Length());
}

std::u16string TextWithSpareCapacity(std::size_t size, std::size_t capacity) {
  std::u16string text;
  text.reserve(capacity);
  text.append(size, u'あ');
  return text;
}

TEST(GapBuffer, TakesTheStorageOverWithoutACopy) {
  std::u16string text = TextWithSpareCapacity(10'000, 12'000);
  const char16_t* storage = text.data();
  GapBuffer buffer;
  buffer.Assign(std::move(text));
  EXPECT_EQ(buffer.All().first.data(), storage);
  EXPECT_EQ(buffer.Length(), 10'000);
  EXPECT_EQ(buffer.GapSize(), 2'000u);
}

TEST(GapBuffer, EditsWithinTheSpareCapacityMoveNoStorage) {
  std::u16string text = TextWithSpareCapacity(10'000, 12'000);
  const char16_t* storage = text.data();
  GapBuffer buffer;
  buffer.Assign(std::move(text));
  for (int i = 0; i < 2'000; ++i) buffer.Replace(5'000, 0, u"x");
  EXPECT_EQ(buffer.All().first.data(), storage);
  EXPECT_EQ(buffer.Length(), 12'000);
  EXPECT_EQ(buffer.GapSize(), 0u);
}

TEST(GapBuffer, LeavesAHugeSpareCapacityUntouched) {
  std::u16string text(u"abc");
  text.reserve(10'000'000);
  GapBuffer buffer;
  buffer.Assign(std::move(text));
  EXPECT_LE(buffer.GapSize(), 64u * 1024);
}

TEST(GapBuffer, GrowsWhenTheGapIsFull) {
  GapBuffer buffer = BufferWith(u"日本");
  const std::u16string inserted(5'000, u'x');
  buffer.Replace(1, 0, inserted);
  EXPECT_EQ(All(buffer), u"日" + inserted + u"本");
  EXPECT_TRUE(buffer.CheckInvariants());
}

TEST(GapBuffer, ReplacesAtEveryPlaceWithTheGapAtEveryPlace) {
  const std::u16string text = u"abcdefgh";
  for (Position gap = 0; gap <= 8; ++gap) {
    for (Position at = 0; at <= 8; ++at) {
      for (Position removed = 0; at + removed <= 8; ++removed) {
        GapBuffer buffer = BufferWith(text);
        buffer.EnsureGap(4);
        buffer.MoveGap(gap);
        buffer.Replace(at, removed, u"XY");
        auto expected = text;
        expected.replace(static_cast<std::size_t>(at), static_cast<std::size_t>(removed), u"XY");
        EXPECT_EQ(All(buffer), expected) << gap << ' ' << at << ' ' << removed;
        EXPECT_EQ(static_cast<Position>(buffer.All().first.size()), at + 2);
      }
    }
  }
}

TEST(GapBuffer, DeletingAroundTheGapMovesNothing) {
  GapBuffer buffer = BufferWith(std::u16string(1'000, u'a'));
  buffer.EnsureGap(10);
  buffer.MoveGap(500);
  const char16_t* tail = buffer.All().second.data();
  buffer.Replace(400, 200, u"");
  EXPECT_EQ(buffer.All().first.size(), 400u);
  EXPECT_EQ(buffer.All().second.data(), tail + 100);
}

TEST(GapBuffer, ReadsUnitsAndSlicesAcrossTheGap) {
  GapBuffer buffer = BufferWith(u"日本語です");
  buffer.EnsureGap(3);
  buffer.MoveGap(2);
  EXPECT_EQ(buffer.At(1), u'本');
  EXPECT_EQ(buffer.At(2), u'語');
  EXPECT_EQ(buffer.Slice(1, 3), u"本語で");
  EXPECT_EQ(buffer.Range(1, 3).first, u"本");
  EXPECT_EQ(buffer.Range(1, 3).second, u"語で");
  EXPECT_EQ(buffer.Range(0, 2).second, u"");
  EXPECT_EQ(buffer.Range(2, 2).first, u"");
}

TEST(GapBuffer, OutsideThereIsNothing) {
  const GapBuffer buffer = BufferWith(u"abc");
  EXPECT_EQ(buffer.At(-1), 0);
  EXPECT_EQ(buffer.At(3), 0);
  EXPECT_EQ(buffer.Slice(-5, 2), u"ab");
  EXPECT_EQ(buffer.Slice(2, 100), u"c");
  EXPECT_EQ(buffer.Slice(9, 1), u"");
  EXPECT_EQ(buffer.Slice(1, -1), u"");
  EXPECT_EQ(buffer.Slice(1, INT32_MAX), u"bc");
}

TEST(GapBuffer, KnowsItsOwnUnits) {
  GapBuffer buffer = BufferWith(u"abc");
  const std::u16string other = u"abc";
  EXPECT_TRUE(buffer.Owns(buffer.All().first.substr(1)));
  EXPECT_FALSE(buffer.Owns(other));
  EXPECT_FALSE(buffer.Owns({}));
}

}  // namespace
}  // namespace kestri
