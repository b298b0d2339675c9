// The modes of the input method's menu in the view: what its commits become, and when it is kept out.
#include <gtest/gtest.h>

#include "tests/ui/edit_view_desk.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

void Compose(EditViewDesk& desk, const QString& text) {
  QInputMethodEvent event(text, {{QInputMethodEvent::Cursor, static_cast<int>(text.size()), 1, QVariant()}});
  QApplication::sendEvent(&desk.view, &event);
}

void Commit(EditViewDesk& desk, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&desk.view, &event);
}

void PressKey(EditViewDesk& desk, Qt::Key key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(&desk.view, &press);
}

bool Allowed(const EditViewDesk& desk) {
  return desk.view.inputMethodQuery(Qt::ImEnabled).toBool();
}

TEST(EditViewInputMode, ACommitEntersInTheModesScript) {
  EditViewDesk desk;
  desk.Put(u"‸");
  desk.view.SetInputMode(InputMode::Katakana);
  Commit(desk, QStringLiteral("かな漢字"));
  desk.view.SetInputMode(InputMode::HalfKatakana);
  Commit(desk, QStringLiteral("がな"));
  desk.view.SetInputMode(InputMode::FullAlphanumeric);
  Commit(desk, QStringLiteral("A1"));
  desk.view.SetInputMode(InputMode::HalfAlphanumeric);
  Commit(desk, QStringLiteral("Ａ１"));
  desk.view.SetInputMode(InputMode::Default);
  Commit(desk, QStringLiteral("Ａかな"));
  EXPECT_EQ(desk.Row(), "カナ漢字ｶﾞﾅＡ１A1Ａかな‸");
}

TEST(EditViewInputMode, AConvertedCommitIsOneUndoStep) {
  EditViewDesk desk;
  desk.Put(u"<p>‸");
  desk.view.SetInputMode(InputMode::HalfKatakana);
  Compose(desk, QStringLiteral("がぎ"));
  Commit(desk, QStringLiteral("がぎ"));
  EXPECT_EQ(desk.Row(), "<p>ｶﾞｷﾞ‸");
  desk.Press(u"{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "<p>‸");
}

TEST(EditViewInputMode, KeysTypedPastTheMethodEnterAsTheyAre) {
  EditViewDesk desk;
  desk.Put(u"‸");
  desk.view.SetInputMode(InputMode::FullAlphanumeric);
  desk.Press(u"a1");
  EXPECT_EQ(desk.Row(), "a1‸");
}

TEST(EditViewInputMode, TheTwoOffModesKeepTheMethodOut) {
  EditViewDesk desk;
  EXPECT_TRUE(Allowed(desk));
  for (const InputMode mode : {InputMode::Off, InputMode::OffFixed}) {
    desk.view.SetInputMode(mode);
    EXPECT_FALSE(Allowed(desk));
    desk.view.SetInputMode(InputMode::Hiragana);
    EXPECT_TRUE(Allowed(desk));
  }
}

TEST(EditViewInputMode, InModeOffTheMethodsKeyLetsItInAgain) {
  for (const Qt::Key key :
       {Qt::Key_Zenkaku_Hankaku, Qt::Key_Kanji, Qt::Key_Henkan, Qt::Key_Hiragana_Katakana}) {
    EditViewDesk desk;
    desk.Put(u"a‸");
    desk.view.SetInputMode(InputMode::Off);
    int told = 0;
    desk.view.inputModeChanged = [&] { ++told; };
    desk.Press(u"b");
    EXPECT_FALSE(Allowed(desk));
    PressKey(desk, key);
    EXPECT_TRUE(Allowed(desk));
    EXPECT_EQ(desk.view.ChosenInputMode(), InputMode::Default);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(desk.Row(), "ab‸");
  }
}

TEST(EditViewInputMode, InModeOffFixedTheMethodsKeyChangesNothing) {
  EditViewDesk desk;
  desk.view.SetInputMode(InputMode::OffFixed);
  PressKey(desk, Qt::Key_Zenkaku_Hankaku);
  EXPECT_FALSE(Allowed(desk));
  EXPECT_EQ(desk.view.ChosenInputMode(), InputMode::OffFixed);
}

TEST(EditViewInputMode, ALockedTextKeepsTheMethodOutInEveryMode) {
  EditViewDesk desk;
  desk.Control().SetLocked(true);
  desk.view.SetInputMode(InputMode::Hiragana);
  EXPECT_FALSE(Allowed(desk));
}

TEST(EditViewInputMode, AnOpenCompositionEntersInTheScriptSoFar) {
  EditViewDesk desk;
  desk.Put(u"‸");
  desk.view.SetInputMode(InputMode::Katakana);
  Compose(desk, QStringLiteral("かな"));
  desk.view.SetInputMode(InputMode::OffFixed);
  EXPECT_FALSE(desk.view.Composing());
  EXPECT_EQ(desk.Row(), "カナ‸");
}

TEST(EditViewInputMode, HalfWidthLettersAskTheMethodForLatin) {
  EditViewDesk desk;
  const auto prefersLatin = [&desk] {
    return (desk.view.inputMethodQuery(Qt::ImHints).toInt() & Qt::ImhPreferLatin) != 0;
  };
  EXPECT_FALSE(prefersLatin());
  desk.view.SetInputMode(InputMode::HalfAlphanumeric);
  EXPECT_TRUE(prefersLatin());
  EXPECT_TRUE((desk.view.inputMethodQuery(Qt::ImHints).toInt() & Qt::ImhMultiLine) != 0);
}

TEST(EditViewInputMode, ChoosingTheSameModeAgainIsNoChange) {
  EditViewDesk desk;
  int told = 0;
  desk.view.inputModeChanged = [&] { ++told; };
  desk.view.SetInputMode(InputMode::Default);
  EXPECT_EQ(told, 0);
  desk.view.SetInputMode(InputMode::Katakana);
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
