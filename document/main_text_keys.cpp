// The events of one key, in the order in which the control raises them.
#include <utility>

#include "document/ascii_art_rules.hpp"
#include "document/indent.hpp"
#include "document/main_text.hpp"

namespace kestri {
namespace {

constexpr char16_t kSwallowed = 0;
enum KeyAscii : char16_t {
  kTab = 9,
  kEnter = 13,
  kEscape = 27,
  kControlBackslash = 28,  // the shortcut of the favourite strings
  kControlBackspace = 127,
};

constexpr std::int32_t kTags = 1;
constexpr std::int32_t kAttributes = 2;
constexpr std::int32_t kValues = 3;
constexpr std::int16_t kOpeningTag = -1;

}  // namespace

// Nothing is painted while a block is worked on, however that ends.
class MainText::HiddenText {
 public:
  explicit HiddenText(MainTextHost& host) : host_(host) { host_.SetTextHidden(true); }
  ~HiddenText() { host_.SetTextHidden(false); }
  HiddenText(const HiddenText&) = delete;
  HiddenText& operator=(const HiddenText&) = delete;

 private:
  MainTextHost& host_;
};

bool MainText::KeyDown(int keyCode, int shift) {
  const bool swallowed = keyCode == kKeyTab && shift == kControl;
  keyGate_ = swallowed ? kGateClosed : kGateOpen;
  return swallowed;
}

char16_t MainText::KeyPress(char16_t keyAscii) {
  char16_t handedOn = kSwallowed;
  Guarded([&] { handedOn = ApplyKeyRules(keyAscii); });
  return handedOn;
}

char16_t MainText::ApplyKeyRules(char16_t key) {
  if (control_.Locked()) return kSwallowed;
  const bool fromProgram = std::exchange(keyGate_, kGateClosed) != kGateOpen;
  if (fromProgram) return key;
  switch (key) {
    case kEscape:
      return PressEscape();
    case kEnter:
      return PressEnter();
    case kTab:
    case kControlBackspace:
      return PressIndentKey(key);
    case u'<':
      return PressTagOpen();
    case kControlBackslash:
      return kSwallowed;
    case u' ':
    case u'=':
      return PressBlankOrEquals(key);
    default:
      return key;
  }
}

char16_t MainText::PressEscape() {
  SetDragMode(false);
  host_.SetStatusPane(1, u"");
  tags_.DismissHint();
  return kEscape;
}

// The new line begins with the blanks that stand left of the caret at the head of the old one.
char16_t MainText::PressEnter() {
  const Position caret = control_.SelStart();
  if (state_.tabASeT != 1 || caret == 0) return kEnter;
  const Position head = control_.LineStart(control_.LineOf(caret));
  if (head == caret) return kEnter;
  const std::u16string indent = control_.Slice(head, IndentEnd(control_, head, caret) - head);
  ReplaceSelHwnd(std::u16string(kCrLf) + indent, true, true);
  return kSwallowed;
}

char16_t MainText::PressIndentKey(char16_t key) {
  if (control_.SelLength() == 0) return key == kTab ? PressTabWithoutSelection() : kSwallowed;
  ShiftBlock(key);
  return kSwallowed;
}

char16_t MainText::PressTabWithoutSelection() {
  if (state_.fileKind == kFileTypeAsciiArt) {
    host_.MessageToStatusBar(kNoTabInAsciiArt);
    return kSwallowed;
  }
  if (!ConvertsTabs()) return kTab;
  const EditScope oneStep(control_);
  for (int i = 0; i < 4 * state_.tabSpaceCount; ++i) SendChar(u' ', -1);
  return kSwallowed;
}

void MainText::ShiftBlock(char16_t key) {
  const EditScope oneStep(control_);
  bool changed = false;
  {
    const HiddenText hidden(host_);
    SelectWholeLines();
    const std::u16string block = control_.SelText();
    const std::u16string level = ExpandTabs(u"\t");
    const std::u16string shifted = key == kTab ? IndentBlock(block, level) : UnindentBlock(block, level);
    changed = shifted != block;
    if (changed) ReplaceSelKeep(shifted, true, true);
  }
  if (changed) control_.EM_SCROLLCARET();
}

bool MainText::NavigationAllowed() const {
  return state_.htmlNAVkeyB == 0 && (state_.htmlNAV != 1 || state_.fileKind == kFileTypeHtml);
}

char16_t MainText::PressTagOpen() {
  if (control_.SelLength() != 0 || !NavigationAllowed()) return u'<';
  tags_.Preset(kTags);
  SendChar(u'<', 0);
  tags_.ShowPopup();
  return kSwallowed;
}

char16_t MainText::PressBlankOrEquals(char16_t key) {
  if (key == u' ' && state_.fileKind == kFileTypeAsciiArt && RefusedByAsciiArt()) return kSwallowed;
  if (control_.SelLength() != 0) {
    tags_.seTagHide();
    return key;
  }
  if (!NavigationAllowed() || tags_.CaretTagKind(1, Compare::Binary) != kOpeningTag) return key;
  if (key == u'=') {
    const char16_t left = control_.At(control_.SelStart() - 1);
    if (left == u' ' || left == u'"' || left == u'=') return key;
  }
  OpenPopup(key == u'=' ? kValues : kAttributes, key);
  return kSwallowed;
}

void MainText::OpenPopup(std::int32_t mode, char16_t key) {
  tags_.Preset(mode);
  SendChar(key, 0);
  if (state_.htmlNAVkeyB_AUTO == 1) tags_.seTagHintPriSet();
  tags_.ShowPopup();
}

bool MainText::RefusedByAsciiArt() {
  const std::optional<BlankRefusal> refusal = RefuseBlank(control_);
  if (!refusal) return false;
  host_.MessageToStatusBar(refusal->message);
  if (refusal->offender) EM_SETSEL(*refusal->offender, *refusal->offender + 1);
  return true;
}

void MainText::KeyUp(int keyCode, int) {
  Guarded([&] {
    if (state_.fileKind == kFileTypeHtml && state_.htmlNAVkeyB_AUTO == 1) tags_.seTagHint();
    if (control_.Locked()) return;
    keyGate_ = kGateClosed;
    if (keyCode == kKeyHome && state_.tabASeT == 1) SmartHome();
  });
}

// The control has put the caret at the line's start by now, unless another key came in between.
void MainText::SmartHome() {
  const Position caret = control_.Caret();
  const std::int32_t line = control_.LineOf(caret);
  if (caret != control_.LineStart(line)) return;
  const Position text = IndentEnd(control_, caret, control_.LineEnd(line));
  const bool selecting = control_.SelLength() != 0;
  control_.MoveCaret(text, selecting ? EditControl::Extend::Yes : EditControl::Extend::No);
  WM_PAINT();
}

void MainText::Change() {
  if (state_.modified == 0) host_.DocumentModified();
  state_.modified = -1;
  if (state_.modifiedShown != 0) return;
  state_.modifiedShown = -1;
  host_.SetStatusPane(2, u"変更あり");
}

}  // namespace kestri
