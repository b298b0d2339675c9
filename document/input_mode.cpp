#include "document/input_mode.hpp"

#include "document/str_conv.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr bool IsWideLetter(char16_t unit) {
  return unit == kIdeographicSpace || (unit >= 0xFF01 && unit <= 0xFF5E);
}

std::u16string WithNarrowLetters(std::u16string_view text) {
  std::u16string result;
  result.reserve(text.size());
  for (const char16_t unit : text) {
    if (IsWideLetter(unit)) {
      result += StrConv({&unit, 1}, Conversion::Narrow);
    } else {
      result += unit;
    }
  }
  return result;
}

std::u16string Lines(std::u16string_view first, std::initializer_list<std::u16string_view> others) {
  std::u16string text(first);
  for (const std::u16string_view line : others) text.append(kCrLf).append(line);
  return text;
}

}  // namespace

InputMode InputModeAt(int index) {
  const bool known = index >= 0 && index < static_cast<int>(kInputModeCaptions.size());
  return known ? static_cast<InputMode>(index) : InputMode::Default;
}

std::u16string CommittedAs(InputMode mode, std::u16string_view committed) {
  switch (mode) {
    case InputMode::Katakana:
      return StrConv(committed, Conversion::Katakana);
    case InputMode::HalfKatakana:
      return StrConv(StrConv(committed, Conversion::Katakana), Conversion::Narrow);
    case InputMode::FullAlphanumeric:
      return StrConv(committed, Conversion::Wide);
    case InputMode::HalfAlphanumeric:
      return WithNarrowLetters(committed);
    case InputMode::Default:
    case InputMode::Off:
    case InputMode::OffFixed:
    case InputMode::Hiragana:
      break;
  }
  return std::u16string(committed);
}

void InputMethodMenu::MenIMERe() {
  if (tools_.Reconvert()) return;
  Tell(
      Lines(u"再変換が不可能です ", {u"・選択範囲が長すぎます ", u"・選択範囲に変換不可能字が含まれています ",
                                     u"・変換には \"MS IME\" が必要です "}));
}

void InputMethodMenu::MenIMEsub(int index) {
  if (index == 0 && !tools_.ShowProperties()) {
    Tell(Lines(u"IMEのﾌﾟﾛﾊﾟﾃｨを開けません", {u"日本語入力の設定ﾌﾟﾛｸﾞﾗﾑが見つかりません"}));
  } else if (index == 1 && !tools_.RegisterWord()) {
    Tell(Lines(u"IME単語の登録を開けません", {u"日本語入力の単語登録ﾌﾟﾛｸﾞﾗﾑが見つかりません"}));
  } else if (index == 2 && !tools_.ShowPad()) {
    Tell(Lines(u"IMEﾊﾟｯﾄﾞを開けません", {u"手書き文字入力または文字一覧のﾌﾟﾛｸﾞﾗﾑが見つかりません"}));
  }
}

void InputMethodMenu::Tell(std::u16string text) {
  boxes_.Ask({.text = std::move(text),
              .caption = std::u16string(kApplicationTitle),
              .icon = MessageIcon::Exclamation});
}

}  // namespace kestri
