// The rows of the candidate popup: every candidate of every mode, built once per load.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tags/dictionaries.hpp"

namespace kestri {

// Modes of the popup; a row's Tag is the mode it belongs to.
inline constexpr std::int32_t kModeTag = 1;
inline constexpr std::int32_t kModeAttribute = 2;
inline constexpr std::int32_t kModeValue = 3;
inline constexpr std::int32_t kModeUser = 5;

enum class CandidateIcon : std::int16_t {
  Tag = 1,
  Attribute = 2,
  Keyword = 3,
  EventHandler = 4,
  Value = 5,
  Font = 6,
  Favourite = 7,
  UserWord = 8,
};

// red + green * 256 + blue * 65536
constexpr std::int32_t RGB(int red, int green, int blue) {
  return red + green * 256 + blue * 65536;
}
inline constexpr std::int32_t kGhostedColor = RGB(210, 210, 210);

struct CandidateRow {
  std::u16string text;
  std::u16string toolTipText;
  std::int32_t tag = 0;
  CandidateIcon icon = CandidateIcon::Tag;
  std::int32_t color = 0;

  bool operator==(const CandidateRow&) const = default;
};

using ScreenFonts = std::function<std::vector<std::u16string>()>;  // family names

// Settings that decide what the list holds.
struct CandidateSources {
  bool lowerCase = false;   // InputUL
  bool fonts = false;       // ValFont
  bool favourites = false;  // ValFabStr
  std::u16string userFile;  // USERINTO/FILE; empty: none
};

CandidateSources ReadCandidateSources(const ClassCommon& common);

std::vector<CandidateRow> BuildCandidates(const Dictionaries& dictionaries, const CandidateSources& sources,
                                          const ScreenFonts& screenFonts);

// First row whose text begins with the search text, case ignored; every row begins with an empty one. -1:
// none.
int FindItem(const std::vector<CandidateRow>& rows, std::u16string_view search);

}  // namespace kestri
