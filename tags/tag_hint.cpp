#include "tags/tag_hint.hpp"

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

std::optional<TagHint::Seen> TagHint::Look() {
  const std::optional<PixelRect> pixel = around_.place.GetCaretPixel();
  if (!pixel) return std::nullopt;
  return Seen{around_.control.SelStart(), around_.control.Length(), *pixel};
}

void TagHint::seTagHide() {
  TipCommentsReset();
  tag_.clear();
}

void TagHint::seTagHint() {
  const std::optional<Seen> now = Look();
  if (now && now == seen_) return;
  seen_ = now;
  if (!now) return TipCommentsReset();
  std::u16string inside;
  if (!FindCaretSpan(around_.control, kLookOnly, inside, u"<", u">", Compare::Binary)) {
    hintless_.clear();
    seTagHide();
  } else if (tag_ != kDismissed) {
    seTagHintPriSet();
  }
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
  const std::optional<PixelRect> caret = around_.place.GetCaretPixel();
  if (!caret) return TipCommentsReset();
  const CaretSurroundings around{*caret, around_.box.Room(), {}, around_.place.FontPoints()};
  const int twips = around_.common.PortSet().window.TwipsPerPixel();
  around_.box.ShowAt(PlaceAtCaret(around, {around_.box.Size(), 0, 0, twips}), Animation::Off);
}

}  // namespace kestri
