#include "browse/shown_name.hpp"

namespace kestri {
namespace {

constexpr char16_t kPictures = 0x2400;  // of U+0000 to U+001F
constexpr char16_t kDeletePicture = 0x2421;
constexpr char16_t kNoCharacter = 0xFFFD;

bool IsLead(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}
bool IsTrail(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}
// Marks that turn the writing direction would show a name's end in another place.
bool TurnsDirection(char16_t unit) {
  return (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
}
bool BreaksLine(char16_t unit) {
  return unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

char16_t Shown(char16_t unit) {
  if (unit < 0x20) return kPictures + unit;
  if (unit == 0x7F) return kDeletePicture;
  return TurnsDirection(unit) || BreaksLine(unit) ? kNoCharacter : unit;
}

}  // namespace

std::u16string ShownName(std::u16string_view name) {
  std::u16string shown;
  shown.reserve(name.size());
  for (std::size_t i = 0; i < name.size(); ++i) {
    const bool pair = IsLead(name[i]) && i + 1 < name.size() && IsTrail(name[i + 1]);
    if (pair) {
      shown.append(name.substr(i++, 2));
    } else {
      shown += IsLead(name[i]) || IsTrail(name[i]) ? kNoCharacter : Shown(name[i]);
    }
  }
  return shown;
}

}  // namespace kestri
