#include "shell/window/settings_reader.hpp"

#include <utility>

#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"
#include "shell/common/text_number.hpp"

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
  const auto number = ToNumber(Text(section, key, ToText(defaultValue)));
  const auto value = number ? RoundedToLong(*number) : std::nullopt;
  if (!value) damaged_ = true;
  return value.value_or(defaultValue);
}

std::int16_t SettingsReader::Integer(std::string_view section, std::string_view key,
                                     std::int16_t defaultValue) {
  const std::int32_t value = Long(section, key, defaultValue);
  if (std::in_range<std::int16_t>(value)) return static_cast<std::int16_t>(value);
  damaged_ = true;
  return defaultValue;
}

}  // namespace kestri
