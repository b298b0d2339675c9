#include "tags/font_choice.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestri {
namespace {

using testing::ElementsAre;

TEST(FontChoice, StandsAtTheDefaultFont) {
  const FontChoice choice;
  EXPECT_EQ(choice.name, u"ＭＳ ゴシック");
  EXPECT_FALSE(choice.bold);
  EXPECT_FALSE(choice.italic);
}

TEST(OfferedFonts, AreTheScreensInTheirOrderBehindTheClassicNames) {
  EXPECT_THAT(
      OfferedFonts({u"Zapfino", u"Arial"}),
      ElementsAre(u"ＭＳ ゴシック", u"ＭＳ Ｐゴシック", u"ＭＳ 明朝", u"ＭＳ Ｐ明朝", u"Zapfino", u"Arial"));
}

TEST(OfferedFonts, NameAClassicFontOnceWhereTheScreenHasIt) {
  EXPECT_THAT(OfferedFonts({u"Arial", u"ＭＳ 明朝", u"ＭＳ ゴシック"}),
              ElementsAre(u"ＭＳ Ｐゴシック", u"ＭＳ Ｐ明朝", u"Arial", u"ＭＳ 明朝", u"ＭＳ ゴシック"));
}

TEST(OfferedFonts, AreTheClassicNamesOnAScreenWithoutAny) {
  EXPECT_EQ(OfferedFonts({}).size(), 4u);
}

TEST(FontRow, IsTheExactNamesOrTheFirst) {
  const std::vector<std::u16string> names = {u"ＭＳ ゴシック", u"Arial", u"Arial Black"};
  EXPECT_EQ(FontRow(names, u"Arial"), 1);
  EXPECT_EQ(FontRow(names, u"Arial Black"), 2);
  EXPECT_EQ(FontRow(names, u"arial"), 0);
  EXPECT_EQ(FontRow(names, u"MS ゴシック"), 0) << "half-width letters are another name";
  EXPECT_EQ(FontRow(names, u""), 0);
}

struct SizeCase {
  int wanted;
  int size;
};

TEST(FontSizeRow, IsTheLargestSizeThatDoesNotExceedTheWantedOne) {
  for (const auto& [wanted, size] :
       {SizeCase{8, 8}, SizeCase{9, 9}, SizeCase{13, 12}, SizeCase{14, 14}, SizeCase{15, 14},
        SizeCase{35, 28}, SizeCase{71, 48}, SizeCase{72, 72}, SizeCase{500, 72}}) {
    EXPECT_EQ(kFontSizes[static_cast<std::size_t>(FontSizeRow(wanted))], size) << wanted;
  }
}

TEST(FontSizeRow, IsTheFirstForSmallerWishes) {
  for (const int wanted : {7, 1, 0, -5}) EXPECT_EQ(FontSizeRow(wanted), 0) << wanted;
}

}  // namespace
}  // namespace kestri
