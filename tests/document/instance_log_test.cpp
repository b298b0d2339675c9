#include "document/instance_log.hpp"

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class Instances : public DocumentTest {
 protected:
  InstanceLog log{*common, state};
  void Record(const char16_t* key, const char16_t* handle) {
    ASSERT_TRUE(common->SetINIex(2, log.Path(), u"HWND", key, handle));
  }
  static bool Nobody(std::int64_t) { return false; }
  static bool Everybody(std::int64_t) { return true; }
};

TEST_F(Instances, CaptionTailCarriesVersionAndTwoDigitNumber) {
  EXPECT_EQ(ToUtf8(CaptionTail(7)), " - Kestrile (Version 1.0.0e07)  #07");
  EXPECT_EQ(ToUtf8(CaptionTail(12)), " - Kestrile (Version 1.0.0e07)  #12");
}

TEST_F(Instances, FirstInstanceGetsNumberOne) {
  EXPECT_EQ(log.AssignWindowNumber(Nobody), 1);
  EXPECT_EQ(state.windowNumber, 1);
  EXPECT_EQ(state.captionTail, CaptionTail(1));
}

TEST_F(Instances, NumberIsRecordedAtOnce) {
  log.AssignWindowNumber(Nobody);
  EXPECT_EQ(FromInstanceLog(u"HWND", u"001HWND"), u"4711");
}

TEST_F(Instances, TheLastOfSeveralThatCloseTogetherTakesTheLogAlong) {
  environment.processes = {environment.executable, environment.executable};
  log.AssignWindowNumber(Nobody);
  Record(u"002HWND", u"200");
  log.Unregister(InstanceLog::Others::Running);
  EXPECT_TRUE(common->PathExists(log.Path())) << "the second one is still there";
  state.windowNumber = 2;
  log.Unregister(InstanceLog::Others::Running);
  EXPECT_FALSE(common->PathExists(log.Path())) << "each saw the other's process";
}

TEST_F(Instances, NumbersOfLivingWindowsArePassedOver) {
  Record(u"001HWND", u"100");
  Record(u"002HWND", u"200");
  EXPECT_EQ(log.AssignWindowNumber(Everybody), 3);
  EXPECT_EQ(FromInstanceLog(u"HWND", u"001HWND"), u"100");
  EXPECT_EQ(FromInstanceLog(u"HWND", u"003HWND"), u"4711");
}

TEST_F(Instances, StaleHandleYieldsItsNumberAndItsFile) {
  Record(u"001HWND", u"100");
  Record(u"002HWND", u"200");
  Record(u"003HWND", u"300");
  ASSERT_TRUE(common->SetINIex(2, log.Path(), u"OPENFILE", u"002FILE", u"/d/crashed.htm"));
  EXPECT_EQ(log.AssignWindowNumber([](std::int64_t handle) { return handle != 200; }), 2);
  EXPECT_EQ(FromInstanceLog(u"HWND", u"002HWND"), u"4711");
  EXPECT_EQ(FromInstanceLog(u"OPENFILE", u"002FILE"), u"(none)");
}

TEST_F(Instances, EntriesThatACrashLeftUnderThisVeryHandleAreForgotten) {
  Record(u"001HWND", u"4711");
  Record(u"002HWND", u"200");
  Record(u"003HWND", u"4711");
  EXPECT_EQ(log.AssignWindowNumber(Everybody), 1);
  EXPECT_EQ(FromInstanceLog(u"HWND", u"003HWND"), u"(none)");
  EXPECT_EQ(FromInstanceLog(u"HWND", u"002HWND"), u"200");
}

TEST_F(Instances, DamagedHandleYieldsItsNumber) {
  Record(u"001HWND", u"???");
  EXPECT_EQ(log.AssignWindowNumber(Everybody), 1);
}

TEST_F(Instances, LogThatCannotBeWrittenStillGivesANumber) {
  Record(u"001HWND", u"100");
  files.faultyReplace = log.Path();
  EXPECT_EQ(log.AssignWindowNumber(Everybody), 2);
  EXPECT_EQ(state.captionTail, CaptionTail(2));
  EXPECT_EQ(FromInstanceLog(u"HWND", u"002HWND"), u"(none)");
}

TEST_F(Instances, EntriesNameTheFileOrTheNumberOfAWindowWithoutOne) {
  log.AssignWindowNumber(Nobody);
  Record(u"003HWND", u"300");
  ASSERT_TRUE(common->SetINIex(2, log.Path(), u"OPENFILE", u"003FILE", u"/d/表.htm"));
  Record(u"006HWND", u"600");
  const auto entries = log.Entries(5);
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_EQ(entries[0].number, 1);
  EXPECT_EQ(entries[0].handle, 4711);
  EXPECT_EQ(ToUtf8(entries[0].file), "Win No #001");
  EXPECT_EQ(entries[1].number, 3);
  EXPECT_EQ(ToUtf8(entries[1].file), "/d/表.htm");
}

TEST_F(Instances, OpenAndSaveRecordPathAndHandle) {
  state.windowNumber = 12;
  const auto path = MakeFile("表.htm", "a\r\n");
  ASSERT_TRUE(Open(path));
  EXPECT_EQ(FromInstanceLog(u"OPENFILE", u"012FILE"), path);
  EXPECT_EQ(FromInstanceLog(u"HWND", u"012HWND"), u"4711");
  ASSERT_TRUE(document->WriteDocument(Work("b.txt")));
  EXPECT_EQ(FromInstanceLog(u"OPENFILE", u"012FILE"), Work("b.txt"));
}

TEST_F(Instances, LineBreakInAPathForgesNoEntry) {
  log.Register(u"/d/a\r\n002FILE=/d/b");
  EXPECT_EQ(FromInstanceLog(u"OPENFILE", u"001FILE"), u"/d/a  002FILE=/d/b");
  EXPECT_EQ(FromInstanceLog(u"OPENFILE", u"002FILE"), u"(none)");
}

TEST_F(Instances, ClosingOneOfTwoKeepsTheOthersEntries) {
  log.Register(u"/d/a");
  state.windowNumber = 2;
  log.Register(u"/d/b");
  log.Unregister(InstanceLog::Others::Running);
  EXPECT_EQ(FromInstanceLog(u"OPENFILE", u"001FILE"), u"/d/a");
  EXPECT_EQ(FromInstanceLog(u"OPENFILE", u"002FILE"), u"(none)");
  EXPECT_EQ(FromInstanceLog(u"HWND", u"002HWND"), u"(none)");
}

TEST_F(Instances, OneThatStartedSinceTheLastWasCountedKeepsItsEntries) {
  log.Register(u"/d/a");
  Record(u"002HWND", u"200");
  environment.processes = {environment.executable, environment.executable};
  log.Unregister(InstanceLog::Others::None);
  EXPECT_EQ(FromInstanceLog(u"HWND", u"001HWND"), u"(none)");
  EXPECT_EQ(FromInstanceLog(u"HWND", u"002HWND"), u"200");
}

TEST_F(Instances, ALogThatVanishedIsMadeAgainAndMissedByNobody) {
  log.Register(u"/d/a");
  std::filesystem::remove(ToUtf8(log.Path()));
  EXPECT_TRUE(log.Entries(5).empty());
  log.Unregister(InstanceLog::Others::Running);
  EXPECT_FALSE(Exists(log.Path()));
  ASSERT_TRUE(Open(MakeFile("b.htm", "b\r\n")));
  EXPECT_EQ(FromInstanceLog(u"OPENFILE", u"001FILE"), Work("b.htm"));
  log.Unregister(InstanceLog::Others::None);
  log.Unregister(InstanceLog::Others::None);
  EXPECT_FALSE(Exists(log.Path()));
}

TEST_F(Instances, ALogThatCannotBeWrittenStopsNeitherOpeningNorSaving) {
  std::filesystem::create_directory(ToUtf8(log.Path()));
  const auto path = MakeFile("a.htm", "a\r\n");
  ASSERT_TRUE(Open(path));
  Type(u"x");
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "xa\r\n");
  EXPECT_TRUE(boxes.asked.empty());
  log.Unregister(InstanceLog::Others::Running);
  log.Unregister(InstanceLog::Others::None);
  EXPECT_TRUE(Exists(log.Path()));
}

TEST_F(Instances, ClosingTheLastRemovesTheFile) {
  log.Register(u"/d/a");
  log.Unregister(InstanceLog::Others::None);
  EXPECT_FALSE(Exists(log.Path()));
}

TEST_F(Instances, ACopyInAnotherFolderKeepsItsEntries) {
  log.Register(u"/d/a");
  Record(u"002HWND", u"200");
  log.Unregister(InstanceLog::Others::None, [](std::int64_t handle) { return handle == 200; });
  EXPECT_EQ(FromInstanceLog(u"HWND", u"001HWND"), u"(none)");
  EXPECT_EQ(FromInstanceLog(u"HWND", u"002HWND"), u"200");
}

TEST_F(Instances, EntriesOfKilledProcessesGoWithTheLast) {
  log.Register(u"/d/a");
  Record(u"002HWND", u"200");
  log.Unregister(InstanceLog::Others::None, [](std::int64_t) { return false; });
  EXPECT_FALSE(Exists(log.Path()));
}

}  // namespace
}  // namespace kestri
