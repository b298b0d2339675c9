#include "document/text_transforms.hpp"

#include "document/indent.hpp"

namespace kestri {
namespace {

constexpr int kLineEndPane = 3;
constexpr char16_t kTabKey = 9;
constexpr char16_t kControlBackspaceKey = 127;
constexpr std::u16string_view kSetting = u"Setting";
constexpr std::u16string_view kBracketWidth = u"KAKKO_HorZ";

template <typename Row>
const Row* RowAt(std::span<const Row> rows, int index) {
  const auto at = static_cast<std::size_t>(index);
  return index >= 0 && at < rows.size() ? &rows[at] : nullptr;
}

std::u16string TimeText(const std::tm& now) {
  return FormatZeros(now.tm_hour, 2) + u":" + FormatZeros(now.tm_min, 2) + u":" + FormatZeros(now.tm_sec, 2);
}

std::u16string DateText(const std::tm& now) {
  return FormatZeros(now.tm_year + 1900, 4) + u"/" + FormatZeros(now.tm_mon + 1, 2) + u"/" +
         FormatZeros(now.tm_mday, 2);
}

// The first of a mark becomes the first word, the second the second.
std::u16string WithWords(std::u16string_view text, std::u16string_view mark, std::u16string_view first,
                         std::u16string_view second) {
  return Replace(Replace(text, mark, first, 1), mark, second, 1);
}

}  // namespace

std::u16string FreeIndentChoice::Unit() const {
  std::u16string unit;
  for (int i = 0; i < count; ++i) {
    switch (character) {
      case IndentCharacter::Tab:
        unit += u'\t';
        break;
      case IndentCharacter::HalfWidthBlank:
        unit += u' ';
        break;
      case IndentCharacter::FullWidthBlank:
        unit += kIdeographicSpace;
        break;
      case IndentCharacter::Free:
        unit += freeCharacter;
        break;
    }
  }
  return unit;
}

TextTransforms::TextTransforms(MainText& text, ApplicationState& state, const ClassCommon& common,
                               MainTextHost& host)
    : text_(text), state_(state), common_(common), host_(host) {}

void TextTransforms::HighEdit(int index) {
  switch (index) {
    case 0:
      return PressIndentKey(kKeyTab, kTabKey);
    case 1:
      return PressIndentKey(0, kControlBackspaceKey);
    case 4:
      return ConvertSelection(Conversion::UpperCase);
    case 5:
      return ConvertSelection(Conversion::LowerCase);
    case 6:
      return ConvertSelection(Conversion::Wide);
    case 7:
      return ConvertSelection(Conversion::Narrow);
    case 8:
      return ConvertSelection(Conversion::Katakana);
    case 9:
      return ConvertSelection(Conversion::Hiragana);
    default:
      return;
  }
}

// As if the key had been pressed: what its rules hand on is typed.
void TextTransforms::PressIndentKey(int keyCode, char16_t keyAscii) {
  if (text_.RefuseIfLocked()) return;
  text_.KeyDown(keyCode, 0);
  const char16_t handedOn = text_.KeyPress(keyAscii);
  if (handedOn != 0) text_.WM_CHAR(handedOn, -1);
}

void TextTransforms::ConvertSelection(Conversion conversion) {
  if (text_.RefuseIfLocked()) return;
  const std::u16string selected = text_.Control().SelText();
  const std::u16string converted = StrConv(selected, conversion);
  if (converted != selected) text_.ReplaceSelKeep(converted, false, true);
}

void TextTransforms::KakkoMenu(int index) {
  const BracketRow* row = RowAt(BracketRows(), index);
  if (row == nullptr || text_.RefuseIfLocked()) return;
  const Conversion width = CheckedBracketWidth() == 0 ? Conversion::Narrow : Conversion::Wide;
  std::u16string surrounded = StrConv(row->open, width);
  surrounded.append(text_.Control().SelText()).append(StrConv(row->close, width));
  text_.ReplaceSelKeep(surrounded, false, true);
}

void TextTransforms::KakkoFSet(int index) {
  if (RowAt(BracketWidthRows(), index) == nullptr) return;
  common_.SetINI(common_.ExeName(), kSetting, kBracketWidth, ToText(index));
}

int TextTransforms::CheckedBracketWidth() const {
  const std::u16string width = common_.GetINI(common_.ExeName(), kSetting, kBracketWidth, u"0");
  return ToLong(width).value_or(0) == 0 ? 0 : 1;
}

void TextTransforms::LineCode(int index) {
  const LineCodeRow* row = RowAt(LineCodeRows(), index);
  if (row == nullptr || text_.RefuseIfLocked()) return;
  state_.lineEnd = row->lineEnd;
  host_.SetStatusPane(kLineEndPane, row->lineEnd);
  text_.Change();
}

int TextTransforms::CheckedLineCode() const {
  const std::span<const LineCodeRow> rows = LineCodeRows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].lineEnd == state_.lineEnd) return static_cast<int>(i);
  }
  return -1;
}

std::u16string TextTransforms::LineCodeCaption() const {
  const LineCodeRow* row = RowAt(LineCodeRows(), CheckedLineCode());
  const std::u16string_view kind = row == nullptr ? std::u16string_view(state_.lineEnd) : row->caption;
  return std::u16string(u"改行ｺｰﾄﾞ  [").append(kind).append(u"]");
}

bool TextTransforms::HasRoomFor(std::size_t unitsInEachLine) const {
  const EditControl& control = text_.Control();
  const Position start = control.SelStart();
  const std::int32_t below = control.LineOf(start + control.SelLength()) - control.LineOf(start);
  const std::size_t lines = static_cast<std::size_t>(below) + 1;
  return static_cast<std::size_t>(control.Length()) + lines * unitsInEachLine <= kLongestText;
}

void TextTransforms::TellNoRoom() {
  common_.PortSet().window.Beep();
  host_.MessageToStatusBar(u"ﾃｷｽﾄが長くなりすぎるので ｲﾝﾃﾞﾝﾄできません");
}

void TextTransforms::FreeIndent(const FreeIndentChoice& choice) {
  const std::u16string unit = choice.Unit();
  if (unit.empty() || text_.RefuseIfLocked()) return;
  EditControl& control = text_.Control();
  const EditScope oneStep(control);
  text_.SelectWholeLines();
  const Position start = control.SelStart();
  const std::u16string block = control.SelText();
  const bool more = choice.direction == IndentDirection::More;
  if (more && !HasRoomFor(text_.ExpandTabs(unit).size())) return TellNoRoom();
  std::u16string indented = more ? IndentBlock(block, text_.ExpandTabs(unit)) : UnindentBlock(block, unit);
  // A tab that was put in may stand in the text as the blanks of its level.
  if (indented == block) indented = UnindentBlock(block, text_.ExpandTabs(unit));
  if (indented == block) return;
  text_.ReplaceSelHwnd(indented, true, true);
  text_.EM_SETSEL(start, control.SelStart());
}

void TextTransforms::Insert(std::u16string_view text) {
  if (text.empty() || text_.RefuseIfLocked()) return;
  text_.ReplaceSelHwnd(text, true, true);
}

void TextTransforms::ToM(int index) {
  if (const InsertRow* row = RowAt(SpecialCharacterRows(), index)) Insert(row->text);
}

void TextTransforms::Color(int index) {
  if (const std::u16string_view* row = RowAt(ColorRows(), index)) Insert(CaptionWord(*row));
}

void TextTransforms::nFont(int index) {
  if (const std::u16string_view* row = RowAt(FontRows(), index)) Insert(*row);
}

void TextTransforms::Day(int index) {
  if (RowAt(DayRows(), index) == nullptr || text_.RefuseIfLocked()) return;
  text_.ReplaceSelKeep(DayText(index, common_.PortSet().clock.Now()), true, true);
}

std::u16string DayText(int index, const std::tm& now) {
  const std::u16string time = TimeText(now);
  const std::u16string date = DateText(now);
  const std::u16string timeInWords = WithWords(time, u":", u"時", u"分");
  switch (index) {
    case 0:
      return timeInWords.substr(0, timeInWords.find(u'分') + 1);
    case 1:
      return timeInWords + u"秒";
    case 2:
      return time.substr(0, 5);
    case 3:
    case 7:
      return time;
    case 4:
      return WithWords(date, u"/", u"年", u"月") + u"日";
    case 5:
    case 8:
      return date;
    case 6:
      return date + u" " + time;
    default:
      return {};
  }
}

}  // namespace kestri
