#include "tags/font_choice.hpp"

#include <algorithm>

namespace kestri {
namespace {

constexpr std::array<std::u16string_view, 4> kClassicFonts = {u"ＭＳ ゴシック", u"ＭＳ Ｐゴシック",
                                                              u"ＭＳ 明朝", u"ＭＳ Ｐ明朝"};

}  // namespace

std::vector<std::u16string> OfferedFonts(std::vector<std::u16string> ofScreen) {
  std::vector<std::u16string> names;
  for (const std::u16string_view name : kClassicFonts) {
    if (std::ranges::find(ofScreen, name) == ofScreen.end()) names.emplace_back(name);
  }
  std::ranges::move(ofScreen, std::back_inserter(names));
  return names;
}

int FontRow(const std::vector<std::u16string>& names, std::u16string_view wanted) {
  const auto hit = std::ranges::find(names, wanted);
  return hit == names.end() ? 0 : static_cast<int>(hit - names.begin());
}

int FontSizeRow(int wanted) {
  const auto larger = std::ranges::upper_bound(kFontSizes, wanted);
  return std::max(static_cast<int>(larger - kFontSizes.begin()) - 1, 0);
}

}  // namespace kestri
