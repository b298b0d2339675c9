// Processes that find each other: the other one is always a real process.
#include "platform/posix/instance_socket.hpp"

#include <gtest/gtest.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>

#include "tests/fakes/temporary_folder.hpp"

namespace kestri::posix {
namespace {

using Clock = std::chrono::steady_clock;

// A child that runs the body, says when it is ready, and lives until it is killed.
class OtherProcess {
 public:
  explicit OtherProcess(const std::function<void(int ready)>& body) {
    int ends[2];
    if (::pipe(ends) != 0) return;
    process_ = ::fork();
    if (process_ == 0) {
      ::close(ends[0]);
      body(ends[1]);
      ::_exit(0);
    }
    ::close(ends[1]);
    char byte = 0;
    ready_ = ::read(ends[0], &byte, 1) == 1;
    ::close(ends[0]);
  }
  ~OtherProcess() { Kill(); }

  bool Ready() const { return ready_; }
  pid_t Id() const { return process_; }
  void Kill() {
    if (process_ <= 0 || ended_) return;
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
    ended_ = true;
  }

 private:
  pid_t process_ = -1;
  bool ready_ = false;
  bool ended_ = false;
};

void SayReady(int ready) {
  [[maybe_unused]] const auto count = ::write(ready, "r", 1);
}

void AnswerForever(InstanceSocket& socket, const std::string& caption) {
  for (;;) {
    pollfd watched{socket.Descriptor(), POLLIN, 0};
    ::poll(&watched, 1, -1);
    const auto connection = socket.Accept();
    if (!connection) continue;
    pollfd request{connection->Get(), POLLIN, 0};
    ::poll(&request, 1, -1);
    if (ReadRequest(connection->Get())) Answer(connection->Get(), caption);
  }
}

class InstanceSockets : public ::testing::Test {
 protected:
  std::function<void(int)> Answering(const std::string& caption) {
    return [this, caption](int ready) {
      InstanceSocket socket(folder.Path());
      if (socket.Listen()) SayReady(ready);
      AnswerForever(socket, caption);
    };
  }
  std::function<void(int)> Mute() {
    return [this](int ready) {
      InstanceSocket socket(folder.Path());
      if (socket.Listen()) SayReady(ready);
      for (;;) ::pause();
    };
  }

  fakes::TemporaryFolder folder;
  InstanceSocket own{folder.Path()};
};

TEST_F(InstanceSockets, AnotherProcessTellsItsCaption) {
  OtherProcess other(Answering("表.htm - Kestrile  #02"));
  ASSERT_TRUE(other.Ready());
  EXPECT_TRUE(own.Living(other.Id()));
  EXPECT_EQ(own.Ask(other.Id(), InstanceRequest::Caption), "表.htm - Kestrile  #02");
}

TEST_F(InstanceSockets, LongCaptionArrivesWhole) {
  const std::string caption(20'000, 'x');
  OtherProcess other(Answering(caption));
  ASSERT_TRUE(other.Ready());
  EXPECT_EQ(own.Ask(other.Id(), InstanceRequest::Caption), caption);
}

TEST_F(InstanceSockets, ProcessThatHangsIsLivingButNeverHoldsTheOthersUp) {
  OtherProcess other(Mute());
  ASSERT_TRUE(other.Ready());
  const auto start = Clock::now();
  EXPECT_TRUE(own.Living(other.Id()));
  EXPECT_EQ(own.Ask(other.Id(), InstanceRequest::Caption), std::nullopt);
  const auto waited = Clock::now() - start;
  EXPECT_GE(waited, std::chrono::milliseconds(kInstancePatience - 5));
  EXPECT_LT(waited, std::chrono::milliseconds(kInstancePatience * 10));
}

TEST_F(InstanceSockets, KilledProcessIsGoneAndItsSocketIsRemoved) {
  OtherProcess other(Answering("x"));
  ASSERT_TRUE(other.Ready());
  other.Kill();
  EXPECT_EQ(folder.Names(), std::vector<std::string>{std::to_string(other.Id())});
  EXPECT_FALSE(own.Living(other.Id()));
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(InstanceSockets, ProcessThatNeverAppearedIsNotLiving) {
  EXPECT_FALSE(own.Living(::getppid()));
  EXPECT_FALSE(own.Living(0));
  EXPECT_FALSE(own.Living(-1));
  EXPECT_FALSE(own.Living(std::int64_t{1} << 40));
  EXPECT_EQ(own.Ask(::getppid(), InstanceRequest::Caption), std::nullopt);
}

TEST_F(InstanceSockets, SocketUnderTheNameOfAnotherProcessIsNoneOfItsOwn) {
  OtherProcess other(Answering("x"));
  ASSERT_TRUE(other.Ready());
  OtherProcess stranger([](int ready) {
    SayReady(ready);
    ::pause();
  });
  ASSERT_TRUE(stranger.Ready());
  const std::string name = std::to_string(stranger.Id());
  ASSERT_EQ(::rename(folder.Path(std::to_string(other.Id())).c_str(), folder.Path(name).c_str()), 0);
  EXPECT_FALSE(own.Living(stranger.Id()));
  EXPECT_EQ(own.Ask(stranger.Id(), InstanceRequest::Caption), std::nullopt);
}

TEST_F(InstanceSockets, DeadSocketOfAnIdThatLivesOnIsLeftAlone) {
  const std::string name = std::to_string(::getppid());
  const int file = ::socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  folder.Path(name).copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(::bind(file, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  ::close(file);
  EXPECT_FALSE(own.Living(::getppid()));
  EXPECT_EQ(folder.Names(), std::vector<std::string>{name});
}

TEST_F(InstanceSockets, FullQueueStillCountsAsLiving) {
  OtherProcess other([this](int ready) {
    InstanceSocket socket(folder.Path());
    if (socket.Listen() && ::listen(socket.Descriptor(), 0) == 0) SayReady(ready);
    for (;;) ::pause();
  });
  ASSERT_TRUE(other.Ready());
  for (int i = 0; i < 10; ++i) EXPECT_TRUE(own.Living(other.Id()));
  EXPECT_EQ(own.Ask(other.Id(), InstanceRequest::Caption), std::nullopt);
}

TEST_F(InstanceSockets, ListeningAgainReplacesWhatACrashLeftUnderTheOwnName) {
  folder.Write(std::to_string(::getpid()), "left over");
  folder.Write(std::to_string(::getpid()) + ".new", "left over");
  EXPECT_TRUE(own.Listen());
  EXPECT_TRUE(own.Living(::getpid()));
  own.Close();
  EXPECT_FALSE(own.Living(::getpid()));
  EXPECT_TRUE(folder.Names().empty());
}

TEST_F(InstanceSockets, SweepRemovesOnlyWhatDeadProcessesLeft) {
  OtherProcess dead(Mute());
  OtherProcess living(Mute());
  ASSERT_TRUE(dead.Ready() && living.Ready());
  dead.Kill();
  folder.Write(std::to_string(dead.Id()) + ".new", "");
  folder.Write("notes.txt", "");
  own.Sweep();
  auto names = folder.Names();
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::string>{std::to_string(living.Id()), "notes.txt"}));
}

TEST_F(InstanceSockets, FolderOfALongNameServesAsWell) {
  const std::string deep = folder.Path(std::string(150, 'd'));
  InstanceSocket socket(deep);
  ASSERT_TRUE(socket.Listen());
  EXPECT_TRUE(socket.Living(::getpid()));
}

TEST_F(InstanceSockets, FolderThatCannotBeMadeLeavesTheProcessUnseen) {
  folder.Write("file", "");
  InstanceSocket socket(folder.Path("file/below"));
  EXPECT_FALSE(socket.Listen());
  EXPECT_FALSE(socket.Living(::getpid()));
  EXPECT_EQ(socket.Descriptor(), -1);
}

TEST_F(InstanceSockets, UnknownRequestIsNoRequest) {
  int ends[2];
  ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
  ASSERT_EQ(::send(ends[0], "?", 1, 0), 1);
  EXPECT_EQ(ReadRequest(ends[1]), std::nullopt);
  ::close(ends[0]);
  EXPECT_EQ(ReadRequest(ends[1]), std::nullopt);
  ::close(ends[1]);
}

}  // namespace
}  // namespace kestri::posix
