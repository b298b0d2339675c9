#include "document/ascii_art_rules.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kBlankAtHead = u"先頭に半角ｽﾍﾟｰｽは使えません";
constexpr std::u16string_view kBlankBesideBlank = u"半角ｽﾍﾟｰｽの連続挿入はできません";

std::optional<Position> BlankAt(const EditControl& control, Position place) {
  if (control.At(place - 1) == u' ') return place - 1;
  if (control.At(place) == u' ') return place;
  return std::nullopt;
}

}  // namespace

std::optional<BlankRefusal> RefuseBlank(const EditControl& control) {
  const Position start = control.SelStart();
  const Position end = start + control.SelLength();
  if (start == 0) return BlankRefusal{kBlankAtHead, std::nullopt};
  for (const Position place : {start, end}) {
    if (const auto blank = BlankAt(control, place)) return BlankRefusal{kBlankBesideBlank, blank};
  }
  if (control.At(start - 2) == u'\r' && control.At(start - 1) == u'\n')
    return BlankRefusal{kBlankAtHead, std::nullopt};
  return std::nullopt;
}

}  // namespace kestri
