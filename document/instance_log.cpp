#include "document/instance_log.hpp"

#include <algorithm>

#include "document/settings_values.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/own_processes.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::string_view kHandles = "HWND";
constexpr std::string_view kFiles = "OPENFILE";

std::string HandleKey(std::int32_t number) {
  return code_page::Encode(FormatZeros(number, 3) + u"HWND");
}

std::string FileKey(std::int32_t number) {
  return code_page::Encode(FormatZeros(number, 3) + u"FILE");
}

std::int64_t ToHandle(std::string_view value) {
  return ToLong(code_page::Decode(value)).value_or(0);
}

std::int64_t HandleOf(const ProfileContent& content, std::int32_t number) {
  return ToHandle(content.Get(kHandles, HandleKey(number)).value_or("0"));
}

// Entries of a handle were left by a process that crashed and whose id another one now has.
void ForgetHandle(ProfileContent& content, std::int64_t handle) {
  std::vector<std::string> keys;
  for (const auto& [key, value] : content.Section(kHandles)) {
    if (ToHandle(value) == handle) keys.emplace_back(key);
  }
  for (const std::string& key : keys) content.DeleteKey(kHandles, key);
}

}  // namespace

std::u16string ProductTitle() {
  const std::u16string version =
      ToText(kVersionMajor) + u"." + ToText(kVersionMinor) + u"." + ToText(kVersionRevision);
  return std::u16string(kApplicationTitle) + u" (Version " + version + u"e07)";
}

std::u16string CaptionTail(std::int32_t windowNumber) {
  return u" - " + ProductTitle() + u"  #" + FormatZeros(windowNumber, 2);
}

std::u16string InstanceLog::Path() const {
  return common_.Join(common_.GetSystemDirectory(36), u"Kestri_TEMP_FileLog.INI");
}

std::int64_t InstanceLog::OwnHandle() const {
  return common_.PortSet().environment.ProcessId();
}

std::int32_t InstanceLog::AssignWindowNumber(const IsLiving& isLiving) {
  std::int32_t number = 1;
  Update([&](ProfileContent& content) {
    ForgetHandle(content, OwnHandle());
    while (HandleOf(content, number) != 0 && isLiving(HandleOf(content, number))) ++number;
    content.DeleteKey(kFiles, FileKey(number));
    content.Set(kHandles, HandleKey(number), std::to_string(OwnHandle()));
  });
  state_.windowNumber = number;
  state_.captionTail = CaptionTail(number);
  return number;
}

std::vector<InstanceLog::Entry> InstanceLog::Entries(std::int32_t last) const {
  const ProfileContent content = common_.Profiles().Load(Path());
  std::vector<Entry> entries;
  for (std::int32_t number = 1; number <= last; ++number) {
    const std::int64_t handle = HandleOf(content, number);
    if (handle == 0) continue;
    const auto file = content.Get(kFiles, FileKey(number));
    entries.push_back(
        {number, handle, file ? code_page::Decode(*file) : u"Win No #" + FormatZeros(number, 3)});
  }
  return entries;
}

void InstanceLog::Register(std::u16string_view path) const {
  const std::int32_t number = state_.windowNumber;
  Update([&](ProfileContent& content) {
    content.Set(kFiles, FileKey(number), code_page::Encode(WithoutControls(path)));
    content.Set(kHandles, HandleKey(number), std::to_string(OwnHandle()));
  });
}

void InstanceLog::Unregister(Others others, const IsLiving& isLiving) const {
  if (others == Others::None && RemoveWhenLast(isLiving)) return;
  Update([&](ProfileContent& content) {
    content.DeleteKey(kFiles, FileKey(state_.windowNumber));
    content.DeleteKey(kHandles, HandleKey(state_.windowNumber));
  });
  RemoveWhenEmpty();
}

// Of several that close together none may see itself as the last.
void InstanceLog::RemoveWhenEmpty() const {
  const auto lock = common_.PortSet().files.Lock(Path());
  if (common_.Profiles().Load(Path()).Section(kHandles).empty()) common_.KillFile(Path());
}

// An instance that started since the caller counted may have registered; it cannot while the lock is held.
bool InstanceLog::RemoveWhenLast(const IsLiving& isLiving) const {
  const auto lock = common_.PortSet().files.Lock(Path());
  if (CountOwnProcesses(common_.PortSet().environment) > 1 || HoldsOther(isLiving)) return false;
  common_.KillFile(Path());
  return true;
}

// A copy of the program in another folder writes into the same log.
bool InstanceLog::HoldsOther(const IsLiving& isLiving) const {
  const ProfileContent content = common_.Profiles().Load(Path());
  const auto entries = content.Section(kHandles);
  return std::any_of(entries.begin(), entries.end(), [&](const ProfileContent::Entry& entry) {
    const std::int64_t handle = ToHandle(entry.value);
    return handle != 0 && handle != OwnHandle() && isLiving(handle);
  });
}

void InstanceLog::Update(const std::function<void(ProfileContent&)>& change) const {
  common_.Profiles().Update(Path(), change, Keeping::Volatile);
}

}  // namespace kestri
