#include "tags/tag_hint.hpp"

#include <utility>

#include "tags/dictionaries.hpp"
#include "tags/hint_text.hpp"
#include "tags/tag_locator.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kShown = u"_TiHeTag00_";
constexpr std::u16string_view kDismissed = u"_TiHenOTag00_";

bool HasNoHint(std::u16string_view name) {
  return name.empty() || name.starts_with(u'/') || name.ends_with(u'=');
}

}  // namespace

void TagHint::seTagHide() {
  TipCommentsReset();
  tag_.clear();
}

void TagHint::seTagHint() {
  const Seen now = Look();
  const bool moved = std::exchange(seen_, now) != now;
  moved ? FollowCaret() : FollowScrolling();
}

void TagHint::FollowCaret() {
  std::u16string inside;
  if (!FindCaretSpan(around_.control, kLookOnly, inside, u"<", u">", Compare::Binary)) {
    hintless_.clear();
    seTagHide();
  } else if (tag_ != kDismissed) {
    seTagHintPriSet();
  }
}

void TagHint::FollowScrolling() {
  const bool stands = !tag_.empty() && tag_ != kDismissed;
  if (stands && around_.place.GetCaretPixel() != placedAt_) PlaceBox();
}

bool TagHint::seTagHintPriSet() {
  std::u16string inside;
  if (!FindCaretSpan(around_.control, kLookOnly, inside, u"<", u">", Compare::Binary)) {
    seTagHide();
    return false;
  }
  const std::u16string name = TagNameOf(inside, Compare::Binary);
  if (HasNoHint(name) || name == hintless_) {
    seTagHide();
  } else if (tag_ == name + std::u16string(kShown)) {
    PlaceBox();
  } else {
    ShowHintOf(name);
  }
  return true;
}

void TagHint::ShowHintOf(const std::u16string& name) {
  const auto row = Dictionaries(around_.common).FindTag(name);
  const std::u16string hint = row ? row->explain + u" " + row->defTag : std::u16string();
  if (Trim(hint).empty()) {
    hintless_ = name;
    return seTagHide();
  }
  hintless_.clear();
  TipComments(TipTagHelpStrings(Trim(hint), around_.wrap));
  tag_ = name + std::u16string(kShown);
}

void TagHint::DismissHint() {
  if (!HintVisible()) return;
  TipCommentsReset();
  tag_ = kDismissed;
}

void TagHint::TipComments(std::u16string_view text) {
  around_.box.SetText(text);
  seen_ = Look();
  PlaceBox();
}

void TagHint::TipCommentsReset() {
  around_.box.Hide();
}

void TagHint::PlaceBox() {
  placedAt_ = around_.place.GetCaretPixel();
  if (!placedAt_) return TipCommentsReset();
  const CaretSurroundings around{*placedAt_, around_.box.Room(), {}, around_.place.FontPoints()};
  const int twips = around_.common.PortSet().window.TwipsPerPixel();
  around_.box.ShowAt(PlaceAtCaret(around, {around_.box.Size(), 0, 0, twips}), Animation::Off);
}

}  // namespace kestri
