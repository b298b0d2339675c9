// The tool bar's buttons and drop-downs: keys, captions and commands, word for word.
#include "shell/window/tool_rows.hpp"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <vector>

#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"
#include "shell/window/commands.hpp"

namespace kestri {
namespace {

const ToolRow& RowOf(std::string_view key) {
  for (const ToolRow& row : ToolRows()) {
    if (row.key == key) return row;
  }
  ADD_FAILURE() << key;
  return ToolRows().front();
}

TEST(ToolRows, TheButtonsStandInTheirOrder) {
  std::vector<std::string_view> keys;
  for (const ToolRow& row : ToolRows()) {
    if (row.kind != ToolKind::Separator) keys.push_back(row.key);
  }
  EXPECT_EQ(keys, (std::vector<std::string_view>{"New", "Open", "ReSave", "Cut", "Copy", "Past", "Undo",
                                                 "Redo", "Tool", "Search", "Run", "TestRun", "Top", "Tokusyu",
                                                 "Color", "Font", "LineNo"}));
}

struct ExpectedEntry {
  std::string_view key;
  std::u16string_view caption;
  std::string_view array;
  int index;
};
bool operator==(const ExpectedEntry& a, const ToolEntry& b) {
  return a.key == b.key && a.caption == b.caption && a.array == b.array && a.index == b.index;
}

const std::map<std::string_view, std::vector<ExpectedEntry>> kDropDowns = {
    {"New",
     {{"New1", u"白紙", "MenFileMs", 0},
      {"New2", u"TEXT型新規作成", "MenFileMs", 1},
      {"New3", u"HTML型新規作成", "MenFileMs", 2},
      {"New4", u"AsciiArt下書き", "MenFileMs", 14},
      {"New5", u"新規作成の選択...", "MenFileM", 8},
      {"New6", u"-", "", 0},
      {"New7", u"白紙の新しいｳｨﾝﾄﾞｳを開く", "MenFileOpenEx", 0}}},
    {"Open",
     {{"Open1", u"開く...", "MenFileM", 1},
      {"Open2", u"最近使用したﾌｧｲﾙを開く...", "OpenFileReg", 21},
      {"Open3", u"新しいｳｨﾝﾄﾞｳで開く...", "MenFileOpenEx", 1},
      {"Open4", u"-", "", 0},
      {"Open5", u"ｶﾚﾝﾄﾌｫﾙﾀﾞを開く", "MenFileM", 6}}},
    {"ReSave", {{"Save1", u"上書き保存", "MenFileM", 3}, {"Save2", u"名前をつけて保存...", "MenFileM", 4}}},
    {"Run",
     {{"Run1", u"完全実行 [関連付け]", "MenHTMLEdit", 0},
      {"Run2", u"ﾃｽﾄ実行 [関連付け]", "MenHTMLEdit", 1},
      {"Run3", u"完全実行 [WYSIWYG]", "MenHTMLEdit", 2},
      {"Run4", u"ﾃｽﾄ実行 [WYSIWYG]", "MenHTMLEdit", 3},
      {"Run5", u"-", "", 0},
      {"Run6", u"単一ｺﾝﾊﾟｲﾙ", "mnuCmpl", 0}}},
    {"Tool",
     {{"Tool1_0", u"MenuBar", "MenTool", 0},
      {"Tool1_1", u"MiniWebBrowser", "MenTool", 1},
      {"Tool1_2", u"AsciiArtPalette", "MenTool", 2},
      {"Tool1_3", u"SubTextWindow", "MenTool", 3},
      {"Tool3", u"", "MenOPg", 0},
      {"Tool4", u"", "MenOPg", 1},
      {"Tool5", u"", "MenOPg", 2},
      {"Tool6", u"HTMLﾀｸﾞ挿入...", "CEdit", 0},
      {"Tool7", u"ﾀｸﾞの解析", "HTMLEdit", 0},
      {"Tool8", u"ﾀｸﾞ候補一覧[補完]", "HTMLEdit", 1},
      {"Tool9", u"属性候補一覧[補完]", "HTMLEdit", 2},
      {"Tool10", u"値候補一覧[補完]", "HTMLEdit", 3},
      {"SettingDk", u"", "MenV", 6}}},
    {"Search",
     {{"Search1U", u"次を検索 [ 上へ ]", "SearEdit", 1},
      {"Search1D", u"次を検索 [ 下へ ]", "SearEdit", 2},
      {"Search2", u"検索．置換のﾌﾟﾛﾊﾟﾃｨ...", "SearEdit", 3}}}};

TEST(ToolRows, TheDropDownsAreWordForWord) {
  for (const ToolRow& row : ToolRows()) {
    const auto expected = kDropDowns.find(row.key);
    const std::size_t count = expected == kDropDowns.end() ? 0 : expected->second.size();
    ASSERT_EQ(row.entries.size(), count) << row.key;
    for (std::size_t i = 0; i < count; ++i) {
      const ToolEntry& entry = row.entries[i];
      EXPECT_TRUE(expected->second[i] == entry) << entry.key << ' ' << ToUtf8(entry.caption);
      EXPECT_EQ(entry.kind == ToolKind::Separator, entry.caption == u"-") << entry.key;
      EXPECT_TRUE(code_page::RoundTrips(entry.caption)) << entry.key;
    }
  }
}

TEST(ToolRows, EveryButtonAndEntryHasItsCommandInTheMenus) {
  std::set<std::string_view> seen;
  for (const ToolRow& row : ToolRows()) {
    if (row.kind == ToolKind::Separator) continue;
    EXPECT_TRUE(seen.insert(row.key).second) << row.key;
    EXPECT_FALSE(row.caption.empty()) << row.key;
    if (row.kind == ToolKind::ToolOfDocument) continue;
    EXPECT_NE(FindCommand(row.array, row.index), nullptr) << row.key;
    EXPECT_FALSE(row.icon.empty()) << row.key;
  }
  for (const ToolRow& row : ToolRows()) {
    for (const ToolEntry& entry : row.entries) {
      EXPECT_TRUE(seen.insert(entry.key).second) << entry.key;
      if (entry.kind == ToolKind::Separator) continue;
      const CommandRow* command = FindCommand(entry.array, entry.index);
      ASSERT_NE(command, nullptr) << entry.key;
      const bool named = entry.kind == ToolKind::Command || entry.kind == ToolKind::ExternalProgram;
      EXPECT_TRUE(named || command->liveCaption != nullptr) << entry.key;
    }
  }
}

TEST(ToolRows, TheButtonsThatPressInHaveACommandWithAMark) {
  for (const char* key : {"Top", "LineNo"}) {
    const CommandRow* command = FindCommand(RowOf(key).array, RowOf(key).index);
    ASSERT_NE(command, nullptr) << key;
    EXPECT_NE(command->checked, nullptr) << key;
  }
}

TEST(ToolRows, TheToolFollowsTheKindOfTheDocument) {
  const struct {
    std::int32_t kind;
    std::string_view array;
    int index;
  } rows[] = {{1002, "HTMLEdit", 1}, {1007, "MenTool", 2}, {1001, "MenTool", 0}, {0, "MenTool", 0}};
  for (const auto& row : rows) {
    const DocumentTool tool = ToolOfDocument(row.kind);
    EXPECT_EQ(tool.array, row.array) << row.kind;
    EXPECT_EQ(tool.index, row.index) << row.kind;
    EXPECT_NE(FindCommand(tool.array, tool.index), nullptr) << row.kind;
    EXPECT_FALSE(tool.icon.empty()) << row.kind;
  }
}

TEST(ToolRows, AnExternalProgramIsNamedOrNone) {
  EXPECT_EQ(ExternalProgramCaption(u"EXPLORER.EXE"), u"外部ｴﾃﾞｨﾀ(EXPLORER.EXE)...");
  EXPECT_EQ(ExternalProgramCaption(u""), u"(なし)");
  EXPECT_EQ(ExternalProgramCaption(u"(なし)"), u"(なし)");
}

}  // namespace
}  // namespace kestri
