// What a screen reader reads, sets and is told.
#include <gtest/gtest.h>

#include <QAccessible>

#include "tests/ui/edit_view_desk.hpp"
#include "ui/edit_view_accessible.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

std::vector<std::string>& Told() {
  static std::vector<std::string> told;
  return told;
}

void Record(QAccessibleEvent* event) {
  switch (event->type()) {
    case QAccessible::TextInserted: {
      auto* insert = static_cast<QAccessibleTextInsertEvent*>(event);
      Told().push_back("inserted " + std::to_string(insert->changePosition()) + " " +
                       insert->textInserted().toStdString());
      break;
    }
    case QAccessible::TextRemoved: {
      auto* remove = static_cast<QAccessibleTextRemoveEvent*>(event);
      Told().push_back("removed " + std::to_string(remove->changePosition()) + " " +
                       remove->textRemoved().toStdString());
      break;
    }
    case QAccessible::TextCaretMoved:
      Told().push_back("caret " +
                       std::to_string(static_cast<QAccessibleTextCursorEvent*>(event)->cursorPosition()));
      break;
    case QAccessible::TextSelectionChanged: {
      auto* selection = static_cast<QAccessibleTextSelectionEvent*>(event);
      Told().push_back("selected " + std::to_string(selection->selectionStart()) + " to " +
                       std::to_string(selection->selectionEnd()));
      break;
    }
    default:
      break;
  }
}

struct Reader {
  explicit Reader(EditViewDesk& desk) : interface(QAccessible::queryAccessibleInterface(&desk.view)) {}
  QAccessibleTextInterface& Text() { return *interface->textInterface(); }
  QAccessibleEditableTextInterface& Editable() { return *interface->editableTextInterface(); }
  QAccessibleInterface* interface;
};

TEST(EditViewAccessible, IsAnEditableTextOfSeveralLines) {
  EditViewDesk desk;
  desk.Put(u"abc‸");
  Reader reader(desk);
  ASSERT_NE(reader.interface, nullptr);
  EXPECT_EQ(reader.interface->role(), QAccessible::EditableText);
  EXPECT_TRUE(reader.interface->state().multiLine);
  EXPECT_TRUE(reader.interface->state().editable);
  desk.Control().SetLocked(true);
  EXPECT_TRUE(reader.interface->state().readOnly);
  EXPECT_FALSE(reader.interface->state().editable);
}

TEST(EditViewAccessible, TellsCaretSelectionAndText) {
  EditViewDesk desk;
  desk.Put(u"日⟦本語⟧\nabc");
  Reader reader(desk);
  int begin = 0, end = 0;
  EXPECT_EQ(reader.Text().cursorPosition(), 3);
  EXPECT_EQ(reader.Text().selectionCount(), 1);
  reader.Text().selection(0, &begin, &end);
  EXPECT_EQ(begin, 1);
  EXPECT_EQ(end, 3);
  EXPECT_EQ(reader.Text().characterCount(), 8);
  EXPECT_EQ(reader.Text().text(0, 3), QStringLiteral("日本語"));
  reader.Text().setSelection(0, 5, 7);
  EXPECT_EQ(desk.Row(), "日本語\n⟦ab⟧c");
  reader.Text().setCursorPosition(2);
  EXPECT_EQ(desk.Row(), "日本‸語\nabc");
}

TEST(EditViewAccessible, TextByCharacterWordAndLine) {
  EditViewDesk desk;
  desk.Put(u"日本語のページ abc\n𠮷野家");
  Reader reader(desk);
  int begin = 0, end = 0;
  EXPECT_EQ(reader.Text().textAtOffset(0, QAccessible::WordBoundary, &begin, &end), QStringLiteral("日本語"));
  EXPECT_EQ(reader.Text().textAfterOffset(0, QAccessible::WordBoundary, &begin, &end), QStringLiteral("の"));
  EXPECT_EQ(begin, 3);
  EXPECT_EQ(reader.Text().textBeforeOffset(9, QAccessible::WordBoundary, &begin, &end), QStringLiteral(" "));
  EXPECT_EQ(reader.Text().textAtOffset(2, QAccessible::LineBoundary, &begin, &end),
            QStringLiteral("日本語のページ abc\r\n"));
  EXPECT_EQ(reader.Text().textAfterOffset(2, QAccessible::LineBoundary, &begin, &end),
            QStringLiteral("𠮷野家"));
  EXPECT_EQ(reader.Text().textBeforeOffset(14, QAccessible::LineBoundary, &begin, &end),
            QStringLiteral("日本語のページ abc\r\n"));
  EXPECT_EQ(reader.Text().textAtOffset(13, QAccessible::CharBoundary, &begin, &end), QStringLiteral("𠮷"));
  EXPECT_EQ(reader.Text().textAtOffset(11, QAccessible::CharBoundary, &begin, &end), QStringLiteral("\r\n"));
  EXPECT_EQ(reader.Text().textAtOffset(99, QAccessible::CharBoundary, &begin, &end), QString());
  EXPECT_EQ(begin, -1);
  EXPECT_EQ(reader.Text().textBeforeOffset(0, QAccessible::LineBoundary, &begin, &end), QString());
}

TEST(EditViewAccessible, CharacterRectanglesAndPointsAgree) {
  EditViewDesk desk;
  desk.Put(u"a日b\nxyz");
  Reader reader(desk);
  const QRect wide = reader.Text().characterRect(1);
  EXPECT_EQ(wide.width(), std::lround(2 * desk.view.Style().cell));
  EXPECT_EQ(wide.height(), desk.view.Style().rowHeight);
  for (const int offset : {0, 1, 2, 5, 6, 7}) {
    const QRect rect = reader.Text().characterRect(offset);
    EXPECT_EQ(reader.Text().offsetAtPoint(rect.topLeft() + QPoint(1, 5)), offset);
  }
  EXPECT_EQ(reader.Text().offsetAtPoint(QPoint(-500, -500)), -1);
}

TEST(EditViewAccessible, EditsThroughTheRules) {
  EditViewDesk desk;
  desk.Put(u"abcdef‸");
  Reader reader(desk);
  reader.Editable().replaceText(1, 3, QStringLiteral("日\n本"));
  EXPECT_EQ(desk.Control().Text(), u"a日\r\n本def");
  reader.Editable().deleteText(0, 1);
  reader.Editable().insertText(0, QStringLiteral("x"));
  EXPECT_EQ(desk.Control().Text(), u"x日\r\n本def");
  desk.Control().SetLocked(true);
  reader.Editable().deleteText(0, 1);
  EXPECT_EQ(desk.Control().Text(), u"x日\r\n本def");
}

TEST(EditViewAccessible, ChangesAreToldWithTheirText) {
  EditViewDesk desk;
  desk.view.Accessibility().send = Record;
  QAccessible::setActive(true);
  desk.Put(u"abc‸");
  Told().clear();
  desk.Press(u"x");
  desk.Press(u"{Backspace}");
  desk.Press(u"{Shift+Left}");
  EXPECT_EQ(Told(), (std::vector<std::string>{"inserted 3 x", "caret 4", "removed 3 x", "caret 3",
                                              "selected 2 to 3", "caret 2"}));
  QAccessible::setActive(false);
}

TEST(EditViewAccessible, NothingIsToldWhenNobodyListens) {
  EditViewDesk desk;
  QAccessible::setActive(false);
  desk.view.Accessibility().send = Record;
  Told().clear();
  desk.Press(u"xy{Left}");
  for (const std::string& line : Told()) ADD_FAILURE() << line;
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
