#include "search/forms/LineIndexFrm.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QTest>

#include "tests/search/line_jump_desk.hpp"

namespace kestri {
namespace {

class LineIndexFrmTest : public ::testing::Test, protected LineJumpDesk {
 protected:
  LineIndexFrmTest() { owner.show(); }
  ~LineIndexFrmTest() override { delete form; }

  QLineEdit& Show() {
    delete form;
    form = new LineIndexFrm(jump, &owner);
    form->show();
    QApplication::setActiveWindow(form);
    QApplication::processEvents();
    return form->LineIndexBox();
  }
  std::u16string Kept() const { return common.GetINI(u"Kestri", u"LineIndexFrm", u"No", u"(none)"); }

  QMainWindow owner;
  LineIndexFrm* form = nullptr;
};

TEST_F(LineIndexFrmTest, NumberAndReturnMoveTheCaretAndClose) {
  QLineEdit& box = Show();
  EXPECT_EQ(form->windowTitle(), QStringLiteral("指定行の検索"));
  EXPECT_TRUE(box.hasFocus());
  QTest::keyClicks(&box, QStringLiteral("3"));
  QTest::keyClick(&box, Qt::Key_Return);
  EXPECT_EQ(control.SelStart(), 10);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(Kept(), u"3");
}

TEST_F(LineIndexFrmTest, ButtonMovesTheCaret) {
  QTest::keyClicks(&Show(), QStringLiteral("2"));
  EXPECT_EQ(form->HotButton1().text(), QStringLiteral("移動(&M)"));
  QTest::mouseClick(&form->HotButton1(), Qt::LeftButton);
  EXPECT_EQ(control.SelStart(), 5);
}

TEST_F(LineIndexFrmTest, RefusedNumberIsSelectedForTheNextTry) {
  QLineEdit& box = Show();
  for (const char* typed : {"0", "9", "x", "99999999999"}) {
    QTest::keyClicks(&box, QString::fromUtf8(typed));
    form->HotButton1().setFocus();
    QTest::mouseClick(&form->HotButton1(), Qt::LeftButton);
    EXPECT_TRUE(form->isVisible());
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.selectedText(), QString::fromUtf8(typed));
  }
  EXPECT_EQ(window.messages.size(), 3U);
  EXPECT_EQ(boxes.asked.size(), 1U);
  EXPECT_EQ(control.SelStart(), 0);
}

TEST_F(LineIndexFrmTest, LastNumberStandsSelectedInTheBoxNextTime) {
  QTest::keyClicks(&Show(), QStringLiteral("17"));
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(Kept(), u"17");
  EXPECT_EQ(control.SelStart(), 0);
  EXPECT_EQ(Show().selectedText(), QStringLiteral("17"));
}

TEST_F(LineIndexFrmTest, ClosingByTheFrameKeepsTheNumberToo) {
  QTest::keyClicks(&Show(), QStringLiteral("5"));
  form->close();
  EXPECT_EQ(Kept(), u"5");
}

TEST_F(LineIndexFrmTest, PictureOfTheForm) {
  QTest::keyClicks(&Show(), QStringLiteral("120"));
  QDir().mkpath(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens"));
  EXPECT_TRUE(form->grab().save(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens/LineIndexFrm.png")));
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  return RUN_ALL_TESTS();
}
