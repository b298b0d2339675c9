// The whole road of a tag without a display: edit control, key rules, popup logic, dictionaries in memory,
// and a view that records what it is told.
#pragma once

#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/trp_string.hpp"
#include "shell/common/code_page.hpp"
#include "tags/html_edit_commands.hpp"
#include "tags/tag_services.hpp"
#include "tests/fakes/main_text_desk.hpp"
#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/visible_caret.hpp"

namespace kestri::fakes {

class RecordingHost : public MainTextHost {
 public:
  void MessageToStatusBar(std::u16string_view text) override { messages.emplace_back(text); }
  void SetStatusPane(int pane, std::u16string_view text) override {
    panes.push_back(ToText(pane) + u":" + std::u16string(text));
  }
  void DocumentModified() override {}
  void SetTextHidden(bool) override {}
  void FocusText() override { ++focused; }
  void BringToFront() override {}
  void ShowTextMenu() override {}
  void PaintTextDecor(Decor) override {}
  void ResetCaretMemo() override {}
  void SetDragMode(bool) override {}
  void OpenDroppedFile(std::u16string_view) override {}
  void OpenInNewInstance(std::u16string_view) override {}

  std::vector<std::u16string> messages;
  std::vector<std::u16string> panes;
  int focused = 0;
};

class RecordingView : public CandidateView {
 public:
  PixelSize Size() override { return {300, 240}; }
  void ShowAt(const PopupPlacement& at, Animation how) override {
    placement = at;
    shownWith = how;
    visible = true;
    ++shows;
  }
  void SetRows(const std::vector<CandidateRow>& newRows) override { rows = newRows; }
  void SetListVisible(bool on) override { listSwitches.push_back(on); }
  void MarkMode(std::int32_t mode) override { marks.push_back(mode); }
  void Select(int row) override {
    if (failing) throw std::bad_alloc();
    selected = row;
  }
  void SelectAtTop(int row) override {
    if (failing) throw std::bad_alloc();
    selected = row;
    topRow = row;
  }
  int RowsPerPage() override { return 12; }
  void ShowTip(std::u16string_view text, const CandidateIcon* withIcon) override {
    tip = text;
    icon = withIcon == nullptr ? std::nullopt : std::optional(*withIcon);
  }
  bool Visible() override { return visible; }
  void Hide(Animation how, Opens opened) override {
    visible = false;
    hiddenWith = how;
    foldedBack = opened;
  }

  std::vector<CandidateRow> rows;
  std::vector<bool> listSwitches;
  std::vector<std::int32_t> marks;
  std::optional<PopupPlacement> placement;
  std::optional<Animation> shownWith, hiddenWith;
  std::optional<Opens> foldedBack;
  std::optional<CandidateIcon> icon;
  std::u16string tip;
  int selected = -1, topRow = -1, shows = 0;
  bool visible = false;
  bool failing = false;
};

class FakeCaretPlace : public CaretPlace {
 public:
  std::optional<PixelRect> GetCaretPixel() override { return caret; }
  PixelRect ScreenOfCaret() override { return {0, 0, 1280, 800}; }
  PixelRect HintBox() override { return hintBox; }
  int FontPoints() override { return 9; }
  int TextWidth(std::u16string_view text) override { return 120 * Len(text); }
  bool TextHasFocus() override { return focus; }

  std::optional<PixelRect> caret = PixelRect{400, 100, 1, 18};
  PixelRect hintBox;
  bool focus = true;
};

class RecordingHints : public TagHints {
 public:
  bool HintVisible() override { return visible; }
  void seTagHide() override { calls.push_back("hide"); }
  void seTagHint() override { calls.push_back("check"); }
  bool seTagHintPriSet() override {
    calls.push_back("set");
    return inTag;
  }
  void DismissHint() override { calls.push_back("dismiss"); }
  void TipComments(std::u16string_view text) override {
    calls.push_back("tip");
    tip = text;
  }

  std::vector<std::string> calls;
  std::u16string tip;
  bool visible = false;
  bool inTag = true;
};

inline constexpr std::u16string_view kSmallTags =
    u"[NAME]\n001=A\n002=ABBR\n003=P\n004=!-- --\n"
    u"[EXPLAIN]\n001=ｱﾝｶｰ\n002=略語\n003=段落\n004=\n"
    u"[DEFTAG]\n001=<A href=\"\">\n003=P align=\"left\"\n";
inline constexpr std::u16string_view kSmallOptions =
    u"[PRO]\n001=href\n002=align\n003=onclick\n004=!!nowrap\n[EXPLAIN]\n001=ﾘﾝｸ先\n003=ｸﾘｯｸ時\n";
inline constexpr std::u16string_view kSmallParams = u"[PARAM]\n001=left\n002=center\n";

// Profile text as the user sees it, stored in the code page. A line feed means CR LF.
inline std::string ProfileBytes(std::u16string_view text) {
  return code_page::Encode(Replace(text, u"\n", kCrLf));
}

inline constexpr std::u16string_view kProgramFolder = u"/opt/Kestrile";

class CompletionWorld {
 public:
  CompletionWorld() {
    state.trpString = DefaultTrpString();
    state.htmlNAVkeyB_AUTO = 0;
    tags.AttachPopup(&popup);
    tags.AttachHints(&hints);
    text.InstallSubclass(1);
    // A small table for every test; a test replaces what it needs before the popup is loaded.
    SetTags(kSmallTags);
    SetOptions(kSmallOptions);
    SetParams(kSmallParams);
  }

  void SetTags(std::u16string_view profile) { Put(u"DataFiles/SelectTAG.lib", profile); }
  void SetOptions(std::u16string_view profile) { Put(u"DataFiles/Option.lib", profile); }
  void SetParams(std::u16string_view profile) { Put(u"DataFiles/Param.lib", profile); }
  void SetFavourites(std::u16string_view profile) { Put(u"DataFiles/FabStr.lib", profile); }
  void SetSettings(std::u16string_view profile) { Put(u"Kestri.ini", profile); }
  void Put(std::u16string_view name, std::u16string_view profile) {
    files.contents[std::u16string(kProgramFolder) + u"/" + std::u16string(name)] = ProfileBytes(profile);
  }

  void SetText(std::u16string_view marked) { SetMarked(control, marked); }
  std::u16string Shown() const { return Marked(control); }

  // Keys as the window routes them: to the popup while it is visible, else to the text. "\b" "\t" "\r" "\x1B"
  // are the editing keys.
  void Type(std::u16string_view keys) {
    for (const char16_t key : keys) Press(key);
  }
  void Press(char16_t key) {
    if (view.visible) return popup.KeyPress(key);
    text.KeyDown(0, 0);
    text.WM_CHAR(key, 1);
    text.KeyUp(0, 0);
  }

  int RowOf(std::u16string_view word) const {
    for (std::size_t i = 0; i < popup.Rows().size(); ++i) {
      if (popup.Rows()[i].text == word) return static_cast<int>(i);
    }
    return -1;
  }
  std::u16string SelectedText() const {
    return popup.Selected() < 0 ? u"" : popup.Rows()[static_cast<std::size_t>(popup.Selected())].text;
  }

  MemoryFileSystem files;
  FakeEnvironment environment;
  FakeShell shell;
  FakeClock clock;
  FakeWindowServices services;
  FakeClipboard clipboard;
  FakeMessageBox boxes;
  ApplicationState state;
  ClassCommon common{Ports{files, environment, shell, clock, services}, PathStyle::Posix};
  EditControl control{clipboard};
  RecordingHost host;
  RecordingView view;
  FakeCaretPlace place;
  RecordingHints hints;
  std::vector<std::u16string> fonts{u"ＭＳ ゴシック", u"Arial"};
  int analyses = 0;
  TagServices tags{control};
  MainText text{control, state, common, host, tags, clipboard, boxes};
  InToTAG popup{
      {text, state, common, host, view, place, hints, [this] { ++analyses; }, [this] { return fonts; }}};
  HtmlEditCommands commands{{text, state, common, host, popup, place, hints, [this] { ++analyses; }}};
};

// Written-down keys, routed as the window routes them.
class CompletionKeys : public KeyTarget {
 public:
  explicit CompletionKeys(CompletionWorld& world) : world_(world), text_(world.text) {}

  void Press(const Key& key) override {
    if (PressCommand(key)) return;
    if (!world_.view.visible) return text_.Press(key);
    if (key.name == u"ime") return world_.popup.CommitText(key.text);
    if (key.control) {
      world_.popup.Deactivate();
      return text_.Press(key);
    }
    PressInPopup(key);
  }

 private:
  // Alt and a digit stand for the menu: 1 to 3 candidates by mode, 5 the user's words, 0 the default tag.
  bool PressCommand(const Key& key) {
    if (!key.alt) return false;
    if (world_.view.visible) world_.popup.Deactivate();
    const char16_t digit = key.name.front();
    if (digit == u'0') {
      world_.commands.CEdit_Click(0);
    } else if (digit == u'5') {
      world_.commands.mnuCallUserInTo_Click();
    } else {
      world_.commands.HTMLEdit_Click(digit - u'0');
    }
    return true;
  }
  void PressInPopup(const Key& key) {
    constexpr std::array<std::pair<std::u16string_view, ListKey>, 8> moves = {
        {{u"Left", ListKey::Left},
         {u"Right", ListKey::Right},
         {u"Up", ListKey::Up},
         {u"Down", ListKey::Down},
         {u"Home", ListKey::Home},
         {u"End", ListKey::End},
         {u"PageUp", ListKey::PageUp},
         {u"PageDown", ListKey::PageDown}}};
    for (const auto& [name, move] : moves) {
      if (key.name == name) return world_.popup.KeyDown(move);
    }
    constexpr std::array<std::pair<std::u16string_view, char16_t>, 4> characters = {
        {{u"Enter", 13}, {u"Tab", 9}, {u"Esc", 27}, {u"Backspace", 8}}};
    for (const auto& [name, character] : characters) {
      if (key.name == name) return world_.popup.KeyPress(character);
    }
    if (key.name.size() == 1) world_.popup.KeyPress(key.name.front());
  }

  CompletionWorld& world_;
  MainTextKeys text_;
};

}  // namespace kestri::fakes
