// The rows of the menus that change or insert text: captions as the menus show them, and what each one puts
// into the text. A tab in a caption divides it from its remark.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "document/str_conv.hpp"

namespace kestri {

struct HighEditRow {
  int index;
  std::u16string_view caption;
};
std::span<const HighEditRow> HighEditRows();

// The pair in half-width form wherever such a form exists.
struct BracketRow {
  std::u16string_view caption;
  std::u16string_view open;
  std::u16string_view close;
};
std::span<const BracketRow> BracketRows();                // KakkoMenu
std::span<const std::u16string_view> BracketWidthRows();  // KakkoFSet

struct LineCodeRow {
  std::u16string_view caption;
  std::u16string_view lineEnd;  // as in the status bar's panel
};
std::span<const LineCodeRow> LineCodeRows();

struct InsertRow {
  std::u16string_view caption;
  std::u16string_view text;
};
std::span<const InsertRow> SpecialCharacterRows();  // ToM

std::span<const std::u16string_view> ColorRows();
std::span<const std::u16string_view> FontRows();  // nFont
std::span<const std::u16string_view> DayRows();

// The word before a caption's tab.
std::u16string_view CaptionWord(std::u16string_view caption);

inline constexpr std::u16string_view kColorPickerCaption = u"HTMLｶﾗｰｺｰﾄﾞ...";
inline constexpr std::u16string_view kColorPickerTitle = u"HTMLｶﾗｰｺｰﾄﾞ取得";
inline constexpr std::u16string_view kFontDialogCaption = u"その他のﾌｫﾝﾄ(&F)...";
inline constexpr std::u16string_view kFontDialogTitle = u"ﾌｫﾝﾄ参照 (ｻｲｽﾞ.ｽﾀｲﾙは選択はできません)";

}  // namespace kestri
