#include <gtest/gtest.h>

#include <random>

#include "shell/common/code_page.hpp"
#include "tests/shell/common/class_common_world.hpp"

namespace kestri {
namespace {

using fakes::PosixWorld;

class TextFiles : public testing::Test, protected PosixWorld {
 protected:
  std::optional<std::u16string> Read(std::string_view bytes, std::int64_t length = -1) {
    folder.Write("a.htm", bytes);
    std::u16string text = u"before";
    const bool read = common_.ReadTextFile(folder.Text(u"a.htm"), text, length);
    if (!read) {
      EXPECT_EQ(text, u"before");
    }
    return read ? std::optional(text) : std::nullopt;
  }
  std::string Written(std::u16string_view first, std::u16string_view second, LineEnd lineEnd) {
    EXPECT_TRUE(common_.WriteTextPieces(folder.Text(u"b.htm"), first, second, lineEnd));
    return folder.Read("b.htm");
  }
  ClassCommon common_ = Common();
};

TEST_F(TextFiles, ReadsTheCodePageAndCutsOneFinalLineEnd) {
  EXPECT_EQ(Read("\x93\xFA\x96{\r\n\xB1\r\n"), u"日本\r\nｱ");
  EXPECT_EQ(Read("a\r\n\r\n"), u"a\r\n");
  EXPECT_EQ(Read("a"), u"a");
  EXPECT_EQ(Read("a\n"), u"a\n");
  EXPECT_EQ(Read("a\r"), u"a\r");
  EXPECT_EQ(Read("\r\n"), u"");
}

TEST_F(TextFiles, AnEmptyFileIsAnEmptyText) {
  EXPECT_EQ(Read(""), u"");
}

TEST_F(TextFiles, AnEndOfFileMarkMakesTheReadFail) {
  EXPECT_EQ(Read("ab\x1A"
                 "cd"),
            std::nullopt);
  EXPECT_EQ(Read("ab\x1A"), std::nullopt);
  EXPECT_EQ(Read("\x1A"), std::nullopt);
  EXPECT_EQ(Read(std::string(5'000'000, 'x') + "\x1A"), std::nullopt);
}

TEST_F(TextFiles, ANulInsideATextIsKept) {
  EXPECT_EQ(Read(std::string("a\0b", 3)), std::u16string(u"a\0b", 3));
}

TEST_F(TextFiles, AByteCountReadsThatManyBytes) {
  EXPECT_EQ(Read("abcdef", 3), u"abc");
  EXPECT_EQ(Read("abcdef", 6), u"abcdef");
  EXPECT_EQ(Read("abcdef", 0), u"");
  EXPECT_EQ(Read("ab\r\ncd", 4), u"ab");
  EXPECT_EQ(Read("abc\x1A", 3), u"abc");
  EXPECT_EQ(Read("\x93\xFA\x96{", 3), u"日・");
}

TEST_F(TextFiles, AByteCountBehindTheEndOrBelowMinusOneFails) {
  EXPECT_EQ(Read("abcdef", 7), std::nullopt);
  EXPECT_EQ(Read("abcdef", -2), std::nullopt);
}

TEST_F(TextFiles, FoldersAndMissingFilesFail) {
  std::u16string text = u"before";
  EXPECT_FALSE(common_.ReadTextFile(folder.Text(), text, -1));
  EXPECT_FALSE(common_.ReadTextFile(folder.Text(u"missing"), text, -1));
  EXPECT_EQ(text, u"before");
  EXPECT_FALSE(common_.WriteTextFile(folder.Text(), u"x"));
  EXPECT_FALSE(common_.WriteTextFile(folder.Text(u"missing/x"), u"x"));
}

TEST_F(TextFiles, ADoubleByteCharacterMayLieOnAReadBorder) {
  for (const std::size_t shift : {0u, 1u}) {
    std::string bytes(shift, 'x');
    for (int i = 0; i < 400'000; ++i) bytes += "\x93\xFA";
    EXPECT_TRUE(Read(bytes) == std::u16string(shift, u'x') + std::u16string(400'000, u'日'));
  }
}

TEST_F(TextFiles, TheTextHasRoomToGrow) {
  folder.Write("a.htm", std::string(1000, 'x'));
  std::u16string text;
  ASSERT_TRUE(common_.ReadTextFile(folder.Text(u"a.htm"), text, -1));
  EXPECT_GE(text.capacity(), text.size() + 65536);
}

TEST_F(TextFiles, WritesTheTextAndOneLineEnd) {
  EXPECT_TRUE(common_.WriteTextFile(folder.Text(u"b.htm"), u"日本\r\nｱ"));
  EXPECT_EQ(folder.Read("b.htm"), "\x93\xFA\x96{\r\n\xB1\r\n");
  EXPECT_TRUE(common_.WriteTextFile(folder.Text(u"b.htm"), u""));
  EXPECT_EQ(folder.Read("b.htm"), "\r\n");
}

TEST_F(TextFiles, UnmappableCharactersBecomeQuestionMarks) {
  EXPECT_EQ(Written(u"a한b", u"", LineEnd::CrLf), "a?b\r\n");
}

TEST_F(TextFiles, LineEndsAreConvertedButTheFinalOneStays) {
  EXPECT_EQ(Written(u"a\r\nb\r\n\r\nc", u"", LineEnd::Cr), "a\rb\r\rc\r\n");
  EXPECT_EQ(Written(u"a\r\nb\r\n\r\nc", u"", LineEnd::Lf), "a\nb\n\nc\r\n");
  EXPECT_EQ(Written(u"a\rb\nc\n\rd\r", u"", LineEnd::Lf), "a\rb\nc\n\rd\r\r\n");
}

TEST_F(TextFiles, ALineEndMayLieOnTheBorderOfThePieces) {
  EXPECT_EQ(Written(u"a\r", u"\nb", LineEnd::Lf), "a\nb\r\n");
  EXPECT_EQ(Written(u"a\r", u"\nb", LineEnd::CrLf), "a\r\nb\r\n");
  EXPECT_EQ(Written(u"\r", u"\n", LineEnd::Cr), "\r\r\n");
  EXPECT_EQ(Written(u"a\r", u"", LineEnd::Lf), "a\r\r\n");
  EXPECT_EQ(Written(u"", u"b", LineEnd::Lf), "b\r\n");
}

TEST_F(TextFiles, ASurrogatePairOnABorderIsOneCharacter) {
  const std::u16string pair = u"😀";
  const std::string whole = Written(pair, u"", LineEnd::CrLf);
  EXPECT_EQ(Written(pair.substr(0, 1), pair.substr(1), LineEnd::CrLf), whole);
}

// Whatever the pieces, the bytes are those of the joined text with its line ends replaced.
TEST_F(TextFiles, AnyBorderGivesTheSameBytes) {
  std::minstd_rand random(7);
  const std::u16string letters = u"a\r\n日😀ｱ";
  std::u16string text;
  while (text.size() < 90'000) {
    const auto at = random() % letters.size();
    text += random() % 3 == 0 ? std::u16string(u"\r\n") : letters.substr(at, 1 + random() % 2);
  }
  for (const std::size_t border : {0u, 1u, 7u, 32768u, 32769u, 65535u, 89'999u}) {
    const auto first = std::u16string_view(text).substr(0, border);
    const auto second = std::u16string_view(text).substr(border);
    EXPECT_TRUE(Written(first, second, LineEnd::Lf) ==
                code_page::Encode(Replace(text, u"\r\n", u"\n")) + "\r\n")
        << border;
  }
}

TEST_F(TextFiles, ATextWithoutFinalLineEndRoundTrips) {
  for (const std::u16string text : {u"", u"a", u"a\r\n", u"日\r\n\r\n本"}) {
    ASSERT_TRUE(common_.WriteTextFile(folder.Text(u"c"), text));
    std::u16string again;
    ASSERT_TRUE(common_.ReadTextFile(folder.Text(u"c"), again, -1));
    EXPECT_EQ(again, text);
  }
}

TEST_F(TextFiles, AnEndOfFileMarkIsWrittenAsAQuestionMark) {
  EXPECT_EQ(Written(u"a\x1A", u"\x1A\r\n", LineEnd::Lf), "a??\n\r\n");
  EXPECT_TRUE(common_.WriteTextFile(folder.Text(u"b.htm"), u"日\x1A"));
  EXPECT_EQ(folder.Read("b.htm"), "\x93\xFA?\r\n");
}

TEST_F(TextFiles, AWholeTextIsReadUpToTheLimit) {
  using enum ClassCommon::TextRead;
  const auto read = [this](std::string_view bytes) {
    folder.Write("a.htm", bytes);
    std::u16string text = u"before";
    const auto done = common_.ReadWholeText(folder.Text(u"a.htm"), text, 4);
    return std::pair(done, ToUtf8(text));
  };
  EXPECT_EQ(read("abcd"), std::pair(Done, std::string("abcd")));
  EXPECT_EQ(read("abcd\r\n"), std::pair(Done, std::string("abcd")));
  EXPECT_EQ(read("\x93\xFA\x93\xFA\x93\xFA\x93\xFA"), std::pair(Done, std::string("日日日日")));
  EXPECT_EQ(read("abcde").first, TooLong);
  EXPECT_EQ(read(std::string(1'000'000, 'x')).first, TooLong);
  EXPECT_EQ(read("a\x1A").first, NoText);
}

}  // namespace
}  // namespace kestri
