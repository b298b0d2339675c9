// The hint of the tag at the caret in the editor window.
#include <gtest/gtest.h>

#include "tests/shell/forms/editor_desk.hpp"

namespace kestri {
namespace {

class HTMLfrmHintTest : public testing::Test {
 protected:
  LabelText& Box() { return *desk.window->findChild<LabelText*>(QStringLiteral("LabelText")); }
  std::string Hint() { return Box().isVisible() ? Box().Lines().join(QChar(u'|')).toStdString() : ""; }

  fakes::EditorDesk desk;
};

constexpr char kAnchor[] = "ｱﾝｶｰ <A href=\"\">";

TEST_F(HTMLfrmHintTest, FollowsTheCaretIntoATag) {
  desk.Open();
  desk.Put(u"<a‸>x");
  desk.Press(u"{Left}");
  EXPECT_EQ(Hint(), kAnchor);
  desk.Press(u"{End}");
  EXPECT_EQ(Hint(), "");
}

TEST_F(HTMLfrmHintTest, ComesByTheTimerToo) {
  desk.Open();
  desk.Put(u"<a‸>");
  QTest::qWait(300);
  EXPECT_EQ(Hint(), kAnchor);
}

TEST_F(HTMLfrmHintTest, ComesOnlyWhenAskedForWhenItIsSwitchedOff) {
  desk.Set(u"Setting", u"htmlNAVkeyB_AUTO", u"0");
  desk.Open();
  desk.Put(u"<a‸>");
  desk.Press(u"{Left}");
  QTest::qWait(300);
  EXPECT_EQ(Hint(), "");
  QTest::keyClick(&desk.window->TextView(), Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(Hint(), kAnchor);
}

TEST_F(HTMLfrmHintTest, TheCommandOutsideATagSaysSo) {
  desk.Open();
  desk.Put(u"x‸");
  desk.Run("HTMLEditHINTS", 0);
  EXPECT_TRUE(desk.Pane(StatusPanes::kMessage).starts_with("ｶｰｿﾙ位置がﾀｸﾞ内ではありません ["));
  EXPECT_EQ(Hint(), "");
}

TEST_F(HTMLfrmHintTest, EscSendsItAwayUntilTheTagIsLeft) {
  desk.Open();
  desk.Put(u"<a‸ b>x");
  desk.Press(u"{Left}{Esc}");
  EXPECT_EQ(Hint(), "");
  desk.Press(u"{Right}");
  QTest::qWait(300);
  EXPECT_EQ(Hint(), "");
  desk.Press(u"{End}{Left}{Left}");
  EXPECT_EQ(Hint(), kAnchor);
}

TEST_F(HTMLfrmHintTest, APressOfTheMouseSendsItAway) {
  desk.Open();
  desk.Put(u"<a‸>");
  desk.Press(u"{Left}");
  ASSERT_EQ(Hint(), kAnchor);
  QTest::mouseClick(&Box(), Qt::LeftButton);
  EXPECT_EQ(Hint(), "");
  desk.Press(u"{Right}");
  EXPECT_EQ(Hint(), "") << "dismissed while the caret is in this tag";
}

TEST_F(HTMLfrmHintTest, TheCandidatesOpenUnderIt) {
  desk.Set(u"Setting", u"HintAnimation", u"0");
  desk.Open();
  desk.Put(u"<a‸>");
  desk.Press(u" ");
  ASSERT_TRUE(desk.window->Popup().Visible());
  EXPECT_EQ(Hint(), kAnchor);
  const QRect hint(Box().mapToGlobal(QPoint()), Box().size());
  EXPECT_FALSE(hint.intersects(desk.window->Popup().geometry()));
}

TEST_F(HTMLfrmHintTest, AnAcceptedTagShowsItsHint) {
  desk.Open();
  desk.Press(u"<a{Enter}");
  EXPECT_EQ(desk.Row(), "<A‸>");
  EXPECT_EQ(Hint(), kAnchor);
}

TEST_F(HTMLfrmHintTest, GoesWithItsDocument) {
  desk.folder.Write("page.htm", "text\r\n");
  desk.Open();
  desk.Put(u"<a‸>");
  desk.Press(u"{Left}");
  ASSERT_EQ(Hint(), kAnchor);
  desk.window->OpenDocument(desk.folder.Text(u"page.htm"));
  EXPECT_EQ(Hint(), "");
}

TEST_F(HTMLfrmHintTest, TheFontAndTheWidthAreSettings) {
  desk.PutDictionary(u"SelectTAG.lib",
                     u"[NAME]\n001=A\n[EXPLAIN]\n001=文書から文書へ\n[DEFTAG]\n001=<A href>\n");
  desk.Set(u"IMGTint", u"Worp", u"14");
  desk.Set(u"IMGTint", u"FontSize", u"20");
  desk.Open();
  desk.Put(u"<a‸>");
  desk.Press(u"{Left}");
  EXPECT_EQ(Hint(), "文書から文書へ|<A href>");
  EXPECT_GT(Box().height(), 2 * 20);
}

TEST_F(HTMLfrmHintTest, WordsOfTheUserThatAreNotThereAreToldInIt) {
  desk.Open();
  desk.Put(u"x‸");
  desk.Run("mnuCallUserInTo", 0);
  EXPECT_TRUE(Hint().starts_with(" 定義ﾌｧｲﾙを設定してください |")) << Hint();
}

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
