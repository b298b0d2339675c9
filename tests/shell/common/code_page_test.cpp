#include "shell/common/code_page.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tests/fakes/oracle_rows.hpp"

namespace kestri::code_page {
namespace {

using fakes::HexBytes;
using fakes::HexUnits;
using fakes::OracleRow;

const std::string kData = KESTRI_TEST_DATA;

std::u16string DecodeInPieces(std::string_view bytes, const std::vector<std::size_t>& cuts) {
  Decoder decoder;
  std::u16string text;
  std::size_t begin = 0;
  for (const std::size_t cut : cuts) {
    decoder.Append(bytes.substr(begin, cut - begin), text);
    begin = cut;
  }
  decoder.Append(bytes.substr(begin), text);
  decoder.Finish(text);
  return text;
}

// Japanese markup with every kind of character, some of it malformed.
std::string RandomBytes(std::mt19937& random, std::size_t size) {
  static const std::vector<std::string> kWords = {"<a href=\"x.htm\">",
                                                  "\x82\xA0\x82\xA2",
                                                  "\x93\xFA\x96\x7B\x8C\xEA",
                                                  "\xB1\xB2\xDE",
                                                  "\r\n",
                                                  "\x83\x5C\x95\x5C",
                                                  "\x81",
                                                  "\x81\x3C",
                                                  "\xFD",
                                                  "\xE0\x40",
                                                  "\x85\x40",
                                                  "abcdefghijklmnopqrstuvwxyz"};
  std::string bytes;
  while (bytes.size() < size) bytes += kWords[random() % kWords.size()];
  return bytes;
}

TEST(Unmappable, IsFoundAtEveryPlaceFromThePlaceAskedFor) {
  for (std::size_t at = 0; at < 40; ++at) {
    std::u16string text(40, u'a');
    text[39] = u'表';
    text[at] = u'é';
    for (std::size_t from = 0; from <= text.size() + 1; ++from) {
      EXPECT_EQ(FindUnmappable(text, from), from <= at ? at : text.npos) << at << " from " << from;
    }
  }
  EXPECT_EQ(FindUnmappable(u"", 0), std::u16string_view::npos);
}

TEST(CodePage, EveryRecordedByteAndDoubleByteDecodesAsRecorded) {
  int rows = 0;
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/cp932_decode.tsv")) {
    ASSERT_EQ(Decode(HexBytes(row.at(1))), HexUnits(row.at(2))) << row[1];
    ++rows;
  }
  EXPECT_EQ(rows, 256 + 60 * 189);
}

TEST(CodePage, EveryRecordedUnitEncodesAsRecorded) {
  int rows = 0;
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/cp932_encode.tsv")) {
    const std::u16string text = HexUnits(row.at(0));
    ASSERT_EQ(Encode(text), HexBytes(row.at(1))) << row[0];
    ASSERT_EQ(EncodedLength(text), HexBytes(row.at(1)).size()) << row[0];
    ASSERT_EQ(RoundTrips(text), row.at(5) == "same") << row[0];
    ++rows;
  }
  EXPECT_EQ(rows, 0xFFFF - 0x800);
}

TEST(CodePage, MalformedSequencesDecodeAndOddTextsEncodeAsRecorded) {
  int decoded = 0;
  int encoded = 0;
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/cp932_malformed.tsv")) {
    if (row.at(0) == "seq") {
      EXPECT_EQ(Decode(HexBytes(row.at(1))), HexUnits(row.at(2))) << row[1];
      ++decoded;
    } else {
      EXPECT_EQ(Encode(HexUnits(row.at(1))), HexBytes(row.at(2))) << row[1];
      EXPECT_EQ(EncodedLength(HexUnits(row.at(1))), HexBytes(row.at(2)).size()) << row[1];
      ++encoded;
    }
  }
  EXPECT_EQ(decoded, 92);
  EXPECT_EQ(encoded, 12);
}

TEST(CodePage, EmptyTextStaysEmpty) {
  EXPECT_EQ(Decode(""), u"");
  EXPECT_EQ(Encode(u""), "");
  EXPECT_EQ(EncodedLength(u""), 0u);
  EXPECT_TRUE(RoundTrips(u""));
}

TEST(CodePage, NulIsAnOrdinaryCharacter) {
  const std::u16string text(u"a\0b", 3);
  EXPECT_EQ(Encode(text), std::string("a\0b", 3));
  EXPECT_EQ(Decode(std::string_view("a\0b", 3)), text);
  EXPECT_TRUE(RoundTrips(text));
}

TEST(CodePage, LoneSurrogatesAndPairsBecomeOneQuestionMarkAUnit) {
  EXPECT_EQ(Encode(u"\xD842"), "?");
  EXPECT_EQ(Encode(u"𠮷"), "??");
  EXPECT_EQ(EncodedLength(u"a𠮷z"), 4u);
  EXPECT_FALSE(RoundTrips(u"𠮷"));
}

TEST(CodePage, AccentedLettersLoseTheirAccentAndDoNotRoundTrip) {
  EXPECT_EQ(Encode(u"café"), "cafe");
  EXPECT_FALSE(RoundTrips(u"café"));
  EXPECT_TRUE(RoundTrips(u"cafe 日本語 ｱｲｳ"));
}

TEST(CodePage, EveryDoubleByteCharacterThatMapsComesBackAsTheSameCharacter) {
  for (unsigned lead = 0x81; lead <= 0xFC; ++lead) {
    if (!IsLeadByte(static_cast<unsigned char>(lead))) continue;
    for (unsigned trail = 0x40; trail <= 0xFC; ++trail) {
      const std::string bytes = {static_cast<char>(lead), static_cast<char>(trail)};
      const std::u16string text = Decode(bytes);
      ASSERT_EQ(Decode(Encode(text)), text) << std::hex << lead << ' ' << trail;
    }
  }
}

TEST(CodePage, LeadBytesAreThoseOfTheCodePage) {
  for (int byte = 0; byte < 256; ++byte) {
    const bool lead = (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
    EXPECT_EQ(IsLeadByte(static_cast<unsigned char>(byte)), lead) << byte;
  }
}

// Blocks, chunks and the odd end of a text: the whole is always the sum of its characters.
TEST(CodePage, LongTextsConvertAsTheirCharactersDo) {
  std::mt19937 random(932);
  for (const std::size_t size : {15, 16, 17, 31, 33, 4095, 4096, 4097, 8200, 40000}) {
    const std::string bytes = RandomBytes(random, size);
    std::u16string expected;
    for (std::size_t at = 0; at < bytes.size();) {
      const bool pair = IsLeadByte(static_cast<unsigned char>(bytes[at])) && at + 1 < bytes.size();
      expected += Decode(bytes.substr(at, pair ? 2 : 1));
      at += pair ? 2 : 1;
    }
    const std::u16string text = Decode(bytes);
    ASSERT_EQ(text, expected) << size;

    std::string expectedBytes;
    for (const char16_t unit : text) expectedBytes += Encode({&unit, 1});
    ASSERT_EQ(Encode(text), expectedBytes) << size;
    ASSERT_EQ(EncodedLength(text), expectedBytes.size()) << size;
  }
}

TEST(Decoder, EverySplitOfEveryMalformedSequenceGivesTheWhole) {
  for (const OracleRow& row : fakes::ReadOracleRows(kData + "/cp932_malformed.tsv")) {
    if (row.at(0) != "seq") continue;
    const std::string bytes = HexBytes(row.at(1));
    for (std::size_t first = 0; first <= bytes.size(); ++first) {
      for (std::size_t second = first; second <= bytes.size(); ++second) {
        EXPECT_EQ(DecodeInPieces(bytes, {first, second}), Decode(bytes)) << row[1] << " cut at " << first;
      }
    }
  }
}

TEST(Decoder, EverySplitPointOfAPageGivesTheWhole) {
  std::mt19937 random(1);
  const std::string bytes = RandomBytes(random, 600);
  const std::u16string whole = Decode(bytes);
  for (std::size_t cut = 0; cut <= bytes.size(); ++cut) ASSERT_EQ(DecodeInPieces(bytes, {cut}), whole) << cut;
}

TEST(Decoder, ByteByByteGivesTheWhole) {
  std::mt19937 random(2);
  const std::string bytes = RandomBytes(random, 9000);
  std::vector<std::size_t> cuts(bytes.size());
  for (std::size_t i = 0; i < cuts.size(); ++i) cuts[i] = i;
  EXPECT_EQ(DecodeInPieces(bytes, cuts), Decode(bytes));
}

TEST(Decoder, AppendsBehindWhatIsThereAndIsNewAfterFinish) {
  Decoder decoder;
  std::u16string text = u"x";
  decoder.Append("\x82", text);
  EXPECT_EQ(text, u"x");
  decoder.Finish(text);
  EXPECT_EQ(text, u"x・");
  decoder.Append("\xA0", text);
  decoder.Finish(text);
  EXPECT_EQ(text, u"x・\uF8F0");
}

TEST(Truncate, DropsAHalfCharacterAtTheCut) {
  const std::string bytes = "a\x82\xA0\x93\xFA";
  EXPECT_EQ(Truncate(bytes, 0), "");
  EXPECT_EQ(Truncate(bytes, 1), "a");
  EXPECT_EQ(Truncate(bytes, 2), "a");
  EXPECT_EQ(Truncate(bytes, 3), "a\x82\xA0");
  EXPECT_EQ(Truncate(bytes, 4), "a\x82\xA0");
  EXPECT_EQ(Truncate(bytes, 5), bytes);
  EXPECT_EQ(Truncate(bytes, 99), bytes);
}

TEST(Truncate, TellsLeadFromTrailInARunOfLeadBytes) {
  const std::string bytes = "\x81\x81\x81\x81\x81\x81";
  EXPECT_EQ(Truncate(bytes, 3).size(), 2u);
  EXPECT_EQ(Truncate(bytes, 4).size(), 4u);
  EXPECT_EQ(Truncate("a" + bytes, 4).size(), 3u);
}

TEST(Truncate, ALeadByteBeforeANulStandsAlone) {
  EXPECT_EQ(Truncate(std::string_view("\x82\0x", 3), 1), "\x82");
}

TEST(Truncate, EveryCutKeepsWholeCharactersOnly) {
  std::mt19937 random(3);
  const std::string bytes = RandomBytes(random, 400);
  const std::u16string whole = Decode(bytes);
  for (std::size_t size = 0; size <= bytes.size(); ++size) {
    const std::string_view cut = Truncate(bytes, size);
    ASSERT_LE(cut.size(), size);
    ASSERT_GE(cut.size() + 1, size);
    ASSERT_EQ(Decode(cut) + Decode(std::string_view(bytes).substr(cut.size())), whole) << size;
  }
}

}  // namespace
}  // namespace kestri::code_page
