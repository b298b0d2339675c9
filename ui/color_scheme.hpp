// The colours of the text by the scheme's label ("01. 白．黒": text colour, then back colour).
#pragma once

#include <string>
#include <string_view>

namespace kestri {

struct SchemeColor {
  int red = 0;
  int green = 0;
  int blue = 0;
  bool operator==(const SchemeColor&) const = default;
};

inline constexpr std::u16string_view kDefaultSchemeName = u"00. ﾃﾞﾌｫﾙﾄ";

struct ColorScheme {
  std::u16string name{kDefaultSchemeName};  // the label, or the default label when a colour word is unknown
  SchemeColor fore{150, 150, 150};
  SchemeColor back{0, 0, 0};
  SchemeColor guide{100, 100, 100};
  // True for the default label itself: text and back are then the desktop's own (Text on Base), so that the
  // first day is pleasant on light and dark desktops; fore, back and guide hold what unknown words give.
  bool fromPalette = true;
};

// Character 5 of the label names the text colour, character 7 the back colour. An unknown text colour is
// (150,150,150), an unknown back colour (0,0,0) with the guide (100,100,100).
ColorScheme ReadColorScheme(std::u16string_view label);

}  // namespace kestri
