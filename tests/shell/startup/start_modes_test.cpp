// The editor's own command lines: a path, "/SN", "/SF", "/?" and what is none of them.
#include "tests/shell/startup/startup_desk.hpp"

namespace kestri {
namespace {

using fakes::Steps;

class StartModes : public fakes::StartupDesk<fakes::RecordedWindows> {
 protected:
  // What happens once the window stands.
  Steps StepsOf(std::u16string_view line) {
    EXPECT_EQ(Start(line), ClassMain::kLive);
    EXPECT_EQ(windows.steps.back(), "active");
    return {windows.steps.begin() + 2, windows.steps.end() - 1};
  }
};

TEST_F(StartModes, AQuotedPathWithBlanksAndTheSamePathUnquotedOpenOneFile) {
  EXPECT_EQ(StepsOf(u"C:\\a b\\page one.htm"), Steps{"open C:\\a b\\page one.htm"});
  EXPECT_EQ(StepsOf(u" \"C:\\a b\\page one.htm\" "), Steps{"open C:\\a b\\page one.htm"});
  EXPECT_EQ(windows.modeAtLoad, 100);
}

TEST_F(StartModes, ASecondPathIsPartOfTheFirst) {
  EXPECT_EQ(StepsOf(u"one.htm two.htm"), Steps{"open one.htm two.htm"});
}

TEST_F(StartModes, NewDocumentSwitchShowsTheListOnItsSecondPage) {
  for (const char16_t* line : {u"/SN", u"/sn", u"/Sn", u"/SN ", u"\"/SN\""}) {
    EXPECT_EQ(StepsOf(line), Steps{"list new, greyed"}) << ToUtf8(line);
    EXPECT_EQ(windows.modeAtLoad, 200);
  }
}

TEST_F(StartModes, FileListSwitchShowsTheListOfRecentFiles) {
  for (const char16_t* line : {u"/SF", u"/sf"}) {
    EXPECT_EQ(StepsOf(line), Steps{"list recent, greyed"}) << ToUtf8(line);
    EXPECT_EQ(windows.modeAtLoad, 300);
  }
}

TEST_F(StartModes, TheListIsShownAtEveryStartWhenTheUserWantsThat) {
  EXPECT_EQ(StepsOf(u""), Steps{});
  Set(u"Setting", u"WinF", u"1");
  EXPECT_EQ(StepsOf(u""), Steps{"list recent"});
  EXPECT_EQ(StepsOf(u"page.htm"), Steps{"open page.htm"});
}

TEST_F(StartModes, AnUnknownSwitchLeavesTheEditorOpenWithItsBox) {
  for (const char16_t* line : {u"/SN x", u"/SL", u"/DA", u"/x", u"/??"}) {
    boxes.asked.clear();
    EXPECT_EQ(StepsOf(line), Steps{"box"}) << ToUtf8(line);
    EXPECT_EQ(windows.modeAtLoad, -1);
    ExpectBox(MessageIcon::Exclamation, u"ｽｲｯﾁｴﾗｰ Kestrile",
              u"\"" + std::u16string(line) + u"\" は無効なｽｲｯﾁです");
  }
}

TEST_F(StartModes, AModeThatMeansNothingIsTold) {
  windows.modeLeftByLoad = 150;
  EXPECT_EQ(StepsOf(u"page.htm"), Steps{"box"});
  ExpectBox(MessageIcon::Exclamation, u"ｺﾏﾝﾄﾞﾗｲﾝｴﾗｰ[ ??? ] Kestrile", u"ｺﾏﾝﾄﾞﾗｲﾝは無効です");
}

TEST_F(StartModes, VersionIsShownWithoutTheEditor) {
  EXPECT_EQ(Start(u"/?"), ClassMain::kEnd);
  EXPECT_EQ(windows.steps, Steps{"box"});
  ExpectBox(MessageIcon::None, u"Kestrile",
            u"Kestrile Ver.01.00.000e07\r\n\r\n● ｺﾏﾝﾄﾞﾗｲﾝ引数\r\n"
            u" ・/SL ...  ﾌｫﾙﾀﾞのｲﾒｰｼﾞｽﾗｲﾄﾞ表示\r\n"
            u" ・/SN ...  起動時に新規作成ｳｨﾝﾄﾞｳを表示\r\n"
            u" ・/SF ...  起動時にﾌｧｲﾙﾘｽﾄを表示\r\n"
            u" ・/DA ...  解凍ﾓｰﾄﾞ\r\n"
            u" ・/AC ...  圧縮ﾓｰﾄﾞ\r\n"
            u" ・/?  ...  ﾊﾞｰｼﾞｮﾝを表示\r\n\r\n" +
                std::u16string(kCreditLine));
}

TEST_F(StartModes, VersionComesBehindTheSplash) {
  Set(u"Setting", u"TopWinShow", u"1");
  EXPECT_EQ(Start(u"/?"), ClassMain::kEnd);
  EXPECT_EQ(windows.steps,
            (Steps{"splash", "progress ", "progress ｺﾏﾝﾄﾞﾗｲﾝ解析中...", "splash away", "box"}));
}

}  // namespace
}  // namespace kestri
