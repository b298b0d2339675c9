#include "ui/color_scheme.hpp"

#include <array>
#include <optional>

#include "shell/common/text.hpp"

namespace kestri {
namespace {

struct ForeRow {
  char16_t word;
  SchemeColor color;
};

struct BackRow {
  char16_t word;
  SchemeColor color;
  SchemeColor guide;
};

constexpr std::array kForeTable{
    ForeRow{u'白', {255, 255, 255}}, ForeRow{u'黒', {0, 0, 0}},   ForeRow{u'青', {0, 0, 255}},
    ForeRow{u'灰', {170, 170, 170}}, ForeRow{u'緑', {0, 255, 0}}, ForeRow{u'黄', {255, 255, 0}},
};

constexpr std::array kBackTable{
    BackRow{u'白', {255, 255, 255}, {180, 180, 180}},
    BackRow{u'黒', {0, 0, 0}, {255, 180, 180}},
    BackRow{u'青', {0, 0, 255}, {150, 150, 255}},
    BackRow{u'灰', {100, 100, 100}, {220, 220, 255}},
};

template <typename Table>
const typename Table::value_type* RowOf(const Table& table, std::u16string_view word) {
  for (const auto& row : table) {
    if (word == std::u16string_view(&row.word, 1)) return &row;
  }
  return nullptr;
}

}  // namespace

ColorScheme ReadColorScheme(std::u16string_view label) {
  ColorScheme scheme{.name = std::u16string(label),
                     .fore = {150, 150, 150},
                     .back = {0, 0, 0},
                     .guide = {100, 100, 100},
                     .fromPalette = label == kDefaultSchemeName};
  const ForeRow* fore = RowOf(kForeTable, Mid(label, 5, 1));
  const BackRow* back = RowOf(kBackTable, Mid(label, 7, 1));
  if (fore) scheme.fore = fore->color;
  if (back) {
    scheme.back = back->color;
    scheme.guide = back->guide;
  }
  if (!fore || !back) scheme.name = kDefaultSchemeName;
  return scheme;
}

}  // namespace kestri
