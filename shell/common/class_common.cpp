// The object itself and its words, characters and pixels.
#include "shell/common/class_common.hpp"

#include "shell/common/code_page.hpp"

namespace kestri {

ClassCommon::ClassCommon(Ports ports, PathStyle style)
    : ports_(ports), style_(style), profiles_(ports.files) {
  const std::u16string executable = ports_.environment.ExecutablePath();
  const auto last = executable.rfind(Separator());
  const bool hasFolder = last != std::u16string::npos;
  programFolder_ = hasFolder ? executable.substr(0, last) : std::u16string();
  if (last == 0) programFolder_ = executable.substr(0, 1);
  exeName_ = hasFolder ? executable.substr(last + 1) : executable;
  if (const auto dot = exeName_.rfind(u'.'); dot != std::u16string::npos && dot > 0) exeName_.resize(dot);
}

std::int32_t ClassCommon::ConvertUpWord16_Point(std::int16_t low, std::int16_t high) {
  const std::uint32_t highWord = static_cast<std::uint16_t>(high);
  return static_cast<std::int32_t>(highWord << 16 | static_cast<std::uint16_t>(low));
}

std::string ClassCommon::GetStringPointer(std::u16string_view text) {
  return code_page::Encode(text) + '\0';
}

std::u16string_view ClassCommon::DeleteNull(std::u16string_view text) {
  return text.substr(0, text.find(u'\0'));
}

int ClassCommon::ConvPixelX(int twips) const {
  return twips / ports_.window.TwipsPerPixel();
}

int ClassCommon::ConvPixelY(int twips) const {
  return twips / ports_.window.TwipsPerPixel();
}

int ClassCommon::ConvTwipX(int pixels) const {
  return pixels * ports_.window.TwipsPerPixel();
}

int ClassCommon::ConvTwipY(int pixels) const {
  return pixels * ports_.window.TwipsPerPixel();
}

std::int32_t ClassCommon::GetOSType() const {
  constexpr std::int32_t kOtherSystem = -99;
  return kOtherSystem;
}

std::u16string ClassCommon::GetUserName() const {
  return std::u16string(DeleteNull(ports_.environment.UserName()));
}

bool ClassCommon::ExecuteShow(std::u16string_view path, int mode, std::u16string_view parameters) const {
  constexpr int kExplore = 1;
  constexpr int kProperties = 2;
  if (mode == kExplore) return ports_.shell.Explore(path);
  if (mode == kProperties) return ports_.shell.Properties(path);
  return ports_.shell.Open(path, parameters);
}

}  // namespace kestri
