#include "tags/completion.hpp"

#include <algorithm>
#include <exception>

#include "tags/dictionaries.hpp"

namespace kestri {
namespace {

constexpr std::int32_t kModeLoading = -9;

constexpr std::u16string_view kUnpacking = u"ﾃﾞｰﾀ展開中...  しばらくお待ちください...";
constexpr std::u16string_view kMarking = u"ﾏｰｷﾝｸﾞ中...  しばらくお待ちください...";
constexpr std::u16string_view kNothingLoaded = u"展開するﾃﾞｰﾀありませんでした";
constexpr std::u16string_view kSetUserFile =
    u" 定義ﾌｧｲﾙを設定してください \r\n [環境設定] でﾕｰｻﾞｰ定義ﾌｧｲﾙを選ぶと、登録した語句がここに並びます ";

constexpr int kMessagePane = 1;

std::int32_t Setting(const ClassCommon& common, std::u16string_view key, std::u16string_view defaultValue) {
  return ToLong(common.GetINI(common.ExeName(), u"Setting", key, defaultValue)).value_or(0);
}

constexpr bool TakesPartInNarrowing(char16_t character) {
  return character >= 32 && character <= 126;
}

// Zero-based position behind the nearest break character left of the caret: the number of that character,
// one-based. What is longer than any candidate is no word.
Position WordStart(const EditControl& control, std::u16string_view breaks) {
  const Position caret = control.SelStart();
  Position at = caret;
  while (at > 0 && breaks.find(control.At(at - 1)) == std::u16string_view::npos) {
    if (caret - --at > kMaxFieldLength) return caret;
  }
  return at;
}

}  // namespace

InToTAG::InToTAG(Surroundings surroundings) : around_(std::move(surroundings)) {}

void InToTAG::Beep() const {
  around_.common.PortSet().window.Beep();
}

void InToTAG::Load() {
  around_.host.SetStatusPane(kMessagePane, kUnpacking);
  // The files are read before the next event; a slow disk must not look like a lost key.
  if (around_.paintStatus) around_.paintStatus();
  around_.view.SetListVisible(false);
  rows_ = BuildCandidates(Dictionaries(around_.common), ReadCandidateSources(around_.common),
                          around_.screenFonts);
  selected_ = -1;
  loaded_ = true;
  nextStart_ = -1;
  ReadSettings();
  ShowLoaded();
  around_.view.SetListVisible(true);
}

void InToTAG::ReadSettings() {
  autoAnalyse_ = Setting(around_.common, u"htmlReEdit_AUTO", u"0") != 0;
  autoSelect_ = Setting(around_.common, u"AutTag", u"1") == 1;
  autoHint_ = around_.state.htmlNAVkeyB_AUTO == 1;
}

void InToTAG::ShowLoaded() {
  around_.host.SetStatusPane(kMessagePane, kMarking);
  editMode_ = kModeLoading;
  Preset(kModeTag);
  if (!AnythingLoaded()) around_.view.ShowTip(kNothingLoaded, nullptr);
  around_.host.SetStatusPane(kMessagePane, u"");
}

void InToTAG::Unload() {
  if (!loaded_) return;
  Deactivate();
  rows_.clear();
  around_.view.SetRows(rows_);
  loaded_ = false;
  selected_ = -1;
  startPos_ = 0;
  nextStart_ = -1;
  typed_.clear();
  upClose_ = Opens::Down;
  autoAnalyse_ = autoSelect_ = autoHint_ = closeTag_ = 0;
  editMode_ = 0;
}

PresetResult InToTAG::Preset(std::int32_t mode) {
  if (!loaded_) Load();
  if (editMode_ != mode) {
    editMode_ = mode;
    around_.view.SetListVisible(false);
    BringModeToTop();
    around_.view.MarkMode(mode);
    around_.view.SetListVisible(true);
  }
  return mode == kModeUser ? CheckUserWords() : PresetResult::Ready;
}

// The mode's own rows stand first, so that they are the ones in sight and the first hits of a prefix; the
// ghosted ones follow in the order of the tables.
void InToTAG::BringModeToTop() {
  std::ranges::stable_sort(rows_, {}, [mode = editMode_](const CandidateRow& row) {
    return row.tag == mode ? std::int32_t{0} : row.tag;
  });
  around_.view.SetRows(rows_);
  if (AnythingLoaded()) SelectRow(0);
}

bool InToTAG::HasRowOf(std::int32_t mode) const {
  return std::ranges::any_of(rows_, [mode](const CandidateRow& row) { return row.tag == mode; });
}

PresetResult InToTAG::CheckUserWords() {
  if (HasRowOf(kModeUser)) return PresetResult::Ready;
  around_.hints.seTagHide();
  around_.hints.TipComments(kSetUserFile);
  around_.host.SetStatusPane(kMessagePane, u"");
  KeyPress(27);
  return PresetResult::NoUserWords;
}

bool InToTAG::PrefixFromCaret(int& xOffset) {
  xOffset = 0;
  const EditControl& control = Control();
  const Position caret = control.SelStart();
  const Position start = WordStart(control, u" \u3000\t\r\n" + around_.state.trpString);
  if (caret <= start) return false;
  nextStart_ = start;
  const std::u16string word = control.Slice(start, caret - start);
  xOffset = around_.place.TextWidth(word);
  for (std::size_t length = 1; length <= word.size(); ++length) {
    typed_ = word.substr(0, length);
    if (!JumpToPrefix()) break;
  }
  typed_ = word;
  return true;
}

void InToTAG::ShowPopup(int xOffset) {
  const auto placement = ShowAtCaret(around_.view, kPopupXOffset + xOffset, 0, HintAnimation(around_.common),
                                     around_.place, around_.host, around_.common.PortSet().window);
  if (!placement) {
    nextStart_ = -1;
    return;
  }
  upClose_ = placement->opens;
  Activate();
}

void InToTAG::Activate() {
  if (nextStart_ < 0) {
    startPos_ = Control().SelStart();
    typed_.clear();
  } else {
    startPos_ = nextStart_;
  }
  nextStart_ = -1;
  closeTag_ = TypedClosingTag();
  around_.view.Select(selected_);
}

void InToTAG::HidePopup(PopupFocus focus) {
  if (around_.view.Visible()) around_.view.Hide(HintAnimation(around_.common), upClose_);
  if (focus == PopupFocus::ToText) around_.host.FocusText();
}

void InToTAG::Deactivate() {
  if (around_.view.Visible()) around_.view.Hide(Animation::Off, upClose_);
}

void InToTAG::Trapped(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::exception&) {
    Beep();
  }
}

void InToTAG::KeyPress(char16_t keyAscii) {
  Trapped([&] { TakeKey(keyAscii); });
}

void InToTAG::CommitText(std::u16string_view text) {
  Trapped([&] { TakeText(text); });
}

void InToTAG::KeyDown(ListKey key) {
  Trapped([&] { TakeListKey(key); });
}

void InToTAG::TakeKey(char16_t keyAscii) {
  switch (keyAscii) {
    case 8:
      Backspace();
      return;
    case 27:
      HidePopup(PopupFocus::ToText);
      return;
    case 9:
    case 13:
      Accept();
      return;
    default:
      if (TakesPartInNarrowing(keyAscii)) TypeIntoText(keyAscii);
  }
}

void InToTAG::TakeText(std::u16string_view text) {
  const auto other = std::ranges::find_if_not(text, &TakesPartInNarrowing);
  const auto typed = static_cast<std::size_t>(other - text.begin());
  for (const char16_t character : text.substr(0, typed)) TypeIntoText(character);
  if (typed == text.size()) return;
  HidePopup(PopupFocus::ToText);
  around_.text.CommitInput(text.substr(typed));
}

void InToTAG::Backspace() {
  around_.text.WM_CHAR(8, 0);
  if (startPos_ > Control().SelStart()) {
    HidePopup(PopupFocus::ToText);
  } else if (!typed_.empty()) {
    typed_.pop_back();
    JumpToPrefix();
  }
}

void InToTAG::TypeIntoText(char16_t character) {
  typed_ += character;
  around_.text.WM_CHAR(character, -1);
  JumpToPrefix();
}

bool InToTAG::TypedClosingTag() const {
  return editMode_ == kModeTag && Left(Trim(typed_), 1) == u"/";
}

bool InToTAG::JumpToPrefix() {
  if (autoSelect_ != 1) return false;
  const std::u16string_view word = Trim(typed_);
  closeTag_ = TypedClosingTag();
  const int row = FindItem(rows_, closeTag_ == 1 ? Mid(word, 2) : std::u16string_view(typed_));
  if (row < 0) return false;
  selected_ = row;
  around_.view.SelectAtTop(row);
  ItemClick(row);
  return true;
}

void InToTAG::SelectRow(int row) {
  around_.view.Select(row);
  ItemClick(row);
}

void InToTAG::ItemClick(int row) {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return;
  selected_ = row;
  around_.view.ShowTip(Row(row).toolTipText, &Row(row).icon);
}

void InToTAG::DoubleClick(int row) {
  ItemClick(row);
  KeyPress(9);
}

void InToTAG::TakeListKey(ListKey key) {
  const int last = static_cast<int>(rows_.size()) - 1;
  const int page = std::max(around_.view.RowsPerPage() - 1, 1);
  int row = selected_;
  switch (key) {
    case ListKey::Left:
    case ListKey::Right:
      HidePopup(PopupFocus::ToText);
      return;
    case ListKey::Up:
      row -= 1;
      break;
    case ListKey::Down:
      row += 1;
      break;
    case ListKey::PageUp:
      row -= page;
      break;
    case ListKey::PageDown:
      row += page;
      break;
    case ListKey::Home:
      row = 0;
      break;
    case ListKey::End:
      row = last;
      break;
  }
  if (last >= 0) SelectRow(std::clamp(row, 0, last));
}

}  // namespace kestri
