// Two processes of the program: this one, and the test program started once more as the other one.
#include "platform/qt/qt_instances.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <QThread>
#include <cstdio>

#include "platform/qt/qt_text.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

const QString kOther = QStringLiteral("--other");

enum class Behaviour { Answers, Hangs };

// The other process: says what it does a line each.
int RunOther(const QStringList& arguments) {
  const std::u16string caption = FromQt(arguments.at(3));
  QtInstances instances(FromQt(arguments.at(2)));
  const auto say = [](const char* what) {
    std::puts(what);
    std::fflush(stdout);
  };
  if (!instances.Appear()) return 1;
  if (arguments.at(4) == QLatin1String("hangs")) {
    say("ready");
    for (;;) QThread::sleep(60);
  }
  instances.Announce([caption] { return caption; }, [say] { say("front"); });
  say("ready");
  return QCoreApplication::exec();
}

class Other {
 public:
  Other(const QString& folder, const QString& caption, Behaviour behaviour) {
    const QString manner = QLatin1String(behaviour == Behaviour::Hangs ? "hangs" : "answers");
    process_.start(QCoreApplication::applicationFilePath(), {kOther, folder, caption, manner});
  }
  ~Other() { Kill(); }

  bool Says(const QByteArray& what) {
    while (!process_.canReadLine() && process_.waitForReadyRead(20'000)) continue;
    return process_.readLine().trimmed() == what;
  }
  void Kill() {
    process_.kill();
    process_.waitForFinished();
  }
  std::int64_t Handle() const { return process_.processId(); }

 private:
  QProcess process_;
};

class QtInstancesTest : public ::testing::Test {
 protected:
  fakes::TemporaryFolder folder;
  QtInstances own{folder.Text()};
};

TEST_F(QtInstancesTest, OtherProcessTellsItsCaptionAndComesToTheFront) {
  const QString caption = QStringLiteral("表.htm - Kestrile (Version 1.0.0e07)  #02");
  Other other(ToQt(folder.Text()), caption, Behaviour::Answers);
  ASSERT_TRUE(other.Says("ready"));
  EXPECT_TRUE(own.Living(other.Handle()));
  EXPECT_EQ(own.CaptionOf(other.Handle()), FromQt(caption));
  EXPECT_TRUE(own.BringToFront(other.Handle()));
  EXPECT_TRUE(other.Says("front"));
}

TEST_F(QtInstancesTest, HungProcessIsLivingButNeverHoldsThisOneUp) {
  Other other(ToQt(folder.Text()), QStringLiteral("x"), Behaviour::Hangs);
  ASSERT_TRUE(other.Says("ready"));
  QElapsedTimer timer;
  timer.start();
  EXPECT_TRUE(own.Living(other.Handle()));
  EXPECT_FALSE(own.CaptionOf(other.Handle()).has_value());
  EXPECT_FALSE(own.BringToFront(other.Handle()));
  EXPECT_LT(timer.elapsed(), 5'000);
}

TEST_F(QtInstancesTest, KilledProcessIsGone) {
  Other other(ToQt(folder.Text()), QStringLiteral("x"), Behaviour::Answers);
  ASSERT_TRUE(other.Says("ready"));
  const std::int64_t handle = other.Handle();
  other.Kill();
  EXPECT_FALSE(own.Living(handle));
  EXPECT_FALSE(own.CaptionOf(handle).has_value());
  EXPECT_FALSE(own.BringToFront(handle));
}

TEST_F(QtInstancesTest, OwnWindowNeedsNoConnection) {
  int fronts = 0;
  const std::int64_t handle = QCoreApplication::applicationPid();
  EXPECT_FALSE(own.Living(handle));
  ASSERT_TRUE(own.Appear());
  EXPECT_TRUE(own.Living(handle));
  EXPECT_FALSE(own.CaptionOf(handle).has_value());
  own.Announce([] { return std::u16string(u"own"); }, [&fronts] { ++fronts; });
  EXPECT_EQ(own.CaptionOf(handle), u"own");
  EXPECT_TRUE(own.BringToFront(handle));
  EXPECT_EQ(fronts, 1);
}

TEST_F(QtInstancesTest, WithdrawnWindowIsGoneAndLeavesNoFile) {
  own.Announce([] { return std::u16string(u"own"); }, [] {});
  EXPECT_EQ(folder.Names().size(), 1U);
  own.Withdraw();
  EXPECT_TRUE(folder.Names().empty());
  EXPECT_FALSE(own.Living(QCoreApplication::applicationPid()));
}

TEST_F(QtInstancesTest, VisitorWithoutARequestIsSentAway) {
  own.Announce([] { return std::u16string(u"own"); }, [] {});
  posix::InstanceSocket visitor(folder.Path());
  EXPECT_TRUE(visitor.Living(QCoreApplication::applicationPid()));
  QTest::qWait(20);
  EXPECT_TRUE(own.children().size() <= 1) << "only the watch of the socket is left";
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.value(1) == kestri::kOther) return kestri::RunOther(arguments);
  return RUN_ALL_TESTS();
}
