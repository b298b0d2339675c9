// The tool window's menus over the real text.
#include "document/forms/EditSubFrm.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTest>
#include <memory>

#include "platform/qt/qt_text.hpp"
#include "platform/qt/title_room.hpp"
#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using testing::Contains;

class ToolWindow : public testing::Test {
 protected:
  std::unique_ptr<EditSubFrm> Open(EditSubFrm::Dialogs dialogs = {}) {
    auto form = std::make_unique<EditSubFrm>(transforms, desk.common, desk.host, std::move(dialogs));
    form->show();
    QApplication::processEvents();
    return form;
  }
  static QMenu* MenuAt(const EditSubFrm& form, int index) {
    return form.findChild<QMenuBar*>()->actions().at(index)->menu();
  }
  std::string Setting(std::u16string_view key) {
    return ToUtf8(desk.common.GetINI(desk.common.ExeName(), u"Setting", key, u"(none)"));
  }

  fakes::MainTextDesk desk;
  TextTransforms transforms{desk.text, desk.state, desk.common, desk.host};
};

TEST_F(ToolWindow, IsASmallToolWindowWithTheProgramsName) {
  const auto form = Open();
  EXPECT_EQ(form->windowTitle(), QStringLiteral("MenuBar for Kestrile"));
  EXPECT_EQ(form->windowType(), Qt::Tool);
  EXPECT_LT(form->height(), 60);
  EXPECT_GE(form->width(), RoomForTitle(*form));
}

TEST_F(ToolWindow, ItsLettersAreNotThoseOfTheMainMenu) {
  const auto form = Open();
  QStringList captions;
  for (const QAction* menu : form->findChild<QMenuBar*>()->actions()) captions += menu->text();
  EXPECT_EQ(captions.join(u'|'), QStringLiteral("特殊文字(&M)|色(&C)|ﾌｫﾝﾄ(&N)"));
}

// A window over another one, whose text has the keys.
class OverItsOwner : public ToolWindow {
 protected:
  OverItsOwner() {
    owner.show();
    form = new EditSubFrm(transforms, desk.common, desk.host,
                          {.color = [this](std::u16string_view) { return Answer(); }, .font = {}}, &inside);
    form->show();
    form->activateWindow();
    QApplication::processEvents();
  }
  std::optional<std::u16string> Answer() {
    form->activateWindow();
    QApplication::processEvents();
    return std::nullopt;
  }
  bool OwnerHasTheKeys() {
    return QTest::qWaitFor([this] { return QApplication::activeWindow() == &owner; }, 1000);
  }

  QWidget owner;
  QWidget inside{&owner};
  EditSubFrm* form = nullptr;
};

TEST_F(OverItsOwner, AnEntryGivesTheOwnerTheKeys) {
  ASSERT_EQ(QApplication::activeWindow(), form);
  MenuAt(*form, 0)->actions().at(6)->trigger();
  EXPECT_TRUE(OwnerHasTheKeys());
}

TEST_F(OverItsOwner, ACancelledDialogGivesTheOwnerTheKeys) {
  MenuAt(*form, 1)->actions().back()->trigger();
  EXPECT_TRUE(OwnerHasTheKeys());
}

TEST_F(OverItsOwner, EscGivesTheOwnerTheKeys) {
  QTest::keyClick(form, Qt::Key_Escape);
  EXPECT_TRUE(OwnerHasTheKeys());
}

TEST_F(ToolWindow, EachEntryPutsInItsTextAndGivesTheFocusBack) {
  const auto form = Open();
  desk.Put(u"a‸b");
  MenuAt(*form, 0)->actions().at(6)->trigger();
  EXPECT_EQ(desk.Row(), "a&copy;‸b");
  EXPECT_THAT(desk.journal, Contains("focus text"));
  desk.Put(u"‸");
  MenuAt(*form, 1)->actions().at(4)->trigger();
  EXPECT_EQ(desk.Row(), "Red‸");
  desk.Put(u"‸");
  MenuAt(*form, 2)->actions().at(4)->trigger();
  EXPECT_EQ(desk.Row(), "ＭＳ 明朝‸");
}

TEST_F(ToolWindow, ReadOnlyTextRefusesAnEntry) {
  const auto form = Open();
  desk.Put(u"a‸");
  desk.control.SetLocked(true);
  MenuAt(*form, 0)->actions().at(0)->trigger();
  EXPECT_EQ(desk.Row(), "a‸");
  EXPECT_THAT(desk.journal, Contains("beep"));
}

TEST_F(ToolWindow, EntriesWithoutADialogAreDisabled) {
  const auto form = Open();
  EXPECT_FALSE(MenuAt(*form, 1)->actions().back()->isEnabled());
  EXPECT_FALSE(MenuAt(*form, 2)->actions().back()->isEnabled());
}

TEST_F(ToolWindow, DialogsAreAskedByTheirTitleAndTheirAnswerIsPutIn) {
  std::u16string asked;
  const auto form = Open({.color = [&](std::u16string_view title) -> std::optional<std::u16string> {
                            asked = title;
                            return u"#FF0000";
                          },
                          .font = [&](std::u16string_view title) -> std::optional<std::u16string> {
                            asked = title;
                            return std::nullopt;
                          }});
  desk.Put(u"‸");
  QAction* color = MenuAt(*form, 1)->actions().back();
  EXPECT_EQ(color->text(), QStringLiteral("HTMLｶﾗｰｺｰﾄﾞ..."));
  color->trigger();
  EXPECT_EQ(asked, u"HTMLｶﾗｰｺｰﾄﾞ取得");
  EXPECT_EQ(desk.Row(), "#FF0000‸");
  MenuAt(*form, 2)->actions().back()->trigger();
  EXPECT_EQ(asked, u"ﾌｫﾝﾄ参照 (ｻｲｽﾞ.ｽﾀｲﾙは選択はできません)");
  EXPECT_EQ(desk.Row(), "#FF0000‸") << "a cancelled dialog puts nothing in";
}

TEST_F(ToolWindow, OpensWhereItStoodInTwips) {
  desk.SetSetting(u"ToolLeft", u"1500");
  desk.SetSetting(u"ToolTop", u"3000");
  EXPECT_EQ(Open()->geometry().topLeft(), QPoint(100, 200));
}

TEST_F(ToolWindow, OpensAtOneThousandTwipsTheFirstTime) {
  EXPECT_EQ(Open()->geometry().topLeft(), QPoint(66, 66));
}

TEST_F(ToolWindow, KeepsItsPlaceWhenItCloses) {
  const auto form = Open();
  form->setGeometry(QRect(QPoint(40, 60), form->size()));
  form->close();
  EXPECT_EQ(Setting(u"ToolLeft"), "600");
  EXPECT_EQ(Setting(u"ToolTop"), "900");
}

TEST_F(ToolWindow, StandsStillHoweverOftenItOpens) {
  for (int session = 0; session < 3; ++session) {
    const auto form = Open();
    ASSERT_NE(form->geometry().topLeft(), form->pos()) << "the frame has a width";
    EXPECT_EQ(form->geometry().topLeft(), QPoint(66, 66));
    form->hide();
    form->show();
    EXPECT_EQ(form->geometry().topLeft(), QPoint(66, 66));
  }
}

TEST_F(ToolWindow, KeepsItsPlaceWhenTheProgramEnds) {
  auto form = Open();
  form->setGeometry(QRect(QPoint(30, 40), form->size()));
  form.reset();
  EXPECT_EQ(Setting(u"ToolLeft"), "450");
  EXPECT_EQ(Setting(u"ToolTop"), "600");
}

TEST_F(ToolWindow, APlaceOutsideEveryScreenIsBroughtBack) {
  desk.SetSetting(u"ToolLeft", u"900000");
  desk.SetSetting(u"ToolTop", u"-6000");
  const auto form = Open();
  EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(form->frameGeometry()));
}

TEST_F(ToolWindow, EscClosesIt) {
  const auto form = Open();
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_THAT(desk.journal, Contains("focus text"));
}

TEST_F(ToolWindow, EscClosesItFromItsBarToo) {
  const auto form = Open();
  QTest::keyClick(form->findChild<QMenuBar*>(), Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(ToolWindow, PicturesForAPersonToLookAt) {
  const auto form = Open();
  const QString folder = QStringLiteral(KESTRI_SOURCE_DIR "/build/screens");
  QDir().mkpath(folder);
  EXPECT_TRUE(form->grab().save(folder + QStringLiteral("/EditSubFrm.png")));
  for (int i = 0; i < 3; ++i)
    EXPECT_TRUE(MenuAt(*form, i)->grab().save(folder + QStringLiteral("/EditSubFrm_menu%1.png").arg(i)));
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
