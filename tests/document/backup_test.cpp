#include "document/backup.hpp"

#include <algorithm>

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class Backups : public DocumentTest {
 protected:
  void SetUp() override {
    std::filesystem::create_directory(std::filesystem::path(folder.Path()) / "backup");
    Set(u"Path", u"UserBackUp", Whole("backup"));
  }
  std::u16string Change(const std::string& name = "a.txt") {
    auto path = MakeFile(name, "old\r\n");
    EXPECT_TRUE(Open(path));
    Type(u"x");
    return path;
  }
  std::vector<std::string> Copies() const {
    std::vector<std::string> names;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::filesystem::path(folder.Path()) / "backup")) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }
};

void ExpectDated(const std::string& name, const std::string& head, const std::string& tail) {
  ASSERT_GT(name.size(), head.size() + tail.size()) << name;
  EXPECT_TRUE(name.starts_with(head)) << name;
  EXPECT_TRUE(name.ends_with(tail)) << name;
  const auto digits = name.substr(head.size(), name.size() - head.size() - tail.size());
  EXPECT_TRUE(std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; })) << name;
}

TEST_F(Backups, NameCarriesDateTimeAndDigitsInBracketsBeforeTheExtension) {
  struct Row {
    const char16_t* path;
    const char* head;
    const char* tail;
  };
  for (const Row& row :
       {Row{u"/d/a.txt", "/b/a[20030201_040506_", "].txt"}, Row{u"/d/a", "/b/a[20030201_040506_", "]"},
        Row{u"/d/a.b.c", "/b/a.b[20030201_040506_", "].c"}, Row{u"/d.d/a", "/b/a[20030201_040506_", "]"}}) {
    ExpectDated(ToUtf8(BackupName(*common, u"/b", row.path)), row.head, row.tail);
    ExpectDated(ToUtf8(BackupName(*common, u"/b/", row.path)), row.head, row.tail);
  }
}

TEST_F(Backups, OverwritingKeepsTheOldContentInTheCopy) {
  const auto path = Change();
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(Bytes(path), "xold\r\n");
  ASSERT_EQ(Copies().size(), 1U);
  ExpectDated(Copies()[0], "a[20030201_040506_", "].txt");
  EXPECT_EQ(Bytes(Whole("backup/" + Copies()[0])), "old\r\n");
}

TEST_F(Backups, TheCopyIsAsPrivateAsTheFile) {
  const auto path = Change();
  ::chmod(ToUtf8(path).c_str(), 0600);
  EXPECT_TRUE(document->OverwriteSave());
  ASSERT_EQ(Copies().size(), 1U);
  struct stat status {};
  ASSERT_EQ(::stat(ToUtf8(Whole("backup/" + Copies()[0])).c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0600U);
}

TEST_F(Backups, OddFileNamesAreCopied) {
  for (const char* name : {"a b.txt", "\"q\".txt", "line\nbreak.txt", "é 😀.txt", "*?.txt", "-rf"}) {
    SCOPED_TRACE(name);
    Change(name);
    const auto before = Copies().size();
    EXPECT_TRUE(document->OverwriteSave());
    EXPECT_EQ(Copies().size(), before + 1);
  }
}

TEST_F(Backups, MissingFolderIsMade) {
  Set(u"Path", u"UserBackUp", Whole("new/deep"));
  Change();
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_FALSE(std::filesystem::is_empty(std::filesystem::path(folder.Path()) / "new" / "deep"));
}

TEST_F(Backups, SpokenNoMeansNoBackup) {
  for (const char16_t* value : {u"(なし)", u"(null)", u"(Null)", u"null", u"NULL", u"Null", u""}) {
    Set(u"Path", u"UserBackUp", value);
    Change();
    EXPECT_TRUE(document->OverwriteSave()) << ToUtf8(value);
  }
  EXPECT_TRUE(Copies().empty());
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(Backups, FolderThatCannotBeMadeInterruptsTheSave) {
  const auto file = MakeFile("file", "");
  Set(u"Path", u"UserBackUp", file + u"/x");
  const auto path = Change();
  EXPECT_FALSE(document->OverwriteSave());
  ExpectBox(OnlyBox(), u"ﾊﾞｯｸｱｯﾌﾟ作成ｴﾗｰ Kestrile",
            u"ﾊﾞｯｸｱｯﾌﾟﾌｧｲﾙの作成先が不明です\r\nﾊﾟｽを設定し直して下さい\r\n上書き保存は中断されました",
            MessageIcon::Critical, MessageButtons::Ok, 1);
  EXPECT_NE(Log().find(Encoded(u"ﾊﾞｯｸｱｯﾌﾟﾌｧｲﾙの作成先が不明です")), std::string::npos);
  EXPECT_EQ(Bytes(path), "old\r\n");
  EXPECT_EQ(state.modified, -1);
  EXPECT_TRUE(dialogs.saves.empty());
}

TEST_F(Backups, FailedCopyInterruptsTheSave) {
  const auto path = Change();
  files.faultyCopy = true;
  EXPECT_FALSE(document->OverwriteSave());
  ExpectBox(OnlyBox(), u"ﾊﾞｯｸｱｯﾌﾟ作成ｴﾗｰ Kestrile",
            u"ﾊﾞｯｸｱｯﾌﾟﾌｧｲﾙが作成できません\r\nﾃﾞｨｽｸ用理量 ﾌﾟﾛﾃｸﾄ を確認して下さい\r\n"
            u"上書き保存は中断されました",
            MessageIcon::Critical, MessageButtons::Ok, 1);
  EXPECT_NE(Log().find(Encoded(u"ﾊﾞｯｸｱｯﾌﾟﾌｧｲﾙが作成できません")), std::string::npos);
  EXPECT_EQ(Bytes(path), "old\r\n");
  EXPECT_EQ(state.modified, -1);
}

TEST_F(Backups, PackedBackupReplacesThePlainCopy) {
  for (const char16_t* value : {u"True", u"1", u"-1"}) {
    Set(u"Setting", u"ArcUnLha", value);
    Change();
    fallbacks.packed.clear();
    EXPECT_TRUE(document->OverwriteSave());
    ASSERT_EQ(fallbacks.packed.size(), 1U);
    EXPECT_TRUE(ToUtf8(fallbacks.packed[0]).starts_with(ToUtf8(Whole("backup/a[20030201_040506_"))));
    EXPECT_TRUE(Copies().empty());
  }
}

TEST_F(Backups, PlainCopyIsNotPackedByDefault) {
  for (const char16_t* value : {u"False", u"0"}) {
    Set(u"Setting", u"ArcUnLha", value);
    Change();
    EXPECT_TRUE(document->OverwriteSave());
  }
  EXPECT_TRUE(fallbacks.packed.empty());
}

TEST_F(Backups, FailedPackingShowsTheArchiversWordsAndKeepsThePlainCopy) {
  Set(u"Setting", u"ArcUnLha", u"True");
  fallbacks.packs = false;
  fallbacks.packMessage = u"UNLHA32.DLLが見つかりません";
  const auto path = Change();
  EXPECT_TRUE(document->OverwriteSave());
  EXPECT_EQ(ToUtf8(OnlyBox().text), "UNLHA32.DLLが見つかりません");
  EXPECT_NE(Log().find(Encoded(u"UNLHA32.DLLが見つかりません")), std::string::npos);
  EXPECT_EQ(Copies().size(), 1U);
  EXPECT_EQ(Bytes(path), "xold\r\n");
}

TEST_F(Backups, WithoutArchiversThePackingFailsInWords) {
  NoFallbacks none;
  std::u16string message;
  EXPECT_FALSE(none.PackBackup(u"/b/a.txt", message));
  EXPECT_EQ(ToUtf8(message), "UNLHA32.DLLが見つかりません");
  EXPECT_FALSE(none.SusieSupports(u"JPG"));
  EXPECT_FALSE(none.OpenArchiveQuietly(u"/b/a.zip"));
}

TEST_F(Backups, LongNamesAreCutAtACharacterSoThatTheCopyCanBeMade) {
  struct Row {
    std::string name;
    std::string head;
    std::string tail;
  };
  const auto times = [](int count, const std::string& text) {
    std::string result;
    for (int i = 0; i < count; ++i) result += text;
    return result;
  };
  for (const Row& row :
       {Row{std::string(244, 'a') + ".txt", "aaaa", "].txt"}, Row{std::string(255, 'a'), "aaaa", "]"},
        Row{times(83, "表") + ".html", "表表", "].html"}, Row{times(62, "😀") + ".htm", "😀😀", "].htm"},
        Row{"x" + times(62, "😀") + ".htm", "x😀😀", "].htm"},
        Row{"a." + std::string(250, 'e'), "[2003", "ee"}}) {
    SCOPED_TRACE(row.name);
    Change(row.name);
    const auto before = Copies().size();
    EXPECT_TRUE(document->OverwriteSave());
    ASSERT_EQ(Copies().size(), before + 1);
    const std::u16string path = BackupName(*common, u"/b", u"/d/" + FromUtf8(row.name));
    const std::string name = ToUtf8(path).substr(3);
    EXPECT_LE(name.size(), 255U);
    EXPECT_GE(name.size(), 252U);
    EXPECT_TRUE(name.starts_with(row.head)) << name;
    EXPECT_TRUE(name.ends_with(row.tail)) << name;
    EXPECT_EQ(ToUtf8(FromUtf8(name)), name);
    EXPECT_EQ(name.find("\xEF\xBF\xBD"), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace kestri
