// The measured program as a child process, and what the system counts of a process.
#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace figures {

struct Usage {
  double residentMegabytes = 0;
  double privateMegabytes = 0;
};

inline Usage UsageOf(pid_t process) {
  Usage usage;
  std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
  for (std::string line; std::getline(rollup, line);) {
    std::istringstream words(line);
    std::string name;
    double kilobytes = 0;
    words >> name >> kilobytes;
    if (name == "Rss:") usage.residentMegabytes = kilobytes / 1024;
    if (name.starts_with("Private_")) usage.privateMegabytes += kilobytes / 1024;
  }
  return usage;
}

// Time on the processor of all threads, ended ones included.
inline double CpuMilliseconds(pid_t process) {
  clockid_t clock{};
  timespec time{};
  if (clock_getcpuclockid(process, &clock) != 0 || clock_gettime(clock, &time) != 0) return 0;
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

class Editor {
 public:
  Editor(const std::string& program, const std::vector<std::string>& arguments) {
    process_ = fork();
    if (process_ == 0) {
      std::vector<char*> argv{const_cast<char*>(program.c_str())};
      for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
      argv.push_back(nullptr);
      execv(program.c_str(), argv.data());
      _exit(127);
    }
  }
  ~Editor() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;

  pid_t Process() const { return process_; }

 private:
  pid_t process_ = -1;
};

}  // namespace figures
