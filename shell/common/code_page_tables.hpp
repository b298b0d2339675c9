// Constant tables behind code_page.cpp; their values are made by tools/make_code_page_tables.py.
#pragma once

#include <cstdint>

namespace kestri::code_page {

inline constexpr std::uint8_t kNotALead = 0xFF;
inline constexpr unsigned kFirstTrail = 0x40;
inline constexpr unsigned kDecodeRowCount = 56;
inline constexpr unsigned kEncodePageCount = 108;

// Unit of a byte that stands alone; lead bytes hold U+30FB.
extern const char16_t kSingleUnits[256];

// Row of a lead byte, kNotALead for every other byte. Row 0 holds U+30FB throughout.
extern const std::uint8_t kRowOfLead[256];
extern const char16_t kDecodeRows[kDecodeRowCount][256 - kFirstTrail];

// Code of a unit: one byte below 0x100, else lead and trail byte. Page 0 holds '?' throughout.
extern const std::uint8_t kPageOfHighByte[256];
extern const std::uint16_t kEncodePages[kEncodePageCount][256];

// One bit a unit, set where its code has two bytes.
extern const std::uint32_t kDoubleByteUnits[0x10000 / 32];

}  // namespace kestri::code_page
