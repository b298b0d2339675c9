// The tool tip window: what it shows, where, and whose it is.
#include "ui/class_tool_tip.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QScreen>
#include <QToolTip>
#include <QWidget>
#include <memory>

namespace kestri {
namespace {

class ToolTipTest : public testing::Test {
 protected:
  ToolTipTest() : owner(std::make_unique<QWidget>()) {
    owner->show();
    owner->activateWindow();
    QApplication::processEvents();
  }
  QStringList ShownTexts() const {
    QStringList texts;
    for (const QLabel* label : tip.Window()->findChildren<QLabel*>()) {
      if (label->isVisible()) texts << label->text();
    }
    return texts;
  }
  std::unique_ptr<QWidget> owner;
  ClassToolTip tip;
};

TEST_F(ToolTipTest, ShowsTitleAndTextWithoutTakingTheFocus) {
  tip.SetToolTipTitle(QStringLiteral("index.htm"));
  tip.SetToolTipString(QStringLiteral("<B> 種類: HTML 文書"));
  tip.CreateToolTip({40, 50});
  EXPECT_TRUE(tip.Visible());
  EXPECT_EQ(ShownTexts(), QStringList({QStringLiteral("index.htm"), QStringLiteral("<B> 種類: HTML 文書")}));
  EXPECT_EQ(tip.Window()->pos(), QPoint(40, 50));
  EXPECT_EQ(QApplication::activeWindow(), owner.get());
}

TEST_F(ToolTipTest, WithoutATitleOnlyTheTextStands) {
  tip.SetToolTipString(QStringLiteral("説明"));
  tip.CreateToolTip({0, 0});
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("説明")));
}

TEST_F(ToolTipTest, ChangesShowAtOnce) {
  tip.SetToolTipString(QStringLiteral("一"));
  tip.CreateToolTip({0, 0});
  const int narrow = tip.Window()->width();
  tip.SetToolTipString(QStringLiteral("一二三四五六七八九十"));
  EXPECT_EQ(ShownTexts(), QStringList(QStringLiteral("一二三四五六七八九十")));
  EXPECT_GT(tip.Window()->width(), narrow);
}

TEST_F(ToolTipTest, ColoursAreTheDesktopsUntilSet) {
  EXPECT_EQ(tip.ForeColor(), QToolTip::palette().color(QPalette::ToolTipText));
  EXPECT_EQ(tip.BackColor(), QToolTip::palette().color(QPalette::ToolTipBase));
  tip.SetForeColor(QColor(0, 0, 128));
  tip.SetBackColor(QColor(255, 250, 200));
  tip.SetToolTipString(QStringLiteral("説明"));
  tip.CreateToolTip({0, 0});
  const QImage shown = tip.Window()->grab().toImage();
  EXPECT_EQ(shown.pixelColor(2, 2), QColor(255, 250, 200));
  EXPECT_EQ(shown.pixelColor(0, 5), QColor(0, 0, 128));
}

TEST_F(ToolTipTest, ABalloonHasRoundCorners) {
  tip.SetToolTipString(QStringLiteral("説明"));
  tip.SetToolTipType(ToolTipShape::Balloon);
  tip.CreateToolTip({0, 0});
  EXPECT_FALSE(tip.Window()->mask().contains(QPoint(0, 0)));
  tip.SetToolTipType(ToolTipShape::Rectangle);
  EXPECT_TRUE(tip.Window()->mask().isEmpty());
}

TEST_F(ToolTipTest, StaysWholeOnTheScreen) {
  const QRect screen = QApplication::primaryScreen()->availableGeometry();
  tip.SetToolTipString(QStringLiteral("画面の端に近い説明"));
  tip.CreateToolTip(screen.bottomRight());
  EXPECT_TRUE(screen.contains(tip.Window()->geometry()));
}

TEST_F(ToolTipTest, DestroyTakesItAwayAndAnotherOneMayFollow) {
  tip.SetToolTipString(QStringLiteral("説明"));
  tip.CreateToolTip({0, 0});
  tip.DestroyToolTip();
  EXPECT_FALSE(tip.Visible());
  EXPECT_EQ(tip.Window(), nullptr);
  tip.DestroyToolTip();
  tip.CreateToolTip({0, 0});
  EXPECT_TRUE(tip.Visible());
}

TEST_F(ToolTipTest, GoesWithTheWindowThatWasActive) {
  tip.CreateToolTip({0, 0});
  owner.reset();
  EXPECT_EQ(tip.Window(), nullptr);
  EXPECT_FALSE(tip.Visible());
}

TEST_F(ToolTipTest, PictureOfABalloon) {
  tip.SetToolTipTitle(QStringLiteral("index.htm"));
  tip.SetToolTipString(QStringLiteral("種類: HTML 文書\nｻｲｽﾞ: 12,345 ﾊﾞｲﾄ"));
  tip.SetToolTipType(ToolTipShape::Balloon);
  tip.CreateToolTip({0, 0});
  QDir().mkpath(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens"));
  EXPECT_TRUE(tip.Window()->grab().save(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens/ClassToolTip.png")));
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
