#include "shell/common/profile_file.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>

#include "platform/posix/posix_file_system.hpp"
#include "shell/common/code_page.hpp"
#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/temporary_folder.hpp"
#include "tests/platform/posix/failing_calls.hpp"

namespace kestri {
namespace {

using fakes::MemoryFileSystem;
using fakes::ScopedVariable;
using fakes::TemporaryFolder;

std::string After(std::string bytes, const std::function<void(ProfileContent&)>& change) {
  ProfileContent content(std::move(bytes));
  change(content);
  return content.FileBytes();
}

std::string AfterSet(std::string bytes, std::string_view section, std::string_view key,
                     std::string_view value) {
  return After(std::move(bytes), [&](ProfileContent& content) { content.Set(section, key, value); });
}

TEST(ProfileContent, ASetChangesTheValueAndNoOtherByte) {
  const std::string before = "; head\n\n [S] ; x\n  a  =  1  \n\n\tb=2\r\n\r\n\r\n[T]\rc=3";
  EXPECT_EQ(AfterSet(before, "s", "A", "new"),
            "; head\n\n [S] ; x\n  a  =  new\n\n\tb=2\r\n\r\n\r\n[T]\rc=3");
}

TEST(ProfileContent, ANewKeyGoesBehindTheLastLineOfItsSectionThatIsNotBlank) {
  EXPECT_EQ(AfterSet("[S]\r\na=1\r\n; c\r\n\r\n\r\n[T]\r\nb=2\r\n", "S", "n", "9"),
            "[S]\r\na=1\r\n; c\r\nn=9\r\n\r\n\r\n[T]\r\nb=2\r\n");
  EXPECT_EQ(AfterSet("[S]\r\n\r\n[T]\r\n", "S", "n", "9"), "[S]\r\nn=9\r\n\r\n[T]\r\n");
}

TEST(ProfileContent, ANewSectionGoesToTheEndWithoutABlankLine) {
  EXPECT_EQ(AfterSet("[S]\r\na=1\r\n\r\n", "T", "b", "2"), "[S]\r\na=1\r\n\r\n[T]\r\nb=2\r\n");
  EXPECT_EQ(AfterSet("", "T", "b", "2"), "[T]\r\nb=2\r\n");
}

TEST(ProfileContent, AnOpenLastLineIsEndedFirst) {
  EXPECT_EQ(AfterSet("[S]\na=1", "S", "b", "2"), "[S]\na=1\r\nb=2\r\n");
  EXPECT_EQ(AfterSet("[S]\na=1", "T", "b", "2"), "[S]\na=1\r\n[T]\r\nb=2\r\n");
}

TEST(ProfileContent, AnEqualValueChangesNothing) {
  const std::string before = "[S]\na =  1  \n";
  EXPECT_EQ(AfterSet(before, "S", "a", "1"), before);
  EXPECT_EQ(AfterSet(before, "S", "a", " 1 "), before);
}

TEST(ProfileContent, TheSpellingOfNamesInTheFileStays) {
  EXPECT_EQ(AfterSet("[Setting]\r\nViweS=1\r\n", "SETTING", "viwes", "2"), "[Setting]\r\nViweS=2\r\n");
}

TEST(ProfileContent, AValueIsOneLine) {
  EXPECT_EQ(AfterSet("", "S", "a", "1\r\n[T]\r\nb=2"), "[S]\r\na=1\r\n");
  EXPECT_EQ(AfterSet("", "S\r\nx", "a\nb", "1"), "[S]\r\na=1\r\n");
}

TEST(ProfileContent, KeysInFrontOfTheFirstHeaderBelongToTheNamelessSection) {
  EXPECT_EQ(ProfileContent("a=1\r\n[S]\r\na=2\r\n").Get("", "a"), "1");
  EXPECT_EQ(AfterSet("[S]\r\na=2\r\n", "", "a", "1"), "a=1\r\n[S]\r\na=2\r\n");
  EXPECT_EQ(AfterSet("; head\r\n[S]\r\n", "", "a", "1"), "; head\r\na=1\r\n[S]\r\n");
}

TEST(ProfileContent, DeletingAKeyTakesItsLineAndTheFirstOneOnly) {
  EXPECT_EQ(After("[S]\na=1\r\n; c\nA = 2\n\n", [](auto& content) { content.DeleteKey("S", " a"); }),
            "[S]\n; c\nA = 2\n\n");
}

TEST(ProfileContent, DeletingASectionTakesAllUpToTheNextHeader) {
  EXPECT_EQ(After("; h\n[S]\na=1\n; c\n\n[T]\nb=2", [](auto& content) { content.DeleteSection("s"); }),
            "; h\n[T]\nb=2");
  EXPECT_EQ(After("a=1\n[T]\n", [](auto& content) { content.DeleteSection(""); }), "a=1\n[T]\n");
}

TEST(ProfileContent, ATrailByteIsNeitherALetterNorABracket) {
  const std::string file = "[\x83\x5D]\r\n\x83\x41=1\r\n";  // [ゾ], ア
  EXPECT_EQ(ProfileContent(file).Get("\x83\x5D", "\x83\x41"), "1");
  EXPECT_EQ(ProfileContent(file).Get("\x83\x5D", "\x83\x61"), std::nullopt);
  EXPECT_EQ(ProfileContent("[\x83\x5D\r\na=1\r\n").Get("\x83", "a"), std::nullopt);
}

TEST(ProfileContent, ASectionIsListedInFileOrderWithTheFirstOfEachKey) {
  const ProfileContent content("[T]\nx=1\n[S]\n000=\"<a>\"\n;c=1\nlone\nB = 2 \nb=3\n=4\n[S]\nc=5\n");
  std::vector<std::pair<std::string, std::string>> entries;
  for (const auto& entry : content.Section("s")) entries.emplace_back(entry.key, entry.value);
  const std::vector<std::pair<std::string, std::string>> expected = {{"000", "<a>"}, {"B", "2"}, {"", "4"}};
  EXPECT_EQ(entries, expected);
  EXPECT_TRUE(content.Section("none").empty());
}

TEST(ProfileContent, AUtf16FileStaysOneAndKeepsWhatTheCodePageCannotHold) {
  const auto utf16 = [](std::u16string_view text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : text) {
      bytes += static_cast<char>(unit & 0xFF);
      bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
  };
  const std::string before = utf16(u"[S]\r\nk=한😀é\r\na=日本\r\nz=1\r\n");
  EXPECT_EQ(ProfileContent(before).Get("S", "a"), "\x93\xFA\x96{");
  EXPECT_EQ(AfterSet(before, "S", "a", "\x93\xFA"), utf16(u"[S]\r\nk=한😀é\r\na=日\r\nz=1\r\n"));
  EXPECT_EQ(AfterSet(before, "T", "b", "2"), utf16(u"[S]\r\nk=한😀é\r\na=日本\r\nz=1\r\n[T]\r\nb=2\r\n"));
  EXPECT_EQ(After(before, [](auto& content) { content.DeleteKey("S", "k"); }),
            utf16(u"[S]\r\na=日本\r\nz=1\r\n"));
}

TEST(ProfileContent, AUtf8MarkHidesTheFirstHeader) {
  EXPECT_EQ(ProfileContent("\xEF\xBB\xBF[S]\r\na=1\r\n[T]\r\nb=2\r\n").Get("S", "a"), std::nullopt);
  EXPECT_EQ(ProfileContent("\xEF\xBB\xBF[S]\r\na=1\r\n[T]\r\nb=2\r\n").Get("T", "b"), "2");
}

// A path may hold "="; such a key cannot be read back, but its line is not written again and again.
TEST(ProfileContent, AKeyThatCannotBeReadIsStillReplacedInPlace) {
  ProfileContent content("[S]\r\n");
  for (const auto* value : {"1", "2", "2", "3"}) content.Set("S", "/a=b.htm", value);
  EXPECT_EQ(content.Bytes(), "[S]\r\n/a=b.htm=3\r\n");
  content.Set("S", ";k", "1");
  content.Set("S", ";k", "2");
  content.DeleteKey("S", "/a=b.htm");
  EXPECT_EQ(content.Bytes(), "[S]\r\n;k=2\r\n");
}

TEST(ProfileFile, LongValuesAreCutToTheBufferBeforeAHalfCharacter) {
  MemoryFileSystem files;
  std::string value;
  for (int i = 0; i < 600; ++i) value += "\x93\xFA";
  files.contents[u"/s.ini"] = "[S]\r\neven=" + value + "\r\nodd=x" + value + "\r\nnext=1\r\n";
  const ProfileFile profiles(files);
  EXPECT_EQ(profiles.Get(u"/s.ini", u"S", u"even", u"", 1024), std::u16string(511, u'日'));
  EXPECT_EQ(profiles.Get(u"/s.ini", u"S", u"odd", u"", 1024), u"x" + std::u16string(511, u'日'));
  EXPECT_EQ(profiles.Get(u"/s.ini", u"S", u"even", u"", 256), std::u16string(127, u'日'));
  EXPECT_EQ(profiles.Get(u"/s.ini", u"S", u"next", u"", 256), u"1");
  EXPECT_EQ(profiles.Get(u"/s.ini", u"S", u"next", u"", 1), u"");
  EXPECT_EQ(profiles.Get(u"/s.ini", u"S", u"next", u"", 0), u"");
}

TEST(ProfileFile, AnEqualValueDoesNotTouchTheFile) {
  MemoryFileSystem files;
  files.contents[u"/s.ini"] = "[S]\na=1\n";
  EXPECT_TRUE(ProfileFile(files).Set(u"/s.ini", u"S", u"a", u"1"));
  EXPECT_TRUE(ProfileFile(files).DeleteKey(u"/s.ini", u"S", u"none"));
  EXPECT_EQ(files.writes, 0);
}

TEST(ProfileFile, DeletingFromAMissingFileCreatesNone) {
  MemoryFileSystem files;
  EXPECT_TRUE(ProfileFile(files).DeleteSection(u"/s.ini", u"S"));
  EXPECT_TRUE(files.contents.empty());
}

TEST(ProfileFile, SeveralChangesAreOneWrite) {
  MemoryFileSystem files;
  EXPECT_TRUE(ProfileFile(files).Update(u"/s.ini", [](ProfileContent& content) {
    content.Set("S", "a", "1");
    content.Set("S", "b", "2");
    content.DeleteKey("S", "a");
  }));
  EXPECT_EQ(files.writes, 1);
  EXPECT_EQ(files.contents[u"/s.ini"], "[S]\r\nb=2\r\n");
}

TEST(ProfileFile, AFailedWriteLeavesTheFileWholeAndSaysSo) {
  const TemporaryFolder folder;
  folder.Write("s.ini", "[S]\r\na=1\r\n");
  int failures = 0;
  for (int number = 1; number <= 4; ++number) {
    fakes::FailingCalls calls(number);
    PosixFileSystem files(calls);
    const bool written = ProfileFile(files).Set(folder.Text(u"s.ini"), u"S", u"a", u"2");
    EXPECT_EQ(folder.Read("s.ini"), written ? "[S]\r\na=2\r\n" : "[S]\r\na=1\r\n") << number;
    failures += written ? 0 : 1;
    folder.Write("s.ini", "[S]\r\na=1\r\n");
  }
  EXPECT_GT(failures, 0);
}

class SyncCounter : public posix::PosixCalls {
 public:
  int SyncData(int file) override {
    ++synced;
    return PosixCalls::SyncData(file);
  }
  int synced = 0;
};

TEST(ProfileFile, APowerFailureLeavesItWholeUnlessItIsVolatile) {
  const TemporaryFolder folder;
  SyncCounter calls;
  PosixFileSystem files(calls);
  const ProfileFile profiles(files);
  EXPECT_TRUE(profiles.Set(folder.Text(u"s.ini"), u"S", u"a", u"1"));
  EXPECT_EQ(calls.synced, 1);
  const auto change = [](ProfileContent& content) { content.Set("S", "a", "2"); };
  EXPECT_TRUE(profiles.Update(folder.Text(u"s.ini"), change, Keeping::Volatile));
  EXPECT_EQ(calls.synced, 1);
  EXPECT_EQ(folder.Read("s.ini"), "[S]\r\na=2\r\n");
}

TEST(ProfileFile, AReadOnlyFileIsNotWritten) {
  const TemporaryFolder folder;
  folder.Write("s.ini", "[S]\r\na=1\r\n");
  ::chmod(folder.Path("s.ini").c_str(), 0444);
  PosixFileSystem files;
  EXPECT_FALSE(ProfileFile(files).Set(folder.Text(u"s.ini"), u"S", u"a", u"2"));
  EXPECT_EQ(folder.Read("s.ini"), "[S]\r\na=1\r\n");
}

TEST(ProfileFile, AFileThatIsThereButCannotBeReadIsNotOverwritten) {
  class Unreadable : public MemoryFileSystem {
    bool Read(std::u16string_view, const ByteConsumer&) override { return false; }
  } files;
  files.contents[u"/s.ini"] = "[S]\r\na=1\r\n";
  EXPECT_FALSE(ProfileFile(files).Set(u"/s.ini", u"S", u"b", u"2"));
  EXPECT_EQ(files.contents[u"/s.ini"], "[S]\r\na=1\r\n");
}

TEST(ProfileFile, FourProcessesWritingDifferentKeysLoseNothing) {
  constexpr int kProcesses = 4;
  constexpr int kWrites = 1000;
  const TemporaryFolder folder(TemporaryFolder::Medium::Memory);
  const ScopedVariable runtime("XDG_RUNTIME_DIR", folder.Path("run"));
  std::filesystem::create_directory(folder.Path("ini"));
  const std::u16string path = folder.Text(u"ini/s.ini");
  std::vector<pid_t> children;
  for (int process = 0; process < kProcesses; ++process) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      PosixFileSystem files;
      const ProfileFile profiles(files);
      bool all = true;
      for (int i = 0; i < kWrites; ++i) {
        const std::u16string key = u"p" + ToText(process) + u"_" + ToText(i);
        all = profiles.Set(path, u"S", key, ToText(process * kWrites + i)) && all;
      }
      ::_exit(all ? 0 : 1);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) {
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  PosixFileSystem files;
  const ProfileContent content = ProfileFile(files).Load(path);
  EXPECT_EQ(content.Section("S").size(), static_cast<std::size_t>(kProcesses * kWrites));
  EXPECT_EQ(content.Get("S", "p3_999"), "3999");
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder.Path("ini"))) {
    names.push_back(entry.path().filename());
  }
  EXPECT_THAT(names, testing::ElementsAre("s.ini"));
}

}  // namespace
}  // namespace kestri
