#include "shell/window/tool_rows.hpp"

#include <array>

namespace kestri {
namespace {

constexpr std::int32_t kHtmlDocument = 1002;
constexpr std::int32_t kAsciiArtDraft = 1007;
constexpr std::u16string_view kNone = u"(なし)";

constexpr ToolEntry Line(std::string_view key) {
  return {key, u"-", "", 0, ToolKind::Separator};
}
constexpr ToolRow Gap() {
  return {.key = "", .caption = u"-", .icon = "", .array = "", .kind = ToolKind::Separator};
}

constexpr std::array kNewEntries = {
    ToolEntry{"New1", u"白紙", "MenFileMs", 0},
    ToolEntry{"New2", u"TEXT型新規作成", "MenFileMs", 1},
    ToolEntry{"New3", u"HTML型新規作成", "MenFileMs", 2},
    ToolEntry{"New4", u"AsciiArt下書き", "MenFileMs", 14},
    ToolEntry{"New5", u"新規作成の選択...", "MenFileM", 8},
    Line("New6"),
    ToolEntry{"New7", u"白紙の新しいｳｨﾝﾄﾞｳを開く", "MenFileOpenEx", 0},
};
constexpr std::array kOpenEntries = {
    ToolEntry{"Open1", u"開く...", "MenFileM", 1},
    ToolEntry{"Open2", u"最近使用したﾌｧｲﾙを開く...", "OpenFileReg", 21},
    ToolEntry{"Open3", u"新しいｳｨﾝﾄﾞｳで開く...", "MenFileOpenEx", 1},
    Line("Open4"),
    ToolEntry{"Open5", u"ｶﾚﾝﾄﾌｫﾙﾀﾞを開く", "MenFileM", 6},
};
constexpr std::array kSaveEntries = {
    ToolEntry{"Save1", u"上書き保存", "MenFileM", 3},
    ToolEntry{"Save2", u"名前をつけて保存...", "MenFileM", 4},
};
constexpr std::array kToolEntries = {
    ToolEntry{"Tool1_0", u"MenuBar", "MenTool", 0},
    ToolEntry{"Tool1_1", u"MiniWebBrowser", "MenTool", 1},
    ToolEntry{"Tool1_2", u"AsciiArtPalette", "MenTool", 2},
    ToolEntry{"Tool1_3", u"SubTextWindow", "MenTool", 3},
    ToolEntry{"Tool3", u"", "MenOPg", 0, ToolKind::ExternalProgram},
    ToolEntry{"Tool4", u"", "MenOPg", 1, ToolKind::ExternalProgram},
    ToolEntry{"Tool5", u"", "MenOPg", 2, ToolKind::ExternalProgram},
    ToolEntry{"Tool6", u"HTMLﾀｸﾞ挿入...", "CEdit", 0},
    ToolEntry{"Tool7", u"ﾀｸﾞの解析", "HTMLEdit", 0},
    ToolEntry{"Tool8", u"ﾀｸﾞ候補一覧[補完]", "HTMLEdit", 1},
    ToolEntry{"Tool9", u"属性候補一覧[補完]", "HTMLEdit", 2},
    ToolEntry{"Tool10", u"値候補一覧[補完]", "HTMLEdit", 3},
    ToolEntry{"SettingDk", u"", "MenV", 6, ToolKind::LiveCommand},
};
constexpr std::array kSearchEntries = {
    ToolEntry{"Search1U", u"次を検索 [ 上へ ]", "SearEdit", 1},
    ToolEntry{"Search1D", u"次を検索 [ 下へ ]", "SearEdit", 2},
    ToolEntry{"Search2", u"検索．置換のﾌﾟﾛﾊﾟﾃｨ...", "SearEdit", 3},
};
constexpr std::array kRunEntries = {
    ToolEntry{"Run1", u"完全実行 [関連付け]", "MenHTMLEdit", 0},
    ToolEntry{"Run2", u"ﾃｽﾄ実行 [関連付け]", "MenHTMLEdit", 1},
    ToolEntry{"Run3", u"完全実行 [WYSIWYG]", "MenHTMLEdit", 2},
    ToolEntry{"Run4", u"ﾃｽﾄ実行 [WYSIWYG]", "MenHTMLEdit", 3},
    Line("Run5"),
    ToolEntry{"Run6", u"単一ｺﾝﾊﾟｲﾙ", "mnuCmpl", 0},
};

constexpr std::array kToolRows = {
    ToolRow{"New", u"新規作成", "document-new", "MenFileM", 0, kNewEntries},
    ToolRow{"Open", u"開く", "document-open", "MenFileM", 1, kOpenEntries},
    ToolRow{"ReSave", u"上書き保存", "document-save", "MenFileM", 3, kSaveEntries},
    Gap(),
    ToolRow{"Cut", u"切り取り", "edit-cut", "Edit", 0},
    ToolRow{"Copy", u"ｺﾋﾟｰ", "edit-copy", "Edit", 1},
    ToolRow{"Past", u"貼り付け", "edit-paste", "Edit", 2},
    ToolRow{"Undo", u"元に戻す", "edit-undo", "MenUNDO", 0},
    ToolRow{"Redo", u"やり直し", "edit-redo", "MenUNDO", 1},
    Gap(),
    ToolRow{"Tool", u"ﾂｰﾙ", "", "", 0, kToolEntries, ToolKind::ToolOfDocument},
    ToolRow{"Search", u"検索・置換のﾌﾟﾛﾊﾟﾃｨ", "edit-find", "SearEdit", 3, kSearchEntries},
    ToolRow{"Run", u"完全実行", "kestrile-run", "MenHTMLEdit", 0, kRunEntries},
    ToolRow{"TestRun", u"ﾃｽﾄ実行", "kestrile-test-run", "MenHTMLEdit", 1},
    Gap(),
    ToolRow{"Top", u"常に手前に表示", "kestrile-topmost", "MenV", 3},
    ToolRow{"Tokusyu", u"特殊文字", "kestrile-special-characters", "MenTool", 0},
    ToolRow{"Color", u"ｶﾗｰｺｰﾄﾞ参照", "kestrile-color", "ColorEdit", 0},
    ToolRow{"Font", u"ﾌｫﾝﾄ", "preferences-desktop-font", "MenV2", 0},
    ToolRow{"LineNo", u"行番号", "kestrile-line-numbers", "MenV", 5},
};

}  // namespace

std::span<const ToolRow> ToolRows() {
  return kToolRows;
}

DocumentTool ToolOfDocument(std::int32_t fileKind) {
  if (fileKind == kHtmlDocument) return {"HTMLEdit", 1, "kestrile-html-tag"};
  if (fileKind == kAsciiArtDraft) return {"MenTool", 2, "kestrile-ascii-art"};
  return {"MenTool", 0, "kestrile-menu-bar"};
}

std::u16string ExternalProgramCaption(std::u16string_view programName) {
  if (programName.empty() || programName == kNone) return std::u16string(kNone);
  return u"外部ｴﾃﾞｨﾀ(" + std::u16string(programName) + u")...";
}

}  // namespace kestri
