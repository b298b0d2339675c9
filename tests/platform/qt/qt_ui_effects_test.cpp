#include "platform/qt/qt_ui_effects.hpp"

#include <gtest/gtest.h>

#include <QApplication>

namespace kestri {
namespace {

class Animations : public testing::Test {
 protected:
  static bool Menus() { return QApplication::isEffectEnabled(Qt::UI_AnimateMenu); }
  static bool ComboBoxes() { return QApplication::isEffectEnabled(Qt::UI_AnimateCombo); }
  QtUiEffects effects;
};

TEST_F(Animations, EachPartIsSwitchedByItself) {
  effects.SetAnimation(0, UiEffects::kMenus);
  effects.SetAnimation(0, UiEffects::kComboBoxes);
  EXPECT_FALSE(Menus());
  EXPECT_FALSE(ComboBoxes());
  effects.SetAnimation(1, UiEffects::kMenus);
  EXPECT_TRUE(Menus());
  EXPECT_FALSE(ComboBoxes());
  effects.SetAnimation(1, UiEffects::kComboBoxes);
  effects.SetAnimation(0, UiEffects::kMenus);
  EXPECT_FALSE(Menus());
  EXPECT_TRUE(ComboBoxes());
}

TEST_F(Animations, ANegativeValueIsOnToo) {
  effects.SetAnimation(0, UiEffects::kMenus);
  effects.SetAnimation(-1, UiEffects::kMenus);
  EXPECT_TRUE(Menus());
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
