// The desktop's shell: what is opened, and what is never run.
#include "platform/qt/qt_shell.hpp"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include "platform/qt/qt_text.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

class DesktopShell : public testing::Test {
 protected:
  // A program that notes its name and arguments in a file of its name.
  void Install(const std::string& name) {
    folder_.Write(name, "#!/bin/sh\necho \"$@\" > '" + folder_.Path("part." + name) + "'\nmv '" +
                            folder_.Path("part." + name) + "' '" + folder_.Path("ran." + name) + "'\n");
    std::filesystem::permissions(folder_.Path(name), std::filesystem::perms::owner_all);
  }
  bool Ran(const std::string& name) const {
    QElapsedTimer waited;
    waited.start();
    while (!std::filesystem::exists(folder_.Path("ran." + name)) && waited.elapsed() < 20000)
      QThread::msleep(5);
    return std::filesystem::exists(folder_.Path("ran." + name));
  }

  fakes::TemporaryFolder folder_;
  fakes::ScopedVariable path_{"PATH", folder_.Path() + ":/usr/bin:/bin"};
  QtShell shell_;
};

TEST_F(DesktopShell, AFileIsOpenedByTheDesktopAndNeverRun) {
  Install("xdg-open");
  Install("picture.jpg");
  EXPECT_TRUE(shell_.Open(folder_.Text(u"picture.jpg"), u""));
  ASSERT_TRUE(Ran("xdg-open"));
  EXPECT_EQ(folder_.Read("ran.xdg-open"), folder_.Path("picture.jpg") + "\n");
  EXPECT_FALSE(std::filesystem::exists(folder_.Path("ran.picture.jpg")));
}

TEST_F(DesktopShell, AProgramTakesItsArgumentAsOneWord) {
  Install("viewer");
  EXPECT_TRUE(shell_.Open(folder_.Text(u"viewer"), u"\"a b.htm\""));
  ASSERT_TRUE(Ran("viewer"));
  EXPECT_EQ(folder_.Read("ran.viewer"), "a b.htm\n");
}

TEST_F(DesktopShell, ACommandLineIsSplitAtBlanksOutsideOfQuotes) {
  Install("tool");
  EXPECT_TRUE(shell_.StartCommandLine(folder_.Text(u"tool") + u" -x \"a b\" c"));
  ASSERT_TRUE(Ran("tool"));
  EXPECT_EQ(folder_.Read("ran.tool"), "-x a b c\n");
  EXPECT_FALSE(shell_.StartCommandLine(folder_.Text(u"missing") + u" a"));
  EXPECT_FALSE(shell_.StartCommandLine(u""));
}

TEST(TextForTheDesktop, LineEndsBecomeSingleOnesInOnePass) {
  EXPECT_EQ(WithLf(u"a\r\nb\rc\nd\r\n"), QStringLiteral("a\nb\rc\nd\n"));
  EXPECT_EQ(WithLf(u""), QString());
  EXPECT_EQ(WithLf(u"\r\n\r\n"), QStringLiteral("\n\n"));
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
