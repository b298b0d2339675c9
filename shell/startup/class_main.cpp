#include "shell/startup/class_main.hpp"

#include "shell/common/own_processes.hpp"
#include "shell/common/text.hpp"
#include "shell/startup/environment_tests.hpp"

namespace kestri {
namespace {

constexpr std::int16_t kDefaultInstanceLimit = 5;

}  // namespace

std::int32_t ClassMain::Main(std::u16string_view commandLine) {
  SetBusyPointer(true);
  ResetState();
  WarnOfSystem();
  DecideSplash(commandLine);
  const std::int32_t result = MayStart() ? Dispatch(commandLine) : kEnd;
  SetBusyPointer(false);
  return result;
}

void ClassMain::ResetState() {
  constexpr std::int32_t kNotTopMost = -2;
  state_.startupState = {};
  state_.currentFolder.clear();
  state_.currentFile.clear();
  state_.thirdPath.clear();
  state_.topMost = kNotTopMost;
  state_.modified = 0;
  state_.modifiedShown = 0;
}

void ClassMain::WarnOfSystem() {
  state_.osType = common_.GetOSType();
  if (IsSupportedSystem(state_.osType) || Setting(u"RunArt", u"RunArt", 0) != 0) return;
  SetBusyPointer(false);
  windows_.ShowOsWarning(kOsWarning);
  SetBusyPointer(true);
}

void ClassMain::DecideSplash(std::u16string_view commandLine) {
  if (Setting(u"Setting", u"TopWinShow", 1) != 1) return;
  if (WindowSwitchOf(commandLine, common_) != WindowSwitch::None) return;
  windows_.ShowSplash();
  state_.startupState[0] = 1;
}

bool ClassMain::MayStart() {
  if (!FileServicesAnswer(common_)) {
    Refuse(u"\"Scripting.FileSystemObject\"ｵﾌﾞｼﾞｪｸﾄ の生成に失敗しました");
    return false;
  }
  const std::u16string failures = EnvironmentFailures(common_);
  if (!failures.empty()) {
    Refuse(failures);
    return false;
  }
  return InstanceLimitAllows();
}

bool ClassMain::InstanceLimitAllows() {
  const std::int32_t allowed = Setting(u"Setting", u"AppECount", kDefaultInstanceLimit);
  if (CountOwnProcesses(common_.PortSet().environment) <= allowed) return true;
  Refuse(u"\"" + common_.ExeName() + u"\"は " + ToText(allowed) +
         u"個以上起動できないように設定されています");
  return false;
}

std::int32_t ClassMain::Dispatch(std::u16string_view commandLine) {
  const std::u16string argument = SwitchArgument(commandLine);
  switch (WindowSwitchOf(commandLine, common_)) {
    case WindowSwitch::ImageSlides:
      return ShowImageSlides(argument);
    case WindowSwitch::ImageConversion:
      return ShowImageConversion(argument);
    case WindowSwitch::Compile:
      return ShowCompileWindow(argument);
    case WindowSwitch::Unpack:
      return ShowArchive(argument, &StartupWindows::ShowUnpackWindow, u"ArchiverFrm");
    case WindowSwitch::Pack:
      return ShowArchive(argument, &StartupWindows::ShowPackWindow, u"ArchiverZFrm");
    case WindowSwitch::None:
      break;
  }
  return StartEditor(commandLine);
}

std::int32_t ClassMain::StartEditor(std::u16string_view commandLine) {
  Progress(u"");
  // A name may end in a blank.
  const bool wholePath = common_.PathExists(commandLine);
  const std::int32_t result =
      ParseCommandLine(wholePath ? std::u16string(commandLine) : WithoutQuotes(commandLine));
  state_.startupState = {};
  if (result == kLive) windows_.ActivateEditor();
  return result;
}

std::int32_t ClassMain::ParseCommandLine(std::u16string_view line) {
  Progress(u"ｺﾏﾝﾄﾞﾗｲﾝ解析中...");
  if (AsksForVersion(line)) {
    UnloadSplash();
    Tell(VersionText(kVersionMajor, kVersionMinor, kVersionRevision), MessageIcon::None);
    return kEnd;
  }
  state_.startupState[1] = static_cast<std::int32_t>(ModeOf(line, common_));
  Progress(u"設定 復元開始...");
  if (!LoadEditor()) return kEnd;
  ActOnMode(line);
  return kLive;
}

// While the splash is up nothing of the window can be used; without one it can from the first moment.
bool ClassMain::LoadEditor() {
  if (!windows_.LoadEditor(SplashUp() ? EditorInput::Disabled : EditorInput::Enabled)) {
    UnloadSplash();
    Tell(u"INIのﾃﾞｰﾀが壊れています\r\nINIを削除してからこのﾌﾟﾛｸﾞﾗﾑを再起動して下さい", MessageIcon::Critical,
         u"起動ｴﾗｰ ");
    return false;
  }
  if (SplashUp()) {
    Progress(u"HTMLﾂｰﾙ 復元中...");
    windows_.LoadPopup();
    UnloadSplash();
  }
  windows_.EndLoading();
  return true;
}

void ClassMain::ActOnMode(std::u16string_view line) {
  switch (static_cast<StartMode>(state_.startupState[1])) {
    case StartMode::None:
      if (Setting(u"Setting", u"WinF", 0) != 0) ShowFileList(StartList::RecentFiles, StartListCheck::AsSaved);
      return;
    case StartMode::NewDocumentWindow:
      return ShowFileList(StartList::NewDocument, StartListCheck::Greyed);
    case StartMode::FileList:
      return ShowFileList(StartList::RecentFiles, StartListCheck::Greyed);
    case StartMode::UnknownSwitch:
      return Tell(u"\"" + std::u16string(line) + u"\" は無効なｽｲｯﾁです", MessageIcon::Exclamation,
                  u"ｽｲｯﾁｴﾗｰ ");
    case StartMode::File:
      return windows_.OpenDocument(line);
  }
  Tell(u"ｺﾏﾝﾄﾞﾗｲﾝは無効です", MessageIcon::Exclamation, u"ｺﾏﾝﾄﾞﾗｲﾝｴﾗｰ[ ??? ] ");
}

void ClassMain::ShowFileList(StartList list, StartListCheck check) {
  SetBusyPointer(false);
  windows_.ShowFileList(list, check);
}

void ClassMain::Progress(std::u16string_view text) {
  if (SplashUp()) windows_.ShowProgress(text);
}

void ClassMain::UnloadSplash() {
  if (!SplashUp()) return;
  windows_.UnloadSplash();
  state_.startupState[0] = 0;
}

void ClassMain::SetBusyPointer(bool busy) {
  common_.PortSet().window.SetBusyPointer(busy);
}

// An unusable number counts as the default: start-up itself never stops for one.
std::int32_t ClassMain::Setting(std::u16string_view section, std::u16string_view key,
                                std::int16_t defaultValue) const {
  return ToInteger(common_.GetINI(common_.ExeName(), section, key, ToText(defaultValue)))
      .value_or(defaultValue);
}

void ClassMain::Tell(std::u16string text, MessageIcon icon, std::u16string_view captionHead) {
  boxes_.Ask({.text = std::move(text),
              .caption = std::u16string(captionHead).append(kApplicationTitle),
              .icon = icon});
}

std::int32_t ClassMain::Refuse(std::u16string text) {
  UnloadSplash();
  SetBusyPointer(false);
  Tell(std::move(text), MessageIcon::Critical);
  return kEnd;
}

}  // namespace kestri
