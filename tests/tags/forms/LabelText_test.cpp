// The hint's box over a real view of the text.
#include "tags/forms/LabelText.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMainWindow>
#include <QTest>

#include "platform/qt/qt_text.hpp"
#include "tags/forms/view_caret_place.hpp"
#include "tests/fakes/completion_world.hpp"
#include "ui/edit_view.hpp"

namespace kestri {
namespace {

class LabelTextTest : public testing::Test {
 protected:
  LabelTextTest() {
    window.setCentralWidget(view);
    window.resize(700, 400);
    window.show();
    view->setFocus();
    QApplication::setActiveWindow(&window);
  }
  void Put(std::u16string_view marked) {
    world.SetText(marked);
    view->Flush();
    hint.seTagHint();
  }

  fakes::CompletionWorld world;
  QMainWindow window;
  EditView* view = new EditView(world.control, world.text, &window);
  ViewCaretPlace place{*view};
  LabelText box{*view, [this] { return view->viewport()->geometry(); }, {}};
  TagHint hint{{world.control, world.common, place, box, 50}};
};

TEST_F(LabelTextTest, StandsUnderTheLineOfTheCaret) {
  Put(u"<a‸>");
  ASSERT_TRUE(box.isVisible());
  EXPECT_EQ(box.Lines(), QStringList{QStringLiteral("ｱﾝｶｰ <A href=\"\">")});
  const QPoint caret = view->mapFromGlobal(view->GetCaretPixel());
  EXPECT_EQ(box.geometry().left(), caret.x());
  EXPECT_GE(box.geometry().top(), caret.y());
  EXPECT_LE(box.geometry().top(), caret.y() + 2);
}

TEST_F(LabelTextTest, StaysInTheTextArea) {
  Put(std::u16string(60, u'x') + u"<a‸>");
  EXPECT_TRUE(view->viewport()->geometry().contains(box.geometry()));
}

TEST_F(LabelTextTest, LinesThatAreTooLongForTheTextAreaAreBroken) {
  window.resize(260, 400);
  QCoreApplication::processEvents();
  Put(u"<a‸>");
  const QString words =
      QStringLiteral("長い説明です。 <table border=\"1\" cellspacing=\"0\" class=\"note\"> 折り返します。");
  hint.TipComments(FromQt(words));
  EXPECT_GT(box.ShownLines().size(), 1);
  EXPECT_EQ(box.ShownLines().join(QString()), words);
  EXPECT_TRUE(view->viewport()->geometry().contains(box.geometry()));
  for (const QString& line : box.ShownLines())
    EXPECT_LE(box.fontMetrics().horizontalAdvance(line), box.width());
}

TEST_F(LabelTextTest, IsAsLargeAsItsLines) {
  box.SetText(u"短い");
  const QSize one = box.sizeHint();
  box.SetText(u"短い\r\nもっと長い行");
  const QSize two = box.sizeHint();
  EXPECT_GT(two.width(), one.width());
  EXPECT_GT(two.height(), one.height());
  EXPECT_EQ(box.accessibleName(), QStringLiteral("短い\nもっと長い行"));
}

TEST_F(LabelTextTest, TheHintFontIsTaken) {
  LabelText large(*view, [this] { return view->viewport()->geometry(); }, {.points = 18, .style = 3});
  box.SetText(u"説明");
  large.SetText(u"説明");
  EXPECT_GT(large.sizeHint().height(), box.sizeHint().height());
}

TEST_F(LabelTextTest, APressIsPassedOn) {
  int presses = 0;
  box.pressed = [&] { ++presses; };
  Put(u"<a‸>");
  QTest::mouseClick(&box, Qt::LeftButton);
  EXPECT_EQ(presses, 1);
}

TEST_F(LabelTextTest, NeverTakesTheKeyboard) {
  Put(u"<a‸>");
  EXPECT_TRUE(view->hasFocus());
  QTest::mouseClick(&box, Qt::LeftButton);
  EXPECT_TRUE(view->hasFocus());
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
