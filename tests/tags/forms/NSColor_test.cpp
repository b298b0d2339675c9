// The colour picker by real keys.
#include "tags/forms/NSColor.hpp"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>

#include "platform/qt/qt_text.hpp"
#include "shell/common/text.hpp"
#include "tags/forms/class_color.hpp"
#include "tests/fakes/screens.hpp"
#include "tests/tags/forms/dialog_keys.hpp"

namespace kestri {
namespace {

using fakes::PressKey;

constexpr std::u16string_view kTitle = u"HTMLｶﾗｰｺｰﾄﾞ取得";

struct Fields {
  explicit Fields(NSColor& form) : form_(form) {}
  QSlider* HScroll(int index) { return Find<QSlider>("HScroll_", index); }
  QSpinBox* UpDoun(int index) { return Find<QSpinBox>("UpDoun_", index); }
  QString Label(int index) { return Find<QLabel>("Label_", index)->text(); }
  QLineEdit* SLabel() { return form_.findChild<QLineEdit*>(QStringLiteral("SLabel")); }
  QPushButton* Command(int index) { return Find<QPushButton>("Command_", index); }
  QAbstractButton* Swatch(const QString& name) {
    for (auto* button : form_.findChildren<QAbstractButton*>())
      if (button->accessibleName() == name) return button;
    return nullptr;
  }

 private:
  template <typename Field>
  Field* Find(const char* name, int index) {
    return form_.findChild<Field*>(QLatin1String(name) + QString::number(index));
  }
  NSColor& form_;
};

class ColorPicker : public testing::Test {
 protected:
  void Open(std::u16string_view current) {
    form.Prepare(kTitle, current);
    form.show();
    QApplication::setActiveWindow(&form);
  }
  std::string Code() { return fields.SLabel()->text().toStdString(); }
  QColor Ground() { return fields.SLabel()->palette().color(QPalette::Base); }
  void ExpectParts(int red, int green, int blue) {
    const int parts[] = {red, green, blue};
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(fields.HScroll(i)->value(), parts[i]) << i;
      EXPECT_EQ(fields.UpDoun(i)->value(), parts[i]) << i;
      EXPECT_EQ(fields.Label(i), QString::number(parts[i])) << i;
    }
    EXPECT_EQ(Ground(), QColor(red, green, blue));
  }

  NSColor form;
  Fields fields{form};
};

TEST_F(ColorPicker, StandsAtBlackBeforeItIsShown) {
  ExpectParts(0, 0, 0);
  EXPECT_EQ(Code(), "#000000");
}

TEST_F(ColorPicker, OpensOnTheCurrentColourWithTheFirstSliderInHand) {
  Open(u"#0A80fF");
  EXPECT_EQ(form.windowTitle(), ToQt(kTitle));
  ExpectParts(10, 128, 255);
  EXPECT_EQ(Code(), "#0A80FF");
  EXPECT_EQ(QApplication::focusWidget(), fields.HScroll(0));
}

TEST_F(ColorPicker, WhatIsNoCodeShowsAsBlack) {
  for (const std::u16string_view current : {u"0A80FF", u"#0A80F", u"#0A80FF0", u"red", u"", u"#GG0000"}) {
    form.Prepare(kTitle, u"#FFFFFF");
    Open(current);
    EXPECT_EQ(Code(), "#000000") << ToUtf8(current);
    ExpectParts(0, 0, 0);
  }
}

TEST_F(ColorPicker, EachPartIsPaddedToTwoDigits) {
  Open(u"");
  fields.HScroll(0)->setValue(10);
  fields.HScroll(2)->setValue(255);
  EXPECT_EQ(Code(), "#0A00FF");
}

TEST_F(ColorPicker, SlidersGoFromZeroTo255InStepsOfOneAndTen) {
  for (int i = 0; i < 3; ++i) {
    const QSlider& slider = *fields.HScroll(i);
    EXPECT_EQ(slider.minimum(), 0);
    EXPECT_EQ(slider.maximum(), 255);
    EXPECT_EQ(slider.tickInterval(), 25);
    EXPECT_EQ(slider.pageStep(), 10);
    EXPECT_EQ(slider.singleStep(), 1);
  }
}

TEST_F(ColorPicker, KeysMoveTheSliderAndEverythingFollows) {
  Open(u"#000000");
  PressKey(Qt::Key_PageUp);
  PressKey(Qt::Key_Right);
  ExpectParts(11, 0, 0);
  PressKey(Qt::Key_Tab);
  PressKey(Qt::Key_End);
  ExpectParts(11, 255, 0);
  PressKey(Qt::Key_Tab);
  PressKey(Qt::Key_Right);
  ExpectParts(11, 255, 1);
  EXPECT_EQ(Code(), "#0BFF01");
}

TEST_F(ColorPicker, ASpinnerMovesItsSliderAndGivesItTheFocus) {
  Open(u"#000000");
  fields.UpDoun(2)->stepUp();
  ExpectParts(0, 0, 1);
  EXPECT_EQ(QApplication::focusWidget(), fields.HScroll(2));
  EXPECT_EQ(fields.UpDoun(0)->focusPolicy(), Qt::NoFocus);
}

TEST_F(ColorPicker, ASpinnersArrowsTakeTheMouse) {
  Open(u"#000000");
  QSpinBox* spinner = fields.UpDoun(1);
  QTest::mouseClick(spinner, Qt::LeftButton, {}, QPoint(spinner->width() / 2, spinner->height() / 4));
  QTest::mouseClick(spinner, Qt::LeftButton, {}, QPoint(spinner->width() / 2, spinner->height() / 4));
  ExpectParts(0, 2, 0);
  QTest::mouseClick(spinner, Qt::LeftButton, {}, QPoint(spinner->width() / 2, spinner->height() * 3 / 4));
  ExpectParts(0, 1, 0);
}

TEST_F(ColorPicker, MnemonicsReachTheSlidersAndTheButtons) {
  Open(u"#000000");
  PressKey(Qt::Key_B, Qt::AltModifier);
  EXPECT_EQ(QApplication::focusWidget(), fields.HScroll(2));
  PressKey(Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(QApplication::focusWidget(), fields.HScroll(1));
  EXPECT_EQ(fakes::OwnMnemonics(form), (std::set<QChar>{u'R', u'G', u'B', u'O', u'C'}));
}

TEST_F(ColorPicker, TheCodeIsReadOnlyAndReadableOnEveryGround) {
  Open(u"#FFFFFF");
  EXPECT_TRUE(fields.SLabel()->isReadOnly());
  EXPECT_EQ(fields.SLabel()->palette().color(QPalette::Text), QColor(Qt::black));
  form.Prepare(kTitle, u"#000080");
  EXPECT_EQ(fields.SLabel()->palette().color(QPalette::Text), QColor(Qt::white));
  fields.SLabel()->setFocus();
  QTest::keyClicks(fields.SLabel(), QStringLiteral("123"));
  EXPECT_EQ(Code(), "#000080");
}

TEST_F(ColorPicker, ASwatchSetsAllThreePartsAndKeepsTheKeys) {
  Open(u"#123456");
  QAbstractButton* aqua = fields.Swatch(QStringLiteral("Aqua"));
  QTest::mouseClick(aqua, Qt::LeftButton);
  ExpectParts(0, 255, 255);
  EXPECT_TRUE(aqua->isChecked());
  EXPECT_EQ(QApplication::focusWidget(), aqua);
  PressKey(Qt::Key_Right);
  EXPECT_EQ(Code(), "#0000FF");
  fields.HScroll(0)->setValue(1);
  EXPECT_FALSE(fields.Swatch(QStringLiteral("Blue"))->isChecked());
}

TEST_F(ColorPicker, SixteenNamesStandForTheirColours) {
  Open(u"#123456");
  for (const NamedColor& color : kNamedColors) {
    fields.Swatch(ToQt(color.name))->click();
    EXPECT_EQ(Ground(), QColor(ToQt(color.name).toLower())) << ToUtf8(color.name);
  }
}

TEST_F(ColorPicker, EveryFieldIsReachedByTheTabKey) {
  Open(u"#123456");
  QList<QWidget*> stops;
  for (int i = 0; i < 7; ++i) {
    stops += QApplication::focusWidget();
    PressKey(Qt::Key_Tab);
  }
  EXPECT_EQ(stops,
            (QList<QWidget*>{fields.HScroll(0), fields.HScroll(1), fields.HScroll(2), fields.SLabel(),
                             fields.Swatch(QStringLiteral("Black")), fields.Command(0), fields.Command(1)}));
}

class ColorQuestion : public testing::Test {
 protected:
  std::u16string Ask(std::u16string_view current, std::function<void(NSColor&)> answer) {
    fakes::AnswerModal<NSColor>(std::move(answer));
    return color.SettingColor(kTitle, current, &owner);
  }

  QWidget owner;
  ClassColor color;
};

TEST_F(ColorQuestion, EnterAnswersWithTheCode) {
  EXPECT_EQ(Ask(u"#0000fe",
                [](NSColor& form) {
                  Fields(form).HScroll(2)->setFocus();
                  PressKey(Qt::Key_Right);
                  PressKey(Qt::Key_Return);
                }),
            u"#0000FF");
}

TEST_F(ColorQuestion, EscapeAndCancelAnswerWithNothing) {
  EXPECT_EQ(Ask(u"#0000FF", [](NSColor&) { PressKey(Qt::Key_Escape); }), u"");
  EXPECT_EQ(Ask(u"#0000FF", [](NSColor& form) { Fields(form).Command(1)->click(); }), u"");
  EXPECT_EQ(Ask(u"#0000FF", [](NSColor& form) { form.close(); }), u"");
}

TEST_F(ColorQuestion, EnterOnCancelCancels) {
  EXPECT_EQ(Ask(u"#0000FF",
                [](NSColor& form) {
                  Fields(form).Command(1)->setFocus();
                  PressKey(Qt::Key_Return);
                }),
            u"");
}

TEST_F(ColorQuestion, AnInvalidColourAcceptedIsBlack) {
  EXPECT_EQ(Ask(u"FF0000", [](NSColor& form) { Fields(form).Command(0)->click(); }), u"#000000");
}

TEST_F(ColorQuestion, AnEarlierAnswerIsForgotten) {
  EXPECT_EQ(Ask(u"#FF0000", [](NSColor&) { PressKey(Qt::Key_Return); }), u"#FF0000");
  EXPECT_EQ(Ask(u"#00FF00", [](NSColor&) { PressKey(Qt::Key_Escape); }), u"");
}

TEST_F(ColorQuestion, ItIsModalOverTheOwnersWindow) {
  QWidget* inner = new QWidget(&owner);
  fakes::AnswerModal<NSColor>([&](NSColor& form) {
    EXPECT_TRUE(form.isModal());
    EXPECT_EQ(form.parentWidget(), &owner);
    PressKey(Qt::Key_Escape);
  });
  color.SettingColor(kTitle, u"", inner);
  EXPECT_TRUE(owner.findChildren<NSColor*>().isEmpty()) << "the form stays with its class";
}

TEST_F(ColorQuestion, AnOwnerThatGoesMeanwhileTakesTheFormWithIt) {
  auto* going = new QWidget;
  QTimer::singleShot(0, [going] { delete going; });
  EXPECT_EQ(color.SettingColor(kTitle, u"#FF0000", going), u"");
  EXPECT_EQ(Ask(u"#00FF00", [](NSColor&) { PressKey(Qt::Key_Return); }), u"#00FF00") << "and asks again";
}

TEST_F(ColorPicker, NothingIsCutAtDoubleSize) {
  Open(u"#0A80FF");
  fakes::SavePicture(form.grab().toImage(), QStringLiteral("NSColor"));
  fakes::ExpectNothingCut(form);
  form.hide();
  const fakes::DoubledLetters doubled;
  NSColor large;
  large.Prepare(kTitle, u"#FFFFFF");
  large.show();
  QApplication::processEvents();
  fakes::SavePicture(large.grab().toImage(), QStringLiteral("NSColor_200"));
  fakes::ExpectNothingCut(large);
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
