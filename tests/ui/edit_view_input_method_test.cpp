// The input method: pre-edit in the line, commit in one piece, what the method may ask.
#include <gtest/gtest.h>

#include <QTextCharFormat>

#include "tests/ui/edit_view_desk.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

void Compose(EditViewDesk& desk, const QString& text, int cursor) {
  QTextCharFormat underline;
  underline.setUnderlineStyle(QTextCharFormat::DashUnderline);
  QInputMethodEvent event(text,
                          {{QInputMethodEvent::Cursor, cursor, 1, QVariant()},
                           {QInputMethodEvent::TextFormat, 0, static_cast<int>(text.size()), underline}});
  QApplication::sendEvent(&desk.view, &event);
}

void Commit(EditViewDesk& desk, const QString& text, int from = 0, int length = 0) {
  QInputMethodEvent event;
  event.setCommitString(text, from, length);
  QApplication::sendEvent(&desk.view, &event);
}

TEST(EditViewInputMethod, PreeditStandsInTheLineButNotInTheText) {
  EditViewDesk desk;
  desk.Put(u"<p>‸</p>");
  const double before = desk.view.XOf(7);
  Compose(desk, QStringLiteral("にほん"), 3);
  EXPECT_TRUE(desk.view.Composing());
  EXPECT_EQ(desk.Row(), "<p>‸</p>");
  EXPECT_FALSE(desk.Control().EM_CANUNDO());
  EXPECT_DOUBLE_EQ(desk.view.XOf(7) - before, 6 * desk.view.Style().cell);
}

TEST(EditViewInputMethod, TheCaretStandsWhereTheMethodPutsIt) {
  EditViewDesk desk;
  desk.Put(u"ab‸");
  const int atEnd = desk.view.CaretRect().left();
  Compose(desk, QStringLiteral("かな"), 1);
  EXPECT_EQ(desk.view.CaretRect().left(), atEnd + std::lround(2 * desk.view.Style().cell));
  const QRect asked = desk.view.inputMethodQuery(Qt::ImCursorRectangle).toRect();
  EXPECT_EQ(asked, desk.view.CaretRect().translated(desk.view.viewport()->geometry().topLeft()));
}

TEST(EditViewInputMethod, CommitIsOneUndoStep) {
  EditViewDesk desk;
  desk.Put(u"‸");
  Compose(desk, QStringLiteral("にほんご"), 4);
  Commit(desk, QStringLiteral("日本語"));
  EXPECT_FALSE(desk.view.Composing());
  EXPECT_EQ(desk.Row(), "日本語‸");
  desk.Press(u"{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "‸");
}

TEST(EditViewInputMethod, CommitReplacesTheSelectionOnlyThen) {
  EditViewDesk desk;
  desk.Put(u"a⟦bc⟧d");
  Compose(desk, QStringLiteral("に"), 1);
  EXPECT_EQ(desk.Row(), "a⟦bc⟧d");
  Commit(desk, QStringLiteral("二"));
  EXPECT_EQ(desk.Row(), "a二‸d");
}

TEST(EditViewInputMethod, CancellingLeavesTheTextAsItWas) {
  EditViewDesk desk;
  desk.Put(u"a⟦bc⟧d");
  Compose(desk, QStringLiteral("に"), 1);
  Compose(desk, QString(), 0);
  EXPECT_FALSE(desk.view.Composing());
  EXPECT_EQ(desk.Row(), "a⟦bc⟧d");
  EXPECT_FALSE(desk.Control().Modified());
}

TEST(EditViewInputMethod, KeysWhileComposingChangeNothing) {
  EditViewDesk desk;
  desk.Put(u"<p‸");
  Compose(desk, QStringLiteral("に"), 1);
  bool filtered = false;
  desk.view.keyFilter = [&](QKeyEvent&) { return filtered = true; };
  desk.Press(u"{Enter}{Tab} {Left}{Esc}<x");
  EXPECT_EQ(desk.Row(), "<p‸");
  EXPECT_FALSE(filtered);
  EXPECT_FALSE(desk.Noted("popup: 1"));
  EXPECT_TRUE(desk.view.Composing());
}

TEST(EditViewInputMethod, ACompositionThatStartsIsToldOnce) {
  EditViewDesk desk;
  int told = 0;
  desk.view.compositionStarted = [&] { ++told; };
  Compose(desk, QStringLiteral("k"), 1);
  Compose(desk, QStringLiteral("か"), 1);
  EXPECT_EQ(told, 1);
  Commit(desk, QStringLiteral("か"));
  Compose(desk, QStringLiteral("n"), 1);
  EXPECT_EQ(told, 2);
}

TEST(EditViewInputMethod, CommitWithReplacementTakesTheTextBeside) {
  EditViewDesk desk;
  desk.Put(u"きしゃ‸で");
  Commit(desk, QStringLiteral("記者"), -3, 3);
  EXPECT_EQ(desk.Row(), "記者‸で");
}

TEST(EditViewInputMethod, ALockedTextIsNotComposedIn) {
  EditViewDesk desk;
  desk.Put(u"a‸");
  desk.Control().SetLocked(true);
  Compose(desk, QStringLiteral("に"), 1);
  Commit(desk, QStringLiteral("二"));
  EXPECT_EQ(desk.Row(), "a‸");
  EXPECT_FALSE(desk.view.Composing());
  EXPECT_FALSE(desk.view.inputMethodQuery(Qt::ImEnabled).toBool());
}

TEST(EditViewInputMethod, SurroundingTextIsTheLineWithinAThousandCharacters) {
  EditViewDesk desk;
  desk.Put(u"上の行\nab⟦cd⟧ef\n下の行");
  EXPECT_EQ(desk.view.inputMethodQuery(Qt::ImSurroundingText).toString(), "abcdef");
  EXPECT_EQ(desk.view.inputMethodQuery(Qt::ImCursorPosition).toInt(), 4);
  EXPECT_EQ(desk.view.inputMethodQuery(Qt::ImAnchorPosition).toInt(), 2);
  EXPECT_EQ(desk.view.inputMethodQuery(Qt::ImCurrentSelection).toString(), "cd");
  desk.PutText(std::u16string(5000, u'x'));
  desk.Control().SetSelStart(3000);
  EXPECT_EQ(desk.view.inputMethodQuery(Qt::ImSurroundingText).toString().size(), 2000);
  EXPECT_EQ(desk.view.inputMethodQuery(Qt::ImCursorPosition).toInt(), 1000);
}

TEST(EditViewInputMethod, PreeditInALongLineOpensAtTheCaret) {
  EditViewDesk desk;
  desk.PutText(std::u16string(20000, u'x'));
  desk.Control().SetSelStart(10000);
  desk.view.ScrollCaret();
  desk.Settle();
  const int left = desk.view.CaretRect().left();
  Compose(desk, QStringLiteral("かな"), 2);
  EXPECT_EQ(desk.view.CaretRect().left(), left + std::lround(4 * desk.view.Style().cell));
  Commit(desk, QStringLiteral("仮名"));
  EXPECT_EQ(desk.Control().Slice(9999, 4), u"x仮名x");
}

TEST(EditViewInputMethod, ARequestThatReachesOutOfTheTextReplacesNothing) {
  for (const auto& [from, length] : {std::pair{-2, 2}, {-3, 3}, {-1, 100}, {5, 1}}) {
    EditViewDesk desk;
    desk.Put(u"a‸bc");
    Commit(desk, QStringLiteral("X"), from, length);
    EXPECT_EQ(desk.Row(), "aX‸bc") << from << "," << length;
    desk.Put(u"a‸bc");
    Commit(desk, QString(), from, length);
    EXPECT_EQ(desk.Row(), "a‸bc") << from << "," << length;
  }
}

TEST(EditViewInputMethod, ARequestWithinTheTextReplacesAndDeletes) {
  EditViewDesk desk;
  desk.Put(u"ab‸c");
  Commit(desk, QStringLiteral("X"), -1, 1);
  EXPECT_EQ(desk.Row(), "aX‸c");
  Commit(desk, QString(), -2, 2);
  EXPECT_EQ(desk.Row(), "‸c");
}

TEST(EditViewInputMethod, ASelectionThatReachesOutOfTheTextIsCut) {
  EditViewDesk desk;
  desk.Put(u"ab‸c");
  QInputMethodEvent event(QString(), {{QInputMethodEvent::Selection, -5, 100, QVariant()}});
  QApplication::sendEvent(&desk.view, &event);
  EXPECT_EQ(desk.Row(), "⟦abc⟧");
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
