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
  return {menu, submenu, "", 0, u"-", u"", "", "", kNever, nullptr};
}

}  // namespace kestri::rows
