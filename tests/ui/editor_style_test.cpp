// What the program's style changes of the toolkit's own.
#include "ui/editor_style.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QStyleOption>
#include <cstdlib>

namespace kestri {
namespace {

QPalette Dark() {
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(27, 30, 32));
  palette.setColor(QPalette::Window, QColor(49, 54, 59));
  palette.setColor(QPalette::Text, QColor(252, 252, 252));
  return palette;
}

int Distance(QColor one, QColor other) {
  return std::abs(one.lightness() - other.lightness());
}

TEST(EditorStyle, AMenusEdgeStandsOutOnLightAndOnDark) {
  for (const QPalette& palette : {QPalette(Qt::lightGray), Dark()}) {
    QMenu menu;
    menu.setPalette(palette);
    menu.addAction(QStringLiteral("項目"));
    menu.resize(menu.sizeHint());
    const QImage picture = menu.grab().toImage();
    const QColor edge = picture.pixelColor(0, picture.height() / 2);
    EXPECT_GT(Distance(edge, palette.color(QPalette::Base)), 60);
    EXPECT_EQ(edge, picture.pixelColor(picture.width() - 1, picture.height() / 2));
  }
}

TEST(EditorStyle, AnIconThatCannotBeChosenIsAFaintShade) {
  QPixmap white(16, 16);
  white.setDevicePixelRatio(2);
  white.fill(Qt::white);
  QPixmap red(16, 16);
  red.fill(Qt::red);
  const QStyleOption option;
  const QPixmap faint = QApplication::style()->generatedIconPixmap(QIcon::Disabled, white, &option);
  EXPECT_EQ(faint.toImage().pixelColor(8, 8), QColor(255, 255, 255, 102));
  EXPECT_EQ(faint.devicePixelRatio(), 2);
  const QColor shade =
      QApplication::style()->generatedIconPixmap(QIcon::Disabled, red, &option).toImage().pixelColor(8, 8);
  EXPECT_EQ(shade.red(), shade.blue());
  const QPixmap normal = QApplication::style()->generatedIconPixmap(QIcon::Normal, red, &option);
  EXPECT_EQ(normal.toImage().pixelColor(8, 8), QColor(Qt::red));
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle(new kestri::EditorStyle);
  return RUN_ALL_TESTS();
}
