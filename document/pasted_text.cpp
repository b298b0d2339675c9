#include "document/pasted_text.hpp"

#include "shell/common/text.hpp"

namespace kestri {

namespace {

char16_t InCodePage(char16_t unit) {
  switch (unit) {
    case 0x301C:
      return 0xFF5E;  // wave dash
    case 0x2212:
      return 0xFF0D;  // minus
    case 0x2014:
      return 0x2015;  // em dash
    case 0x2016:
      return 0x2225;  // double vertical line
    case 0x00A2:
      return 0xFFE0;  // cent
    case 0x00A3:
      return 0xFFE1;  // pound
    case 0x00AC:
      return 0xFFE2;  // not
    default:
      return unit;
  }
}

}  // namespace

std::u16string FromOtherProgram(std::u16string_view text) {
  std::u16string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != u'\r' && text[i] != u'\n') {
      result += InCodePage(text[i]);
      continue;
    }
    result += kCrLf;
    if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
  }
  return result;
}

}  // namespace kestri
