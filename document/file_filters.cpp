#include "document/file_filters.hpp"

#include <algorithm>
#include <array>

#include "document/settings_values.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

struct FixedRow {
  std::u16string_view caption;
  std::u16string_view pattern;
};

constexpr std::u16string_view kDefaultUserExt = u"*.txt;*.htm;*.html;*.jpg;*.gif;*.bmp";

constexpr std::array<FixedRow, 11> kOpenRows{{
    {u"ﾃｷｽﾄ 文書 (*.txt)", u"*.txt"},
    {u"HTML 文書 (*.htm;*.html)", u"*.htm;*.html"},
    {u"ｽﾀｲﾙｼｰﾄ (*.css)", u"*.css"},
    {u"JAVAｿｰｽﾌｧｲﾙ (*.java)", u"*.java"},
    {u"Cﾌｧｲﾙ (*.c;*.h)", u"*.c;*.h;*.cpp"},
    {u"Visual Basicﾌｧｲﾙ (*.vbs;*.bas;*.cls;*.frm;*.ctl)", u"*.vbs;*.bas;*.cls;*.frm;*.ctl"},
    {u"設定ﾌｧｲﾙ (*.ini)", u"*.ini"},
    {u"Dosﾊﾞｯﾁﾌｧｲﾙ (*.bat)", u"*.bat"},
    {u"クリップファイル (*.ced;*.clped)", u"*.ced;*.clped"},
    {u"AsciiArt下書きﾌｧｲﾙ (*.aat)", u"*.aat"},
    {u"対応ｲﾒｰｼﾞﾌｧｲﾙ (*.bmp;*.gif;*.jpg;*.ico)", u"*.bmp;*.gif;*.jpg;*.ico"},
}};
constexpr FixedRow kArchiveRow{u"対応書庫ﾌｧｲﾙ (*.lzh;*.zip;*.cab;*.rar)", u"*.lzh;*.zip;*.cab;*.rar"};
constexpr FixedRow kAnyFileRow{u"すべてのﾌｧｲﾙ (*.*)", u"*.*"};

struct SaveRow {
  std::u16string_view extension;
  FixedRow row;
};

constexpr std::array<SaveRow, 14> kSaveRows{{
    {u"txt", {u"ﾃｷｽﾄ 文書 (*.txt)", u"*.txt"}},
    {u"htm", {u"HTM 文書 (*.htm)", u"*.htm"}},
    {u"html", {u"HTML 文書 (*.html)", u"*.html"}},
    {u"css", {u"ｽﾀｲﾙｼｰﾄ (*.css)", u"*.css"}},
    {u"java", {u"JAVAｿｰｽﾌｧｲﾙ (*.java)", u"*.java"}},
    {u"c", {u"Cｿｰｽﾌｧｲﾙ (*.c)", u"*.c"}},
    {u"h", {u"Cﾍｯﾀﾞﾌｧｲﾙ (*.h)", u"*.h"}},
    {u"vbs", {u"VBScriptﾌｧｲﾙ (*.vbs)", u"*.vbs"}},
    {u"ini", {u"設定ﾌｧｲﾙ (*.ini)", u"*.ini"}},
    {u"bat", {u"Dosﾊﾞｯﾁﾌｧｲﾙ (*.bat)", u"*.bat"}},
    {u"clped", {u"クリップファイル (*.clped)", u"*.clped"}},
    {u"ced", {u"クリップファイル (*.ced)", u"*.ced"}},
    {u"aat", {u"AsciiArt下書きﾌｧｲﾙ (*.aat)", u"*.aat"}},
    {u"lst", {u"URLﾘｽﾄﾌｧｲﾙ (*.lst)", u"*.lst"}},
}};
static_assert(kSaveRows.size() + 1 == kSaveRowAnyFile);

FilterRow Row(const FixedRow& row) {
  return {std::u16string(row.caption), std::u16string(row.pattern)};
}

}  // namespace

std::vector<FilterRow> OpenFilterRows(const ClassCommon& common) {
  const std::u16string userExt = common.GetINI(common.ExeName(), u"Setting", u"UserExt", kDefaultUserExt);
  std::vector<FilterRow> rows{{u"ﾕｰｻﾞｰ定義 (" + userExt + u")", userExt}};
  for (const FixedRow& row : kOpenRows) rows.push_back(Row(row));
  if (SwitchedOn(common, u"FileArcOpen")) rows.push_back(Row(kArchiveRow));
  rows.push_back(Row(kAnyFileRow));
  return rows;
}

int StartFilterRow(const ClassCommon& common, std::size_t rows) {
  if (!SwitchedOn(common, u"ExtIndex")) return 1;
  const std::int32_t row = NumberSetting(common, u"Setting", u"ExtIndexNo", 1);
  return row >= 1 && static_cast<std::size_t>(row) <= rows ? row : 1;
}

std::vector<FilterRow> SaveFilterRows() {
  std::vector<FilterRow> rows;
  for (const SaveRow& row : kSaveRows) rows.push_back(Row(row.row));
  rows.push_back(Row(kAnyFileRow));
  return rows;
}

std::u16string FilterText(const std::vector<FilterRow>& rows) {
  std::u16string text;
  for (const FilterRow& row : rows) {
    if (!text.empty()) text += u'|';
    text.append(row.caption).append(u"|").append(row.pattern);
  }
  return text;
}

int SaveFilterIndex(std::u16string_view extension) {
  const std::u16string lower = LCase(extension);
  const auto found = std::find_if(kSaveRows.begin(), kSaveRows.end(),
                                  [&](const SaveRow& row) { return row.extension == lower; });
  return static_cast<int>(found - kSaveRows.begin()) + 1;
}

}  // namespace kestri
