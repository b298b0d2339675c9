// The always-on-top state of forms: the window stays the same one, and stays shown.
#include "ui/top_most.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QWindow>

namespace kestri {
namespace {

bool OnTop(const QWidget& form) {
  return form.windowFlags().testFlag(Qt::WindowStaysOnTopHint) &&
         form.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
}

TEST(SetTopMost, TheShownWindowIsRaisedForGoodWithoutBeingMadeAnew) {
  QWidget form;
  form.show();
  const QWindow* handle = form.windowHandle();
  const WId id = form.winId();
  SetTopMost(form, kTopMost);
  EXPECT_TRUE(OnTop(form));
  EXPECT_TRUE(IsTopMost(form));
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(form.windowHandle(), handle);
  EXPECT_EQ(form.winId(), id);
  SetTopMost(form, kNotTopMost);
  EXPECT_FALSE(IsTopMost(form));
  EXPECT_FALSE(handle->flags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST(SetTopMost, AHiddenFormStaysHiddenAndHasTheStateWhenShown) {
  QWidget form;
  SetTopMost(form, kTopMost);
  EXPECT_FALSE(form.isVisible());
  form.show();
  EXPECT_TRUE(OnTop(form));
}

TEST(SetTopMost, OtherModesChangeNothing) {
  QWidget form;
  form.show();
  SetTopMost(form, 0);
  EXPECT_FALSE(IsTopMost(form));
  SetTopMost(form, kTopMost);
  SetTopMost(form, 1);
  EXPECT_TRUE(IsTopMost(form));
}

TEST(SetTopMost, ASecondCallKeepsTheOtherFlags) {
  QWidget form(nullptr, Qt::Tool | Qt::FramelessWindowHint);
  form.show();
  const Qt::WindowFlags before = form.windowFlags();
  SetTopMost(form, kTopMost);
  SetTopMost(form, kTopMost);
  EXPECT_EQ(form.windowFlags(), before | Qt::WindowStaysOnTopHint);
  SetTopMost(form, kNotTopMost);
  EXPECT_EQ(form.windowFlags(), before);
}

TEST(RefreshTopMost, ReachesEveryVisibleFormButTheStartUpForm) {
  QWidget main;
  QWidget tool(&main, Qt::Tool);
  QDialog dialog(&main);
  QWidget hidden;
  QWidget startUp;
  startUp.setObjectName(QStringLiteral("TopFrm"));
  QMenu menu;
  for (QWidget* form : std::initializer_list<QWidget*>{&main, &tool, &dialog, &startUp, &menu}) {
    form->show();
  }
  RefreshTopMost(kTopMost);
  EXPECT_TRUE(OnTop(main));
  EXPECT_TRUE(OnTop(tool));
  EXPECT_TRUE(OnTop(dialog));
  EXPECT_FALSE(IsTopMost(hidden));
  EXPECT_FALSE(IsTopMost(startUp));
  EXPECT_FALSE(IsTopMost(menu));
  RefreshTopMost(kNotTopMost);
  EXPECT_FALSE(IsTopMost(main));
  EXPECT_FALSE(IsTopMost(tool));
  EXPECT_FALSE(IsTopMost(dialog));
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
