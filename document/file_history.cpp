#include "document/file_history.hpp"

#include <vector>

#include "document/settings_values.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/text_compare.hpp"

namespace kestri {
namespace {

constexpr std::string_view kSection = "FileReg";

std::string KeyOf(int index) {
  return code_page::Encode(u"FileReg" + FormatZeros(index, 2));
}

std::u16string ValueOf(const ProfileContent& content, int index) {
  return code_page::Decode(content.Get(kSection, KeyOf(index)).value_or(std::string()));
}

void Store(ProfileContent& content, const std::vector<std::u16string>& entries) {
  for (int i = 0; i < FileHistory::kLength; ++i) {
    const bool filled = static_cast<std::size_t>(i) < entries.size() && !entries[i].empty();
    if (filled) {
      content.Set(kSection, KeyOf(i), code_page::Encode(entries[i]));
    } else {
      content.DeleteKey(kSection, KeyOf(i));
    }
  }
}

}  // namespace

void FileHistory::RegisterHistory(std::u16string_view path) const {
  if (!KeptAsValue(path)) return;
  const bool dropMissing = NumberSetting(common_, u"FileReg", u"OutDel", 0) != 0;
  common_.Profiles().Update(common_.IniPath(0, common_.ExeName()), [&](ProfileContent& content) {
    std::vector<std::u16string> entries{std::u16string(path)};
    for (int i = 0; i < kLength; ++i) {
      std::u16string entry = ValueOf(content, i);
      if (text_compare::EqualIgnoringCase(entry, path)) continue;
      if (dropMissing && !common_.PathExists(entry)) continue;
      entries.push_back(std::move(entry));
    }
    Store(content, entries);
  });
}

std::array<std::u16string, FileHistory::kLength> FileHistory::Entries(
    std::u16string_view defaultValue) const {
  const ProfileContent content = common_.Profiles().Load(common_.IniPath(0, common_.ExeName()));
  std::array<std::u16string, kLength> entries;
  for (int i = 0; i < kLength; ++i) {
    entries[i] = ValueOf(content, i);
    if (entries[i].empty()) entries[i] = defaultValue;
  }
  return entries;
}

void FileHistory::Clear() const {
  common_.SetINI(common_.ExeName(), u"FileReg", u"", u"");
}

}  // namespace kestri
