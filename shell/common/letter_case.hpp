// Capital and small form of a single letter: Latin, Greek, Cyrillic, full-width letters and Roman numerals.
// One unit to one unit; final sigma and sharp s have no capital.
#pragma once

namespace kestri::letter_case {

inline constexpr bool InRange(char16_t unit, char16_t first, char16_t last) {
  return unit >= first && unit <= last;
}

// Letters of U+0100 to U+017F come in pairs; the capital is even in some stretches and odd in others.
inline constexpr bool IsEvenCapitalPair(char16_t unit) {
  return InRange(unit, 0x100, 0x12F) || InRange(unit, 0x132, 0x137) || InRange(unit, 0x14A, 0x177);
}
inline constexpr bool IsOddCapitalPair(char16_t unit) {
  return InRange(unit, 0x139, 0x148) || InRange(unit, 0x179, 0x17E);
}

inline constexpr char16_t ToLower(char16_t unit) {
  if (unit < 0x80) return InRange(unit, u'A', u'Z') ? unit + 0x20 : unit;
  if (InRange(unit, 0xC0, 0xDE)) return unit == 0xD7 ? unit : unit + 0x20;
  if (IsEvenCapitalPair(unit)) return unit | 1;
  if (IsOddCapitalPair(unit)) return unit % 2 == 1 ? unit + 1 : unit;
  if (unit == 0x178) return 0xFF;
  if (unit == 0x386) return 0x3AC;
  if (InRange(unit, 0x388, 0x38A)) return unit + 0x25;
  if (unit == 0x38C) return 0x3CC;
  if (InRange(unit, 0x38E, 0x38F)) return unit + 0x3F;
  if (InRange(unit, 0x391, 0x3AB)) return unit == 0x3A2 ? unit : unit + 0x20;
  if (InRange(unit, 0x400, 0x40F)) return unit + 0x50;
  if (InRange(unit, 0x410, 0x42F)) return unit + 0x20;
  if (InRange(unit, 0x2160, 0x216F)) return unit + 0x10;
  if (InRange(unit, 0x24B6, 0x24CF)) return unit + 0x1A;
  if (InRange(unit, 0xFF21, 0xFF3A)) return unit + 0x20;
  return unit;
}

inline constexpr char16_t ToUpper(char16_t unit) {
  if (unit < 0x80) return InRange(unit, u'a', u'z') ? unit - 0x20 : unit;
  if (InRange(unit, 0xE0, 0xFE)) return unit == 0xF7 ? unit : unit - 0x20;
  if (unit == 0xFF) return 0x178;
  if (IsEvenCapitalPair(unit)) return static_cast<char16_t>(unit & ~1);
  if (IsOddCapitalPair(unit)) return unit % 2 == 0 ? unit - 1 : unit;
  if (unit == 0x3AC) return 0x386;
  if (InRange(unit, 0x3AD, 0x3AF)) return unit - 0x25;
  if (unit == 0x3CC) return 0x38C;
  if (InRange(unit, 0x3CD, 0x3CE)) return unit - 0x3F;
  if (InRange(unit, 0x3B1, 0x3CB)) return unit == 0x3C2 ? unit : unit - 0x20;
  if (InRange(unit, 0x430, 0x44F)) return unit - 0x20;
  if (InRange(unit, 0x450, 0x45F)) return unit - 0x50;
  if (InRange(unit, 0x2170, 0x217F)) return unit - 0x10;
  if (InRange(unit, 0x24D0, 0x24E9)) return unit - 0x1A;
  if (InRange(unit, 0xFF41, 0xFF5A)) return unit - 0x20;
  return unit;
}

}  // namespace kestri::letter_case
