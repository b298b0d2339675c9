#include "document/instance_log.hpp"

#include "document/settings_values.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::string_view kHandles = "HWND";
constexpr std::string_view kFiles = "OPENFILE";

std::string KeyOf(std::int32_t number, std::u16string_view suffix) {
  return code_page::Encode(FormatZeros(number, 3).append(suffix));
}

std::int64_t HandleOf(const ProfileContent& content, std::int32_t number) {
  const std::string value = content.Get(kHandles, KeyOf(number, u"HWND")).value_or("0");
  return ToLong(code_page::Decode(value)).value_or(0);
}

}  // namespace

std::u16string CaptionTail(std::int32_t windowNumber) {
  const std::u16string version =
      ToText(kVersionMajor) + u"." + ToText(kVersionMinor) + u"." + ToText(kVersionRevision);
  std::u16string tail = u" - ";
  tail.append(kApplicationTitle).append(u" (Version ").append(version).append(u"e07)  #");
  return tail + FormatZeros(windowNumber, 2);
}

std::u16string InstanceLog::Path() const {
  return common_.Join(common_.GetSystemDirectory(36), u"Kestri_TEMP_FileLog.INI");
}

std::int32_t InstanceLog::AssignWindowNumber(const CaptionOfHandle& captionOf) {
  const ProfileContent content = common_.Profiles().Load(Path());
  const auto taken = [&](std::int32_t number) {
    const std::int64_t handle = HandleOf(content, number);
    if (handle == 0) return false;
    const auto caption = captionOf(handle);
    return caption && InStr(*caption, CaptionTail(number)) > 0;
  };
  std::int32_t number = 1;
  while (taken(number)) ++number;
  state_.windowNumber = number;
  state_.captionTail = CaptionTail(number);
  return number;
}

void InstanceLog::Register(std::u16string_view path) const {
  const std::int32_t number = state_.windowNumber;
  const std::u16string handle = ToText(common_.PortSet().environment.ProcessId());
  common_.Profiles().Update(Path(), [&](ProfileContent& content) {
    content.Set(kFiles, KeyOf(number, u"FILE"), code_page::Encode(WithoutControls(path)));
    content.Set(kHandles, KeyOf(number, u"HWND"), code_page::Encode(handle));
  });
}

void InstanceLog::Unregister(Others others) const {
  if (others == Others::None) {
    common_.KillFile(Path());
    return;
  }
  common_.Profiles().Update(Path(), [&](ProfileContent& content) {
    content.DeleteKey(kFiles, KeyOf(state_.windowNumber, u"FILE"));
    content.DeleteKey(kHandles, KeyOf(state_.windowNumber, u"HWND"));
  });
}

}  // namespace kestri
