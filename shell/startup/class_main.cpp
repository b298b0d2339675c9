#include "shell/startup/class_main.hpp"

#include "shell/common/own_processes.hpp"
#include "shell/common/text.hpp"
#include "shell/startup/command_line.hpp"

namespace kestri {
namespace {

constexpr std::int32_t kDefaultInstanceLimit = 5;

std::size_t RootLength(PathStyle style) {
  return style == PathStyle::Windows ? 3 : 1;
}

}  // namespace

std::int32_t ClassMain::Main(std::u16string_view commandLine) {
  state_.startupState = {};
  if (!EnvironmentAllows() || !InstanceLimitAllows()) return kEnd;
  const std::int32_t result = ParseCommandLine(commandLine);
  state_.startupState = {};
  return result;
}

bool ClassMain::EnvironmentAllows() {
  const std::size_t root = RootLength(common_.Style());
  std::u16string message;
  if (common_.ProgramFolder().size() <= root) message += u"\r\n・ﾙｰﾄでは起動できません";
  const std::u16string windows = common_.GetSystemDirectory(static_cast<int>(SystemFolder::Windows));
  if (windows.empty()) {
    message += u"\r\n・ｼｽﾃﾑﾃﾞｨﾚｸﾄﾘが取得できません(不明なｴﾗｰです)";
  } else if (windows.size() <= root) {
    message += u"\r\n・WINDOWSﾌｫﾙﾀﾞがﾙｰﾄに設定されている時は起動できません";
  }
  const std::u16string system = common_.GetSystemDirectory(static_cast<int>(SystemFolder::System));
  if (system.empty()) {
    message += u"\r\n・ｼｽﾃﾑﾃﾞｨﾚｸﾄﾘが取得できません(不明なｴﾗｰです)";
  } else if (system.size() <= root) {
    message += u"\r\n・SYSTEMﾌｫﾙﾀﾞがﾙｰﾄに設定されている時は起動できません";
  }
  if (message.empty()) return true;
  Refuse(std::move(message));
  return false;
}

bool ClassMain::InstanceLimitAllows() {
  const auto limit = ToInteger(common_.GetINI(common_.ExeName(), u"Setting", u"AppECount", u"5"));
  const std::int32_t allowed = limit.value_or(kDefaultInstanceLimit);
  if (CountOwnProcesses(common_.PortSet().environment) <= allowed) return true;
  Refuse(u"\"" + common_.ExeName() + u"\"は " + ToText(allowed) +
         u"個以上起動できないように設定されています");
  return false;
}

std::int32_t ClassMain::ParseCommandLine(std::u16string_view line) {
  if (AsksForVersion(line)) {
    boxes_.Ask({.text = VersionText(kVersionMajor, kVersionMinor, kVersionRevision),
                .caption = std::u16string(kApplicationTitle)});
    return kEnd;
  }
  const StartMode mode = ModeOf(line, common_);
  state_.startupState[1] = static_cast<std::int32_t>(mode);
  if (!editor_.LoadEditor()) return kEnd;
  ActOn(line);
  return kLive;
}

void ClassMain::ActOn(std::u16string_view line) {
  switch (static_cast<StartMode>(state_.startupState[1])) {
    case StartMode::File:
      editor_.OpenDocument(line);
      break;
    case StartMode::UnknownSwitch:
      boxes_.Ask({.text = u"\"" + std::u16string(line) + u"\" は無効なｽｲｯﾁです",
                  .caption = u"ｽｲｯﾁｴﾗｰ " + std::u16string(kApplicationTitle),
                  .icon = MessageIcon::Exclamation});
      break;
    case StartMode::None:
    case StartMode::NewDocumentWindow:
    case StartMode::FileList:
      break;
  }
}

void ClassMain::Refuse(std::u16string text) {
  boxes_.Ask(
      {.text = std::move(text), .caption = std::u16string(kApplicationTitle), .icon = MessageIcon::Critical});
}

}  // namespace kestri
