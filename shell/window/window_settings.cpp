#include "shell/window/window_settings.hpp"

#include <algorithm>
#include <limits>

#include "document/settings_values.hpp"
#include "document/trp_string.hpp"
#include "shell/common/code_page.hpp"

namespace kestri {
namespace {

constexpr char kSetting[] = "Setting";
constexpr char kBar[] = "Bar";
constexpr char kHint[] = "IMGTint";

// What a window can still be used with.
constexpr std::int32_t kSmallestFont = 4;  // points
constexpr std::int32_t kLargestFont = 200;
constexpr std::int32_t kLowestBar = 150;  // twips
constexpr std::int32_t kHighestBar = 1500;
constexpr std::int32_t kNarrowestBar = 900;
constexpr std::int32_t kWidestBar = 15000;
constexpr std::int16_t kMostTabSpaces = 4;  // the largest level that the settings offer: 16 blanks

void LoadEditing(SettingsReader& reader, ApplicationState& state) {
  state.tabASeT = reader.Integer(kSetting, "TabASeT", 1);
  state.tabSpaceCount =
      std::clamp<std::int16_t>(reader.Integer(kSetting, "TabSpaceCount", 1), 0, kMostTabSpaces);
  state.htmlNAV = reader.Integer(kSetting, "htmlNAV", 1);
  state.htmlNAVkeyB = reader.Integer(kSetting, "htmlNAVkeyB", 0);
  state.htmlNAVkeyB_AUTO = reader.Integer(kSetting, "htmlNAVkeyB_AUTO", 1);
  state.textTrp = reader.Integer(kSetting, "TextTrp", 1);
  state.trpString = reader.Text(kSetting, "TrpString", DefaultTrpString());
  state.dragModeTrue = reader.Integer(kSetting, "DragModeTrue", 1);
  state.menuHints = reader.Integer(kSetting, "MenuHints", 1);
  state.popUpMen = reader.Integer(kSetting, "PopUpMen", 1);
  state.gLine = reader.Integer(kSetting, "GLine", 0);
  state.menuAnimation = reader.Integer(kSetting, "MenuAnimation", 0);
  state.showInfoOnSelect = reader.Integer(kBar, "FileInfo", 0);
}

void LoadLook(SettingsReader& reader, WindowSettings& settings) {
  settings.fontName = reader.Text(kSetting, "FontName", u"ＭＳ ゴシック");
  settings.fontSize = std::clamp(reader.Long(kSetting, "FontSize", 14), kSmallestFont, kLargestFont);
  settings.colorLabel = reader.Text(kSetting, "ColorLabel", u"00. ﾃﾞﾌｫﾙﾄ");
  settings.eofMark = reader.Integer(kSetting, "EofMark", 1);
  settings.eofMarkType = reader.Integer(kSetting, "EofMarkType", 0);
  settings.subClass = reader.Integer(kSetting, "SubClass", 1);
  settings.menIcon = reader.Integer(kSetting, "MenIcon", 1);
  settings.toolBarShow = reader.Integer(kBar, "ToolBarShow0", 1);
  settings.statusBarShow = reader.Integer(kBar, "StatusBar0", 1);
  settings.statusBarHeight = std::clamp(reader.Long(kBar, "StatusBarHeight", 300), kLowestBar, kHighestBar);
  settings.toolBar = ReadToolBarPlace(reader);
  settings.folderBarShow = reader.Integer(kBar, "DirTree", 1);
  settings.directoryTreeWidth =
      std::clamp(reader.Long(kBar, "DirectoryTreeWidth", 3000), kNarrowestBar, kWidestBar);
  settings.timerPeriod = std::clamp<std::int32_t>(reader.Integer(kSetting, "ClTimer", 2), 1, 5) * 50 + 1;
}

std::u16string StandardHintPicture(const ClassCommon& common) {
  return common.Join(common.Join(common.ProgramFolder(), u"DataFiles"), u"HintFig_B.bmp");
}

void LoadHintCharacter(SettingsReader& reader, const ClassCommon& common, HintCharacter& character) {
  character.shown = reader.Integer(kHint, "IMGTint", 0);
  character.picture = reader.Text(kHint, "IMGPath", StandardHintPicture(common));
  character.fontSize = reader.Long(kHint, "FontSize", 9);
  character.fontStyle = reader.Integer(kHint, "FontStyle", 0);
  character.left = reader.Long(kHint, "LEFT", 150);
  character.top = reader.Long(kHint, "TOP", 300);
  character.wrap = reader.Long(kHint, "Worp", 50);
}

void LoadPlacement(SettingsReader& reader, WindowSettings& settings) {
  const WindowRectangle initial;
  settings.startUpWindow = reader.Text(kSetting, "StartUpWindow", u"DEFAULT");
  settings.rectangle = {.left = reader.Long(kSetting, "HTMLfrmLeft", initial.left),
                        .top = reader.Long(kSetting, "HTMLfrmTop", initial.top),
                        .width = reader.Long(kSetting, "HTMLfrmWidth", initial.width),
                        .height = reader.Long(kSetting, "HTMLfrmHeight", initial.height)};
}

std::u16string WorkingFolder(const ClassCommon& common, const SettingsReader& reader) {
  const std::u16string folder = reader.Text(kSetting, "NawPath", u"");
  return common.AppPath2(common.PathExists(folder) ? folder : common.GetSystemDirectory(5));
}

class SettingsWriter {
 public:
  explicit SettingsWriter(ProfileContent& content) : content_(content) {}
  // An empty value deletes the key: the next read gives its default.
  void Text(const char* section, const char* key, std::u16string_view value) {
    if (value.empty()) return content_.DeleteKey(section, key);
    content_.Set(section, key, code_page::Encode(value));
  }
  // A path that a profile file cannot hold leaves the one before.
  void Path(const char* section, const char* key, std::u16string_view path) {
    if (KeptAsValue(path)) Text(section, key, path);
  }
  void Number(const char* section, const char* key, std::int64_t value) { Text(section, key, ToText(value)); }

 private:
  ProfileContent& content_;
};

void SaveEditing(SettingsWriter& writer, const ApplicationState& state) {
  writer.Path(kSetting, "NawPath", state.currentFolder);
  writer.Number(kSetting, "htmlNAVkeyB_AUTO", state.htmlNAVkeyB_AUTO);
  writer.Number(kSetting, "htmlNAVkeyB", state.htmlNAVkeyB);
  writer.Number(kSetting, "htmlNAV", state.htmlNAV);
  writer.Number(kSetting, "TabSpaceCount", state.tabSpaceCount);
  writer.Number(kSetting, "TextTrp", state.textTrp);
  writer.Text(kSetting, "TrpString", state.trpString);
  writer.Number(kSetting, "DragModeTrue", state.dragModeTrue);
  writer.Number(kSetting, "MenuHints", state.menuHints);
  writer.Number(kSetting, "PopUpMen", state.popUpMen);
  writer.Number(kSetting, "GLine", state.gLine);
  writer.Number(kSetting, "TabASeT", state.tabASeT);
}

// The standard picture goes along with the program's folder, so its place is not written down.
void SaveHintCharacter(SettingsWriter& writer, const ClassCommon& common, const HintCharacter& character) {
  writer.Number(kHint, "IMGTint", character.shown);
  if (character.picture != StandardHintPicture(common)) writer.Path(kHint, "IMGPath", character.picture);
  writer.Number(kHint, "FontSize", character.fontSize);
  writer.Number(kHint, "FontStyle", character.fontStyle);
  writer.Number(kHint, "LEFT", character.left);
  writer.Number(kHint, "TOP", character.top);
  writer.Number(kHint, "Worp", character.wrap);
}

void SavePlacement(SettingsWriter& writer, const WindowSettings& settings, WindowState windowState) {
  const PlacementAtClose placement = PlacementAfter(settings.startUpWindow, windowState);
  if (placement.saveMode) writer.Text(kSetting, "StartUpWindow", placement.mode);
  if (!placement.saveRectangle) return;
  writer.Number(kSetting, "HTMLfrmLeft", settings.rectangle.left);
  writer.Number(kSetting, "HTMLfrmTop", settings.rectangle.top);
  writer.Number(kSetting, "HTMLfrmWidth", settings.rectangle.width);
  writer.Number(kSetting, "HTMLfrmHeight", settings.rectangle.height);
}

}  // namespace

std::optional<WindowSettings> LoadWindowSettings(const ClassCommon& common, ApplicationState& state) {
  SettingsReader reader(common.Profiles().Load(common.IniPath(0, common.ExeName())));
  WindowSettings settings;
  settings.workingFolder = WorkingFolder(common, reader);
  LoadEditing(reader, state);
  LoadLook(reader, settings);
  LoadHintCharacter(reader, common, settings.hintCharacter);
  LoadPlacement(reader, settings);
  reader.Long(kSetting, "Act", 0);  // counted later; an unusable count is damage like any other
  if (reader.Damaged()) return std::nullopt;
  state.currentFolder = settings.workingFolder;
  return settings;
}

void SaveFont(const ClassCommon& common, const WindowSettings& settings) {
  common.SetINI(common.ExeName(), u"Setting", u"FontName", settings.fontName);
  common.SetINI(common.ExeName(), u"Setting", u"FontSize", ToText(settings.fontSize));
}

void CountStart(const ClassCommon& common) {
  common.Profiles().Update(common.IniPath(0, common.ExeName()), [](ProfileContent& content) {
    const std::string text = content.Get(kSetting, "Act").value_or("0");
    const std::int64_t starts = ToLong(code_page::Decode(text)).value_or(0);
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    SettingsWriter(content).Number(kSetting, "Act", std::min(starts + 1, kMost));
  });
}

void SaveWindowSettings(const ClassCommon& common, const ApplicationState& state,
                        const WindowSettings& settings, WindowState windowState) {
  common.Profiles().Update(common.IniPath(0, common.ExeName()), [&](ProfileContent& content) {
    SettingsWriter writer(content);
    SaveEditing(writer, state);
    SaveHintCharacter(writer, common, settings.hintCharacter);
    writer.Text(kSetting, "FontName", settings.fontName);
    writer.Number(kSetting, "FontSize", settings.fontSize);
    writer.Number(kSetting, "MenuAnimation", state.menuAnimation);
    writer.Number(kBar, "DirectoryTreeWidth", settings.directoryTreeWidth);
    writer.Number(kBar, "FileInfo", state.showInfoOnSelect);
    SavePlacement(writer, settings, windowState);
  });
}

}  // namespace kestri
