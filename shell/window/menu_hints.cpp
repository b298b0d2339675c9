#include "shell/window/menu_hints.hpp"

#include "document/instance_log.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/text.hpp"

namespace kestri {

std::u16string ExpandProductNames(std::u16string_view text) {
  std::u16string expanded = Replace(text, u"%WINDOWTITLE%", ProductTitle());
  expanded = Replace(expanded, u"%(C)%", kCreditLine);
  return Replace(expanded, u"%TITLE%", kApplicationTitle);
}

}  // namespace kestri
