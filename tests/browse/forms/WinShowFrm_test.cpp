#include "browse/forms/WinShowFrm.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QMainWindow>
#include <QPushButton>
#include <QStyle>
#include <QTest>

#include "platform/qt/qt_text.hpp"
#include "tests/browse/window_list_desk.hpp"

namespace kestri {
namespace {

class WinShowFrmTest : public ::testing::Test, protected WindowListDesk {
 protected:
  WinShowFrmTest() {
    StartWindow(1, 100, u"/home/author/pages/index.html");
    StartWindow(2, 4711, u"/home/author/pages/日記.htm");
    StartWindow(3, 300, u"");
    owner.show();
  }
  ~WinShowFrmTest() override { delete form; }

  WinShowFrm& Show() {
    form = new WinShowFrm(windows, owner.style()->standardIcon(QStyle::SP_FileIcon), &owner);
    form->show();
    QApplication::setActiveWindow(form);
    QApplication::processEvents();
    return *form;
  }
  QPushButton* Button(const QString& caption) const {
    for (QPushButton* button : form->findChildren<QPushButton*>())
      if (button->text() == caption) return button;
    return nullptr;
  }

  QMainWindow owner;
  WinShowFrm* form = nullptr;
};

TEST_F(WinShowFrmTest, RowsShowFilePathAndTitle) {
  QTreeWidget& list = Show().WinList();
  ASSERT_EQ(list.topLevelItemCount(), 3);
  EXPECT_EQ(form->windowTitle(), QStringLiteral("ｳｨﾝﾄﾞｳの呼び出し"));
  EXPECT_EQ(list.topLevelItem(0)->text(0), QStringLiteral("index.html : 1"));
  EXPECT_EQ(list.topLevelItem(1)->text(0), QStringLiteral("日記.htm : 2(Me)"));
  EXPECT_EQ(list.topLevelItem(0)->text(1), QStringLiteral("/home/author/pages/index.html"));
  EXPECT_EQ(list.topLevelItem(2)->text(2), ToQt(CaptionTail(3)));
  EXPECT_FALSE(list.topLevelItem(0)->icon(0).isNull());
}

TEST_F(WinShowFrmTest, FirstOtherWindowIsSelectedAtTheStart) {
  Record(1, 4711, u"/home/author/pages/me.htm");
  Record(2, 200, u"/home/author/pages/other.htm");
  instances.captions = {{4711, u"me.htm" + CaptionTail(1)}, {200, u"other.htm" + CaptionTail(2)}};
  QTreeWidget& list = Show().WinList();
  EXPECT_EQ(list.currentItem()->text(0), QStringLiteral("other.htm : 2"));
}

TEST_F(WinShowFrmTest, ReturnSwitchesToTheSelectedWindowAndCloses) {
  QTreeWidget& list = Show().WinList();
  EXPECT_TRUE(list.hasFocus());
  QTest::keyClick(&list, Qt::Key_End);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(instances.broughtToFront, std::vector<std::int64_t>{300});
  EXPECT_TRUE(form->Switched());
  EXPECT_FALSE(form->isVisible());
}

TEST_F(WinShowFrmTest, ButtonSwitchesToTheSelectedWindow) {
  Show();
  QTest::mouseClick(Button(QStringLiteral("&SetFocus")), Qt::LeftButton);
  EXPECT_EQ(instances.broughtToFront, std::vector<std::int64_t>{100});
  EXPECT_FALSE(form->isVisible());
}

TEST_F(WinShowFrmTest, DoubleClickSwitchesToTheRow) {
  QTreeWidget& list = Show().WinList();
  const QPoint row = list.visualItemRect(list.topLevelItem(2)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row);
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row);
  EXPECT_EQ(instances.broughtToFront, std::vector<std::int64_t>{300});
  EXPECT_FALSE(form->isVisible());
}

TEST_F(WinShowFrmTest, OwnRowMerelyClosesTheList) {
  QTreeWidget& list = Show().WinList();
  list.setCurrentItem(list.topLevelItem(1));
  QTest::mouseClick(Button(QStringLiteral("&SetFocus")), Qt::LeftButton);
  EXPECT_TRUE(instances.broughtToFront.empty());
  EXPECT_FALSE(form->Switched());
  EXPECT_FALSE(form->isVisible());
}

TEST_F(WinShowFrmTest, EscapeAndCancelCloseWithoutASwitchAndTheMainWindowIsActiveAgain) {
  QTest::keyClick(&Show(), Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  QApplication::processEvents();
  EXPECT_TRUE(owner.isActiveWindow());
  delete form;
  Show();
  QTest::mouseClick(Button(QStringLiteral("&CANCEL")), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(instances.broughtToFront.empty());
}

TEST_F(WinShowFrmTest, EmptyListClosesWithoutASwitch) {
  instances.captions.clear();
  Show();
  QTest::mouseClick(Button(QStringLiteral("&SetFocus")), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
  EXPECT_FALSE(form->Switched());
}

TEST_F(WinShowFrmTest, PictureOfTheList) {
  Show();
  QDir().mkpath(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens"));
  EXPECT_TRUE(form->grab().save(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens/WinShowFrm.png")));
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
