// The layout checks find what they are made to find.
#include "tests/gallery/layout_checks.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace kestri::gallery {
namespace {

class LayoutChecks : public testing::Test {
 protected:
  template <typename Widget, typename... Arguments>
  Widget* Add(Arguments... arguments) {
    auto* widget = new Widget(arguments...);
    layout->addWidget(widget);
    return widget;
  }
  void Show() {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QApplication::processEvents();
  }
  QLineEdit* AddField(const QString& caption) {
    auto* label = Add<QLabel>(caption);
    auto* field = Add<QLineEdit>();
    label->setBuddy(field);
    return field;
  }

  QDialog dialog;
  QVBoxLayout* layout = new QVBoxLayout(&dialog);
};

TEST_F(LayoutChecks, AWellMadeDialogHasNoFault) {
  AddField(QStringLiteral("名前(&N)："));
  Add<QCheckBox>(QStringLiteral("次回から表示しない(&S)"));
  Add<QPushButton>(QStringLiteral("OK(&O)"))->setDefault(true);
  Show();
  EXPECT_TRUE(CutTexts(dialog).isEmpty());
  EXPECT_TRUE(ClashingMnemonics(dialog).isEmpty());
  EXPECT_TRUE(FieldsWithoutMnemonic(dialog).isEmpty());
  EXPECT_TRUE(FieldsOutOfReach(dialog).isEmpty());
  EXPECT_TRUE(NoDefaultButton(dialog).isEmpty());
}

TEST_F(LayoutChecks, NarrowTextsAreCut) {
  Add<QLabel>(QStringLiteral("変換後ﾌｧｲﾙ名"))->setFixedWidth(20);
  Add<QPushButton>(QStringLiteral("キャンセル"))->setFixedWidth(30);
  Add<QCheckBox>(QStringLiteral("次回から表示しない"))->setFixedWidth(40);
  Add<QRadioButton>(QStringLiteral("新規作成"))->setFixedWidth(30);
  Add<QGroupBox>(QStringLiteral("保存する時の改行ｺｰﾄﾞ"))->setFixedWidth(30);
  Show();
  EXPECT_EQ(CutTexts(dialog).size(), 5) << CutTexts(dialog).join(u'\n').toStdString();
}

TEST_F(LayoutChecks, ALowWrappedLabelIsCut) {
  auto* label = Add<QLabel>(QStringLiteral("このﾌｧｲﾙは 別のｱﾌﾟﾘｹｰｼｮﾝで 変更されています"));
  label->setWordWrap(true);
  label->setFixedSize(60, 10);
  Show();
  EXPECT_EQ(CutTexts(dialog).size(), 1);
}

TEST_F(LayoutChecks, TheSameAltKeyTwiceIsAClash) {
  AddField(QStringLiteral("名前(&N)："));
  Add<QPushButton>(QStringLiteral("いいえ(&N)"));
  Add<QPushButton>(QStringLiteral("はい(&Y)"));
  Show();
  EXPECT_EQ(ClashingMnemonics(dialog).size(), 1);
  QMenu menu;
  menu.addAction(QStringLiteral("開く(&O)"));
  menu.addAction(QStringLiteral("保存(&S)"));
  EXPECT_TRUE(ClashingMnemonics(menu).isEmpty());
  menu.addAction(QStringLiteral("設定(&O)"));
  EXPECT_EQ(ClashingMnemonics(menu).size(), 1);
}

TEST_F(LayoutChecks, AFieldWithoutALabelIsTold) {
  Add<QLineEdit>();
  Add<QComboBox>();
  AddField(QStringLiteral("名前："));
  Add<QLineEdit>()->setReadOnly(true);
  Show();
  EXPECT_EQ(FieldsWithoutMnemonic(dialog).size(), 3) << "what only shows a value needs none";
}

TEST_F(LayoutChecks, AFieldThatHoldsTheTabKeyHidesTheOthers) {
  class Swallows : public QLineEdit {
   protected:
    bool event(QEvent* event) override {
      return event->type() == QEvent::KeyPress || QLineEdit::event(event);
    }
  };
  Add<Swallows>();
  Add<QLineEdit>();
  Show();
  EXPECT_EQ(FieldsOutOfReach(dialog).size(), 1);
}

TEST_F(LayoutChecks, OneOfTheRadioButtonsThatExcludeEachOtherIsEnough) {
  Add<QRadioButton>(QStringLiteral("半角(&H)"));
  Add<QRadioButton>(QStringLiteral("全角(&Z)"))->setChecked(true);
  Add<QLineEdit>();
  Show();
  EXPECT_TRUE(FieldsOutOfReach(dialog).isEmpty());
}

TEST_F(LayoutChecks, ADialogWithoutAButtonForEnterIsTold) {
  Add<QPushButton>(QStringLiteral("閉じる"))->setAutoDefault(false);
  Show();
  EXPECT_EQ(NoDefaultButton(dialog).size(), 1);
}

}  // namespace
}  // namespace kestri::gallery

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  return RUN_ALL_TESTS();
}
