// The splash as it is painted.
#include "shell/startup/forms/TopFrm.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>

#include "platform/posix/posix_file_system.hpp"
#include "platform/qt/qt_text.hpp"
#include "shell/common/application_state.hpp"
#include "shell/startup/forms/ClassIMGTopFrm.hpp"
#include "tests/fakes/painted_words.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/screens.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

constexpr QColor kRed(200, 0, 0), kGreen(0, 200, 0), kBlue(0, 0, 200), kYellow(200, 200, 0);

class Splash : public testing::Test {
 protected:
  Splash() {
    environment.executable = folder.Text(u"Kestri");
    environment.folders[SystemFolder::Temporary] = folder.Text(u"temporary");
    QDir(Native("")).mkpath("temporary");
    QDir(Native("")).mkpath("resources/JPEG");
    EXPECT_TRUE(QFile::copy(QStringLiteral(KESTRI_SOURCE_DIR "/data/resources/splash.jpg"),
                            Native("resources/JPEG/500")));
  }

  QString Native(const char* name) const { return QString::fromStdString(folder.Path(name)); }
  ClassCommon Common() { return ClassCommon({files, environment, shell, clock, services}, PathStyle::Posix); }
  void Set(std::u16string_view key, std::u16string_view value) {
    Common().SetINI(u"Kestri", u"Wall", key, value);
  }
  std::unique_ptr<TopFrm> Show() {
    const ClassCommon common = Common();
    return ClassIMGTopFrm(common, Native("resources/")).IMGTopFrm();
  }
  static QString Label(const TopFrm& form, const char* name) {
    return form.findChild<QLabel*>(QLatin1String(name))->text();
  }
  // Four fields of one colour each, 400 by 300 each.
  void WriteQuarters() {
    QImage picture(800, 600, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.fillRect(0, 0, 400, 300, kRed);
    painter.fillRect(400, 0, 400, 300, kGreen);
    painter.fillRect(0, 300, 400, 300, kBlue);
    painter.fillRect(400, 300, 400, 300, kYellow);
    painter.end();
    EXPECT_TRUE(picture.save(Native("wall.png")));
    Set(u"Picture", folder.Text(u"wall.png"));
  }
  static QColor At(TopFrm& form, int x, int y) {
    const QImage image = form.grab().toImage();
    const qreal scale = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
  }

  fakes::TemporaryFolder folder;
  PosixFileSystem files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
};

TEST_F(Splash, StandsInTheMiddleOfTheScreenInFrontOfAllWithoutTheKeyboard) {
  const auto form = Show();
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_EQ(form->pos(), QPoint((screen.width() - 480) / 2, (screen.height() - 300) / 2));
  EXPECT_TRUE(form->windowFlags() & Qt::WindowStaysOnTopHint);
  EXPECT_TRUE(form->windowFlags() & Qt::FramelessWindowHint);
  EXPECT_TRUE(form->testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_TRUE(form->isVisible());
}

TEST_F(Splash, ShowsProgressVersionAndCredit) {
  const auto form = Show();
  EXPECT_EQ(Label(*form, "Label5"), QStringLiteral("load"));
  EXPECT_EQ(Label(*form, "Label4"), QStringLiteral("Ver. 01.00.000e07"));
  EXPECT_EQ(Label(*form, "Label3"), ToQt(kCreditLine));
}

TEST_F(Splash, AProgressTextIsPaintedBeforeTheWorkGoesOn) {
  const auto form = Show();
  const QImage before = form->grab().toImage();
  LoadProgress& progress = *form;
  progress.Show(u"ﾂｰﾙﾊﾞｰ復元中...");
  EXPECT_EQ(Label(*form, "Label5"), QStringLiteral("ﾂｰﾙﾊﾞｰ復元中..."));
  EXPECT_NE(form->grab().toImage(), before);
}

TEST_F(Splash, TheProgramsOwnPictureFillsTheWindow) {
  const auto form = Show();
  const QImage drawn =
      QImage(QStringLiteral(KESTRI_SOURCE_DIR "/data/resources/splash.jpg")).scaled(480, 300);
  for (const QPoint place : {QPoint(20, 10), QPoint(330, 100), QPoint(100, 220)}) {
    const QColor seen = At(*form, place.x(), place.y());
    const QColor wanted = drawn.pixelColor(place);
    EXPECT_NEAR(seen.red(), wanted.red(), 24) << place.x();
    EXPECT_NEAR(seen.green(), wanted.green(), 24) << place.x();
    EXPECT_NEAR(seen.blue(), wanted.blue(), 24) << place.x();
  }
  fakes::SavePicture(form->grab().toImage(), QStringLiteral("TopFrm"));
}

TEST_F(Splash, TheProgramsOwnPictureIsDrawnForLargeScreensToo) {
  const QFileInfo file(QStringLiteral(KESTRI_SOURCE_DIR "/data/resources/splash.jpg"));
  EXPECT_LT(file.size(), 80 * 1024);
  EXPECT_EQ(QImage(file.filePath()).size(), TopFrm::kClientSize * 2);
}

TEST_F(Splash, TheUsersPictureIsStretched) {
  WriteQuarters();
  const auto form = Show();
  EXPECT_EQ(At(*form, 100, 50), kRed);
  EXPECT_EQ(At(*form, 380, 50), kGreen);
  EXPECT_EQ(At(*form, 100, 200), kBlue);
  EXPECT_EQ(At(*form, 380, 200), kYellow);
}

TEST_F(Splash, TheUsersPictureIsShownUnscaledFromItsCorner) {
  WriteQuarters();
  Set(u"WinResize", u"0");
  const auto form = Show();
  EXPECT_EQ(At(*form, 395, 200), kRed);
  EXPECT_EQ(At(*form, 405, 200), kGreen);
}

TEST_F(Splash, ScrollPositionsMoveIntoAnUnscaledPicture) {
  WriteQuarters();
  Set(u"WinResize", u"0");
  Set(u" WallHScroll", u"300");
  Set(u" WallVScroll", u"200");
  const auto form = Show();
  EXPECT_EQ(At(*form, 95, 95), kRed);
  EXPECT_EQ(At(*form, 105, 95), kGreen);
  EXPECT_EQ(At(*form, 95, 105), kBlue);
  EXPECT_EQ(At(*form, 105, 105), kYellow);
}

TEST_F(Splash, NegativeScrollPositionsMoveThePictureIntoTheWindow) {
  WriteQuarters();
  Set(u"WinResize", u"0");
  Set(u" WallHScroll", u"-50");
  Set(u" WallVScroll", u"-20");
  const auto form = Show();
  EXPECT_NE(At(*form, 45, 100), kRed);
  EXPECT_EQ(At(*form, 55, 25), kRed);
  EXPECT_NE(At(*form, 55, 15), kRed);
}

TEST_F(Splash, APictureScrolledOutOfSightIsNoFailure) {
  WriteQuarters();
  Set(u"WinResize", u"0");
  Set(u" WallHScroll", u"5000");
  const auto form = Show();
  const QColor back = At(*form, 10, 10);
  EXPECT_EQ(At(*form, 240, 120), back);
  EXPECT_EQ(At(*form, 40, 22), back);
}

TEST_F(Splash, AFileThatIsNoPictureIsToldOnTheWindow) {
  folder.Write("wall.bmp", "no picture");
  Set(u"Picture", folder.Text(u"wall.bmp"));
  const auto form = Show();
  EXPECT_TRUE(form->isVisible());
  const QImage told = form->grab().toImage();
  fakes::SavePicture(told, QStringLiteral("TopFrm-failure"));
  TopFrm plain;
  plain.ShowFailure();
  plain.SetVersion(Label(*form, "Label4"));
  plain.SetCredit(Label(*form, "Label3"));
  EXPECT_EQ(told, plain.grab().toImage());
}

TEST_F(Splash, TheFailureIsToldInTwoLines) {
  folder.Write("wall.bmp", "no picture");
  Set(u"Picture", folder.Text(u"wall.bmp"));
  const QStringList words = fakes::PaintedWords(*Show());
  EXPECT_TRUE(words.contains(QStringLiteral("TOP IMAGE PRINT REEOR !!"))) << words.join(u'|').toStdString();
  EXPECT_TRUE(words.contains(QStringLiteral("   \"RES TOPTITLE\""))) << words.join(u'|').toStdString();
}

TEST_F(Splash, APaintedPictureTellsOfNoFailure) {
  WriteQuarters();
  for (const QString& words : fakes::PaintedWords(*Show())) EXPECT_FALSE(words.contains(u"RES TOPTITLE"));
}

TEST_F(Splash, AnUnusableNumberOfThePictureIsAFailureToPaintIt) {
  WriteQuarters();
  Set(u"WinResize", u"abc");
  EXPECT_TRUE(fakes::PaintedWords(*Show()).contains(QStringLiteral("TOP IMAGE PRINT REEOR !!")));
}

TEST_F(Splash, WithoutATemporaryFolderTheFailureIsTold) {
  environment.folders[SystemFolder::Temporary] = folder.Text(u"gone");
  const auto form = Show();
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(At(*form, 240, 150), At(*form, 2, 2));
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
