#include "platform/qt/japanese_words.hpp"

#include <string_view>

namespace kestri {
namespace {

struct Word {
  std::string_view context;  // empty: wherever the source stands
  std::string_view source;
  const char16_t* words;
};

constexpr Word kWords[] = {
    {"QFileDialog", "Look in:", u"フォルダの場所(&L):"},
    {"QFileDialog", "Directories", u"フォルダ"},
    {"QFileDialog", "Directory:", u"フォルダ(&D):"},
    {"QFileDialog", "Files of type:", u"ファイルの種類(&T):"},
    {"QFileDialog", "Parent Directory", u"一つ上のフォルダへ"},
    {"QFileDialog", "Create New Folder", u"新しいフォルダの作成"},
    {"QFileDialog", "Show ", u"列の表示："},
    {"QFileSystemModel", "Type", u"種類"},
    {"QFileSystemModel",
     "<b>The name \"%1\" cannot be used.</b><p>Try using another name, with fewer characters or no "
     "punctuation marks.",
     u"<b>\"%1\" という名前は使えません。</b><p>短い名前や、記号を含まない名前にしてください。"},
    {"QColorDialog", "Cursor at %1, %2, color: %3\nPress ESC to cancel",
     u"ポインタの位置 %1, %2  色 %3\nEsc キーで中止"},
    {"QPrintSettingsOutput", "Double Sided Printing", u"両面印刷"},
    {"QPrintSettingsOutput", "Off", u"しない"},
    {"QPrintSettingsOutput", "Long side binding", u"長辺とじ"},
    {"QPrintSettingsOutput", "Short side binding", u"短辺とじ"},
    {"QPrintSettingsOutput", "Pages", u"ページ指定"},
    {"QPrintSettingsOutput",
     "Specify pages or ranges separated by commas. Ranges are specified by two numbers separated by a "
     "hyphen. "
     "E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
     u"ページ番号か範囲をコンマで区切って指定します。範囲は二つの番号をハイフンでつなぎます。\n"
     u"例: 3,5-7,9 は 3、5、6、7、9 ページを印刷します。"},
    {"", "Invalid Pages Definition", u"ページの指定が正しくありません"},
    {"",
     "%1 does not follow the correct syntax. Please use ',' to separate ranges and pages, '-' to define "
     "ranges "
     "and make sure ranges do not intersect with each other.",
     u"%1 は正しい書き方ではありません。ページや範囲は ',' で区切り、範囲は '-' "
     u"で表し、重ならないようにしてください。"},
    {"", "Duplex Settings Conflicts", u"両面印刷の設定の矛盾"},
    {"", "There are conflicts in duplex settings. Do you want to fix them?",
     u"両面印刷の設定に矛盾があります。直しますか?"},
    {"", "Page Setup Conflicts", u"書式設定の矛盾"},
    {"", "There are conflicts in page setup options. Do you want to fix them?",
     u"書式設定に矛盾があります。直しますか?"},
    {"", "Advanced Option Conflicts", u"詳細設定の矛盾"},
    {"", "There are conflicts in some advanced options. Do you want to fix them?",
     u"詳細設定に矛盾があります。直しますか?"},
    {"", "There are conflicts in some options. Please fix them.", u"設定に矛盾があります。直してください。"},
    {"QPrintPropertiesDialog", "Advanced", u"詳細"},
    {"QPrintPropertiesWidget", "Advanced", u"詳細"},
};

}  // namespace

QString JapaneseWords::translate(const char* context, const char* source, const char*, int) const {
  const std::string_view place = context == nullptr ? "" : context;
  const std::string_view text = source == nullptr ? "" : source;
  for (const Word& word : kWords) {
    if (word.source == text && (word.context.empty() || word.context == place))
      return QString::fromUtf16(word.words);
  }
  return {};
}

}  // namespace kestri
