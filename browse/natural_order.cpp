#include "browse/natural_order.hpp"

#include <algorithm>
#include <utility>

#include "shell/common/text_fold.hpp"

namespace kestri {
namespace {

constexpr std::size_t kLongestNumber = 0xFFFF;

bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

// The folded unit at the position, which moves behind it and behind the voiced mark that belongs to it.
char16_t TakeFolded(std::u16string_view name, std::size_t& position) {
  const char16_t unit = name[position++];
  if (position < name.size()) {
    if (const char16_t voiced = text_fold::FoldVoiced(unit, name[position])) {
      ++position;
      return voiced;
    }
  }
  return text_fold::Fold(unit);
}

// A digit, how many there are, and they themselves: longer numbers stand behind shorter ones.
void AppendNumber(std::u16string& key, std::u16string_view digits) {
  digits.remove_prefix(std::min(digits.find_first_not_of(u'0'), digits.size()));
  key += u'0';
  key += static_cast<char16_t>(std::min(digits.size(), kLongestNumber));
  key += digits;
}

}  // namespace

std::u16string NaturalKey(std::u16string_view name) {
  std::u16string key;
  std::u16string digits;
  key.reserve(name.size() + 4);
  for (std::size_t position = 0; position < name.size();) {
    const char16_t unit = TakeFolded(name, position);
    if (IsDigit(unit)) {
      digits += unit;
      if (position < name.size()) continue;
    }
    if (!digits.empty()) AppendNumber(key, std::exchange(digits, {}));
    if (!IsDigit(unit)) key += unit;
  }
  return key;
}

bool NaturallyBefore(std::u16string_view left, std::u16string_view right) {
  return std::pair(NaturalKey(left), left) < std::pair(NaturalKey(right), right);
}

void SortNaturally(std::vector<std::u16string>& names) {
  std::vector<std::pair<std::u16string, std::u16string>> keyed;
  keyed.reserve(names.size());
  for (std::u16string& name : names) keyed.emplace_back(NaturalKey(name), std::move(name));
  std::stable_sort(keyed.begin(), keyed.end());
  std::transform(keyed.begin(), keyed.end(), names.begin(),
                 [](auto& pair) { return std::move(pair.second); });
}

}  // namespace kestri
