// The flat button under mouse and keys, and what it keeps of its properties.
#include "ui/HotButton.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace kestri {
namespace {

class HotButtonTest : public testing::Test {
 protected:
  HotButtonTest() {
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(field);
    layout->addWidget(button);
    button->SetBackColor(QColor(200, 210, 220));
    button->SetPointColor(QColor(255, 240, 150));
    dialog.resize(240, 120);
    dialog.show();
    dialog.activateWindow();
    field->setFocus();
    QApplication::processEvents();
  }

  void Enter() {
    const QPointF place = button->rect().center();
    QEnterEvent event(place, place, button->mapToGlobal(place));
    QApplication::sendEvent(button, &event);
  }
  void Leave() {
    QEvent event(QEvent::Leave);
    QApplication::sendEvent(button, &event);
  }
  QColor Painted() const { return button->grab().toImage().pixelColor(2, 2); }

  QDialog dialog;
  QLineEdit* field = new QLineEdit;
  HotButton* button = new HotButton(QStringLiteral("検索(&K)"));
};

TEST_F(HotButtonTest, TakesThePointColourUnderTheMouseAndTheRestingOneAtOnceWhenLeft) {
  EXPECT_EQ(Painted(), QColor(200, 210, 220));
  Enter();
  EXPECT_EQ(Painted(), QColor(255, 240, 150));
  Leave();
  EXPECT_EQ(Painted(), QColor(200, 210, 220));
}

TEST_F(HotButtonTest, RestsAgainWhenThePressedMouseIsDraggedAway) {
  Enter();
  QTest::mousePress(button, Qt::LeftButton);
  QTest::mouseMove(button, QPoint(-20, -20));
  EXPECT_FALSE(button->Hot());
  QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-20, -20));
}

TEST_F(HotButtonTest, RestsAgainWhenItIsHiddenOrDisabledUnderTheMouse) {
  Enter();
  button->setEnabled(false);
  EXPECT_FALSE(button->Hot());
  button->setEnabled(true);
  Enter();
  button->hide();
  EXPECT_FALSE(button->Hot());
}

TEST_F(HotButtonTest, ADisabledButtonDoesNotLightUp) {
  button->setEnabled(false);
  Enter();
  EXPECT_EQ(Painted(), QColor(200, 210, 220));
}

TEST_F(HotButtonTest, TheOutlineStandsOnlyUnderTheMouseAndOnlyWhenWanted) {
  const auto corner = [this] { return button->grab().toImage().pixelColor(0, 0); };
  const QColor resting = corner();
  Enter();
  const QColor outlined = corner();
  button->SetOutRectangle(false);
  EXPECT_NE(corner(), outlined);
  EXPECT_NE(resting, outlined);
}

TEST_F(HotButtonTest, TheKeyboardFocusShows) {
  const QImage without = button->grab().toImage();
  button->setFocus(Qt::TabFocusReason);
  ASSERT_TRUE(button->hasFocus());
  EXPECT_NE(button->grab().toImage(), without);
}

TEST_F(HotButtonTest, MnemonicBlankReturnAndMouseClickIt) {
  QSignalSpy clicks(button, &QPushButton::clicked);
  QTest::keyClick(&dialog, Qt::Key_K, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return clicks.count() == 1; }));
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Space);
  EXPECT_EQ(clicks.count(), 2);
  QTest::keyClick(button, Qt::Key_Return);
  EXPECT_EQ(clicks.count(), 3);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(clicks.count(), 4);
}

TEST_F(HotButtonTest, MouseEventsOfTheButtonReachTheForm) {
  qRegisterMetaType<QMouseEvent*>();
  QSignalSpy downs(button, &HotButton::MouseDown);
  QSignalSpy moves(button, &HotButton::MouseMove);
  QSignalSpy ups(button, &HotButton::MouseUp);
  QTest::mouseClick(button, Qt::RightButton);
  QMouseEvent move(QEvent::MouseMove, QPointF(4, 4), button->mapToGlobal(QPointF(4, 4)), Qt::NoButton, {},
                   {});
  QApplication::sendEvent(button, &move);
  EXPECT_EQ(downs.count(), 1);
  EXPECT_GE(moves.count(), 1);
  EXPECT_EQ(ups.count(), 1);
}

TEST_F(HotButtonTest, ReturnInAFieldPressesTheDefaultButtonOnly) {
  QSignalSpy clicks(button, &QPushButton::clicked);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(clicks.count(), 0);
  button->SetDefault2(true);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(clicks.count(), 1);
}

TEST_F(HotButtonTest, EscPressesTheCancelButtonInsteadOfClosingTheDialog) {
  QSignalSpy clicks(button, &QPushButton::clicked);
  button->SetCancel2(true);
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_EQ(clicks.count(), 1);
  EXPECT_TRUE(dialog.isVisible());
  button->SetCancel2(false);
  QTest::keyClick(field, Qt::Key_Escape);
  EXPECT_EQ(clicks.count(), 1);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(HotButtonTest, ThePropertyBagKeepsEveryPersistentProperty) {
  QPixmap picture(8, 8);
  picture.fill(Qt::red);
  button->SetBold(true);
  button->SetFontSize(13.5);
  button->SetDefault2(true);
  button->SetCancel2(true);
  button->SetToolTipText2(QStringLiteral("説明"));
  button->setEnabled(false);
  button->SetOutRectangle(false);
  button->SetPicture(picture);
  button->SetUseMaskColor(true);
  button->SetMaskColor(Qt::green);
  const QVariantMap bag = button->WriteProperties();
  EXPECT_EQ(
      bag.keys().join(u' ').toStdString(),
      "BackColor Bold Cancel2 Caption Default2 Enabled FontSize MaskColor OutRectangle Picture PointColor "
      "ToolTipText2 UseMaskColor");

  HotButton other;
  other.ReadProperties(bag);
  EXPECT_EQ(other.Caption(), QStringLiteral("検索(&K)"));
  EXPECT_TRUE(other.Bold());
  EXPECT_DOUBLE_EQ(other.FontSize(), 13.5);
  EXPECT_TRUE(other.Default2());
  EXPECT_TRUE(other.Cancel2());
  EXPECT_EQ(other.ToolTipText2(), QStringLiteral("説明"));
  EXPECT_FALSE(other.isEnabled());
  EXPECT_EQ(other.BackColor(), QColor(200, 210, 220));
  EXPECT_EQ(other.PointColor(), QColor(255, 240, 150));
  EXPECT_FALSE(other.OutRectangle());
  EXPECT_EQ(other.Picture().toImage(), picture.toImage());
  EXPECT_TRUE(other.UseMaskColor());
  EXPECT_EQ(other.MaskColor(), QColor(Qt::green));
}

TEST_F(HotButtonTest, ABagThatLacksAPropertyLeavesItAlone) {
  button->ReadProperties({{QStringLiteral("Caption"), QStringLiteral("閉じる")}});
  EXPECT_EQ(button->Caption(), QStringLiteral("閉じる"));
  EXPECT_EQ(button->BackColor(), QColor(200, 210, 220));
}

TEST_F(HotButtonTest, ThePictureIsTransparentWhereItHasTheMaskColour) {
  QPixmap picture(8, 8);
  picture.fill(Qt::red);
  button->SetPicture(picture);
  button->SetMaskColor(Qt::red);
  EXPECT_EQ(button->icon().pixmap(8, 8).toImage().pixelColor(4, 4), QColor(Qt::red));
  button->SetUseMaskColor(true);
  EXPECT_EQ(button->icon().pixmap(8, 8).toImage().pixelColor(4, 4).alpha(), 0);
}

TEST_F(HotButtonTest, WithoutColoursOfItsOwnItFollowsThePalette) {
  button->SetBackColor({});
  button->SetPointColor({});
  QPalette dark;
  dark.setColor(QPalette::Button, QColor(45, 45, 50));
  button->setPalette(dark);
  EXPECT_EQ(button->ShownColor(), QColor(45, 45, 50));
  Enter();
  EXPECT_NE(button->ShownColor(), QColor(45, 45, 50));
}

TEST(HotButtonColours, TheCaptionIsReadableOnEveryFace) {
  EXPECT_EQ(ReadableOnFace(Qt::black, Qt::white), QColor(Qt::black));
  EXPECT_EQ(ReadableOnFace(Qt::black, QColor(40, 40, 45)), QColor(Qt::white));
  EXPECT_EQ(ReadableOnFace(Qt::white, QColor(255, 240, 150)), QColor(Qt::black));
}

void AddStates(QHBoxLayout* row) {
  QPixmap picture(16, 16);
  picture.fill(QColor(200, 60, 60));
  const auto add = [row](const char16_t* caption) {
    auto* button = new HotButton(QString::fromUtf16(caption));
    row->addWidget(button);
    return button;
  };
  add(u"閉じる(&C)");
  add(u"移動(&M)")->SetDefault2(true);
  add(u"参照...")->setEnabled(false);
  add(u"図付き(&P)")->SetPicture(picture);
  HotButton* pointed = add(u"指された(&H)");
  QEnterEvent event({4, 4}, {4, 4}, {4, 4});
  QApplication::sendEvent(pointed, &event);
  HotButton* tinted = add(u"黄(&Y)");
  tinted->SetBackColor(QColor(255, 240, 150));
}

TEST(HotButtonLook, PictureOfItsStatesOnLightAndDark) {
  QWidget window;
  auto* rows = new QVBoxLayout(&window);
  for (const bool isDark : {false, true}) {
    auto* band = new QWidget;
    band->setAutoFillBackground(true);
    if (isDark) {
      QPalette dark;
      dark.setColor(QPalette::Window, QColor(35, 35, 40));
      dark.setColor(QPalette::Button, QColor(55, 55, 62));
      dark.setColor(QPalette::ButtonText, QColor(225, 225, 225));
      band->setPalette(dark);
    }
    auto* row = new QHBoxLayout(band);
    AddStates(row);
    rows->addWidget(band);
  }
  window.show();
  window.activateWindow();
  window.findChild<HotButton*>()->setFocus();
  QApplication::processEvents();
  QDir().mkpath(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens"));
  EXPECT_TRUE(window.grab().save(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens/HotButton.png")));
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  return RUN_ALL_TESTS();
}
