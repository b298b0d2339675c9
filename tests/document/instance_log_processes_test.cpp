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

  // What the end of a process writes: settings of its own in one change, and its leave from the log.
  std::int32_t Close(std::int32_t number, InstanceLog::Others others) {
    state.windowNumber = number;
    const bool saved = SaveSettings(number);
    log.Unregister(others);
    return saved ? 1 : 0;
  }

  bool SaveSettings(std::int32_t number) {
    return common->Profiles().Update(common->IniPath(0, u"Kestri"), [number](ProfileContent& content) {
      for (int key = 0; key < kKeys; ++key)
        content.Set("Setting", KeyOf(number, key), std::to_string(number));
    });
  }

  void ExpectSettings(std::int32_t number) const {
    for (int key = 0; key < kKeys; ++key) {
      EXPECT_EQ(ToUtf8(Get(u"Setting", FromUtf8(KeyOf(number, key)))), std::to_string(number));
    }
  }

  static constexpr int kKeys = 10;
  static std::string KeyOf(std::int32_t number, int key) {
    return "Key" + std::to_string(number) + "_" + std::to_string(key);
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

std::size_t LinesOf(const std::string& bytes) {
  return static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), '\n'));
}

TEST_F(ManyInstances, ThirtyStartedAtOnceLeaveLogAndSettingsWhole) {
  constexpr int kMany = 30;
  Crowd crowd;
  for (int i = 0; i < kMany; ++i) {
    crowd.Add([this] {
      const std::int32_t number = Assign();
      document->RegisterHistory(Work("file" + std::to_string(number) + ".htm"));
      return SaveSettings(number) ? number : 0;
    });
  }
  for (const std::int32_t number : crowd.Go()) ExpectSettings(number);
  std::set<std::u16string> history;
  for (const std::u16string& path : document->History().Entries(u"")) history.insert(path);
  EXPECT_EQ(history.size(), static_cast<std::size_t>(FileHistory::kLength));
  EXPECT_FALSE(history.contains(u""));
  constexpr std::size_t kSettingLines = 1 + kMany * kKeys;
  EXPECT_EQ(LinesOf(Bytes(common->IniPath(0, u"Kestri"))), kSettingLines + 1 + FileHistory::kLength);
  EXPECT_EQ(LinesOf(Bytes(log.Path())), 2U * (1 + kMany));
}

TEST_F(ManyInstances, TwoThatCloseAtOnceKeepBothSetsOfKeys) {
  environment.processes = {environment.executable, environment.executable};
  for (int round = 0; round < 20; ++round) {
    for (const std::int32_t number : {1, 2, 3}) {
      state.windowNumber = number;
      log.Register(u"/d/a.htm");
    }
    std::filesystem::remove(ToUtf8(common->IniPath(0, u"Kestri")));
    Crowd crowd;
    crowd.Add([this] { return Close(1, InstanceLog::Others::Running); });
    crowd.Add([this] { return Close(2, InstanceLog::Others::None); });
    EXPECT_EQ(crowd.Go(), (std::vector<std::int32_t>{1, 1}));
    ExpectSettings(1);
    ExpectSettings(2);
    const auto entries = log.Entries(5);
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].number, 3);
  }
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
