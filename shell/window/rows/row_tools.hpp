// What the tables of command rows are written with.
#pragma once

#include <array>

#include "shell/window/commands.hpp"
#include "shell/window/editor_commands.hpp"

namespace kestri::rows {

using C = EditorCommands;

template <bool (C::*When)() const>
bool Ask(const C& commands) {
  return (commands.*When)();
}
inline constexpr auto kAlways = Ask<&C::Always>;
inline constexpr auto kNever = Ask<&C::Never>;
inline constexpr auto kWritable = Ask<&C::Writable>;
inline constexpr auto kTagTools = Ask<&C::TagToolsOn>;

// A caption whose "&" is a character, as a menu shows it.
inline std::u16string MenuText(std::u16string_view caption) {
  return Replace(caption, u"&", u"&&");
}

constexpr CommandRow Separator(TopMenu menu, std::u16string_view submenu = u"") {
  return {menu, submenu, "", 0, u"-", 0, "", "", kNever, nullptr};
}

// A command whose subsystem is not part of this build: it is seen and cannot be chosen.
constexpr CommandRow NotBuilt(TopMenu menu, std::u16string_view submenu, std::string_view array, int index,
                              std::u16string_view caption, int hint, std::string_view icon) {
  return {menu, submenu, array, index, caption, hint, "", icon, kNever, [](C&) {}};
}

}  // namespace kestri::rows
