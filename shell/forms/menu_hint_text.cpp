#include "shell/forms/menu_hint_text.hpp"

#include "platform/qt/qt_text.hpp"
#include "shell/window/menu_hints.hpp"

namespace kestri {

QString MenuHintText(ProgramResources& resources, int hint) {
  if (hint == 0) return {};
  return ToQt(ExpandProductNames(resources.LoadString(hint)));
}

}  // namespace kestri
