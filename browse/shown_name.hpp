// A file's name as one line of a list: control characters show as their pictures, bytes that are no
// characters as U+FFFD.
#pragma once

#include <string>
#include <string_view>

namespace kestri {

std::u16string ShownName(std::u16string_view name);

}  // namespace kestri
