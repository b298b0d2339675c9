// What the delegate of the large icons paints.
#include "browse/forms/name_under_icon.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QStandardItemModel>

namespace kestri {
namespace {

// Fills whatever room it is given, as scalable icons of a theme do.
class Filling : public QIconEngine {
 public:
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    painter->fillRect(rect, Qt::red);
  }
  QIconEngine* clone() const override { return new Filling; }
  QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
    QPixmap picture(size);
    picture.fill(Qt::red);
    return picture;
  }
};

QRect RedPartOf(const QImage& picture) {
  QRect red;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y) == QColor(Qt::red)) red |= QRect(x, y, 1, 1);
    }
  }
  return red;
}

TEST(NameUnderIcon, TheIconIsASquareInTheMiddle) {
  QStandardItemModel model;
  model.appendRow(new QStandardItem(QIcon(new Filling), QStringLiteral("日記.htm")));
  QStyleOptionViewItem option;
  option.rect = QRect(QPoint(0, 0), NameUnderIcon::CellSize(option.fontMetrics));
  QImage picture(option.rect.size(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  NameUnderIcon().paint(&painter, option, model.index(0, 0));
  const QRect icon = RedPartOf(picture);
  EXPECT_EQ(icon.size(), QSize(NameUnderIcon::kIconSize, NameUnderIcon::kIconSize));
  EXPECT_NEAR(icon.center().x(), option.rect.center().x(), 1);
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
