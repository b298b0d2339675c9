#include "document/pasted_text.hpp"

#include "shell/common/text.hpp"

namespace kestri {

std::u16string WithCrLf(std::u16string_view text) {
  std::u16string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != u'\r' && text[i] != u'\n') {
      result += text[i];
      continue;
    }
    result += kCrLf;
    if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
  }
  return result;
}

}  // namespace kestri
