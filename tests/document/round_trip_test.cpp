// What is opened and saved again comes back byte for byte, but for the final line end that every save adds.
#include <utility>

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class RoundTrip : public DocumentTest {
 protected:
  // Opens the bytes and saves them without any other change than a character typed and taken back.
  std::string OpenAndSave(std::string_view bytes) {
    const auto path = MakeFile("a.txt", bytes);
    boxes.answers = {MessageAnswer::Yes, MessageAnswer::Yes};  // long text, unreadable bytes
    EXPECT_TRUE(Open(path));
    control.SetSelStart(control.Length() / 2);
    Type(u"x");
    control.EM_UNDO();
    state.modified = -1;
    EXPECT_TRUE(document->OverwriteSave());
    return Bytes(path);
  }
  static std::string WithFinalLineEnd(const std::string& bytes) {
    return bytes.ends_with("\r\n") ? bytes : bytes + "\r\n";
  }
};

TEST_F(RoundTrip, EveryLineEndKindSurvivesUnconverted) {
  for (const std::string bytes : {"a\r\nb\r\n", "a\rb\r", "a\nb\n", "a\r\nb\rc\nd\r\n", "\n\r\n\r", "\r\n",
                                  "\r", "\n", "\r\r\n\n", "a", "a\r\nb", "\r\n\r\n\r\n", "\n\r"}) {
    EXPECT_EQ(OpenAndSave(bytes), WithFinalLineEnd(bytes));
  }
}

TEST_F(RoundTrip, EveryLineEndKindSurvivesTheConversion) {
  Set(u"Setting", u"CRLFCheck", u"1");
  for (const std::string bytes :
       {"a\r\nb\r\n", "a\rb\r", "a\nb\n", "a\rb\nc", "\r", "\n", "a\r\nb\rc\nd", "\n\n\n"}) {
    EXPECT_EQ(OpenAndSave(bytes), WithFinalLineEnd(bytes));
  }
}

TEST_F(RoundTrip, SavingAgainAddsNothingMore) {
  for (const std::string bytes : {"a\rb\r\r\n", "a\nb\n\r\n", "a\r\n", "\r\n"}) {
    EXPECT_EQ(OpenAndSave(OpenAndSave(bytes)), bytes);
    Set(u"Setting", u"CRLFCheck", u"1");
    EXPECT_EQ(OpenAndSave(OpenAndSave(bytes)), bytes);
    Set(u"Setting", u"CRLFCheck", u"0");
  }
}

TEST_F(RoundTrip, EmptyFileAndFilesOfOneByteSurvive) {
  for (const std::string bytes : {"", "a", " ", "\xB1", "\x80", "\xA0", "\xFF", "\x7F"}) {
    EXPECT_EQ(OpenAndSave(bytes), bytes + "\r\n");
  }
  EXPECT_EQ(OpenAndSave(std::string(1, '\0')), std::string("\0\r\n", 3));
}

TEST_F(RoundTrip, EverySingleByteCharacterSurvives) {
  state.tabSpaceCount = 0;
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte == 0x1A || code_page::IsLeadByte(static_cast<unsigned char>(byte))) continue;
    bytes += {'<', static_cast<char>(byte), '>'};
  }
  EXPECT_EQ(OpenAndSave(bytes), bytes + "\r\n");
}

TEST_F(RoundTrip, TabsSurviveWhenTheyAreNotConverted) {
  state.tabSpaceCount = 0;
  EXPECT_EQ(OpenAndSave("\ta\tb\t\r\n"), "\ta\tb\t\r\n");
}

// Kept as it is, the half would take the CR of the final line end with it when the file is read again.
TEST_F(RoundTrip, HalfACharacterAtTheEndBecomesAMiddleDotAfterYes) {
  ASSERT_EQ(code_page::Decode("a\x95\r\n"), u"a・\n");
  EXPECT_EQ(OpenAndSave("a\x95"), "a\x81\x45\r\n");
}

TEST_F(RoundTrip, EveryCharacterThatTheCodePageMapsBothWaysSurvives) {
  std::string bytes;
  for (int lead = 0; lead < 256; ++lead) {
    if (!code_page::IsLeadByte(static_cast<unsigned char>(lead))) continue;
    for (int trail = 0x40; trail < 256; ++trail) {
      const std::string pair{static_cast<char>(lead), static_cast<char>(trail)};
      if (Encoded(code_page::Decode(pair)) == pair) bytes += pair;
    }
    bytes += "\r\n";
  }
  ASSERT_GT(bytes.size(), 2U * 7000U);
  EXPECT_EQ(OpenAndSave(bytes), bytes);
}

TEST_F(RoundTrip, OneLineOfTenMegabytesSurvives) {
  const std::string unit = "0123456789 " + Encoded(u"表示ソ能ｱｲｳ");
  std::string bytes;
  while (bytes.size() < 10'000'000) bytes += unit;
  bytes += "\r\n";
  EXPECT_TRUE(OpenAndSave(bytes) == bytes);
}

TEST_F(RoundTrip, AHundredMegabytesOfShortLinesSurvive) {
  const std::string line = "<P>" + Encoded(u"駅から川沿いの道を歩きました。") + "</P>\r\n";
  std::string bytes;
  bytes.reserve(100'000'000 + line.size());
  while (bytes.size() < 100'000'000) bytes += line;
  EXPECT_TRUE(OpenAndSave(bytes) == bytes);
}

TEST_F(RoundTrip, UntouchedFileIsNotWrittenAtAll) {
  const std::string bytes("a\0b\x95", 4);
  const auto path = MakeFile("a.txt", bytes);
  ASSERT_TRUE(Open(path));
  ASSERT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), bytes);
}

}  // namespace
}  // namespace kestri
