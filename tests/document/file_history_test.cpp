#include "document/file_history.hpp"

#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class History : public DocumentTest {
 protected:
  FileHistory history{*common};
  std::u16string At(int index) const {
    return history.Entries(u"Empty!!").at(static_cast<std::size_t>(index));
  }
  static std::u16string Numbered(int i) { return u"/d/" + ToText(i) + u".txt"; }
};

TEST_F(History, NewestStandsFirst) {
  history.RegisterHistory(u"/d/a.txt");
  history.RegisterHistory(u"/d/b.txt");
  EXPECT_EQ(Get(u"FileReg", u"FileReg00"), u"/d/b.txt");
  EXPECT_EQ(Get(u"FileReg", u"FileReg01"), u"/d/a.txt");
  EXPECT_EQ(At(2), u"Empty!!");
}

TEST_F(History, OpeningTheNewestAgainLeavesItFirstWithoutDuplicate) {
  history.RegisterHistory(u"/d/a.txt");
  history.RegisterHistory(u"/d/b.txt");
  history.RegisterHistory(u"/D/B.TXT");
  EXPECT_EQ(At(0), u"/D/B.TXT");
  EXPECT_EQ(At(1), u"/d/a.txt");
  EXPECT_EQ(At(2), u"Empty!!");
}

TEST_F(History, TwentyFirstFilePushesTheFirstOut) {
  for (int i = 1; i <= 21; ++i) history.RegisterHistory(Numbered(i));
  EXPECT_EQ(At(0), Numbered(21));
  EXPECT_EQ(At(19), Numbered(2));
  EXPECT_EQ(Get(u"FileReg", u"FileReg20"), u"(none)");
}

TEST_F(History, WithOutDelAMissingFileVanishesAtTheNextOne) {
  const auto kept = MakeFile("kept.txt", "");
  history.RegisterHistory(kept);
  history.RegisterHistory(u"/d/missing.txt");
  history.RegisterHistory(kept);
  EXPECT_EQ(At(1), u"/d/missing.txt");
  Set(u"FileReg", u"OutDel", u"1");
  history.RegisterHistory(Work("new.txt"));
  EXPECT_EQ(At(0), Work("new.txt"));
  EXPECT_EQ(At(1), kept);
  EXPECT_EQ(At(2), u"Empty!!");
}

TEST_F(History, EmptyPlacesInTheMiddleStayWithoutOutDel) {
  Set(u"FileReg", u"FileReg02", u"/d/third.txt");
  history.RegisterHistory(u"/d/new.txt");
  EXPECT_EQ(At(0), u"/d/new.txt");
  EXPECT_EQ(At(1), u"Empty!!");
  EXPECT_EQ(At(3), u"/d/third.txt");
}

TEST_F(History, PathThatTheSettingsCannotHoldIsNotRemembered) {
  const std::u16string longPath = u"/" + std::u16string(255, u'x');
  for (const std::u16string& path :
       {std::u16string(u"/d/é.txt"), std::u16string(u"/d/a\nFileReg00=/etc/passwd"),
        std::u16string(u"/d/blank "), longPath, std::u16string()}) {
    history.RegisterHistory(path);
  }
  EXPECT_EQ(At(0), u"Empty!!");
  history.RegisterHistory(u"/日本語/表=能.htm");
  EXPECT_EQ(At(0), u"/日本語/表=能.htm");
}

TEST_F(History, ClearRemovesTheWholeSection) {
  history.RegisterHistory(u"/d/a.txt");
  Set(u"FileReg", u"OutDel", u"1");
  history.Clear();
  EXPECT_EQ(At(0), u"Empty!!");
  EXPECT_EQ(Get(u"FileReg", u"OutDel"), u"(none)");
}

TEST_F(History, OpenAndSaveRegisterTheFile) {
  const auto a = MakeFile("a.txt", "a\r\n");
  ASSERT_TRUE(Open(a));
  EXPECT_EQ(At(0), a);
  ASSERT_TRUE(document->WriteDocument(Work("b.txt")));
  EXPECT_EQ(At(0), Work("b.txt"));
  EXPECT_EQ(At(1), a);
}

}  // namespace
}  // namespace kestri
