#include "document/document_log.hpp"

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

using ProgramLog = DocumentTest;

TEST_F(ProgramLog, LineHoldsDateTimeMessageAndQuotedSubject) {
  EXPECT_TRUE(document->WriteLog(u"開くﾃﾞｰﾀがありません", u"/tmp/a b.txt"));
  EXPECT_EQ(Log(), Encoded(u"2003/02/01 04:05:06 開くﾃﾞｰﾀがありません \"/tmp/a b.txt\"\r\n"));
}

TEST_F(ProgramLog, EmptySubjectLeavesNoQuotesAndLinesAreAppended) {
  document->WriteLog(u"one", u"");
  document->WriteLog(u"two", u"s");
  EXPECT_EQ(Log(), "2003/02/01 04:05:06 one\r\n2003/02/01 04:05:06 two \"s\"\r\n");
}

TEST_F(ProgramLog, LineBreaksInASubjectForgeNoLine) {
  document->WriteLog(u"message\r\n2003/02/01 forged", u"/tmp/a\n2003/02/01 forged\x7F");
  const std::string log = Log();
  EXPECT_EQ(log, "2003/02/01 04:05:06 message  2003/02/01 forged \"/tmp/a 2003/02/01 forged \"\r\n");
}

TEST_F(ProgramLog, ALogThatCannotBeWrittenHidesNoMessage) {
  std::filesystem::create_directory(ToUtf8(Whole("program/Kestri.log")));
  EXPECT_FALSE(Open(Work("missing.txt")));
  EXPECT_EQ(boxes.asked.size(), 1U);
}

TEST_F(ProgramLog, FailedAppendIsSwallowed) {
  files.faultyAppend = true;
  EXPECT_FALSE(document->WriteLog(u"message", u""));
  EXPECT_TRUE(boxes.asked.empty());
}

}  // namespace
}  // namespace kestri
