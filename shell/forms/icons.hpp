// Icons of the commands: the desktop's theme by freedesktop names, our own for what has none there.
#pragma once

#include <QIcon>
#include <string_view>

namespace kestri {

// "kestrile-NAME" is one of our own; a null icon for an empty name.
QIcon CommandIcon(std::string_view name);

}  // namespace kestri
