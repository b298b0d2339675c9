#include "shell/window/tool_bar_place.hpp"

#include "shell/common/application_state.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr char kBar[] = "Bar";
constexpr std::u16string_view kBarSection = u"Bar";

}  // namespace

// A setting that was never written floats nothing: the first start shows the bar in the window.
ToolBarPlace ReadToolBarPlace(SettingsReader& reader) {
  const ToolBarPlace initial;
  return {.state = reader.Integer(kBar, "Dkg", 1) != 0 ? BarState::Docked : BarState::Floating,
          .left = reader.Long(kBar, "Dkg_Left", initial.left),
          .top = reader.Long(kBar, "Dkg_Top", initial.top)};
}

void WriteBarState(const ClassCommon& common, BarState state) {
  common.SetINI(common.ExeName(), kBarSection, u"Dkg", state == BarState::Docked ? u"1" : u"0");
}

void WriteFloatingPosition(const ClassCommon& common, const ToolBarPlace& place) {
  common.SetINI(common.ExeName(), kBarSection, u"Dkg_Left", ToText(place.left));
  common.SetINI(common.ExeName(), kBarSection, u"Dkg_Top", ToText(place.top));
}

std::u16string FloatingBarCaption() {
  return u"ToolBar for " + std::u16string(kApplicationTitle) + u" (e07)";
}

}  // namespace kestri
