// The free indent's dialog by real keys.
#include "document/forms/FreeIndFrm.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <set>

#include "platform/qt/qt_text.hpp"
#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

class FreeIndDialog : public testing::Test {
 protected:
  FreeIndDialog() {
    form.show();
    QApplication::setActiveWindow(&form);
  }

  template <typename Field>
  Field* Find(const char* name) {
    return form.findChild<Field*>(QLatin1String(name));
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus == nullptr ? &form : focus, key, modifiers);
  }
  QPushButton* Ok() {
    for (QPushButton* button : form.findChildren<QPushButton*>())
      if (button->text() == QStringLiteral("OK(&O)")) return button;
    return nullptr;
  }

  fakes::MainTextDesk desk;
  TextTransforms transforms{desk.text, desk.state, desk.common, desk.host};
  FreeIndFrm form{transforms};
  QComboBox* combo1 = Find<QComboBox>("Combo1");
  QLineEdit* text2 = Find<QLineEdit>("Text2");
  QSpinBox* text1 = Find<QSpinBox>("Text1");
};

TEST_F(FreeIndDialog, OpensOnItsFirstFieldWithOneTabToTheRight) {
  EXPECT_EQ(form.windowTitle(), QStringLiteral("ﾌﾘｰｲﾝﾃﾞﾝﾄ"));
  EXPECT_EQ(QApplication::focusWidget(), combo1);
  EXPECT_EQ(form.Choice().Unit(), u"\t");
  EXPECT_EQ(form.Choice().direction, IndentDirection::More);
  EXPECT_TRUE(Ok()->isDefault());
}

TEST_F(FreeIndDialog, OffersTheFourCharacters) {
  QStringList offered;
  for (int i = 0; i < combo1->count(); ++i) offered += combo1->itemText(i);
  EXPECT_EQ(offered.join(QLatin1Char('|')), QStringLiteral("Tab|半角ｽﾍﾟｰｽ|全角ｽﾍﾟｰｽ|任意指定"));
}

TEST_F(FreeIndDialog, TheFreeCharacterIsEnabledOnlyWhenItIsChosen) {
  for (int i = 0; i < 4; ++i) {
    combo1->setCurrentIndex(i);
    EXPECT_EQ(text2->isEnabled(), i == 3);
    EXPECT_EQ(Ok()->isEnabled(), i != 3) << "no free character yet";
  }
  QTest::keyClicks(text2, QStringLiteral("*"));
  EXPECT_TRUE(Ok()->isEnabled());
}

TEST_F(FreeIndDialog, TheFreeFieldTakesOneCharacter) {
  combo1->setCurrentIndex(3);
  QTest::keyClicks(text2, QStringLiteral("ab"));
  EXPECT_EQ(text2->text(), QStringLiteral("a"));
  text2->clear();
  text2->insert(QStringLiteral("𠮷"));
  EXPECT_EQ(text2->text(), QStringLiteral("𠮷")) << "two units, one character";
}

TEST_F(FreeIndDialog, EnterIndentsTheSelectedLinesAndCloses) {
  desk.Put(u"a\n⟦b⟧c");
  combo1->setFocus();
  Press(Qt::Key_Down);
  text1->setFocus();
  text1->selectAll();
  Press(Qt::Key_3);
  Press(Qt::Key_Return);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.result(), QDialog::Accepted);
  EXPECT_EQ(desk.Row(), "a\n⟦   bc⟧");
}

TEST_F(FreeIndDialog, LevelMinusTakesTheUnitsAway) {
  desk.Put(u"⟦＞＞a\n＞b⟧");
  combo1->setCurrentIndex(3);
  text2->setText(QStringLiteral("＞"));
  text1->setValue(2);
  Find<QRadioButton>("Option1_0")->click();
  Press(Qt::Key_Return);
  EXPECT_EQ(desk.Row(), "⟦a\n＞b⟧");
}

TEST_F(FreeIndDialog, EscLeavesTheTextAlone) {
  desk.Put(u"⟦a⟧");
  Press(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.result(), QDialog::Rejected);
  EXPECT_EQ(desk.Row(), "⟦a⟧");
}

TEST_F(FreeIndDialog, EnterWithoutAFreeCharacterKeepsTheDialogOpen) {
  desk.Put(u"⟦a⟧");
  combo1->setCurrentIndex(3);
  Press(Qt::Key_Return);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(desk.Row(), "⟦a⟧");
}

TEST_F(FreeIndDialog, TabGoesDownTheFieldsAndPastAFieldThatIsOff) {
  Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), text1);
  combo1->setCurrentIndex(3);
  combo1->setFocus();
  Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), text2);
}

TEST_F(FreeIndDialog, EveryLabelsMnemonicIsItsOwn) {
  std::set<QChar> mnemonics;
  const auto take = [&](const QString& text) {
    const qsizetype at = text.indexOf(QLatin1Char('&'));
    if (at < 0) return;
    EXPECT_TRUE(mnemonics.insert(text[at + 1]).second) << qPrintable(text);
  };
  for (const QLabel* label : form.findChildren<QLabel*>()) take(label->text());
  for (const QAbstractButton* button : form.findChildren<QAbstractButton*>()) take(button->text());
  EXPECT_EQ(mnemonics.size(), 7u);
}

TEST_F(FreeIndDialog, PictureForAPersonToLookAt) {
  QDir().mkpath(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens"));
  EXPECT_TRUE(form.grab().save(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens/FreeIndFrm.png")));
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  return RUN_ALL_TESTS();
}
