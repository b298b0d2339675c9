#include "shell/window/commands.hpp"

#include <algorithm>
#include <array>

#include "shell/window/editor_commands.hpp"

namespace kestri {
namespace {

using C = EditorCommands;

constexpr std::u16string_view kAdvanced1 = u"高度な操作1(Ex&1)";

template <bool (C::*When)() const>
bool Ask(const C& commands) {
  return (commands.*When)();
}
constexpr auto kAlways = Ask<&C::Always>;
constexpr auto kNever = Ask<&C::Never>;
constexpr auto kWritable = Ask<&C::Writable>;
constexpr auto kTagTools = Ask<&C::TagToolsOn>;

constexpr CommandRow Separator(TopMenu menu, std::u16string_view submenu = u"") {
  return {menu, submenu, "", 0, u"-", u"", "", "", kNever, nullptr};
}

constexpr std::array kFileRows = {
    CommandRow{TopMenu::File, u"", "MenFileM", 0, u"新規作成(&N)", u"HTML型の新しい文書を作ります", "Ctrl+N",
               "document-new", kAlways, [](C& c) { c.New(2); }},
    CommandRow{TopMenu::File, u"", "MenFileM", 1, u"開く(&O)...", u"ﾌｧｲﾙを選んで開きます", "Ctrl+O",
               "document-open", kAlways, [](C& c) { c.Open(); }},
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 3, u"上書き保存(&S)", u"現在のﾌｧｲﾙに上書きします", "Ctrl+S",
               "document-save", kAlways, [](C& c) { c.Save(); }},
    CommandRow{TopMenu::File, u"", "MenFileM", 4, u"名前を付けて保存(&A)...", u"別の名前で保存します",
               "Ctrl+Shift+S", "document-save-as", kAlways, [](C& c) { c.SaveAs(); }},
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 6, u"ｶﾚﾝﾄﾌｫﾙﾀﾞを開く(&F)", u"文書のあるﾌｫﾙﾀﾞを開きます", "",
               "folder-open", kAlways, [](C& c) { c.OpenCurrentFolder(); }},
    Separator(TopMenu::File),
    CommandRow{TopMenu::File, u"", "MenFileM", 8, u"終了(&X)", u"Kestrile を終了します", "Ctrl+Q",
               "application-exit", kAlways, [](C& c) { c.Exit(); }},
};

constexpr std::array kEditRows = {
    CommandRow{TopMenu::Edit, u"", "MenUNDO", 0, u"元に戻す(&U)", u"直前の操作を取り消します", "Ctrl+Z",
               "edit-undo", Ask<&C::CanUndo>, [](C& c) { c.Undo(); }},
    CommandRow{TopMenu::Edit, u"", "MenUNDO", 1, u"やり直し(&R)", u"取り消した操作をやり直します", "Ctrl+Y",
               "edit-redo", Ask<&C::CanRedo>, [](C& c) { c.Redo(); }},
    Separator(TopMenu::Edit),
    CommandRow{TopMenu::Edit, u"", "Edit", 0, u"切り取り(&T)", u"選択範囲をｸﾘｯﾌﾟﾎﾞｰﾄﾞへ移します", "Ctrl+X",
               "edit-cut", Ask<&C::HasSelectionToCut>, [](C& c) { c.Edit(0); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 1, u"ｺﾋﾟｰ(&C)", u"選択範囲をｸﾘｯﾌﾟﾎﾞｰﾄﾞへ複写します", "Ctrl+C",
               "edit-copy", Ask<&C::HasSelection>, [](C& c) { c.Edit(1); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 2, u"貼り付け(&P)", u"ｸﾘｯﾌﾟﾎﾞｰﾄﾞの文字列を挿入します", "Ctrl+V",
               "edit-paste", kWritable, [](C& c) { c.Edit(2); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 3, u"削除(&D)", u"選択範囲を削除します", "", "edit-delete",
               Ask<&C::HasSelectionToCut>, [](C& c) { c.Edit(3); }},
    Separator(TopMenu::Edit),
    CommandRow{TopMenu::Edit, u"", "Edit", 5, u"すべて選択(&A)", u"文書全体を選択します", "Ctrl+A",
               "edit-select-all", Ask<&C::HasText>, [](C& c) { c.Edit(5); }},
    CommandRow{TopMenu::Edit, u"", "Edit", 6, u"1行選択(&L)", u"ｶｰｿﾙのある行を選択します", "Ctrl+L", "",
               Ask<&C::HasText>, [](C& c) { c.Edit(6); }},
    Separator(TopMenu::Edit),
    CommandRow{TopMenu::Edit, kAdvanced1, "HighEdit", 0, u"ｲﾝﾃﾞﾝﾄ ﾚﾍﾞﾙ +1\tTab",
               u"選択した行を1段字下げします", "", "format-indent-more", kWritable,
               [](C& c) { c.IndentMore(); }},
    CommandRow{TopMenu::Edit, kAdvanced1, "HighEdit", 1, u"ｲﾝﾃﾞﾝﾄ ﾚﾍﾞﾙ -1\tCtrl+Bksp",
               u"選択した行の字下げを1段戻します", "", "format-indent-less", Ask<&C::HasSelectionToCut>,
               [](C& c) { c.IndentLess(); }},
};

constexpr std::array kHtmlRows = {
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 1, u"ﾀｸﾞ候補一覧[補完]",
               u"ｶｰｿﾙの左の語に合うﾀｸﾞの候補を出します", "F2", "kestrile-html-tag", kTagTools,
               [](C& c) { c.HTMLEdit(1); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 2, u"属性候補一覧[補完]",
               u"ｶｰｿﾙの左の語に合う属性の候補を出します", "F3", "kestrile-html-attribute", kTagTools,
               [](C& c) { c.HTMLEdit(2); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 3, u"値候補一覧[補完]",
               u"ｶｰｿﾙの左の語に合う値の候補を出します", "F4", "kestrile-html-value", kTagTools,
               [](C& c) { c.HTMLEdit(3); }},
    CommandRow{TopMenu::Html, u"", "HTMLEdit", 4, u"ｶｰｿﾙ位置の候補一覧(&P)",
               u"ｶｰｿﾙの場所に合った候補を出します", "Ctrl+Space", "", kTagTools,
               [](C& c) { c.CandidatesAtCaret(); }},
    CommandRow{TopMenu::Html, u"", "mnuCallUserInTo", 0, u"ﾕｰｻﾞｰｵｰﾄｺﾝﾌﾟﾘｰﾄのｺｰﾙ(&Z)",
               u"ﾕｰｻﾞｰ定義ﾌｧｲﾙの語句の候補を出します", "", "", kAlways, [](C& c) { c.CallUserInTo(); }},
    Separator(TopMenu::Html),
    CommandRow{TopMenu::Html, u"", "CEdit", 0, u"ﾀｸﾞ・ﾊﾟﾗﾒｰﾀの補完(&D)",
               u"ｶｰｿﾙのあるﾀｸﾞを辞書のﾃﾞﾌｫﾙﾄﾀｸﾞに置き換えます", "Ctrl+D", "", kTagTools,
               [](C& c) { c.CEdit(0); }},
};

constexpr std::array kViewRows = {
    CommandRow{TopMenu::View, u"", "MenV", 0, u"ﾂｰﾙﾊﾞｰ(&T)", u"ﾂｰﾙﾊﾞｰの表示を切り替えます", "", "", kAlways,
               [](C& c) { c.ToggleToolBar(); }},
    CommandRow{TopMenu::View, u"", "MenV", 1, u"ｽﾃｰﾀｽﾊﾞｰ(&S)", u"ｽﾃｰﾀｽﾊﾞｰの表示を切り替えます", "", "",
               kAlways, [](C& c) { c.ToggleStatusBar(); }},
    CommandRow{TopMenu::View, u"", "MenV", 2, u"ｶﾞｲﾄﾞﾗｲﾝ(&G)", u"ｶｰｿﾙを通る線の表示を切り替えます", "", "",
               kAlways, [](C& c) { c.ToggleGuideLines(); }},
};

constexpr std::array kHelpRows = {
    CommandRow{TopMenu::Help, u"", "MenH2", 0, u"Help [TEXT] (&H)", u"操作の説明をﾃｷｽﾄで開きます", "F1",
               "help-contents", kAlways, [](C& c) { c.OpenHelp(u"help.txt"); }},
    CommandRow{TopMenu::Help, u"", "MenH2", 1, u"Help [HTML]", u"操作の説明をﾌﾞﾗｳｻﾞで開きます", "", "",
               kAlways, [](C& c) { c.OpenHelp(u"help.htm"); }},
    CommandRow{TopMenu::Help, u"", "MenH2", 2, u"READMEﾌｧｲﾙ(&R)", u"READMEﾌｧｲﾙを開きます", "", "", kAlways,
               [](C& c) { c.OpenHelp(u"readme.txt"); }},
    CommandRow{TopMenu::Help, u"", "MenH2", 3, u"更新履歴(&Z)", u"更新履歴を開きます", "", "", kAlways,
               [](C& c) { c.OpenHelp(u"history.txt"); }},
    Separator(TopMenu::Help),
    CommandRow{TopMenu::Help, u"", "MenH", 0, u"Kestrile について(&A)", u"ﾊﾞｰｼﾞｮﾝを表示します", "",
               "help-about", kAlways, [](C& c) { c.ShowVersion(); }},
};

template <std::size_t... Sizes>
constexpr auto Joined(const std::array<CommandRow, Sizes>&... parts) {
  std::array<CommandRow, (Sizes + ...)> all = {};
  auto out = all.begin();
  ((out = std::copy(parts.begin(), parts.end(), out)), ...);
  return all;
}

constexpr auto kRows = Joined(kFileRows, kEditRows, kHtmlRows, kViewRows, kHelpRows);

constexpr std::array kMenus = {TopMenu::File, TopMenu::Edit, TopMenu::Html, TopMenu::View, TopMenu::Help};

constexpr std::array kOpenEntries = {
    ToolRow::Entry{"Open1", u"開く...", "MenFileM", 1},
    ToolRow::Entry{"Open4", u"-", "", 0},
    ToolRow::Entry{"Open5", u"ｶﾚﾝﾄﾌｫﾙﾀﾞを開く", "MenFileM", 6},
};
constexpr std::array kSaveEntries = {
    ToolRow::Entry{"Save1", u"上書き保存", "MenFileM", 3},
    ToolRow::Entry{"Save2", u"名前をつけて保存...", "MenFileM", 4},
};
constexpr std::array kToolEntries = {
    ToolRow::Entry{"Tool8", u"ﾀｸﾞ候補一覧[補完]", "HTMLEdit", 1},
    ToolRow::Entry{"Tool9", u"属性候補一覧[補完]", "HTMLEdit", 2},
    ToolRow::Entry{"Tool10", u"値候補一覧[補完]", "HTMLEdit", 3},
};

constexpr std::array kToolRows = {
    ToolRow{"New", u"新規作成", "MenFileM", 0, {}},
    ToolRow{"Open", u"開く", "MenFileM", 1, kOpenEntries},
    ToolRow{"ReSave", u"上書き保存", "MenFileM", 3, kSaveEntries},
    ToolRow{"", u"-", "", 0, {}},
    ToolRow{"Cut", u"切り取り", "Edit", 0, {}},
    ToolRow{"Copy", u"ｺﾋﾟｰ", "Edit", 1, {}},
    ToolRow{"Past", u"貼り付け", "Edit", 2, {}},
    ToolRow{"", u"-", "", 0, {}},
    ToolRow{"Undo", u"元に戻す", "MenUNDO", 0, {}},
    ToolRow{"Redo", u"やり直し", "MenUNDO", 1, {}},
    ToolRow{"", u"-", "", 0, {}},
    ToolRow{"Tool", u"ﾀｸﾞ候補一覧", "HTMLEdit", 1, kToolEntries},
};

}  // namespace

std::span<const CommandRow> CommandRows() {
  return kRows;
}

std::span<const ToolRow> ToolRows() {
  return kToolRows;
}

std::span<const TopMenu> TopMenus() {
  return kMenus;
}

std::u16string_view TopMenuCaption(TopMenu menu) {
  switch (menu) {
    case TopMenu::File:
      return u"ﾌｧｲﾙ(&F)";
    case TopMenu::Edit:
      return u"編集(&E)";
    case TopMenu::Html:
      return u"HTML(&T)";
    case TopMenu::View:
      return u"表示(&V)";
    case TopMenu::Help:
      return u"ﾍﾙﾌﾟ(&H)";
  }
  return u"";
}

const CommandRow* FindCommand(std::string_view array, int index) {
  const auto row = std::find_if(kRows.begin(), kRows.end(), [&](const CommandRow& candidate) {
    return candidate.array == array && candidate.index == index && !candidate.IsSeparator();
  });
  return row == kRows.end() ? nullptr : &*row;
}

}  // namespace kestri
