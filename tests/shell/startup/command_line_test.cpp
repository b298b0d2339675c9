#include "shell/startup/command_line.hpp"

#include <gtest/gtest.h>

#include "platform/posix/posix_file_system.hpp"
#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

class CommandLineTest : public testing::Test {
 protected:
  CommandLineTest() { folder_.Write("a b.htm", "x"); }

  StartMode Mode(std::u16string_view line) { return ModeOf(line, common_); }
  std::u16string Path(const char* name) { return FromUtf8(folder_.Path(name)); }

  fakes::TemporaryFolder folder_;
  PosixFileSystem files_;
  fakes::FakeEnvironment environment_;
  fakes::FakeShell shell_;
  fakes::FakeClock clock_;
  fakes::FakeWindowServices window_;
  ClassCommon common_{{files_, environment_, shell_, clock_, window_}, PathStyle::Posix};
};

std::u16string Line(std::vector<std::string> words) {
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  return RawCommandLine(arguments);
}

TEST_F(CommandLineTest, NoArgumentIsNoMode) {
  EXPECT_EQ(Mode(Line({})), StartMode::None);
}

TEST_F(CommandLineTest, ArgumentsAreJoinedByOneBlankAndKeptAsTheyStand) {
  EXPECT_EQ(Line({"/x/a", "b.htm"}), u"/x/a b.htm");
  EXPECT_EQ(Line({"/SL ", ""}), u"/SL  ");
  EXPECT_EQ(Line({" \"/x/a b.htm\" "}), u" \"/x/a b.htm\" ");
}

TEST_F(CommandLineTest, APathWithBlanksIsOnePathQuotedOrNot) {
  EXPECT_EQ(WithoutQuotes(Line({"/x/a", "b.htm"})), u"/x/a b.htm");
  EXPECT_EQ(WithoutQuotes(Line({"\"/x/a b.htm\""})), u"/x/a b.htm");
  EXPECT_EQ(WithoutQuotes(Line({"  /x/a.htm "})), u"/x/a.htm");
  EXPECT_EQ(WithoutQuotes(u"\"/x/a.htm"), u"\"/x/a.htm");
}

TEST_F(CommandLineTest, WindowSwitchesAreFourCharactersInUpperCase) {
  const std::pair<const char16_t*, WindowSwitch> rows[] = {
      {u"/SL x", WindowSwitch::ImageSlides}, {u"/CI x", WindowSwitch::ImageConversion},
      {u"/CL x", WindowSwitch::Compile},     {u"/DA x", WindowSwitch::Unpack},
      {u"/AC x", WindowSwitch::Pack},        {u"/AC ", WindowSwitch::Pack},
      {u"/AC", WindowSwitch::None},          {u"/ac x", WindowSwitch::None},
      {u" /AC x", WindowSwitch::None},       {u"/AC\tx", WindowSwitch::None},
      {u"/ACx x", WindowSwitch::None},       {u"", WindowSwitch::None},
  };
  for (const auto& [line, expected] : rows)
    EXPECT_EQ(WindowSwitchOf(line, common_), expected) << ToUtf8(line);
}

TEST_F(CommandLineTest, TheArgumentOfASwitchIsEverythingBehindIt) {
  EXPECT_EQ(SwitchArgument(u"/SL /x/a b"), u"/x/a b");
  EXPECT_EQ(SwitchArgument(u"/SL  \"/x/a b\" "), u"/x/a b");
  EXPECT_EQ(SwitchArgument(u"/SL "), u"");
  EXPECT_EQ(SwitchArgument(u"/S"), u"");
}

TEST_F(CommandLineTest, AnExistingAbsolutePathIsAFileThoughItBeginsWithASlash) {
  EXPECT_EQ(Mode(Path("a b.htm")), StartMode::File);
  EXPECT_EQ(Mode(folder_.Text()), StartMode::File);
}

TEST_F(CommandLineTest, ANewNameInAnExistingFolderIsAFile) {
  EXPECT_EQ(Mode(Path("new.htm")), StartMode::File);
}

TEST_F(CommandLineTest, SwitchesWorkInAnyCaseButOnlyAlone) {
  EXPECT_EQ(Mode(u"/SN"), StartMode::NewDocumentWindow);
  EXPECT_EQ(Mode(u"/sn"), StartMode::NewDocumentWindow);
  EXPECT_EQ(Mode(u"/sf"), StartMode::FileList);
  EXPECT_EQ(Mode(WithoutQuotes(Line({"/SN "}))), StartMode::NewDocumentWindow);
  EXPECT_EQ(Mode(u"/SN x"), StartMode::UnknownSwitch);
  EXPECT_EQ(Mode(u"/SL"), StartMode::UnknownSwitch);
  EXPECT_EQ(Mode(u"/sl C:\\x"), StartMode::UnknownSwitch);
}

TEST_F(CommandLineTest, ANameInTheRootThatDoesNotExistIsASwitch) {
  EXPECT_EQ(Mode(u"/no-such-name"), StartMode::UnknownSwitch);
}

TEST_F(CommandLineTest, ARelativeNameIsAFile) {
  EXPECT_EQ(Mode(u"page.htm"), StartMode::File);
}

TEST_F(CommandLineTest, VersionIsAskedByExactlyOneSwitch) {
  EXPECT_TRUE(AsksForVersion(u"/?", common_));
  EXPECT_FALSE(AsksForVersion(u"/?x", common_));
}

TEST_F(CommandLineTest, AFileInTheRootThatIsNamedLikeASwitchIsAFile) {
  fakes::MemoryFileSystem root;
  const ClassCommon common({root, environment_, shell_, clock_, window_}, PathStyle::Posix);
  for (const char16_t* line : {u"/sn", u"/SN", u"/sf", u"/SF", u"/?", u"/x"}) {
    root.contents = {{line, "x"}};
    EXPECT_EQ(ModeOf(line, common), StartMode::File) << ToUtf8(line);
    EXPECT_FALSE(AsksForVersion(line, common)) << ToUtf8(line);
  }
  root.contents = {{u"/sn", "x"}};
  EXPECT_EQ(ModeOf(u"/SN", common), StartMode::NewDocumentWindow) << "another name";
  EXPECT_EQ(ModeOf(u"/sf", common), StartMode::FileList);
  EXPECT_TRUE(AsksForVersion(u"/?", common));
}

TEST_F(CommandLineTest, TheVersionTextNamesVersionAndSwitches) {
  const std::u16string text = VersionText(1, 2, 3);
  EXPECT_TRUE(text.starts_with(u"Kestrile Ver.01.02.003e07\r\n\r\n● ｺﾏﾝﾄﾞﾗｲﾝ引数\r\n ・/SL ...  "));
  EXPECT_NE(text.find(u"\r\n ・/?  ...  ﾊﾞｰｼﾞｮﾝを表示\r\n\r\n"), std::u16string::npos);
}

}  // namespace
}  // namespace kestri
