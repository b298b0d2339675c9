#include "document/settings_values.hpp"

#include <algorithm>

#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::size_t kLongestValue = 255;  // bytes that GetINI gives back

bool IsControl(char16_t character) {
  return character < u' ' || character == 0x7F;
}

bool IsBlank(char16_t character) {
  return character == u' ' || character == u'\t';
}

}  // namespace

std::int32_t NumberSetting(const ClassCommon& common, std::u16string_view section, std::u16string_view key,
                           std::int32_t defaultValue) {
  return ToLong(common.GetINI(common.ExeName(), section, key, ToText(defaultValue))).value_or(defaultValue);
}

std::u16string FormatTime(const std::tm& time, const char* format) {
  char buffer[64];
  const std::size_t length = std::strftime(buffer, sizeof buffer, format, &time);
  return {buffer, buffer + length};
}

std::u16string WithoutControls(std::u16string_view text) {
  std::u16string result(text);
  std::replace_if(result.begin(), result.end(), IsControl, u' ');
  return result;
}

bool KeptAsValue(std::u16string_view path) {
  return !path.empty() && !IsBlank(path.front()) && !IsBlank(path.back()) &&
         std::none_of(path.begin(), path.end(), IsControl) && code_page::RoundTrips(path) &&
         code_page::EncodedLength(path) <= kLongestValue;
}

bool KeptAsKey(std::u16string_view path) {
  return KeptAsValue(path) && path.find(u'=') == std::u16string_view::npos && path.front() != u'[' &&
         path.front() != u';';
}

}  // namespace kestri
