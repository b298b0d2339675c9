// A display seen from outside: real key events go in, and windows' damage tells what was painted.
#pragma once

#include <poll.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace figures {

using Clock = std::chrono::steady_clock;

inline double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

inline constexpr xcb_keysym_t kReturn = 0xff0d, kEscape = 0xff1b, kBackSpace = 0xff08, kNext = 0xff56,
                              kEnd = 0xff57;
inline constexpr xcb_keysym_t kControl = 0xffe3, kAlt = 0xffe9;

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

}  // namespace figures
