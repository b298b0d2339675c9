// Typed reads from the main settings file, parsed once for the whole start.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "shell/common/profile_file.hpp"

namespace kestri {

class SettingsReader {
 public:
  explicit SettingsReader(ProfileContent content) : content_(std::move(content)) {}

  // Values are cut at 255 bytes as every read of the settings is.
  std::u16string Text(std::string_view section, std::string_view key, std::u16string_view defaultValue) const;

  // Whole number of 32 or 16 bits. An unusable value gives the default and marks the settings as damaged.
  std::int32_t Long(std::string_view section, std::string_view key, std::int32_t defaultValue);
  std::int16_t Integer(std::string_view section, std::string_view key, std::int16_t defaultValue);

  bool Damaged() const { return damaged_; }

 private:
  ProfileContent content_;
  bool damaged_ = false;
};

}  // namespace kestri
