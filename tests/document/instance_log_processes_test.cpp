// The log as many processes use it at once: each assigns itself a number, and some of them die.
#include <signal.h>
#include <sys/wait.h>

#include <algorithm>
#include <functional>
#include <set>

#include "platform/posix/instance_socket.hpp"
#include "platform/posix/posix_environment.hpp"
#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

// As many processes as asked, all starting their work at the same moment and living until the end.
class Crowd {
 public:
  ~Crowd() {
    for (const pid_t process : processes_) End(process);
  }

  // Runs the work in a new process, once Go is called; what it returns is reported.
  void Add(const std::function<std::int32_t()>& work) {
    if (start_[0] < 0 && (::pipe(start_) != 0 || ::pipe(results_) != 0)) return;
    const pid_t process = ::fork();
    if (process == 0) {
      ::close(start_[1]);
      char byte;
      [[maybe_unused]] auto count = ::read(start_[0], &byte, 1);  // ends when the starter closes its end
      const std::int32_t result = work();
      count = ::write(results_[1], &result, sizeof result);
      for (;;) ::pause();
    }
    processes_.push_back(process);
  }

  std::vector<std::int32_t> Go() {
    ::close(start_[1]);
    std::vector<std::int32_t> results(processes_.size());
    for (std::int32_t& result : results) EXPECT_EQ(::read(results_[0], &result, sizeof result), 4);
    return results;
  }

  const std::vector<pid_t>& Processes() const { return processes_; }
  void Kill(pid_t process) {
    End(process);
    processes_.erase(std::find(processes_.begin(), processes_.end(), process));
  }

 private:
  static void End(pid_t process) {
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
  }

  int start_[2] = {-1, -1};
  int results_[2] = {-1, -1};
  std::vector<pid_t> processes_;
};

class ManyInstances : public DocumentTest {
 protected:
  // What the start of a process does with the log.
  std::int32_t Assign() {
    PosixEnvironment real;
    fakes::FakeEnvironment own = environment;
    own.processId = real.ProcessId();
    const ClassCommon processCommon(Ports{files, own, shell, clock, services}, PathStyle::Posix);
    InstanceLog ownLog(processCommon, state);
    socket.Listen();
    const auto number =
        ownLog.AssignWindowNumber([this](std::int64_t handle) { return socket.Living(handle); });
    ownLog.Register(u"/d/" + ToText(number) + u".htm");
    return number;
  }

  posix::InstanceSocket socket{ToUtf8(Whole("state/instances"))};
  InstanceLog log{*common, state};
};

TEST_F(ManyInstances, ThirtyStartedAtOnceTakeThirtyNumbers) {
  constexpr int kMany = 30;
  Crowd crowd;
  for (int i = 0; i < kMany; ++i) crowd.Add([this] { return Assign(); });
  const auto numbers = crowd.Go();
  const std::set<std::int32_t> different(numbers.begin(), numbers.end());
  EXPECT_EQ(different.size(), static_cast<std::size_t>(kMany));
  EXPECT_EQ(*different.begin(), 1);
  EXPECT_EQ(*different.rbegin(), kMany);

  const auto entries = log.Entries(kMany + 1);
  ASSERT_EQ(entries.size(), static_cast<std::size_t>(kMany));
  std::set<std::int64_t> handles;
  for (const auto& entry : entries) {
    handles.insert(entry.handle);
    EXPECT_EQ(ToUtf8(entry.file), "/d/" + std::to_string(entry.number) + ".htm");
  }
  EXPECT_EQ(handles, std::set<std::int64_t>(crowd.Processes().begin(), crowd.Processes().end()));
}

TEST_F(ManyInstances, NumberOfAKilledInstanceIsReused) {
  Crowd crowd;
  for (int i = 0; i < 3; ++i) crowd.Add([this] { return Assign(); });
  crowd.Go();
  const auto second = log.Entries(3).at(1);
  crowd.Kill(static_cast<pid_t>(second.handle));
  Crowd next;
  next.Add([this] { return Assign(); });
  EXPECT_EQ(next.Go(), std::vector<std::int32_t>{2});
  EXPECT_EQ(log.Entries(3).at(1).handle, next.Processes().at(0));
}

}  // namespace
}  // namespace kestri
