// The input method's menu: scripts of committed text, and the boxes when a tool is missing.
#include "document/input_mode.hpp"

#include <gtest/gtest.h>

#include "shell/common/text.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

struct ScriptCase {
  InputMode mode;
  std::u16string_view committed;
  std::u16string_view entered;
};

class CommittedScript : public testing::TestWithParam<ScriptCase> {};

TEST_P(CommittedScript, EntersAsTheModeSays) {
  EXPECT_EQ(ToUtf8(CommittedAs(GetParam().mode, GetParam().committed)), ToUtf8(GetParam().entered));
}

INSTANTIATE_TEST_SUITE_P(
    InputMode, CommittedScript,
    testing::Values(ScriptCase{InputMode::Default, u"ひらカタｶﾅＡb漢", u"ひらカタｶﾅＡb漢"},
                    ScriptCase{InputMode::Off, u"がＡb", u"がＡb"},
                    ScriptCase{InputMode::OffFixed, u"がＡb", u"がＡb"},
                    ScriptCase{InputMode::Hiragana, u"がガＡb", u"がガＡb"},
                    ScriptCase{InputMode::Katakana, u"がっこうへ行く", u"ガッコウヘ行ク"},
                    ScriptCase{InputMode::HalfKatakana, u"がっこう、ー行く", u"ｶﾞｯｺｳ､ｰ行ｸ"},
                    ScriptCase{InputMode::HalfKatakana, u"ＡＢ「１」", u"AB｢1｣"},
                    ScriptCase{InputMode::FullAlphanumeric, u"Html 4.01", u"Ｈｔｍｌ　４．０１"},
                    ScriptCase{InputMode::HalfAlphanumeric, u"Ｈｔｍｌ　４．０１！", u"Html 4.01!"},
                    ScriptCase{InputMode::HalfAlphanumeric, u"データ表ー。", u"データ表ー。"},
                    ScriptCase{InputMode::Katakana, u"", u""},
                    ScriptCase{InputMode::HalfAlphanumeric, u"\xD842\xDFB7Ａ", u"\xD842\xDFB7\u0041"}));

TEST(InputMode, TheMenuHasEightRowsInItsOrder) {
  constexpr std::array kWords = {u"(ﾃﾞﾌｫﾙﾄ)",     u"OFF",      u"OFF固定",  u"全角ひらがな",
                                 u"全角カタカナ", u"半角ｶﾀｶﾅ", u"全角英数", u"半角英数"};
  constexpr std::array kKeys = {u"", u"6", u"", u"1", u"2", u"3", u"4", u"5"};
  ASSERT_EQ(kInputModeCaptions.size(), kWords.size());
  for (std::size_t i = 0; i < kWords.size(); ++i) {
    const std::u16string key = kKeys[i];
    const std::u16string caption = kWords[i] + (key.empty() ? key : u"\tAlt+Ctrl+F" + key);
    EXPECT_EQ(ToUtf8(kInputModeCaptions[i]), ToUtf8(caption));
    EXPECT_EQ(static_cast<std::size_t>(InputModeAt(static_cast<int>(i))), i);
  }
  EXPECT_EQ(InputModeAt(3), InputMode::Hiragana);
  EXPECT_EQ(InputModeAt(7), InputMode::HalfAlphanumeric);
}

TEST(InputMode, AnIndexOutsideTheMenuIsTheDefault) {
  EXPECT_EQ(InputModeAt(-1), InputMode::Default);
  EXPECT_EQ(InputModeAt(8), InputMode::Default);
}

TEST(InputMode, OnlyTheTwoOffRowsSwitchOff) {
  for (int i = 0; i < 8; ++i) EXPECT_EQ(SwitchesOff(InputModeAt(i)), i == 1 || i == 2) << i;
}

class ScriptedTools : public InputMethodTools {
 public:
  bool ShowProperties() override { return Note("properties"); }
  bool RegisterWord() override { return Note("word"); }
  bool ShowPad() override { return Note("pad"); }
  bool Reconvert() override { return Note("reconvert"); }
  bool present = true;
  std::vector<std::string> asked;

 private:
  bool Note(const char* what) {
    asked.push_back(what);
    return present;
  }
};

struct InputMethodMenuTest : testing::Test {
  std::string Told() const { return boxes.asked.empty() ? "" : ToUtf8(boxes.asked.back().text); }
  ScriptedTools tools;
  fakes::FakeMessageBox boxes;
  InputMethodMenu menu{tools, boxes};
};

TEST_F(InputMethodMenuTest, EachRowOpensItsToolWithoutABox) {
  menu.MenIMEsub(0);
  menu.MenIMEsub(1);
  menu.MenIMEsub(2);
  menu.MenIMERe();
  EXPECT_EQ(tools.asked, (std::vector<std::string>{"properties", "word", "pad", "reconvert"}));
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(InputMethodMenuTest, RefusedReconversionIsToldWithItsThreeReasons) {
  tools.present = false;
  menu.MenIMERe();
  EXPECT_EQ(Told(),
            "再変換が不可能です \r\n・選択範囲が長すぎます \r\n・選択範囲に変換不可能字が含まれています \r\n"
            "・変換には \"MS IME\" が必要です ");
}

TEST_F(InputMethodMenuTest, AMissingToolIsToldByItsName) {
  tools.present = false;
  menu.MenIMEsub(0);
  EXPECT_EQ(Told().find("IMEのﾌﾟﾛﾊﾟﾃｨ"), 0U);
  menu.MenIMEsub(1);
  EXPECT_EQ(Told().find("IME単語の登録"), 0U);
  menu.MenIMEsub(2);
  EXPECT_EQ(Told().find("IMEﾊﾟｯﾄﾞ"), 0U);
  EXPECT_EQ(boxes.asked.size(), 3U);
}

TEST_F(InputMethodMenuTest, AnUnknownIndexDoesNothing) {
  tools.present = false;
  menu.MenIMEsub(3);
  menu.MenIMEsub(-1);
  EXPECT_TRUE(tools.asked.empty());
  EXPECT_TRUE(boxes.asked.empty());
}

}  // namespace
}  // namespace kestri
