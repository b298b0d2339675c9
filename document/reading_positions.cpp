#include "document/reading_positions.hpp"

#include "document/settings_values.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::string_view kHorizontal = "HScrollPos";
constexpr std::string_view kVertical = "VScrollPos";
constexpr std::string_view kSelStart = "SelStartPos";

std::int32_t NumberOf(const ProfileContent& content, std::string_view section, const std::string& key) {
  return ToLong(code_page::Decode(content.Get(section, key).value_or("0"))).value_or(0);
}

}  // namespace

ReadingPosition ReadingPositions::Of(std::u16string_view path) const {
  if (!KeptAsKey(path)) return {};
  const ProfileContent content = common_.Profiles().Load(common_.IniPath(0, common_.ExeName()));
  const std::string key = code_page::Encode(path);
  return {{NumberOf(content, kHorizontal, key), NumberOf(content, kVertical, key)},
          NumberOf(content, kSelStart, key)};
}

void ReadingPositions::Remember(std::u16string_view path, const ReadingPosition& position) const {
  if (!KeptAsKey(path)) return;
  const std::string key = code_page::Encode(path);
  common_.Profiles().Update(common_.IniPath(0, common_.ExeName()), [&](ProfileContent& content) {
    content.Set(kHorizontal, key, std::to_string(position.scroll.horizontal));
    content.Set(kVertical, key, std::to_string(position.scroll.vertical));
    content.Set(kSelStart, key, std::to_string(position.selStart));
  });
}

}  // namespace kestri
