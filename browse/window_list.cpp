#include "browse/window_list.hpp"

#include <algorithm>

#include "document/settings_values.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::int32_t kMostInstances = 99;
constexpr std::int32_t kUsualInstances = 5;

}  // namespace

// The own window always has its row, also where the limit was lowered while it ran.
std::int32_t WindowList::LastNumber() const {
  const std::int32_t limit = NumberSetting(common_, u"Setting", u"AppECount", kUsualInstances);
  return std::clamp(std::max(limit, state_.windowNumber), 1, kMostInstances);
}

std::vector<WindowList::Row> WindowList::Rows() const {
  std::vector<Row> rows;
  for (const InstanceLog::Entry& entry : log_.Entries(LastNumber())) {
    const auto caption = instances_.CaptionOf(entry.handle);
    const bool bearsNumber = caption && InStr(*caption, u"  #" + FormatZeros(entry.number, 2)) > 0;
    if (!bearsNumber) continue;
    const bool own = entry.handle == common_.PortSet().environment.ProcessId();
    const std::u16string text = common_.CFile(entry.file, 0) + u" : " + ToText(entry.number);
    rows.push_back({.text = own ? text + u"(Me)" : text,
                    .path = entry.file,
                    .title = std::u16string(ClassCommon::DeleteNull(*caption)),
                    .handle = entry.handle,
                    .own = own});
  }
  return rows;
}

bool WindowList::SetFocus(const Row& row) const {
  return !row.own && row.handle != 0 && instances_.BringToFront(row.handle);
}

}  // namespace kestri
