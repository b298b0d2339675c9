#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class ConfirmDiscard : public DocumentTest {
 protected:
  void SetUp() override {
    path = MakeFile("a.txt", "old\r\n");
    ASSERT_TRUE(Open(path));
    Type(u"x");
  }
  std::u16string path;
};

TEST_F(ConfirmDiscard, UnchangedDocumentIsLeftWithoutQuestion) {
  ASSERT_TRUE(Open(path));
  EXPECT_TRUE(document->ConfirmDiscard(u"終了"));
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(ConfirmDiscard, BoxNamesTheCommandAndTheFile) {
  document->ConfirmDiscard(u"終了");
  ExpectBox(OnlyBox(), u"終了  Kestrile", u"ﾃﾞｰﾀが変更されています  上書き保存をしますか?\r\n\"a.txt\"",
            MessageIcon::Exclamation, MessageButtons::YesNoCancel, 1);
}

TEST_F(ConfirmDiscard, WithoutCaptionTheBoxSaysWhatHappened) {
  document->ConfirmDiscard(u"");
  EXPECT_EQ(ToUtf8(OnlyBox().caption), "ﾃﾞｰﾀが変更されています  Kestrile");
}

TEST_F(ConfirmDiscard, NewDocumentIsNamedAsItStands) {
  document->ApplyOpenedFile(Work("無題.htm"), ReadOnly::No, u"CR+LF");
  Type(u"x");
  document->ConfirmDiscard(u"開く");
  EXPECT_EQ(ToUtf8(OnlyBox().text), "ﾃﾞｰﾀが変更されています  上書き保存をしますか?\r\n\"無題.htm\"");
}

TEST_F(ConfirmDiscard, CancelStays) {
  boxes.answers.push_back(MessageAnswer::Cancel);
  EXPECT_FALSE(document->ConfirmDiscard(u"終了"));
  EXPECT_EQ(Bytes(path), "old\r\n");
}

TEST_F(ConfirmDiscard, NoLeavesWithoutSaving) {
  boxes.answers.push_back(MessageAnswer::No);
  EXPECT_TRUE(document->ConfirmDiscard(u"終了"));
  EXPECT_EQ(Bytes(path), "old\r\n");
  EXPECT_EQ(state.modified, -1);
}

TEST_F(ConfirmDiscard, YesSavesAndLeaves) {
  boxes.answers.push_back(MessageAnswer::Yes);
  EXPECT_TRUE(document->ConfirmDiscard(u"終了"));
  EXPECT_EQ(Bytes(path), "xold\r\n");
}

TEST_F(ConfirmDiscard, FailedSaveStays) {
  boxes.answers.push_back(MessageAnswer::Yes);
  files.faultyReplace = path;
  EXPECT_FALSE(document->ConfirmDiscard(u"終了"));
  EXPECT_EQ(dialogs.saves.size(), 1U);
  EXPECT_EQ(state.modified, -1);
}

}  // namespace
}  // namespace kestri
