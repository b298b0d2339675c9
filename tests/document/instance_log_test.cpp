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
  static std::optional<std::u16string> Gone(std::int64_t) { return std::nullopt; }
};

TEST_F(Instances, CaptionTailCarriesVersionAndTwoDigitNumber) {
  EXPECT_EQ(ToUtf8(CaptionTail(7)), " - Kestrile (Version 1.0.0e07)  #07");
  EXPECT_EQ(ToUtf8(CaptionTail(12)), " - Kestrile (Version 1.0.0e07)  #12");
}

TEST_F(Instances, FirstInstanceGetsNumberOne) {
  EXPECT_EQ(log.AssignWindowNumber(Gone), 1);
  EXPECT_EQ(state.windowNumber, 1);
  EXPECT_EQ(state.captionTail, CaptionTail(1));
}

TEST_F(Instances, NumberOfALivingWindowIsPassedOver) {
  Record(u"001HWND", u"100");
  Record(u"002HWND", u"200");
  const auto captionOf = [](std::int64_t handle) -> std::optional<std::u16string> {
    return u"a.htm" + CaptionTail(handle == 100 ? 1 : 2);
  };
  EXPECT_EQ(log.AssignWindowNumber(captionOf), 3);
}

TEST_F(Instances, StaleHandleYieldsItsNumber) {
  Record(u"001HWND", u"100");
  EXPECT_EQ(log.AssignWindowNumber(Gone), 1);
}

TEST_F(Instances, HandleThatNowBelongsToAnotherProgramYieldsItsNumber) {
  Record(u"001HWND", u"100");
  EXPECT_EQ(log.AssignWindowNumber([](std::int64_t) { return std::optional<std::u16string>(u"calculator"); }),
            1);
}

TEST_F(Instances, DamagedHandleYieldsItsNumber) {
  Record(u"001HWND", u"???");
  EXPECT_EQ(log.AssignWindowNumber([](std::int64_t) { return std::optional(CaptionTail(1)); }), 1);
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

TEST_F(Instances, ClosingTheLastRemovesTheFile) {
  log.Register(u"/d/a");
  log.Unregister(InstanceLog::Others::None);
  EXPECT_FALSE(Exists(log.Path()));
}

}  // namespace
}  // namespace kestri
