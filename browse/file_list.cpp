#include "browse/file_list.hpp"

#include "document/document_template.hpp"
#include "document/file_history.hpp"
#include "document/settings_values.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kFreePlace = u"Empty!!";
constexpr std::size_t kMnemonicLength = 4;        // "(&L)" behind an option's caption
constexpr std::size_t kPathColumn = 3;            // of FileView
constexpr double kKilo = 1000;                    // not 1024
constexpr std::uint32_t kIconAndSmallIcon = 257;  // flags of SHGetFileInfoA

struct DocumentType {
  std::u16string_view name;
  std::u16string_view extension;
  std::u16string_view comment;
};

constexpr std::array<DocumentType, 15> kTypes = {{
    {u"白紙", u"(なし)", u"ｻｲｽﾞ 0 の 空ﾌｧｲﾙ"},
    {u"ﾃｷｽﾄ型", u"txt", u"ﾃｷｽﾄﾌｧｲﾙ"},
    {u"HTML型", u"htm", u"基本設定"},
    {u"HTML型", u"htm", u"詳細設定済み"},
    {u"CSS型", u"css", u"ｶｽｹｰﾄﾞ ｽﾀｲﾙ ｼｰﾄ"},
    {u"Cｿｰｽ型", u"c", u"C言語ｿｰｽﾌｧｲﾙ"},
    {u"Cﾍｯﾀﾞｰ型", u"h", u"C言語ﾍｯﾀﾞｰﾌｧｲﾙ"},
    {u"ﾊﾞｯﾁ型", u"bat", u"DOSﾊﾞｯﾁﾌｧｲﾙ"},
    {u"INI型", u"ini", u"設定ﾌｧｲﾙ"},
    {u"JAVA型", u"java", u"JAVAｿｰｽﾌｧｲﾙ"},
    {u"クリップファイル型", u"clped", u"クリップファイル"},
    {u"ﾕｰｻﾞｰ定義型", u"(指定)", u"ﾕｰｻﾞｰが拡張子を定義します"},
    {u"VBScript型", u"vbs", u"VBScript ﾌｧｲﾙ"},
    {u"ReadMe型", u"txt", u"ReadMeﾌｧｲﾙ"},
    {u"AsciiArt下書き型", u"aat", u"AsciiArt下書きﾌｧｲﾙ"},
}};

bool NamesAnExtension(std::u16string_view cell) {
  return !StartsWith(cell, u"(");
}

std::u16string SizeCell(std::uint64_t bytes) {
  return FormatThousands(static_cast<double>(bytes) / kKilo, 2) + u"KB";
}

std::u16string ExtensionOf(const ClassCommon& common, const std::u16string& path) {
  const std::u16string name = common.CFile(path, 0);
  return name.find(u'.') == std::u16string::npos ? std::u16string() : common.CFile(path, 2);
}

}  // namespace

std::u16string_view FileList::OptionCaption(FileListView view) {
  return view == FileListView::Recent ? u"最近使用したﾌｧｲﾙ(&L)" : u"新規作成(&N)";
}

std::u16string FileList::Caption(FileListView view) {
  const std::u16string_view option = OptionCaption(view);
  return std::u16string(option.substr(0, option.size() - kMnemonicLength));
}

std::array<std::u16string_view, FileList::kColumns> FileList::Columns(FileListView view) {
  if (view == FileListView::Recent) return {u"FileName", u"FileType", u"FileSize", u"FilePath"};
  return {u"新規作成", u"拡張子", u"ｺﾒﾝﾄ", u"ﾃﾝﾌﾟﾚｰﾄ"};
}

void FileList::Load(FileListStart start) {
  rows_ = {};
  filled_ = {};
  const bool shownAtStart = NumberSetting(common_, u"Setting", u"WinF", 0) != 0;
  check1_ = shownAtStart ? StartBox::On : StartBox::Off;
  if (start.startBoxGrey) check1_ = StartBox::Grey;
  check2_ = NumberSetting(common_, u"Setting", u"ViweS", 0) == 1;
  Choose(start.view);
}

void FileList::Unload() const {
  const std::u16string& file = common_.ExeName();
  if (check1_ != StartBox::Grey)
    common_.SetINI(file, u"Setting", u"WinF", ToText(static_cast<std::int16_t>(check1_)));
  common_.SetINI(file, u"Setting", u"ViweS", check2_ ? u"1" : u"0");
}

void FileList::Choose(FileListView view) {
  view_ = view;
  if (filled_[Index(view)]) return;
  filled_[Index(view)] = true;
  rows_[Index(view)] = view == FileListView::Recent ? RecentRows() : NewRows();
}

std::vector<FileList::Row> FileList::RecentRows() const {
  std::vector<Row> rows;
  for (const std::u16string& path : FileHistory(common_).Entries(kFreePlace)) {
    if (path != kFreePlace) rows.push_back(RecentRow(path));
  }
  return rows;
}

FileList::Row FileList::RecentRow(const std::u16string& path) const {
  Row row{.cells = {common_.CFile(path, 0), u"???", u"???KB", path},
          .iconName = {},
          .extension = ExtensionOf(common_, path)};
  const auto status = common_.PortSet().files.Status(path);
  if (!status) return row;
  row.cells[1] = common_.GetFileType(path);
  row.cells[2] = SizeCell(status->size);
  row.iconName = common_.GetFileIcon(path, kIconAndSmallIcon);
  return row;
}

std::vector<FileList::Row> FileList::NewRows() const {
  std::vector<Row> rows;
  for (const DocumentType& type : kTypes) {
    const bool hasTemplate = TemplateExists(common_, static_cast<int>(rows.size()));
    Row row;
    row.cells = {std::u16string(type.name), std::u16string(type.extension), std::u16string(type.comment),
                 hasTemplate ? u"◯" : u"×"};
    if (NamesAnExtension(type.extension)) row.extension = type.extension;
    rows.push_back(std::move(row));
  }
  return rows;
}

FileList::Outcome FileList::OK(std::optional<std::size_t> row) {
  if (!row || *row >= Rows(view_).size()) {
    common_.PortSet().window.Beep();
    return Outcome::Stays;
  }
  const bool done = view_ == FileListView::Recent ? window_.OpenFromList(Rows(view_)[*row].cells[kPathColumn])
                                                  : window_.NewFromList(static_cast<std::int16_t>(*row));
  return done ? Outcome::Closes : Outcome::Stays;
}

}  // namespace kestri
