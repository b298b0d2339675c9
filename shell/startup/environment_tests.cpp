#include "shell/startup/environment_tests.hpp"

namespace kestri {
namespace {

std::size_t RootLength(PathStyle style) {
  return style == PathStyle::Windows ? std::u16string_view(u"*:\\").size() : 1;
}

std::u16string FolderFailure(const ClassCommon& common, SystemFolder folder, std::u16string_view atRoot) {
  const std::u16string path = common.GetSystemDirectory(static_cast<int>(folder));
  if (path.empty()) return u"\r\n・ｼｽﾃﾑﾃﾞｨﾚｸﾄﾘが取得できません(不明なｴﾗｰです)";
  if (path.size() > RootLength(common.Style())) return {};
  return std::u16string(u"\r\n").append(atRoot);
}

}  // namespace

bool IsSupportedSystem(std::int32_t osType) {
  constexpr std::int32_t kWindows98 = 2, kMe = 3, k2000 = 5, kXp = 6;
  return osType == kWindows98 || osType == kMe || osType == k2000 || osType == kXp;
}

bool FileServicesAnswer(const ClassCommon& common) {
  return common.IsFileAttribute(common.ProgramFolder(), kAttributeDirectory);
}

std::u16string EnvironmentFailures(const ClassCommon& common) {
  std::u16string message;
  if (common.ProgramFolder().size() <= RootLength(common.Style())) message += u"\r\n・ﾙｰﾄでは起動できません";
  message +=
      FolderFailure(common, SystemFolder::Windows, u"・WINDOWSﾌｫﾙﾀﾞがﾙｰﾄに設定されている時は起動できません");
  message +=
      FolderFailure(common, SystemFolder::System, u"・SYSTEMﾌｫﾙﾀﾞがﾙｰﾄに設定されている時は起動できません");
  return message;
}

}  // namespace kestri
