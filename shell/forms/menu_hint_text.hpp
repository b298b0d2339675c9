// The text of a menu hint, read from the program's string resources.
#pragma once

#include <QString>

#include "ui/program_resources.hpp"

namespace kestri {

// Of a command row's hint number, with the product's names in place; empty for 0 and for unknown numbers.
QString MenuHintText(ProgramResources& resources, int hint);

}  // namespace kestri
