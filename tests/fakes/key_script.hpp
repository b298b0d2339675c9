// Keys as a person would write them down: plain characters stand for themselves, others stand in braces:
//   <a{Enter} {Tab}{Ctrl+Backspace}{Shift+Left*3}{ime:日本}{{}{}}
// Line ends between them mean nothing. A name that is no key throws, so that a slip of the pen fails the
// test.
#pragma once

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "shell/common/text.hpp"

namespace kestri::fakes {

struct Key {
  std::u16string name;  // one character, or one of kKeyNames; "ime" commits text
  std::u16string text{};
  bool control = false;
  bool shift = false;
  bool alt = false;
  bool operator==(const Key&) const = default;
};

// Whatever takes keys: the rules over the bare control, or a real window.
class KeyTarget {
 public:
  virtual ~KeyTarget() = default;
  virtual void Press(const Key& key) = 0;
};

inline constexpr std::array<std::u16string_view, 13> kKeyNames = {
    u"Enter", u"Tab",  u"Esc",  u"Backspace", u"Delete", u"Left",    u"Right",
    u"Up",    u"Down", u"Home", u"End",       u"PageUp", u"PageDown"};

namespace key_script {

inline bool TakePrefix(std::u16string_view& text, std::u16string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

// "*3" at the end of a token of more than one character.
inline int TakeRepetition(std::u16string_view& token) {
  const std::size_t star = token.rfind(u'*');
  if (star == std::u16string_view::npos || star == 0) return 1;
  const std::optional<std::int32_t> times = ToLong(token.substr(star + 1));
  if (!times) return 1;
  token = token.substr(0, star);
  return *times;
}

inline Key ParseToken(std::u16string_view token) {
  Key key;
  std::u16string_view rest = token;
  if (TakePrefix(rest, u"ime:")) {
    key.name = u"ime";
    key.text = rest;
    return key;
  }
  for (bool more = true; more;) {
    more = false;
    if (TakePrefix(rest, u"Ctrl+")) more = key.control = true;
    if (TakePrefix(rest, u"Shift+")) more = key.shift = true;
    if (TakePrefix(rest, u"Alt+")) more = key.alt = true;
  }
  if (rest.size() != 1 && std::find(kKeyNames.begin(), kKeyNames.end(), rest) == kKeyNames.end()) {
    throw std::invalid_argument("no such key: {" + ToUtf8(token) + "}");
  }
  key.name = rest;
  return key;
}

}  // namespace key_script

inline std::vector<Key> ParseKeys(std::u16string_view script) {
  std::vector<Key> keys;
  for (std::size_t i = 0; i < script.size(); ++i) {
    if (script[i] == u'\r' || script[i] == u'\n') continue;
    if (script[i] != u'{') {
      keys.push_back({.name = std::u16string(1, script[i])});
      continue;
    }
    const std::size_t close = script.find(u'}', i + 2);
    if (close == std::u16string_view::npos)
      throw std::invalid_argument("a brace without its partner in keys");
    std::u16string_view token = script.substr(i + 1, close - i - 1);
    const int times = key_script::TakeRepetition(token);
    keys.insert(keys.end(), static_cast<std::size_t>(times), key_script::ParseToken(token));
    i = close;
  }
  return keys;
}

inline void PressAll(KeyTarget& target, std::u16string_view script) {
  for (const Key& key : ParseKeys(script)) target.Press(key);
}

}  // namespace kestri::fakes
