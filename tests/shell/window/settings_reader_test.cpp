#include "shell/window/settings_reader.hpp"

#include <gtest/gtest.h>

namespace kestri {
namespace {

SettingsReader Reader(std::string text) {
  return SettingsReader(ProfileContent(std::move(text)));
}

TEST(SettingsReader, AMissingKeyIsItsDefault) {
  SettingsReader reader = Reader("");
  EXPECT_EQ(reader.Text("Setting", "FontName", u"ＭＳ ゴシック"), u"ＭＳ ゴシック");
  EXPECT_EQ(reader.Integer("Setting", "TabASeT", 1), 1);
  EXPECT_FALSE(reader.Damaged());
}

TEST(SettingsReader, ReadsShiftJisTextAndNumbers) {
  SettingsReader reader =
      Reader("[Setting]\r\nFontName=\x82\x6c\x82\x72 \x96\xBE\x92\xA9\r\nHTMLfrmLeft=-15\r\n");
  EXPECT_EQ(reader.Text("setting", "fontname", u""), u"ＭＳ 明朝");
  EXPECT_EQ(reader.Long("Setting", "HTMLfrmLeft", 1000), -15);
  EXPECT_FALSE(reader.Damaged());
}

TEST(SettingsReader, AnUnusableNumberMarksTheSettingsAsDamaged) {
  for (const char* value : {"abc", "99999999999", "1x"}) {
    SettingsReader reader = Reader("[Setting]\r\nFontSize=" + std::string(value) + "\r\n");
    EXPECT_EQ(reader.Long("Setting", "FontSize", 14), 14) << value;
    EXPECT_TRUE(reader.Damaged()) << value;
  }
}

TEST(SettingsReader, ANumberBeyond16BitsIsNoInteger) {
  SettingsReader reader = Reader("[Setting]\r\nTabASeT=40000\r\n");
  EXPECT_EQ(reader.Integer("Setting", "TabASeT", 1), 1);
  EXPECT_TRUE(reader.Damaged());
}

TEST(SettingsReader, AValueIsCutAt255BytesInFrontOfHalfACharacter) {
  std::string value;
  for (int i = 0; i < 200; ++i) value += "\x82\xA0";
  SettingsReader reader = Reader("[Setting]\r\nTrpString=" + value + "\r\n");
  EXPECT_EQ(reader.Text("Setting", "TrpString", u"").size(), 127u);
}

}  // namespace
}  // namespace kestri
