// The templates that come with the program, read as the program reads them.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "document/document_template.hpp"
#include "platform/posix/posix_file_system.hpp"
#include "shell/common/code_page.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

constexpr int kKinds[] = {2, 3, 4, 5, 6, 7, 8, 9, 12, 13, 14};
constexpr int kKindsWithout[] = {0, 1, 10, 11};

struct DataFolderEnvironment : fakes::FakeEnvironment {
  DataFolderEnvironment() { executable = FromUtf8(KESTRI_SOURCE_DIR "/data/Kestri"); }
};

class ShippedTemplates : public ::testing::Test {
 protected:
  std::string Bytes(int kind) const {
    std::ifstream file(ToUtf8(TemplatePath(common, kind)), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  std::u16string Text(int kind) const {
    std::u16string text;
    EXPECT_TRUE(common.ReadTextFile(TemplatePath(common, kind), text, -1)) << kind;
    return text;
  }

  PosixFileSystem files;
  DataFolderEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
  ClassCommon common{Ports{files, environment, shell, clock, services}, PathStyle::Posix};
};

TEST_F(ShippedTemplates, StandForTheKindsThatHaveACustomaryBeginning) {
  for (const int kind : kKinds) EXPECT_TRUE(TemplateExists(common, kind)) << kind;
  for (const int kind : kKindsWithout) EXPECT_FALSE(TemplateExists(common, kind)) << kind;
}

TEST_F(ShippedTemplates, AreShiftJisWithOneFinalCrLf) {
  for (const int kind : kKinds) {
    const std::u16string text = Text(kind);
    EXPECT_EQ(text.find(u'\uFFFD'), std::u16string::npos) << kind;
    EXPECT_EQ(code_page::Encode(text) + "\r\n", Bytes(kind)) << kind;
  }
}

TEST_F(ShippedTemplates, EndTheirLinesInCrLfOnly) {
  for (const int kind : kKinds) {
    std::u16string rest = Replace(Text(kind), kCrLf, u"");
    EXPECT_EQ(rest.find_first_of(u"\r\n"), std::u16string::npos) << kind;
  }
}

TEST_F(ShippedTemplates, HoldOneCaretMarkAndNoOtherTab) {
  for (const int kind : kKinds) {
    const std::u16string text = Text(kind);
    EXPECT_EQ(std::count(text.begin(), text.end(), u'\t'), 1) << kind;
    const auto read = ReadTemplate(common, kind);
    ASSERT_TRUE(read) << kind;
    EXPECT_EQ(read->beforeCaret + u'\t' + read->afterCaret, text) << kind;
  }
}

TEST_F(ShippedTemplates, PutTheCaretWhereTheAuthorWritesFirst) {
  const std::map<int, std::pair<std::u16string_view, std::u16string_view>> around = {
      {2, {u"<title>", u"</title>"}},         {3, {u"<title>", u"</title>"}},
      {5, {u"{\r\n    ", u"\r\n    return"}}, {9, {u"{\r\n        ", u"\r\n    }"}},
      {13, {u"【 ソフト名 】 ", u"\r\n"}},
  };
  for (const auto& [kind, sides] : around) {
    const auto read = ReadTemplate(common, kind);
    ASSERT_TRUE(read) << kind;
    EXPECT_TRUE(EndsWith(read->beforeCaret, sides.first)) << kind;
    EXPECT_TRUE(StartsWith(read->afterCaret, sides.second)) << kind;
  }
}

TEST_F(ShippedTemplates, PagesNameTheirEncodingBeforeTheFirstJapaneseLetter) {
  for (const int kind : {2, 3}) {
    const std::string page = ToUtf8(Text(kind));
    EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\r\n<html lang=\"ja\">")) << kind;
    const std::size_t charset = page.find("<meta charset=\"Shift_JIS\">");
    const auto japanese = std::find_if(page.begin(), page.end(), [](char one) { return (one & 0x80) != 0; });
    EXPECT_LT(charset, static_cast<std::size_t>(japanese - page.begin())) << kind;
  }
  EXPECT_TRUE(Bytes(4).starts_with("@charset \"Shift_JIS\";\r\n"));
}

TEST_F(ShippedTemplates, AsciiArtDraftHoldsNoBlankThatABoardWouldCollapse) {
  const std::u16string text = u"\r\n" + Replace(Text(14), u"\t", u"");
  EXPECT_EQ(text.find(u"  "), std::u16string::npos);
  EXPECT_EQ(text.find(u"\n "), std::u16string::npos);
}

}  // namespace
}  // namespace kestri
