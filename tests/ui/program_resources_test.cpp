// Built-in pictures and texts, out of a folder that stands in for the program's own.
#include "ui/program_resources.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>

#include "platform/posix/posix_file_system.hpp"
#include "platform/qt/qt_text.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"
#include "ui/file_version.hpp"

namespace kestri {
namespace {

struct Resources : testing::Test {
  Resources() {
    for (const char* name : {"root/pictures", "root/JPEG", "temporary"}) {
      std::filesystem::create_directories(folder.Path(name));
    }
    environment.folders[SystemFolder::Temporary] = folder.Text(u"temporary");
  }
  void WritePicture(const QString& name, const char* format, QColor color) {
    QPixmap picture(40, 20);
    picture.fill(color);
    EXPECT_TRUE(picture.save(ToQt(folder.Text(u"root/")) + name, format));
  }
  QStringList TemporaryFiles() const {
    return QDir(ToQt(folder.Text(u"temporary")))
        .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System);
  }

  fakes::TemporaryFolder folder;
  PosixFileSystem files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices window;
  ClassCommon common{{files, environment, shell, clock, window}, PathStyle::Posix};
  ProgramResources resources{common, ToQt(folder.Text(u"root/"))};
};

TEST_F(Resources, KindsZeroToTwoArePictures) {
  WritePicture(QStringLiteral("pictures/7"), "PNG", Qt::blue);
  for (int kind = 0; kind <= 2; ++kind) {
    const QPixmap picture = resources.ReadResource(7, kind).value<QPixmap>();
    EXPECT_EQ(picture.size(), QSize(40, 20)) << kind;
    EXPECT_FALSE(resources.ReadResource(8, kind).isValid()) << kind;
  }
}

TEST_F(Resources, TheJpegIsLoadedAndItsTemporaryFileGone) {
  WritePicture(QStringLiteral("JPEG/500"), "JPEG", Qt::red);
  const QPixmap picture = resources.ReadResource(500, 3).value<QPixmap>();
  EXPECT_EQ(picture.size(), QSize(40, 20));
  EXPECT_GT(picture.toImage().pixelColor(20, 10).red(), 240);
  EXPECT_EQ(TemporaryFiles(), QStringList());
  EXPECT_EQ(resources.LoadJpeg(500, {80, 40}).size(), QSize(80, 40));
}

TEST_F(Resources, ABrokenJpegIsNothingAndItsTemporaryFileGone) {
  folder.Write("root/JPEG/500", "no picture");
  EXPECT_FALSE(resources.ReadResource(500, 3).isValid());
  EXPECT_EQ(TemporaryFiles(), QStringList());
}

TEST_F(Resources, AFileOfThatNameIsLeftAlone) {
  WritePicture(QStringLiteral("JPEG/500"), "JPEG", Qt::red);
  folder.Write("temporary/TopTitle.dat", "mine");
  EXPECT_TRUE(resources.ReadResource(500, 3).isValid());
  EXPECT_EQ(TemporaryFiles(), QStringList{QStringLiteral("TopTitle.dat")});
  EXPECT_EQ(folder.Read("temporary/TopTitle.dat"), "mine");
}

TEST_F(Resources, ALinkUnderThatNameIsNotFollowed) {
  WritePicture(QStringLiteral("JPEG/500"), "JPEG", Qt::red);
  std::filesystem::create_symlink(folder.Path("elsewhere"), folder.Path("temporary/TopTitle.dat"));
  resources.ReadResource(500, 3);
  EXPECT_FALSE(std::filesystem::exists(folder.Path("elsewhere")));
}

TEST_F(Resources, WithoutATemporaryFolderTheJpegIsNothing) {
  WritePicture(QStringLiteral("JPEG/500"), "JPEG", Qt::red);
  environment.folders[SystemFolder::Temporary] = folder.Text(u"gone");
  EXPECT_FALSE(resources.ReadResource(500, 3).isValid());
}

TEST_F(Resources, EveryOtherKindIsAText) {
  folder.Write("root/strings.txt",
               "1000\t白紙の文書\n1004\t-\r\nnote\t飛ばす\n\n1005\n1001\tﾀﾌﾞ\tの後\n1000\t二つ目\n");
  const auto text = [this](int id) { return resources.ReadResource(id, 6).toString(); };
  EXPECT_EQ(text(1000), QStringLiteral("白紙の文書"));
  EXPECT_EQ(text(1004), QStringLiteral("-"));
  EXPECT_EQ(text(1001), QStringLiteral("ﾀﾌﾞ\tの後"));
  EXPECT_EQ(resources.ReadResource(1000, -1).toString(), QStringLiteral("白紙の文書"));
  for (const int unknown : {0, 999, 1005}) {
    EXPECT_TRUE(resources.ReadResource(unknown, 6).isValid());
    EXPECT_EQ(text(unknown), QString()) << unknown;
  }
}

TEST_F(Resources, TheTextsAreReadOnce) {
  folder.Write("root/strings.txt", "1000\t先\n");
  EXPECT_EQ(resources.LoadString(1000), u"先");
  folder.Write("root/strings.txt", "1000\t後\n");
  EXPECT_EQ(resources.LoadString(1000), u"先");
}

TEST_F(Resources, WithoutAFileOfTextsEachIsEmpty) {
  EXPECT_EQ(resources.LoadString(1000), u"");
}

TEST_F(Resources, TheVersionOfALibraryIsBehindItsName) {
  folder.Write("libz.so.1.2.13", "");
  std::filesystem::create_symlink("libz.so.1.2.13", folder.Path("libz.so"));
  folder.Write("plain.so", "");
  folder.Write("odd.so.bak", "");
  EXPECT_EQ(FileVersion(common, folder.Text(u"libz.so")), u"1.2.13");
  EXPECT_EQ(FileVersion(common, folder.Text(u"plain.so")), u"");
  EXPECT_EQ(FileVersion(common, folder.Text(u"odd.so.bak")), u"");
  EXPECT_EQ(FileVersion(common, folder.Text(u"missing.so")), u"");
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
