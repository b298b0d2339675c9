// Text that comes from other programs.
#pragma once

#include <string>
#include <string_view>

namespace kestri {

// Other programs end their lines with a lone LF or CR; the document's lines end with CR LF.
std::u16string WithCrLf(std::u16string_view text);

}  // namespace kestri
