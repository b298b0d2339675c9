// The sixteen colours that pages know by name.
#pragma once

#include <array>
#include <string_view>

namespace kestri {

struct NamedColor {
  std::u16string_view name;
  int red;  // 0 to 255, as the others
  int green;
  int blue;
};

// Two rows of eight, each dark colour above its light one.
inline constexpr std::array<NamedColor, 16> kNamedColors = {{{u"Black", 0, 0, 0},
                                                             {u"Gray", 128, 128, 128},
                                                             {u"Maroon", 128, 0, 0},
                                                             {u"Olive", 128, 128, 0},
                                                             {u"Green", 0, 128, 0},
                                                             {u"Teal", 0, 128, 128},
                                                             {u"Navy", 0, 0, 128},
                                                             {u"Purple", 128, 0, 128},
                                                             {u"White", 255, 255, 255},
                                                             {u"Silver", 192, 192, 192},
                                                             {u"Red", 255, 0, 0},
                                                             {u"Yellow", 255, 255, 0},
                                                             {u"Lime", 0, 255, 0},
                                                             {u"Aqua", 0, 255, 255},
                                                             {u"Blue", 0, 0, 255},
                                                             {u"Fuchsia", 255, 0, 255}}};

}  // namespace kestri
