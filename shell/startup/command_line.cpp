#include "shell/startup/command_line.hpp"

#include <algorithm>

#include "shell/common/application_state.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kQuote = u"\"";

bool IsPath(std::u16string_view line, const ClassCommon& common) {
  if (common.PathExists(line)) return true;
  const std::u16string folder = common.CPath(line, -2);
  return folder.size() > 1 && common.IsFileAttribute(folder, kAttributeDirectory);
}

struct SwitchRow {
  std::u16string_view prefix;
  WindowSwitch value;
};

constexpr SwitchRow kSwitches[] = {
    {u"/SL ", WindowSwitch::ImageSlides}, {u"/CI ", WindowSwitch::ImageConversion},
    {u"/CL ", WindowSwitch::Compile},     {u"/DA ", WindowSwitch::Unpack},
    {u"/AC ", WindowSwitch::Pack},
};
constexpr std::size_t kPrefixLength = 4;

}  // namespace

std::u16string RawCommandLine(std::span<char* const> arguments) {
  std::u16string line;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (i > 0) line += u' ';
    line += FromUtf8(arguments[i]);
  }
  return line;
}

WindowSwitch WindowSwitchOf(std::u16string_view rawLine, const ClassCommon& common) {
  for (const SwitchRow& row : kSwitches) {
    if (rawLine.starts_with(row.prefix)) return IsPath(rawLine, common) ? WindowSwitch::None : row.value;
  }
  return WindowSwitch::None;
}

std::u16string SwitchArgument(std::u16string_view rawLine) {
  return WithoutQuotes(rawLine.substr(std::min(kPrefixLength, rawLine.size())));
}

std::u16string WithoutQuotes(std::u16string_view text) {
  return ClassCommon::StringSurround(text, ClassCommon::Surround::Remove, kQuote, kQuote, Compare::Binary,
                                     true);
}

bool AsksForVersion(std::u16string_view line, const ClassCommon& common) {
  return line == u"/?" && !IsPath(line, common);
}

StartMode ModeOf(std::u16string_view line, const ClassCommon& common) {
  if (line.empty()) return StartMode::None;
  if (line.front() != u'/' || IsPath(line, common)) return StartMode::File;
  const std::u16string upper = UCase(line);
  if (upper == u"/SN") return StartMode::NewDocumentWindow;
  return upper == u"/SF" ? StartMode::FileList : StartMode::UnknownSwitch;
}

std::u16string VersionText(int major, int minor, int revision) {
  std::u16string text(kApplicationTitle);
  text += u" Ver." + FormatZeros(major, 2) + u"." + FormatZeros(minor, 2) + u"." + FormatZeros(revision, 3) +
          u"e07";
  text += u"\r\n\r\n● ｺﾏﾝﾄﾞﾗｲﾝ引数\r\n";
  text += u" ・/SL ...  ﾌｫﾙﾀﾞのｲﾒｰｼﾞｽﾗｲﾄﾞ表示\r\n";
  text += u" ・/SN ...  起動時に新規作成ｳｨﾝﾄﾞｳを表示\r\n";
  text += u" ・/SF ...  起動時にﾌｧｲﾙﾘｽﾄを表示\r\n";
  text += u" ・/DA ...  解凍ﾓｰﾄﾞ\r\n";
  text += u" ・/AC ...  圧縮ﾓｰﾄﾞ\r\n";
  text += u" ・/?  ...  ﾊﾞｰｼﾞｮﾝを表示\r\n\r\n";
  text += kCreditLine;
  return text;
}

}  // namespace kestri
