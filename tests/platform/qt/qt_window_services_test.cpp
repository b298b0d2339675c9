// The waiting pointer of the whole program.
#include "platform/qt/qt_window_services.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>

namespace kestri {
namespace {

TEST(WaitingPointer, IsShownOnceHoweverOftenItIsAskedFor) {
  QtWindowServices services;
  services.SetBusyPointer(true);
  services.SetBusyPointer(true);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  services.SetBusyPointer(false);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(WaitingPointer, AnEndWithoutABeginningTakesNothingAway) {
  QApplication::setOverrideCursor(Qt::CrossCursor);
  QtWindowServices services;
  services.SetBusyPointer(false);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  QApplication::restoreOverrideCursor();
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
