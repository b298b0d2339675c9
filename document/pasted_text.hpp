// Text that comes from other programs.
#pragma once

#include <string>
#include <string_view>

namespace kestri {

// Other programs end their lines with a lone LF or CR; the document's lines end with CR LF. They also write
// some signs of the code page, such as the wave dash, as look-alikes that it lacks; the document has the ones
// that can be saved.
std::u16string FromOtherProgram(std::u16string_view text);

}  // namespace kestri
