// The font picker by real keys.
#include "tags/forms/FontFrm.hpp"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <set>

#include "platform/qt/qt_text.hpp"
#include "shell/common/text.hpp"
#include "tags/forms/class_font_dialog.hpp"
#include "tests/fakes/screens.hpp"
#include "tests/tags/forms/dialog_keys.hpp"

namespace kestri {
namespace {

using fakes::PressKey;

std::vector<std::u16string> ScreenOfThree() {
  return {u"Zapfino", u"Arial", u"Courier"};
}

struct Fields {
  explicit Fields(FontFrm& form) : form_(form) {}
  QListWidget* FontView() { return form_.findChild<QListWidget*>(QStringLiteral("FontView")); }
  QComboBox* FontSizeCombo() { return form_.findChild<QComboBox*>(QStringLiteral("FontSizeCombo")); }
  QCheckBox* Check1(int index) {
    return form_.findChild<QCheckBox*>(QStringLiteral("Check1_") + QString::number(index));
  }
  QPushButton* Command1(int index) {
    return form_.findChild<QPushButton*>(QStringLiteral("Command1_") + QString::number(index));
  }
  QLabel* FLB() { return form_.findChild<QLabel*>(QStringLiteral("FLB")); }
  std::u16string Font() { return FromQt(FontView()->currentItem()->text()); }

 private:
  FontFrm& form_;
};

class FontPicker : public testing::Test {
 protected:
  void Open(const FontChoice& wanted) {
    form.LoadValues(wanted);
    form.show();
    QApplication::setActiveWindow(&form);
  }

  FontFrm form{&ScreenOfThree};
  Fields fields{form};
};

TEST_F(FontPicker, ListsTheFontsInTheirOrderEachWithTheStockIcon) {
  QStringList rows;
  for (int i = 0; i < fields.FontView()->count(); ++i) {
    rows += fields.FontView()->item(i)->text();
    EXPECT_FALSE(fields.FontView()->item(i)->icon().isNull());
  }
  EXPECT_EQ(rows.join(u'|'),
            QStringLiteral("ＭＳ ゴシック|ＭＳ Ｐゴシック|ＭＳ 明朝|ＭＳ Ｐ明朝|Zapfino|Arial|Courier"));
}

TEST_F(FontPicker, ListsItsSizes) {
  QStringList sizes;
  for (int i = 0; i < fields.FontSizeCombo()->count(); ++i) sizes += fields.FontSizeCombo()->itemText(i);
  EXPECT_EQ(sizes.join(u','), QStringLiteral("8,9,10,11,12,14,16,18,20,22,24,26,28,36,48,72"));
  EXPECT_FALSE(fields.FontSizeCombo()->isEditable());
}

TEST_F(FontPicker, OpensOnTheWantedFont) {
  Open({.name = u"Arial", .size = 14, .bold = true, .italic = true});
  EXPECT_EQ(fields.Font(), u"Arial");
  EXPECT_EQ(fields.FontSizeCombo()->currentText(), QStringLiteral("14"));
  EXPECT_TRUE(fields.Check1(0)->isChecked());
  EXPECT_TRUE(fields.Check1(1)->isChecked());
  EXPECT_EQ(QApplication::focusWidget(), fields.FontView());
}

TEST_F(FontPicker, OpensOnTheNearestRowsOtherwise) {
  Open({.name = u"arial", .size = 15});
  EXPECT_EQ(fields.Font(), u"ＭＳ ゴシック");
  EXPECT_EQ(fields.FontSizeCombo()->currentText(), QStringLiteral("14"));
  Open({.name = u"Courier", .size = 3});
  EXPECT_EQ(fields.FontSizeCombo()->currentText(), QStringLiteral("8"));
  EXPECT_FALSE(fields.Check1(0)->isChecked());
}

TEST_F(FontPicker, FindsTheClassicNamesThatTheScreenLacks) {
  Open({.name = u"ＭＳ Ｐ明朝", .size = 9});
  EXPECT_EQ(fields.Font(), u"ＭＳ Ｐ明朝");
}

TEST_F(FontPicker, TheSampleFollowsEachChange) {
  Open({.name = u"Arial", .size = 9});
  EXPECT_EQ(fields.FLB()->text(), QStringLiteral("ABC 123 あいう"));
  const auto font = [&] { return fields.FLB()->font(); };
  EXPECT_EQ(font().family(), QStringLiteral("Arial"));
  PressKey(Qt::Key_Down);
  EXPECT_EQ(font().family(), QStringLiteral("Courier"));
  PressKey(Qt::Key_S, Qt::AltModifier);
  PressKey(Qt::Key_Down);
  EXPECT_EQ(font().pointSize(), 10);
  PressKey(Qt::Key_B, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return font().bold(); }));
  PressKey(Qt::Key_I, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return font().italic(); }));
  EXPECT_EQ(form.Shown(), (FontChoice{.name = u"Courier", .size = 10, .bold = true, .italic = true}));
}

TEST_F(FontPicker, TypingFindsAFont) {
  Open({});
  QTest::keyClicks(fields.FontView(), QStringLiteral("co"));
  EXPECT_EQ(fields.Font(), u"Courier");
}

TEST_F(FontPicker, ASelectedFontFarDownIsInSight) {
  FontFrm many([] {
    std::vector<std::u16string> names;
    for (int i = 0; i < 300; ++i) names.push_back(u"Font " + ToText(i));
    return names;
  });
  many.LoadValues({.name = u"Font 250"});
  many.show();
  QListWidget* list = Fields(many).FontView();
  EXPECT_TRUE(list->viewport()->rect().contains(list->visualItemRect(list->currentItem())));
}

TEST_F(FontPicker, EveryMnemonicIsItsOwn) {
  EXPECT_EQ(fakes::OwnMnemonics(form), (std::set<QChar>{u'F', u'S', u'B', u'I', u'O', u'C'}));
}

TEST_F(FontPicker, TheTabKeyFollowsTheEye) {
  Open({});
  QList<QWidget*> stops;
  for (int i = 0; i < 6; ++i) {
    stops += QApplication::focusWidget();
    PressKey(Qt::Key_Tab);
  }
  EXPECT_EQ(stops, (QList<QWidget*>{fields.FontView(), fields.FontSizeCombo(), fields.Check1(0),
                                    fields.Check1(1), fields.Command1(0), fields.Command1(1)}));
}

TEST_F(FontPicker, TheLargestSampleIsScrolledAndTheFormKeepsItsSize) {
  Open({.name = u"Arial", .size = 9});
  const QSize before = form.size();
  fields.FontSizeCombo()->setCurrentIndex(15);
  QApplication::processEvents();
  EXPECT_EQ(form.size(), before);
  EXPECT_GE(fields.FLB()->height(), fields.FLB()->sizeHint().height());
}

TEST_F(FontPicker, NothingIsCutAtDoubleSize) {
  QFont::insertSubstitution(QStringLiteral("ＭＳ ゴシック"), QStringLiteral("IPAGothic"));
  Open({.name = u"ＭＳ ゴシック", .size = 20, .bold = true});
  QApplication::processEvents();
  fakes::SavePicture(form.grab().toImage(), QStringLiteral("FontFrm"));
  fakes::ExpectNothingCut(form, fields.FLB());
  form.hide();
  const fakes::DoubledLetters doubled;
  FontFrm large(&ScreenFontFamilies);
  large.setWindowTitle(QStringLiteral("ﾌｫﾝﾄの選択"));
  large.show();
  QApplication::processEvents();
  fakes::SavePicture(large.grab().toImage(), QStringLiteral("FontFrm_200"));
  fakes::ExpectNothingCut(large, Fields(large).FLB());
}

class FontQuestion : public testing::Test {
 protected:
  bool Ask(std::function<void(FontFrm&)> answer) {
    fakes::AnswerModal<FontFrm>(std::move(answer));
    return dialog.ShowFont(&owner);
  }

  QWidget owner;
  int fontReadings = 0;
  ClassFontDialog dialog{[this] {
    ++fontReadings;
    return ScreenOfThree();
  }};
};

TEST_F(FontQuestion, StandsAtItsDefaults) {
  EXPECT_EQ(dialog.FontName(), u"ＭＳ ゴシック");
  EXPECT_FALSE(dialog.FontBold());
  EXPECT_FALSE(dialog.FontItalic());
  EXPECT_EQ(dialog.Caption(), u"ﾌｫﾝﾄの選択");
}

TEST_F(FontQuestion, OkCarriesTheChoiceInTheProperties) {
  dialog.SetFontName(u"Arial");
  dialog.SetFontSize(13);
  dialog.SetFontBold(true);
  EXPECT_TRUE(Ask([](FontFrm& form) {
    EXPECT_EQ(form.windowTitle(), QStringLiteral("ﾌｫﾝﾄの選択"));
    PressKey(Qt::Key_Down);
    Fields(form).Check1(1)->setFocus();
    PressKey(Qt::Key_Space);
    PressKey(Qt::Key_Return);
  }));
  EXPECT_EQ(dialog.FontName(), u"Courier");
  EXPECT_EQ(dialog.FontSize(), 12);
  EXPECT_TRUE(dialog.FontBold());
  EXPECT_TRUE(dialog.FontItalic());
}

TEST_F(FontQuestion, EscapeLeavesThePropertiesAlone) {
  dialog.SetFontName(u"No such font");
  dialog.SetFontSize(13);
  EXPECT_FALSE(Ask([](FontFrm&) {
    PressKey(Qt::Key_Down);
    PressKey(Qt::Key_Escape);
  }));
  EXPECT_EQ(dialog.FontName(), u"No such font");
  EXPECT_EQ(dialog.FontSize(), 13);
}

TEST_F(FontQuestion, TheCancelButtonAndTheFrameCancel) {
  EXPECT_FALSE(Ask([](FontFrm& form) { Fields(form).Command1(1)->click(); }));
  EXPECT_FALSE(Ask([](FontFrm& form) { form.close(); }));
}

TEST_F(FontQuestion, ADoubleClickInTheListChooses) {
  EXPECT_TRUE(Ask([](FontFrm& form) {
    QListWidget* list = Fields(form).FontView();
    const QPoint third = list->visualItemRect(list->item(4)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, third);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, third);
  }));
  EXPECT_EQ(dialog.FontName(), u"Zapfino");
}

TEST_F(FontQuestion, ItsCaptionIsTheCallers) {
  dialog.SetCaption(u"ﾌｫﾝﾄ参照 (ｻｲｽﾞ.ｽﾀｲﾙは選択はできません)");
  Ask([](FontFrm& form) {
    EXPECT_EQ(form.windowTitle(), QStringLiteral("ﾌｫﾝﾄ参照 (ｻｲｽﾞ.ｽﾀｲﾙは選択はできません)"));
    PressKey(Qt::Key_Escape);
  });
}

TEST_F(FontQuestion, TheScreensFontsAreReadAtTheFirstQuestionOnly) {
  EXPECT_EQ(fontReadings, 0);
  Ask([](FontFrm&) { PressKey(Qt::Key_Escape); });
  Ask([](FontFrm&) { PressKey(Qt::Key_Escape); });
  EXPECT_EQ(fontReadings, 1);
}

TEST_F(FontQuestion, TheOwnersWindowIsActiveAgainAfterwards) {
  owner.show();
  Ask([](FontFrm&) { PressKey(Qt::Key_Return); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &owner; }));
}

TEST_F(FontQuestion, AnOwnerThatGoesMeanwhileTakesTheFormWithIt) {
  auto* going = new QWidget;
  QTimer::singleShot(0, [going] { delete going; });
  EXPECT_FALSE(dialog.ShowFont(going));
  EXPECT_TRUE(Ask([](FontFrm&) { PressKey(Qt::Key_Return); })) << "and asks again";
}

TEST(ScreenFonts, AreThoseOfTheToolkit) {
  const std::vector<std::u16string> names = ScreenFontFamilies();
  EXPECT_FALSE(names.empty());
  std::set<std::u16string> seen;
  for (const std::u16string& name : names) {
    EXPECT_FALSE(name.empty());
    EXPECT_EQ(name.find(u" ["), name.npos) << ToUtf8(name);
    EXPECT_TRUE(seen.insert(name).second) << ToUtf8(name);
  }
}

TEST(ScreenFonts, AreNamedOnceAndWithoutTheirFoundry) {
  EXPECT_EQ(
      NamesWithoutFoundry({QStringLiteral("C059 [urw]"), QStringLiteral("C059 [other]"),
                           QStringLiteral("IPAゴシック"), QStringLiteral("C059"), QStringLiteral("A[1]")}),
      (std::vector<std::u16string>{u"C059", u"IPAゴシック", u"A[1]"}));
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
