// The warning of the system by real keys.
#include "shell/startup/forms/RunArtFrm.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "platform/posix/posix_file_system.hpp"
#include "platform/qt/qt_text.hpp"
#include "shell/startup/environment_tests.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/screens.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

class SystemWarning : public testing::Test {
 protected:
  SystemWarning() {
    form.SetChecked(true);
    form.SetText(kOsWarning);
    form.show();
    QApplication::setActiveWindow(&form);
  }
  static fakes::FakeEnvironment& In(fakes::FakeEnvironment& environment,
                                    const fakes::TemporaryFolder& folder) {
    environment.executable = folder.Text(u"Kestri");
    return environment;
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  std::string Saved() { return ToUtf8(common.GetINI(u"Kestri", u"RunArt", u"RunArt", u"none")); }
  QCheckBox* Check1() { return form.findChild<QCheckBox*>(QStringLiteral("Check1")); }

  fakes::TemporaryFolder folder;
  PosixFileSystem files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
  ClassCommon common{{files, In(environment, folder), shell, clock, services}, PathStyle::Posix};
  RunArtFrm form{common};
};

TEST_F(SystemWarning, ShowsTheTextAndOffersNotToComeAgain) {
  EXPECT_EQ(form.findChild<QLabel*>(QStringLiteral("Label1"))->text(), ToQt(kOsWarning));
  EXPECT_EQ(Check1()->text(), QStringLiteral("次回からこのﾒｯｾｰｼﾞを表示しない"));
  EXPECT_TRUE(Check1()->isChecked());
  fakes::SavePicture(form.grab().toImage(), QStringLiteral("RunArtFrm"));
}

TEST_F(SystemWarning, EnterKeepsItAwayFromNowOn) {
  Press(Qt::Key_Return);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(Saved(), "1");
}

TEST_F(SystemWarning, WithoutTheCheckItComesAgain) {
  Check1()->setFocus();
  Press(Qt::Key_Space);
  Press(Qt::Key_Return);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(Saved(), "0");
}

TEST_F(SystemWarning, EscapeClosesItAndSavesNothing) {
  Press(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(Saved(), "none");
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  return RUN_ALL_TESTS();
}
