#include "shell/window/settings_reader.hpp"

#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::size_t kLongestValue = 255;  // bytes

}  // namespace

std::u16string SettingsReader::Text(std::string_view section, std::string_view key,
                                    std::u16string_view defaultValue) const {
  const auto value = content_.Get(section, key);
  if (!value) return std::u16string(defaultValue);
  const std::string_view upToNull = std::string_view(*value).substr(0, value->find('\0'));
  return code_page::Decode(code_page::Truncate(upToNull, kLongestValue));
}

std::int32_t SettingsReader::Long(std::string_view section, std::string_view key, std::int32_t defaultValue) {
  const auto value = ToLong(Text(section, key, ToText(defaultValue)));
  if (!value) damaged_ = true;
  return value.value_or(defaultValue);
}

std::int16_t SettingsReader::Integer(std::string_view section, std::string_view key,
                                     std::int16_t defaultValue) {
  const auto value = ToInteger(Text(section, key, ToText(defaultValue)));
  if (!value) damaged_ = true;
  return value.value_or(defaultValue);
}

}  // namespace kestri
