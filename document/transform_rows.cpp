#include "document/transform_rows.hpp"

#include <array>

namespace kestri {

std::span<const HighEditRow> HighEditRows() {
  static constexpr std::array<HighEditRow, 9> kRows = {{{0, u"ｲﾝﾃﾞﾝﾄ ﾚﾍﾞﾙ +1\tTab"},
                                                        {1, u"ｲﾝﾃﾞﾝﾄ ﾚﾍﾞﾙ -1\tCtrl+Bksp"},
                                                        {2, u"ﾌﾘｰｲﾝﾃﾞﾝﾄ..."},
                                                        {4, u"大文字に変換"},
                                                        {5, u"小文字に変換"},
                                                        {6, u"全角に変換"},
                                                        {7, u"半角に変換"},
                                                        {8, u"ひらがなをカタカナに変換"},
                                                        {9, u"カタカナをひらがなに変換"}}};
  return kRows;
}

std::span<const BracketRow> BracketRows() {
  static constexpr std::array<BracketRow, 12> kRows = {{{u"「  」 で囲む", u"｢", u"｣"},
                                                        {u"(  )", u"(", u")"},
                                                        {u"『  』 - 全角のみ", u"『", u"』"},
                                                        {u"【  】 - 全角のみ", u"【", u"】"},
                                                        {u"{  }", u"{", u"}"},
                                                        {u"[  ]", u"[", u"]"},
                                                        {u"〔  〕 - 全角のみ", u"〔", u"〕"},
                                                        {u"<  >", u"<", u">"},
                                                        {u"\"  \"", u"\"", u"\""},
                                                        {u"'  '", u"'", u"'"},
                                                        {u"/*  */", u"/*", u"*/"},
                                                        {u"<!--  -->", u"<!--", u"-->"}}};
  return kRows;
}

std::span<const std::u16string_view> BracketWidthRows() {
  static constexpr std::array<std::u16string_view, 2> kRows = {u"半角", u"全角"};
  return kRows;
}

std::span<const LineCodeRow> LineCodeRows() {
  static constexpr std::array<LineCodeRow, 3> kRows = {
      {{u"CR + LF", u"CR+LF"}, {u"CR", u"CR"}, {u"LF", u"LF"}}};
  return kRows;
}

std::span<const InsertRow> SpecialCharacterRows() {
  static constexpr std::array<InsertRow, 12> kRows = {{{u"<\t(開き角ｶｯｺ)", u"&lt;"},
                                                       {u">\t(閉じ角ｶｯｺ)", u"&gt;"},
                                                       {u"\"\t(二重引用符)", u"&quot;"},
                                                       {u"&&\t(ｱﾝﾊﾟｻﾝﾄ)", u"&amp;"},
                                                       {u"_\t(半角ｽﾍﾟｰｽ)", u"&nbsp;"},
                                                       {u"TM\t(ﾄﾚｰﾄﾞﾏｰｸ)", u"&trade;"},
                                                       {u"(C)\t(著作権)", u"&copy;"},
                                                       {u"(R)\t(登録商標)", u"&reg;"},
                                                       {u"ｽﾍﾟｰﾄﾞ", u"&spades;"},
                                                       {u"ｸﾗﾌﾞ", u"&clubs;"},
                                                       {u"ﾊｰﾄ", u"&hearts;"},
                                                       {u"ﾀﾞｲｱ", u"&diams;"}}};
  return kRows;
}

std::span<const std::u16string_view> ColorRows() {
  static constexpr std::array<std::u16string_view, 16> kRows = {
      u"Black\t(黒)", u"White\t(白)",  u"Gray\t(灰)",   u"Silver\t(銀)", u"Red\t(赤)", u"Green\t(緑)",
      u"Blue\t(青)",  u"Yellow\t(黄)", u"Purple\t(紫)", u"Olive",        u"Navy",      u"Aqua",
      u"Lime",        u"Maroon",       u"Teal",         u"Fuchsia"};
  return kRows;
}

std::span<const std::u16string_view> FontRows() {
  static constexpr std::array<std::u16string_view, 10> kRows = {
      u"System",      u"FixedSys", u"ＭＳ ゴシック",   u"ＭＳ Ｐゴシック", u"ＭＳ 明朝",
      u"ＭＳ Ｐ明朝", u"HGｺﾞｼｯｸE", u"HG創英角ｺﾞｼｯｸUB", u"HG創英角ﾎﾟｯﾌﾟ体", u"HG正楷書体-PRO"};
  return kRows;
}

std::span<const std::u16string_view> DayRows() {
  static constexpr std::array<std::u16string_view, 9> kRows = {
      u" hh時mm分",   u" hh時mm分ss秒", u" hh：mm", u" hh：mm：ss", u" yyyy年mm月dd日",
      u" yyyy/mm/dd", u" Now",          u" Time",   u" Date"};
  return kRows;
}

std::u16string_view CaptionWord(std::u16string_view caption) {
  return caption.substr(0, caption.find(u'\t'));
}

}  // namespace kestri
