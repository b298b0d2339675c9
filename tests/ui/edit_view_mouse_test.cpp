// Mouse, wheel, drag and drop, context menu.
#include <gtest/gtest.h>

#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QUrl>

#include "tests/ui/edit_view_desk.hpp"
#include "ui/dropped_data.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

// Middle of the row, at the caret place.
QPoint PointAt(EditViewDesk& desk, Position at) {
  const QRect place = desk.view.RectOf(at);
  return QPoint(place.left() + 1, place.center().y());
}

void Click(EditViewDesk& desk, Position at, Qt::KeyboardModifiers modifiers = {}) {
  QTest::mouseClick(desk.view.viewport(), Qt::LeftButton, modifiers, PointAt(desk, at));
}

void DoubleClick(EditViewDesk& desk, Position at) {
  const QPoint point = PointAt(desk, at);
  QTest::mouseClick(desk.view.viewport(), Qt::LeftButton, {}, point);
  QTest::mouseDClick(desk.view.viewport(), Qt::LeftButton, {}, point);
}

void Move(EditViewDesk& desk, QPoint point) {
  QMouseEvent event(QEvent::MouseMove, point, desk.view.viewport()->mapToGlobal(point), Qt::NoButton,
                    Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(desk.view.viewport(), &event);
}

TEST(EditViewMouse, AClickPutsTheCaretAndShiftExtends) {
  EditViewDesk desk;
  desk.Put(u"日本語のページ\nabcdef‸");
  Click(desk, 3);
  EXPECT_EQ(desk.Row(), "日本語‸のページ\nabcdef");
  Click(desk, 11, Qt::ShiftModifier);
  EXPECT_EQ(desk.Row(), "日本語⟦のページ\nab⟧cdef");
}

TEST(EditViewMouse, AClickBesideTheTextFindsTheNearestPlace) {
  EditViewDesk desk;
  desk.Put(u"abc\n日本‸");
  QTest::mouseClick(desk.view.viewport(), Qt::LeftButton, {}, QPoint(500, 3));
  EXPECT_EQ(desk.Row(), "abc‸\n日本");
  QTest::mouseClick(desk.view.viewport(), Qt::LeftButton, {}, QPoint(500, 300));
  EXPECT_EQ(desk.Row(), "abc\n日本‸");
  QTest::mouseClick(desk.view.viewport(), Qt::LeftButton, {}, QPoint(1, 30));
  EXPECT_EQ(desk.Row(), "abc\n‸日本");
}

TEST(EditViewMouse, AnyButtonHidesTheHint) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
    EditViewDesk desk;
    desk.Put(u"abc");
    QTest::mousePress(desk.view.viewport(), button, {}, QPoint(10, 10));
    EXPECT_TRUE(desk.Noted("hide hint"));
  }
}

TEST(EditViewMouse, TheSecondPressOfADoubleClickHidesTheHintToo) {
  EditViewDesk desk;
  desk.Put(u"abc");
  QTest::mousePress(desk.view.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
  QTest::mouseRelease(desk.view.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
  desk.desk.journal.clear();
  QTest::mouseDClick(desk.view.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
  EXPECT_TRUE(desk.Noted("hide hint"));
}

TEST(EditViewMouse, DraggingSelects) {
  EditViewDesk desk;
  desk.Put(u"‸abcdef");
  QTest::mousePress(desk.view.viewport(), Qt::LeftButton, {}, PointAt(desk, 1));
  Move(desk, PointAt(desk, 4));
  EXPECT_EQ(desk.Row(), "a⟦bcd⟧ef");
  Move(desk, PointAt(desk, 0));
  EXPECT_EQ(desk.Row(), "⟦‸a⟧bcdef");
  QTest::mouseRelease(desk.view.viewport(), Qt::LeftButton, {}, PointAt(desk, 0));
  Move(desk, PointAt(desk, 5));
  EXPECT_EQ(desk.Row(), "⟦‸a⟧bcdef");
}

TEST(EditViewMouse, DraggingBelowTheTextScrolls) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 200; ++i) text += u"line\r\n";
  desk.PutText(text);
  QTest::mousePress(desk.view.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
  Move(desk, QPoint(10, desk.view.viewport()->height() + 40));
  EXPECT_TRUE(QTest::qWaitFor([&] { return desk.view.FirstVisibleLine() > 5; }, 3000));
  QTest::mouseRelease(desk.view.viewport(), Qt::LeftButton, {}, QPoint(10, 10));
  const std::int32_t stopped = desk.view.FirstVisibleLine();
  QTest::qWait(120);
  EXPECT_EQ(desk.view.FirstVisibleLine(), stopped);
}

TEST(EditViewMouse, DoubleClickSelectsByTheBreakString) {
  EditViewDesk desk;
  desk.Put(u"<a href=\"日本語ページ\">‸");
  DoubleClick(desk, 5);
  EXPECT_EQ(desk.Row(), "<a ⟦href⟧=\"日本語ページ\">");
}

TEST(EditViewMouse, DoubleClickWithoutTheRuleSelectsAWordOfOneKind) {
  EditViewDesk desk;
  desk.desk.state.textTrp = 0;
  desk.Put(u"日本語のページ abc‸");
  DoubleClick(desk, 1);
  EXPECT_EQ(desk.Row(), "⟦日本語⟧のページ abc");
  Click(desk, 0);
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  DoubleClick(desk, 5);
  EXPECT_EQ(desk.Row(), "日本語の⟦ページ⟧ abc");
}

TEST(EditViewMouse, DraggingAfterADoubleClickGoesByWords) {
  EditViewDesk desk;
  desk.desk.state.textTrp = 0;
  desk.Put(u"one two three‸");
  QTest::mouseClick(desk.view.viewport(), Qt::LeftButton, {}, PointAt(desk, 5));
  QMouseEvent press(QEvent::MouseButtonDblClick, PointAt(desk, 5),
                    desk.view.viewport()->mapToGlobal(PointAt(desk, 5)), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(desk.view.viewport(), &press);
  EXPECT_EQ(desk.Row(), "one ⟦two⟧ three");
  Move(desk, PointAt(desk, 10));
  EXPECT_EQ(desk.Row(), "one ⟦two three⟧");
  Move(desk, PointAt(desk, 1));
  EXPECT_EQ(desk.Row(), "⟦‸one two⟧ three");
}

TEST(EditViewMouse, TripleClickSelectsTheLine) {
  EditViewDesk desk;
  desk.Put(u"first line\nsecond line\nthird‸");
  DoubleClick(desk, 15);
  QTest::mousePress(desk.view.viewport(), Qt::LeftButton, {}, PointAt(desk, 15));
  EXPECT_EQ(desk.Row(), "first line\n⟦second line⟧\nthird");
}

TEST(EditViewMouse, AClickIntoTheSelectionPutsTheCaretWhenTheButtonIsReleased) {
  EditViewDesk desk;
  desk.Put(u"a⟦bcde⟧f");
  QTest::mousePress(desk.view.viewport(), Qt::LeftButton, {}, PointAt(desk, 3));
  EXPECT_TRUE(desk.text.DragMode());
  EXPECT_EQ(desk.Row(), "a⟦bcde⟧f");
  QTest::mouseRelease(desk.view.viewport(), Qt::LeftButton, {}, PointAt(desk, 3));
  EXPECT_EQ(desk.Row(), "abc‸def");
  EXPECT_FALSE(desk.text.DragMode());
}

TEST(EditViewMouse, WithoutDragModeAClickIntoTheSelectionCollapsesItAtOnce) {
  EditViewDesk desk;
  desk.desk.state.dragModeTrue = 0;
  desk.Put(u"a⟦bcde⟧f");
  QTest::mousePress(desk.view.viewport(), Qt::LeftButton, {}, PointAt(desk, 3));
  EXPECT_EQ(desk.Row(), "abc‸def");
}

TEST(EditViewMouse, TheGutterSelectsLines) {
  EditViewDesk desk;
  desk.Put(u"one\ntwo\nthree\nfour‸");
  auto* gutter = desk.view.findChild<Gutter*>();
  const int row = desk.view.Style().rowHeight;
  QTest::mousePress(gutter, Qt::LeftButton, {}, QPoint(5, row + 3));
  EXPECT_EQ(desk.Row(), "one\n⟦two\n⟧three\nfour");
  QTest::mousePress(gutter, Qt::LeftButton, Qt::ShiftModifier, QPoint(5, 3 * row + 3));
  EXPECT_EQ(desk.Row(), "one\n⟦two\nthree\nfour⟧");
}

TEST(EditViewMouse, TheWheelScrollsAndControlLeavesItToTheWindow) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 200; ++i) text += u"line\r\n";
  desk.PutText(text);
  const auto turn = [&](Qt::KeyboardModifiers modifiers) {
    QWheelEvent event(QPointF(10, 10), desk.view.viewport()->mapToGlobal(QPointF(10, 10)), QPoint(),
                      QPoint(0, -120), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(desk.view.viewport(), &event);
    return event.isAccepted();
  };
  EXPECT_FALSE(turn(Qt::ControlModifier));
  EXPECT_EQ(desk.view.FirstVisibleLine(), 0);
  EXPECT_TRUE(turn(Qt::NoModifier));
  EXPECT_EQ(desk.view.FirstVisibleLine(), QApplication::wheelScrollLines());
}

// ---- drops

bool Drop(EditViewDesk& desk, const QMimeData& data, QPoint point) {
  QDragEnterEvent enter(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(desk.view.viewport(), &enter);
  QDragMoveEvent move(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(desk.view.viewport(), &move);
  QDropEvent drop(point, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(desk.view.viewport(), &drop);
  return enter.isAccepted();
}

TEST(EditViewDrop, TextFromOutsideGoesWhereItIsDropped) {
  EditViewDesk desk;
  desk.Put(u"‸abcdef");
  QMimeData data;
  data.setText("x\ty\nz");
  EXPECT_TRUE(Drop(desk, data, PointAt(desk, 3)));
  EXPECT_EQ(desk.Row(), "abcx    y\nz‸def");
  EXPECT_TRUE(desk.Noted("focus text"));
}

TEST(EditViewDrop, ALockedTextTakesNoText) {
  EditViewDesk desk;
  desk.Put(u"‸abcdef");
  desk.Control().SetLocked(true);
  QMimeData data;
  data.setText("x");
  Drop(desk, data, PointAt(desk, 3));
  EXPECT_EQ(desk.Control().Text(), u"abcdef");
  EXPECT_TRUE(desk.Noted("box: 読み取り専用で開かれています!!"));
}

TEST(EditViewDrop, FilesAreOpenedEvenWhenTheirPathsAreOfferedAsText) {
  EditViewDesk desk;
  desk.Put(u"abc‸");
  desk.desk.files.contents[u"/home/author/頁.htm"] = "x";
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QStringLiteral("/home/author/頁.htm"))});
  data.setText(QStringLiteral("/home/author/頁.htm"));
  Drop(desk, data, PointAt(desk, 1));
  EXPECT_EQ(desk.Row(), "abc‸");
  EXPECT_TRUE(desk.Noted("open anew: /home/author/頁.htm"));
}

TEST(EditViewDrop, TextGoesBeforeFiles) {
  EditViewDesk desk;
  desk.Put(u"abc‸");
  desk.desk.files.contents[u"/home/author/picture.png"] = "x";
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QStringLiteral("/home/author/picture.png"))});
  data.setText(QStringLiteral("the picture's words"));
  Drop(desk, data, PointAt(desk, 0));
  EXPECT_EQ(desk.Row(), "the picture's words‸abc");
  EXPECT_TRUE(desk.desk.Lines({"open"}).empty());
}

TEST(EditViewDrop, ALockedTextKeepsItsSelection) {
  EditViewDesk desk;
  desk.Put(u"a⟦b⟧cdef");
  desk.Control().SetLocked(true);
  QMimeData data;
  data.setText("x");
  Drop(desk, data, PointAt(desk, 4));
  EXPECT_EQ(desk.Row(), "a⟦b⟧cdef");
}

TEST(DroppedData, TextThatOnlyNamesItsFilesIsFiles) {
  const QList<QUrl> one = {QUrl::fromLocalFile(QStringLiteral("/home/author/a b.htm"))};
  const QList<QUrl> two = one + QList<QUrl>{QUrl::fromLocalFile(QStringLiteral("/home/author/頁.htm"))};
  struct Row {
    QList<QUrl> urls;
    QString text;
    DroppedKind kind;
  };
  const Row rows[] = {
      {one, QStringLiteral("/home/author/a b.htm"), DroppedKind::Files},
      {one, QStringLiteral("file:///home/author/a%20b.htm\r\n"), DroppedKind::Files},
      {two, QStringLiteral("/home/author/a b.htm\n/home/author/頁.htm\n"), DroppedKind::Files},
      {two, QStringLiteral("file:///home/author/a%20b.htm\nfile:///home/author/頁.htm"), DroppedKind::Files},
      {two, QString(), DroppedKind::Files},
      {two, QStringLiteral("/home/author/a b.htm\nand a note"), DroppedKind::Text},
      {one, QStringLiteral("a b.htm"), DroppedKind::Text},
      {{QUrl("https://example.org/")}, QStringLiteral("https://example.org/"), DroppedKind::Text},
      {{}, QStringLiteral("/home/author/a b.htm"), DroppedKind::Text},
  };
  for (const Row& row : rows) {
    QMimeData data;
    if (!row.urls.isEmpty()) data.setUrls(row.urls);
    if (!row.text.isNull()) data.setText(row.text);
    EXPECT_EQ(KindOf(data), row.kind) << row.text.toStdString();
  }
  EXPECT_EQ(KindOf(QMimeData()), DroppedKind::Other);
}

TEST(EditViewDrop, AnAddressOfTheWebIsText) {
  EditViewDesk desk;
  desk.Put(u"‸");
  QMimeData data;
  data.setUrls({QUrl("https://example.org/")});
  data.setText("https://example.org/");
  Drop(desk, data, QPoint(5, 5));
  EXPECT_EQ(desk.Row(), "https://example.org/‸");
}

TEST(EditViewDrop, AnythingElseBeeps) {
  EditViewDesk desk;
  desk.Put(u"a‸");
  QMimeData data;
  data.setData("application/x-something", "x");
  Drop(desk, data, QPoint(5, 5));
  EXPECT_EQ(desk.Row(), "a‸");
  EXPECT_TRUE(desk.Noted("beep"));
}

TEST(EditViewDrop, TheSelectionIsMovedAsOneStep) {
  struct Case {
    Position to;
    Qt::DropAction action;
    const char* after;
  };
  const Case rows[] = {{5, Qt::MoveAction, "ade⟦bc⟧f"},
                       {0, Qt::MoveAction, "⟦bc⟧adef"},
                       {5, Qt::CopyAction, "abcde⟦bc⟧f"},
                       {2, Qt::MoveAction, "a⟦bc⟧def"},
                       {2, Qt::CopyAction, "ab⟦bc⟧cdef"}};
  for (const Case& row : rows) {
    EditViewDesk desk;
    desk.Put(u"a⟦bc⟧def");
    desk.view.MoveOrCopySelection(row.to, row.action);
    EXPECT_EQ(desk.Row(), row.after);
    desk.Press(u"{Ctrl+Z}");
    EXPECT_EQ(desk.Control().Text(), u"abcdef");
  }
}

TEST(EditViewDrop, AnErrorInAMoveIsToldInABox) {
  EditViewDesk desk;
  desk.Put(u"a⟦bc⟧def");
  desk.host.failing = true;
  EXPECT_NO_THROW(desk.view.MoveOrCopySelection(5, Qt::MoveAction));
  EXPECT_TRUE(desk.Noted("box: 不明なｴﾗｰが発生しました"));
}

// ---- menu

TEST(EditViewMenu, TheProgramsOwnMenuComesFirst) {
  EditViewDesk desk;
  desk.Put(u"abc‸");
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(desk.view.viewport(), &event);
  EXPECT_TRUE(desk.Noted("text menu"));
  EXPECT_EQ(desk.view.findChild<QMenu*>(), nullptr);
}

TEST(EditViewMenu, WithoutItTheStandardMenuActsOnTheText) {
  EditViewDesk desk;
  desk.desk.state.popUpMen = 0;
  desk.Put(u"a⟦bc⟧");
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(desk.view.viewport(), &event);
  QMenu* menu = desk.view.findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  QStringList captions;
  QAction* cut = nullptr;
  for (QAction* action : menu->actions()) {
    if (action->isSeparator()) continue;
    captions << action->text();
    if (action->text().startsWith(QStringLiteral("切り取り"))) cut = action;
  }
  EXPECT_EQ(captions, (QStringList{"元に戻す(&U)", "やり直し(&R)", "切り取り(&T)", "ｺﾋﾟｰ(&C)", "貼り付け(&P)",
                                   "削除", "すべて選択(&A)"}));
  ASSERT_NE(cut, nullptr);
  cut->trigger();
  EXPECT_EQ(desk.Row(), "a‸");
  menu->close();
}

TEST(EditViewMenu, TheStandardMenuCopiesFromALockedText) {
  EditViewDesk desk;
  desk.desk.state.popUpMen = 0;
  desk.Put(u"a⟦bc⟧");
  desk.Control().SetLocked(true);
  QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
  QApplication::sendEvent(desk.view.viewport(), &event);
  const QList<QAction*> actions = desk.view.findChild<QMenu*>()->actions();
  const auto copy = std::find_if(actions.begin(), actions.end(), [](const QAction* action) {
    return action->text() == QStringLiteral("ｺﾋﾟｰ(&C)");
  });
  ASSERT_NE(copy, actions.end());
  (*copy)->trigger();
  EXPECT_EQ(desk.desk.clipboard.text, u"bc");
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
