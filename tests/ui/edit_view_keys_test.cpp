// Keys that arrive at the view: which go to the text, which to the window.
#include <gtest/gtest.h>

#include <QScrollBar>

#include "tests/ui/edit_view_desk.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

struct KeyCase {
  const char16_t* before;
  const char16_t* keys;
  const char* after;
};

TEST(EditViewKeys, ChangeTheTextAndTheCaret) {
  const KeyCase rows[] = {
      {u"‸", u"abc", "abc‸"},
      {u"ab‸c", u"{Backspace}", "a‸c"},
      {u"ab‸c", u"{Delete}", "ab‸"},
      {u"ab‸\ncd", u"{Delete}", "ab‸cd"},
      {u"ab‸\ncd", u"{Right}{Shift+Right}", "ab\n⟦c⟧d"},
      {u"日本語‸", u"{Shift+Left*2}", "日⟦‸本語⟧"},
      {u"日本語‸\n　日本", u"{Down}{Home}", "日本語\n　‸日本"},
      {u"日本語‸", u"{Ctrl+Home}x{Ctrl+End}y", "x日本語y‸"},
      {u"a⟦bc⟧d", u"{Esc}", "a‸bcd"},
      {u"‸<b>", u"{Tab}", "    ‸<b>"},
      {u"⟦a\nb⟧", u"{Tab}", "⟦    a\n    b⟧"},
      {u"⟦    a\n    b⟧", u"{Shift+Tab}", "⟦a\nb⟧"},
      {u"⟦    a\n    b⟧", u"{Ctrl+Backspace}", "⟦a\nb⟧"},
      {u"ab‸", u"{Shift+Tab}", "ab‸"},
      {u"ab‸", u"{Ctrl+Tab}", "ab‸"},
      {u"  ab‸", u"{Enter}c", "  ab\n  c‸"},
      {u"‸", u"𠮷", "𠮷‸"},
      {u"𠮷‸", u"{Backspace}", "‸"},
      {u"abc‸", u"{Ctrl+A}{Ctrl+X}", "‸"},
      {u"⟦abc⟧", u"{Ctrl+C}{Right}{Ctrl+V}", "abcabc‸"},
      {u"‸", u"ab{Ctrl+Z}", "‸"},
      {u"‸", u"ab{Ctrl+Z}{Ctrl+Shift+Z}", "ab‸"},
  };
  for (const KeyCase& row : rows) {
    EditViewDesk desk;
    desk.Put(row.before);
    if (std::u16string_view(row.keys) == u"𠮷") {
      QTest::sendKeyEvent(QTest::Click, &desk.view, Qt::Key_unknown, QStringLiteral("𠮷"), Qt::NoModifier);
    } else {
      desk.Press(row.keys);
    }
    EXPECT_EQ(desk.Row(), row.after) << ToUtf8(row.before) << " with " << ToUtf8(row.keys);
  }
}

TEST(EditViewKeys, NothingIsTypedIntoALockedText) {
  EditViewDesk desk;
  desk.Put(u"a‸bc");
  desk.Control().SetLocked(true);
  desk.Press(u"x{Enter}{Backspace}{Delete}<{Right}");
  EXPECT_EQ(desk.Row(), "ab‸c");
}

TEST(EditViewKeys, TheFilterSeesEveryKeyFirst) {
  EditViewDesk desk;
  desk.Put(u"ab‸\ncd");
  std::vector<int> seen;
  desk.view.keyFilter = [&](QKeyEvent& event) {
    seen.push_back(event.key());
    return event.key() == Qt::Key_Down;
  };
  desk.Press(u"{Down}x");
  EXPECT_EQ(desk.Row(), "abx‸\ncd");
  EXPECT_EQ(seen, (std::vector<int>{Qt::Key_Down, Qt::Key_X}));
}

TEST(EditViewKeys, MenuKeysAreLeftToTheWindow) {
  EditViewDesk desk;
  for (const auto& [key, modifiers] :
       std::vector<std::pair<Qt::Key, Qt::KeyboardModifiers>>{{Qt::Key_S, Qt::ControlModifier},
                                                              {Qt::Key_Left, Qt::AltModifier},
                                                              {Qt::Key_F3, Qt::NoModifier},
                                                              {Qt::Key_Backslash, Qt::ControlModifier},
                                                              {Qt::Key_Return, Qt::ControlModifier}}) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&desk.view, &event);
    EXPECT_FALSE(event.isAccepted()) << key;
  }
  EXPECT_EQ(desk.Row(), "‸");
}

TEST(EditViewKeys, KeysOfTheTextGoBeforeShortcuts) {
  EditViewDesk desk;
  const auto owned = [&](Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text = QString()) {
    QKeyEvent event(QEvent::ShortcutOverride, key, modifiers, text);
    event.ignore();
    QApplication::sendEvent(&desk.view, &event);
    return event.isAccepted();
  };
  EXPECT_TRUE(owned(Qt::Key_Delete, Qt::NoModifier));
  EXPECT_TRUE(owned(Qt::Key_Left, Qt::ControlModifier));
  EXPECT_TRUE(owned(Qt::Key_A, Qt::NoModifier, "a"));
  EXPECT_FALSE(owned(Qt::Key_S, Qt::ControlModifier));
  EXPECT_FALSE(owned(Qt::Key_Escape, Qt::NoModifier));
  EXPECT_FALSE(owned(Qt::Key_F5, Qt::NoModifier));
}

TEST(EditViewKeys, TabNeverMovesTheFocusOut) {
  QWidget window;
  fakes::MainTextDesk desk;
  fakes::ViewHost host(desk.journal);
  MainText text(desk.control, desk.state, desk.common, host, desk.tags, desk.clipboard, desk.boxes);
  EditView view(desk.control, text, &window);
  QWidget other(&window);
  other.setFocusPolicy(Qt::StrongFocus);
  window.show();
  window.activateWindow();
  QCoreApplication::processEvents();
  view.setFocus();
  ASSERT_TRUE(view.hasFocus());
  QTest::keyClick(&view, Qt::Key_Tab);
  QTest::keyClick(&view, Qt::Key_Backtab, Qt::ShiftModifier);
  QTest::keyClick(&view, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(view.hasFocus());
  EXPECT_EQ(desk.control.Text(), u"\t");
}

TEST(EditViewKeys, APageKeyKeepsTheCaretsRow) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 200; ++i) text += u"line\r\n";
  desk.PutText(text);
  desk.Press(u"{Down*3}{PageDown}");
  const std::int32_t page = desk.view.PageLines();
  EXPECT_EQ(desk.Control().LineOf(desk.Control().Caret()), 3 + page);
  EXPECT_EQ(desk.view.FirstVisibleLine(), page);
  desk.Press(u"{PageUp}");
  EXPECT_EQ(desk.Control().LineOf(desk.Control().Caret()), 3);
  EXPECT_EQ(desk.view.FirstVisibleLine(), 0);
}

TEST(EditViewKeys, ScrollWithTheCaretAtEveryEdge) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 100; ++i) text += std::u16string(100, u'あ') + u"\r\n";
  desk.PutText(text);
  desk.Press(u"{Ctrl+End}");
  EXPECT_EQ(desk.view.FirstVisibleLine() + desk.view.VisibleRows(), 101);
  desk.Press(u"{Up}{End}");
  EXPECT_TRUE(desk.view.viewport()->rect().contains(desk.view.CaretRect()));
  EXPECT_GT(desk.view.ScrollPosition().x, 0);
  desk.Press(u"{Home}");
  EXPECT_EQ(desk.view.ScrollPosition().x, 0);
  desk.Press(u"{Ctrl+Home}");
  EXPECT_EQ(desk.view.FirstVisibleLine(), 0);
}

// Takes key releases away, as a popup over the text does.
class ReleaseThief : public QObject {
 protected:
  bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::KeyRelease; }
};

TEST(EditViewKeys, ALostReleaseOpensNoGateForTheProgramsCharacters) {
  for (const char16_t* script : {u"{Left}", u"{Home}", u"{Delete}", u"{PageDown}", u"{Ctrl+Tab}",
                                 u"{Ctrl+Shift+Tab}", u"{Shift+Right}"}) {
    EditViewDesk desk;
    desk.Put(u"‸");
    ReleaseThief thief;
    desk.view.installEventFilter(&thief);
    desk.Press(script);
    desk.text.WM_CHAR(u'<', 0);
    EXPECT_EQ(desk.Row(), "<‸") << ToUtf8(script);
    EXPECT_TRUE(desk.desk.Lines({"preset", "popup"}).empty()) << ToUtf8(script);
  }
}

TEST(EditViewKeys, KeyUpReachesTheRules) {
  EditViewDesk desk;
  desk.desk.state.htmlNAVkeyB_AUTO = 1;
  desk.Put(u"‸");
  QTest::keyPress(&desk.view, Qt::Key_A);
  EXPECT_FALSE(desk.Noted("check hint"));
  QTest::keyRelease(&desk.view, Qt::Key_A);
  EXPECT_TRUE(desk.Noted("check hint"));
}

TEST(EditViewKeys, AReleasedHomeThatWasNotPressedHereMovesNothing) {
  EditViewDesk desk;
  desk.Put(u"‸  text");
  QTest::keyRelease(&desk.view, Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(desk.Row(), "‸  text");
  desk.Press(u"{Home}");
  EXPECT_EQ(desk.Row(), "  ‸text");
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
