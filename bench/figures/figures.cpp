// Whole-process figures of an editor, taken from outside: it is started on a display, real key events are
// sent, and its window's damage tells when something was painted. Nothing in the measured program knows of
// the measurement. Run it on a display without a window manager: a frame's own painting would count.
//
//   figures PROGRAM start [FILE]         wall ms to the first painted window, CPU ms, resident MB, private MB
//   figures PROGRAM key FILE [KEYS]      median and worst ms from a key press in mid file to its painting
//   figures PROGRAM popup FILE [TIMES]   ms from "<" to the popup painted: the first, median of the others
//   figures PROGRAM save FILE            ms from Ctrl+S to the file's new time stamp
//   figures PROGRAM idle FILE [SECONDS]  percent of one core that the open page takes untouched
#include <sys/stat.h>

#include <map>

#include "bench/figures/measured_process.hpp"
#include "bench/figures/watched_display.hpp"

namespace {

using namespace figures;

double Median(std::vector<double> values) {
  if (values.empty()) return -1;
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// Shorter than the caret's blinking, longer than any pause within one piece of work.
constexpr int kQuiet = 300;

// Documents up to this many bytes open without a question.
constexpr std::uintmax_t kUnaskedBytes = 32000;

std::uintmax_t SizeOf(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? static_cast<std::uintmax_t>(status.st_size) : 0;
}

// Answers the question about the size as soon as it shows.
void AnswerQuestion(Display& display, const std::string& file) {
  if (SizeOf(file) <= kUnaskedBytes) return;
  while (display.NextPainting(kQuiet)) {
  }
  display.PressWith(kAlt, 'y');
}

// Waits until the document stands in the window.
bool Opened(Display& display, const std::string& file) {
  if (!display.NextPainting(20000)) return false;
  AnswerQuestion(display, file);
  display.Drain(2000);
  return true;
}

// Milliseconds of the start without the time that the question about the size waits for its answer.
int Start(const std::string& program, const std::vector<std::string>& arguments) {
  const bool asked = !arguments.empty() && SizeOf(arguments[0]) > kUnaskedBytes;
  Display display;
  const auto started = Clock::now();
  Editor editor(program, arguments);
  const auto first = display.NextPainting(20000);
  if (!first) return 1;
  double wall = MillisecondsSince(started);
  if (asked) {
    if (!display.AwaitOtherWindow(first->window, started, wall)) return 1;
    display.Drain(kQuiet);
    const std::string name = arguments[0].substr(arguments[0].rfind('/') + 1);
    const auto answered = Clock::now();
    double rest = 0;
    display.PressWith(kAlt, 'y');
    if (!display.AwaitTitled(first->window, name, answered, rest)) return 1;
    wall += rest;
  }
  const double cpu = CpuMilliseconds(editor.Process());
  const Usage usage = UsageOf(editor.Process());
  std::printf("%.1f %.1f %.1f %.1f\n", wall, cpu, usage.residentMegabytes, usage.privateMegabytes);
  return 0;
}

int Key(const std::string& program, const std::string& file, int count) {
  Display display;
  Editor editor(program, {file});
  if (!Opened(display, file)) return 1;
  for (int i = 0; i < 40; ++i) display.Press(kNext);
  display.Drain(600);
  std::vector<double> times;
  for (int i = 0; i < count; ++i) {
    display.Drain(30);
    const auto pressed = Clock::now();
    display.Press(static_cast<xcb_keysym_t>('a' + i % 26));
    if (display.NextPainting(2000)) times.push_back(MillisecondsSince(pressed));
  }
  std::printf("%.2f %.2f\n", Median(times), *std::max_element(times.begin(), times.end()));
  return 0;
}

int Popup(const std::string& program, const std::string& file, int count) {
  Display display;
  Editor editor(program, {file});
  if (!Opened(display, file)) return 1;
  std::vector<double> times;
  for (int i = 0; i < count; ++i) {
    const auto pressed = Clock::now();
    display.PressShifted(',');
    std::map<xcb_window_t, double> first;
    while (const auto painted = display.NextPainting(400))
      first.try_emplace(painted->window, MillisecondsSince(pressed));
    if (!first.empty()) {
      times.push_back(std::max_element(first.begin(), first.end(), [](const auto& a, const auto& b) {
                        return a.second < b.second;
                      })->second);
    }
    display.Press(kEscape);
    display.Press(kBackSpace);
    display.Drain(300);
  }
  if (times.empty()) return 1;
  std::printf("%.1f %.1f\n", times.front(), Median({times.begin() + 1, times.end()}));
  return 0;
}

int Save(const std::string& program, const std::string& file) {
  Display display;
  Editor editor(program, {file});
  if (!Opened(display, file)) return 1;
  display.Press('a');
  display.Drain(300);
  struct stat before {};
  stat(file.c_str(), &before);
  const auto pressed = Clock::now();
  display.PressWith(kControl, 's');
  for (struct stat now{}; MillisecondsSince(pressed) < 20000; usleep(500)) {
    if (stat(file.c_str(), &now) == 0 && now.st_ino != before.st_ino) break;
  }
  std::printf("%.1f\n", MillisecondsSince(pressed));
  return 0;
}

int Idle(const std::string& program, const std::string& file, int seconds) {
  Display display;
  Editor editor(program, {file});
  if (!Opened(display, file)) return 1;
  display.Press(kEnd);
  display.Drain(1000);
  const auto start = Clock::now();
  const double before = CpuMilliseconds(editor.Process());
  display.Drain(seconds * 1000);
  std::printf("%.2f\n", (CpuMilliseconds(editor.Process()) - before) / MillisecondsSince(start) * 100);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> words(argv + 1, argv + argc);
  if (words.size() < 2) return 2;
  const std::string& what = words[1];
  if (what == "start") return Start(words[0], {words.begin() + 2, words.end()});
  if (words.size() < 3) return 2;
  if (what == "key") return Key(words[0], words[2], words.size() > 3 ? std::atoi(words[3].c_str()) : 60);
  if (what == "popup") return Popup(words[0], words[2], words.size() > 3 ? std::atoi(words[3].c_str()) : 12);
  if (what == "save") return Save(words[0], words[2]);
  if (what == "idle") return Idle(words[0], words[2], words.size() > 3 ? std::atoi(words[3].c_str()) : 20);
  return 2;
}
