// Whole-process figures of an editor, taken from outside: it is started on a display, real key events are
// sent, and its window's damage tells when something was painted. Nothing in the measured program knows of
// the measurement. Run it on a display without a window manager: a frame's own painting would count.
//
//   figures PROGRAM start [FILE]        wall ms to the first painted window, CPU ms, resident MB
//   figures PROGRAM key FILE KEYS       median and worst ms from a key press in the middle of FILE to its
//   painting figures PROGRAM popup FILE          ms from "<" to the popup painted, first and median of the
//   later ones figures PROGRAM save FILE           ms from Ctrl+S to the file's new time stamp
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

#include <poll.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

constexpr xcb_keysym_t kReturn = 0xff0d, kEscape = 0xff1b, kBackSpace = 0xff08, kNext = 0xff56, kEnd = 0xff57;
constexpr xcb_keysym_t kControl = 0xffe3, kAlt = 0xffe9;

class Display {
 public:
  Display() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_) != 0) {
      std::fputs("figures: no display\n", stderr);
      std::exit(1);
    }
    const xcb_setup_t* setup = xcb_get_setup(connection_);
    root_ = xcb_setup_roots_iterator(setup).data->root;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &mask);
    damage_ = xcb_get_extension_data(connection_, &xcb_damage_id)->first_event;
    std::free(
        xcb_damage_query_version_reply(connection_, xcb_damage_query_version(connection_, 1, 1), nullptr));
    symbols_ = xcb_key_symbols_alloc(connection_);
    xcb_flush(connection_);
  }
  ~Display() {
    xcb_key_symbols_free(symbols_);
    xcb_disconnect(connection_);
  }
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  // Windows mapped from now on are watched for painting.
  struct Painted {
    xcb_window_t window = 0;
  };

  // The next painting of a watched window, within the time; nothing when none came.
  std::optional<Painted> NextPainting(int milliseconds) {
    const auto start = Clock::now();
    while (true) {
      while (xcb_generic_event_t* event = xcb_poll_for_event(connection_)) {
        const auto painted = Handle(*event);
        std::free(event);
        if (painted) return painted;
      }
      const int left = milliseconds - static_cast<int>(MillisecondsSince(start));
      if (left <= 0) return std::nullopt;
      pollfd descriptor{xcb_get_file_descriptor(connection_), POLLIN, 0};
      poll(&descriptor, 1, left);
    }
  }

  // Lets the time pass; the caret's blinking never ends a wait for silence.
  void Drain(int milliseconds) {
    for (const auto start = Clock::now(); MillisecondsSince(start) < milliseconds;) {
      NextPainting(std::max(1, milliseconds - static_cast<int>(MillisecondsSince(start))));
    }
  }

  // The first painting of a window other than the given one; its time since start is left in milliseconds.
  bool AwaitOtherWindow(xcb_window_t window, Clock::time_point start, double& milliseconds) {
    while (const auto painted = NextPainting(20000)) {
      milliseconds = MillisecondsSince(start);
      if (painted->window != window) return true;
    }
    return false;
  }

  // The first painting of the window after its title holds the words.
  bool AwaitTitled(xcb_window_t window, const std::string& words, Clock::time_point start,
                   double& milliseconds) {
    while (const auto painted = NextPainting(20000)) {
      milliseconds = MillisecondsSince(start);
      if (painted->window == window && TitleOf(window).find(words) != std::string::npos) return true;
    }
    return false;
  }

  std::string TitleOf(xcb_window_t window) {
    xcb_get_property_reply_t* reply = xcb_get_property_reply(
        connection_,
        xcb_get_property(connection_, 0, window, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY, 0, 256),
        nullptr);
    if (reply == nullptr) return {};
    const std::string title(static_cast<const char*>(xcb_get_property_value(reply)),
                            static_cast<std::size_t>(xcb_get_property_value_length(reply)));
    std::free(reply);
    return title;
  }

  void Press(xcb_keysym_t key) { Tap(key); }
  void PressWith(xcb_keysym_t modifier, xcb_keysym_t key) {
    Fake(XCB_KEY_PRESS, modifier);
    Tap(key);
    Fake(XCB_KEY_RELEASE, modifier);
    xcb_flush(connection_);
  }
  void PressShifted(xcb_keysym_t key) { PressWith(0xffe1, key); }

 private:
  std::optional<Painted> Handle(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7f;
    if (type == XCB_MAP_NOTIFY) {
      const auto& map = reinterpret_cast<const xcb_map_notify_event_t&>(event);
      Watch(map.window);
      if (map.override_redirect == 0) {
        open_.push_back(map.window);
        FocusLast();
      }
      return std::nullopt;
    }
    if (type == XCB_UNMAP_NOTIFY) {
      std::erase(open_, reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window);
      FocusLast();
      return std::nullopt;
    }
    if (type == damage_ + XCB_DAMAGE_NOTIFY) {
      const auto& damage = reinterpret_cast<const xcb_damage_notify_event_t&>(event);
      xcb_damage_subtract(connection_, damage.damage, 0, 0);
      xcb_flush(connection_);
      return Painted{damage.drawable};
    }
    return std::nullopt;
  }

  // What a window manager would do: the window opened last has the keyboard.
  void FocusLast() {
    if (open_.empty()) return;
    xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, open_.back(), XCB_CURRENT_TIME);
    xcb_flush(connection_);
  }

  void Watch(xcb_window_t window) {
    const xcb_damage_damage_t damage = xcb_generate_id(connection_);
    xcb_damage_create(connection_, damage, window, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
    xcb_flush(connection_);
  }

  void Fake(int type, xcb_keysym_t key) {
    xcb_keycode_t* codes = xcb_key_symbols_get_keycode(symbols_, key);
    if (codes != nullptr)
      xcb_test_fake_input(connection_, static_cast<std::uint8_t>(type), codes[0], 0, root_, 0, 0, 0);
    std::free(codes);
  }

  void Tap(xcb_keysym_t key) {
    Fake(XCB_KEY_PRESS, key);
    Fake(XCB_KEY_RELEASE, key);
    xcb_flush(connection_);
  }

  xcb_connection_t* connection_;
  xcb_window_t root_ = 0;
  int damage_ = 0;
  xcb_key_symbols_t* symbols_ = nullptr;
  std::vector<xcb_window_t> open_;
};

struct Usage {
  double residentMegabytes = 0;
  double privateMegabytes = 0;
};

Usage UsageOf(pid_t process) {
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

// Scheduler time in milliseconds, finer than the clock ticks of stat.
double CpuMilliseconds(pid_t process) {
  double total = 0;
  std::ifstream file("/proc/" + std::to_string(process) + "/schedstat");
  file >> total;
  return total / 1e6;
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
  return 2;
}
