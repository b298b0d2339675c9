// Plain text as a page, and the command that opens it.
#include "document/text_to_html.hpp"

#include <random>

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

constexpr TextToHtmlOptions Bare(Blanks blanks = Blanks::Convert) {
  return {.frame = PageFrame::None, .blanks = blanks, .title = u""};
}

std::string BodyOf(std::u16string_view text, Blanks blanks = Blanks::Convert) {
  return ToUtf8(ConvertTextToHtml(text, Bare(blanks)));
}

TEST(ConvertTextToHtml, SpecialCharactersBecomeEntities) {
  EXPECT_EQ(BodyOf(u"<A HREF=\"a&b\">"), "&lt;A&nbsp;HREF=&quot;a&amp;b&quot;&gt;");
}

TEST(ConvertTextToHtml, AnEntityInTheTextIsEscapedOnce) {
  EXPECT_EQ(BodyOf(u"&lt;"), "&amp;lt;");
  EXPECT_EQ(BodyOf(u"&&nbsp;"), "&amp;&amp;nbsp;");
}

TEST(ConvertTextToHtml, BlanksStayWhenTheyAreKept) {
  EXPECT_EQ(BodyOf(u" a  b ", Blanks::Keep), " a  b ");
  EXPECT_EQ(BodyOf(u" a  b "), "&nbsp;a&nbsp;&nbsp;b&nbsp;");
}

TEST(ConvertTextToHtml, FullWidthCharactersNeverChange) {
  EXPECT_EQ(BodyOf(u"　＜＞＆”　"), "　＜＞＆”　");
  EXPECT_EQ(BodyOf(u"\t日本語"), "\t日本語");
}

TEST(ConvertTextToHtml, EachLineEndGetsItsBreak) {
  EXPECT_EQ(BodyOf(u"一\r\n\r\n二\r\n"), "一<BR>\r\n<BR>\r\n二<BR>\r\n");
}

TEST(ConvertTextToHtml, OnlyThePairIsALineEnd) {
  EXPECT_EQ(BodyOf(u"a\rb\nc\n\rd\r"), "a\rb\nc\n\rd\r");
  EXPECT_EQ(BodyOf(u"\r\r\n\n"), "\r<BR>\r\n\n");
}

TEST(ConvertTextToHtml, AnEmptyTextGivesTheBareFrame) {
  EXPECT_EQ(ToUtf8(ConvertTextToHtml(u"", {})),
            "<HTML>\r\n\r\n<HEAD>\r\n<TITLE>タイトル</TITLE>\r\n</HEAD>\r\n\r\n"
            "<BODY>\r\n\r\n\r\n\r\n</BODY>\r\n\r\n</HTML>");
  EXPECT_EQ(BodyOf(u""), "");
}

TEST(ConvertTextToHtml, TheTitleStandsAsItWasTyped) {
  EXPECT_EQ(ToUtf8(ConvertTextToHtml(u"本文", {.title = u"A & B <1>"})),
            "<HTML>\r\n\r\n<HEAD>\r\n<TITLE>A & B <1></TITLE>\r\n</HEAD>\r\n\r\n"
            "<BODY>\r\n\r\n本文\r\n\r\n</BODY>\r\n\r\n</HTML>");
}

TEST(ConvertTextToHtml, OnePassGivesWhatOneReplacementAfterTheOtherGives) {
  std::mt19937 random(20030201);
  constexpr std::u16string_view kLetters = u"&&  <>\"\r\n\r\nal;tあ　";
  for (int round = 0; round < 2000; ++round) {
    std::u16string text;
    for (std::size_t i = random() % 40; i > 0; --i) text += kLetters[random() % kLetters.size()];
    std::u16string expected = text;
    const auto replace = [&expected](std::u16string_view find, std::u16string_view replacement) {
      expected = ClassCommon::Rermutation2(expected, find, replacement, Compare::Binary, 0);
    };
    const Blanks blanks = round % 2 == 0 ? Blanks::Convert : Blanks::Keep;
    replace(u"&", u"&amp;");
    if (blanks == Blanks::Convert) replace(u" ", u"&nbsp;");
    replace(u"<", u"&lt;");
    replace(u">", u"&gt;");
    replace(u"\"", u"&quot;");
    replace(u"\r\n", u"<BR>\r\n");
    ASSERT_EQ(BodyOf(text, blanks), ToUtf8(expected)) << ToUtf8(text);
  }
}

TEST(ConvertTextToHtml, TheResultIsAllocatedOnce) {
  const std::u16string text(10000, u'&');
  const std::u16string page = ConvertTextToHtml(text, Bare());
  EXPECT_EQ(page.size(), 50000U);
  EXPECT_EQ(page.capacity(), page.size());
}

class TextToHtmlTest : public DocumentTest {
 protected:
  TextToHtmlTest() {
    std::filesystem::create_directory(std::filesystem::path(folder.Path()) / "tmp");
    environment.folders[SystemFolder::Temporary] = Whole("tmp");
    conversion.emplace(*document, *common, boxes);
  }

  bool Run(std::u16string_view source, const TextToHtmlOptions& options = {}) {
    return conversion->Convert(source, options) && conversion->OpenTarget();
  }
  std::string Page() const { return Bytes(conversion->TargetPath()); }
  bool TemporaryFolderIsEmpty() const {
    return std::filesystem::is_empty(std::filesystem::path(folder.Path()) / "tmp");
  }
  void ExpectFailureBox(const MessageRequest& box) const {
    ExpectBox(box, u"HTMLに変換して開く",
              u"ﾃｷｽﾄのHTML型変換に失敗しました!! \r\n\r\n"
              u"・指定したﾌｧｲﾙが見つからない．\r\n"
              u"・変換中にｴﾗｰが発生した．\r\n"
              u"・一部変換できない部分がありました．\r\n"
              u"・ｻｲｽﾞが大きい．『Kestrile』では開けません．\r\n"
              u"・ﾊﾞｲﾅﾘ型である．",
              MessageIcon::Exclamation, MessageButtons::Ok, 1);
  }

  std::optional<TextToHtml> conversion;
};

TEST_F(TextToHtmlTest, TheResultOpensAsANewTemporaryFile) {
  const std::u16string source = MakeFile("memo.txt", Encoded(u"ﾒﾓ <1>\r\n二行目"));
  ASSERT_TRUE(Run(source, Bare()));
  EXPECT_EQ(ToUtf8(control.Text()), "ﾒﾓ&nbsp;&lt;1&gt;<BR>\r\n二行目");
  EXPECT_EQ(state.currentFile, conversion->TargetPath());
  EXPECT_EQ(state.lineEnd, u"CR+LF");
  EXPECT_EQ(state.modified, 0);
  EXPECT_EQ(Page(), Encoded(u"ﾒﾓ&nbsp;&lt;1&gt;<BR>\r\n二行目\r\n"));
  EXPECT_EQ(Bytes(source), Encoded(u"ﾒﾓ <1>\r\n二行目"));
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(TextToHtmlTest, TheTargetIsARandomNameInTheTemporaryFolder) {
  EXPECT_EQ(ToUtf8(conversion->TargetName()), "Html(Kestri_5).htm");
  EXPECT_EQ(conversion->TargetPath(), Whole("tmp/Html(Kestri_5).htm"));
}

TEST_F(TextToHtmlTest, AnEmptySourceGivesTheBareFrame) {
  ASSERT_TRUE(Run(MakeFile("empty.txt", "")));
  EXPECT_EQ(Page(), Encoded(ConvertTextToHtml(u"", {})) + "\r\n");
}

TEST_F(TextToHtmlTest, AnEmptyNameIsAFailure) {
  EXPECT_FALSE(Run(u""));
  ExpectFailureBox(OnlyBox());
}

TEST_F(TextToHtmlTest, ANameOfNothingIsAFailure) {
  EXPECT_FALSE(Run(Work("nothing.txt")));
  ExpectFailureBox(OnlyBox());
  EXPECT_TRUE(TemporaryFolderIsEmpty());
}

TEST_F(TextToHtmlTest, ATitleThatTheCodePageLacksIsAFailure) {
  const std::u16string source = MakeFile("memo.txt", "memo");
  EXPECT_FALSE(Run(source, {.title = u"Caf\u00E9 \U0001F600"}));
  ExpectFailureBox(OnlyBox());
  EXPECT_TRUE(TemporaryFolderIsEmpty());
  boxes.asked.clear();
  EXPECT_TRUE(Run(source, {.frame = PageFrame::None, .title = u"\u00E9"}))
      << "without a frame there is no title";
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(TextToHtmlTest, AFolderIsAFailure) {
  EXPECT_FALSE(Run(Whole("work")));
  ExpectFailureBox(OnlyBox());
}

TEST_F(TextToHtmlTest, ABinarySourceIsAFailure) {
  EXPECT_FALSE(Run(MakeFile("binary.txt", "a\x1A z")));
  ExpectFailureBox(OnlyBox());
  EXPECT_TRUE(TemporaryFolderIsEmpty());
}

TEST_F(TextToHtmlTest, AFullTemporaryFolderIsAFailure) {
  files.faultyReplace = conversion->TargetPath();
  EXPECT_FALSE(Run(MakeFile("memo.txt", "memo")));
  ExpectFailureBox(OnlyBox());
  EXPECT_FALSE(services.busy);
}

TEST_F(TextToHtmlTest, AMissingTemporaryFolderIsAFailure) {
  environment.folders.erase(SystemFolder::Temporary);
  EXPECT_FALSE(Run(MakeFile("memo.txt", "memo")));
  ExpectFailureBox(OnlyBox());
}

TEST_F(TextToHtmlTest, ARefusedOpeningIsAFailureAndLeavesNoFile) {
  boxes.answers = {MessageAnswer::No};
  EXPECT_FALSE(Run(MakeFile("large.txt", std::string(40000, 'a'))));
  ASSERT_EQ(boxes.asked.size(), 2U);
  ExpectFailureBox(boxes.asked.back());
  EXPECT_TRUE(TemporaryFolderIsEmpty());
  EXPECT_EQ(control.Text(), u"");
}

TEST_F(TextToHtmlTest, LinesOfEveryKindGetTheirBreaks) {
  for (const char* source : {"a\nb", "a\rb"}) {
    ASSERT_TRUE(Run(MakeFile("foreign.txt", source), Bare()));
    EXPECT_EQ(Page(), "a<BR>\r\nb\r\n");
    EXPECT_EQ(state.lineEnd, u"CR+LF");
  }
}

}  // namespace
}  // namespace kestri
