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
  const bool ready = WarnOfSystem() && DecideSplash(commandLine) && MayStart();
  const std::int32_t result = ready ? Dispatch(commandLine) : kEnd;
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

bool ClassMain::WarnOfSystem() {
  state_.osType = common_.GetOSType();
  if (IsSupportedSystem(state_.osType)) return true;
  const auto known = Setting(u"RunArt", u"RunArt", 0);
  if (!known) return false;
  if (*known != 0) return true;
  SetBusyPointer(false);
  windows_.ShowOsWarning(kOsWarning);
  SetBusyPointer(true);
  return true;
}

bool ClassMain::DecideSplash(std::u16string_view commandLine) {
  const auto wanted = Setting(u"Setting", u"TopWinShow", 1);
  if (!wanted) return false;
  if (*wanted != 1 || WindowSwitchOf(commandLine, common_) != WindowSwitch::None) return true;
  windows_.ShowSplash();
  state_.startupState[0] = 1;
  return true;
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
  const auto allowed = Setting(u"Setting", u"AppECount", kDefaultInstanceLimit);
  if (!allowed) return false;
  if (CountOwnProcesses(common_.PortSet().environment) <= *allowed) return true;
  Refuse(u"\"" + common_.ExeName() + u"\"は " + ToText(*allowed) +
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
  if (AsksForVersion(line, common_)) {
    UnloadSplash();
    Tell(VersionText(kVersionMajor, kVersionMinor, kVersionRevision), MessageIcon::None);
    return kEnd;
  }
  state_.startupState[1] = static_cast<std::int32_t>(ModeOf(line, common_));
  Progress(u"設定 復元開始...");
  if (!ReadListAtStart() || !LoadEditor()) return kEnd;
  ActOnMode(line);
  return kLive;
}

// Before the window stands: what is damaged is told without it.
bool ClassMain::ReadListAtStart() {
  if (state_.startupState[1] != static_cast<std::int64_t>(StartMode::None)) return true;
  const auto wanted = Setting(u"Setting", u"WinF", 0);
  listAtStart_ = wanted.value_or(0) != 0;
  return wanted.has_value();
}

// While the splash is up nothing of the window can be used; without one it can from the first moment.
bool ClassMain::LoadEditor() {
  if (!windows_.LoadEditor(SplashUp() ? EditorInput::Disabled : EditorInput::Enabled)) {
    RefuseDamagedSettings();
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
      if (listAtStart_) ShowFileList(StartList::RecentFiles, StartListCheck::AsSaved);
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

// An unusable number refuses the start, as it does while the window reads its settings.
std::optional<std::int16_t> ClassMain::Setting(std::u16string_view section, std::u16string_view key,
                                               std::int16_t defaultValue) {
  const auto value = ToInteger(common_.GetINI(common_.ExeName(), section, key, ToText(defaultValue)));
  if (!value) RefuseDamagedSettings();
  return value;
}

void ClassMain::Tell(std::u16string text, MessageIcon icon, std::u16string_view captionHead) {
  boxes_.Ask({.text = std::move(text),
              .caption = std::u16string(captionHead).append(kApplicationTitle),
              .icon = icon});
}

std::int32_t ClassMain::Refuse(std::u16string text, std::u16string_view captionHead) {
  UnloadSplash();
  SetBusyPointer(false);
  Tell(std::move(text), MessageIcon::Critical, captionHead);
  return kEnd;
}

void ClassMain::RefuseDamagedSettings() {
  Refuse(u"INIのﾃﾞｰﾀが壊れています\r\nINIを削除してからこのﾌﾟﾛｸﾞﾗﾑを再起動して下さい", u"起動ｴﾗｰ ");
}

}  // namespace kestri
