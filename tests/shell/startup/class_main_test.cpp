#include "shell/startup/class_main.hpp"

#include <gtest/gtest.h>

#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

class Editor : public StartupEditor {
 public:
  bool LoadEditor() override {
    ++loads;
    return settingsUsable;
  }
  void OpenDocument(std::u16string_view path) override { opened.emplace_back(path); }
  int loads = 0;
  bool settingsUsable = true;
  std::vector<std::u16string> opened;
};

class ClassMainTest : public testing::Test {
 protected:
  ClassMainTest() {
    environment_.executable = folder_.Text(u"Kestri");
    environment_.processes = {environment_.executable};
    environment_.folders[SystemFolder::Windows] = folder_.Text();
    environment_.folders[SystemFolder::System] = folder_.Text();
  }

  std::int32_t Start(std::u16string_view line) {
    const ClassCommon common({files_, environment_, shell_, clock_, window_}, PathStyle::Posix);
    return ClassMain(common, state_, boxes_, editor_).Main(line);
  }
  void WriteSettings(const char* text) { folder_.Write("Kestri.ini", text); }

  fakes::TemporaryFolder folder_;
  PosixFileSystem files_;
  fakes::FakeEnvironment environment_;
  fakes::FakeShell shell_;
  fakes::FakeClock clock_;
  fakes::FakeWindowServices window_;
  fakes::FakeMessageBox boxes_;
  ApplicationState state_;
  Editor editor_;
};

TEST_F(ClassMainTest, AnEmptyLineOpensTheEditorAlone) {
  EXPECT_EQ(Start(u""), ClassMain::kLive);
  EXPECT_EQ(editor_.loads, 1);
  EXPECT_TRUE(editor_.opened.empty());
  EXPECT_TRUE(boxes_.asked.empty());
}

TEST_F(ClassMainTest, APathIsOpened) {
  Start(u"page.htm");
  EXPECT_EQ(editor_.opened, std::vector<std::u16string>{u"page.htm"});
}

TEST_F(ClassMainTest, AnUnknownSwitchLeavesTheEditorOpenWithItsBox) {
  EXPECT_EQ(Start(u"/sl C:\\x"), ClassMain::kLive);
  ASSERT_EQ(boxes_.asked.size(), 1u);
  EXPECT_EQ(boxes_.asked[0].text, u"\"/sl C:\\x\" は無効なｽｲｯﾁです");
  EXPECT_EQ(boxes_.asked[0].caption, u"ｽｲｯﾁｴﾗｰ Kestrile");
  EXPECT_EQ(boxes_.asked[0].icon, MessageIcon::Exclamation);
  EXPECT_TRUE(editor_.opened.empty());
}

TEST_F(ClassMainTest, VersionIsShownWithoutTheEditor) {
  EXPECT_EQ(Start(u"/?"), ClassMain::kEnd);
  EXPECT_EQ(editor_.loads, 0);
  ASSERT_EQ(boxes_.asked.size(), 1u);
  EXPECT_EQ(boxes_.asked[0].icon, MessageIcon::None);
}

TEST_F(ClassMainTest, AsManyProcessesAsTheLimitSaysMayRunAndOneMoreIsRefused) {
  environment_.processes.assign(5, environment_.executable);
  EXPECT_EQ(Start(u""), ClassMain::kLive);
  environment_.processes.assign(6, environment_.executable);
  EXPECT_EQ(Start(u""), ClassMain::kEnd);
  ASSERT_EQ(boxes_.asked.size(), 1u);
  EXPECT_EQ(boxes_.asked[0].text, u"\"Kestri\"は 5個以上起動できないように設定されています");
  EXPECT_EQ(boxes_.asked[0].icon, MessageIcon::Critical);
}

TEST_F(ClassMainTest, TheLimitComesFromTheSettings) {
  WriteSettings("[Setting]\r\nAppECount=1\r\n");
  environment_.processes.assign(2, environment_.executable);
  EXPECT_EQ(Start(u""), ClassMain::kEnd);
  EXPECT_EQ(boxes_.asked.at(0).text, u"\"Kestri\"は 1個以上起動できないように設定されています");
}

TEST_F(ClassMainTest, OtherProgramsDoNotCount) {
  environment_.processes.assign(50, u"/usr/bin/cat");
  EXPECT_EQ(Start(u""), ClassMain::kLive);
}

TEST_F(ClassMainTest, FailuresOfTheEnvironmentAreCollectedInOneBox) {
  environment_.folders[SystemFolder::Windows] = u"";
  environment_.folders[SystemFolder::System] = u"/";
  EXPECT_EQ(Start(u""), ClassMain::kEnd);
  ASSERT_EQ(boxes_.asked.size(), 1u);
  EXPECT_EQ(boxes_.asked[0].text,
            u"\r\n・ｼｽﾃﾑﾃﾞｨﾚｸﾄﾘが取得できません(不明なｴﾗｰです)"
            u"\r\n・SYSTEMﾌｫﾙﾀﾞがﾙｰﾄに設定されている時は起動できません");
  EXPECT_EQ(editor_.loads, 0);
}

TEST_F(ClassMainTest, DamagedSettingsEndTheProcess) {
  editor_.settingsUsable = false;
  EXPECT_EQ(Start(u"page.htm"), ClassMain::kEnd);
  EXPECT_TRUE(editor_.opened.empty());
}

}  // namespace
}  // namespace kestri
