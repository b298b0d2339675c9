#include "tags/dictionaries.hpp"

#include <array>

#include "tags/dictionary_columns.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kTagFile = u"SelectTAG.lib";
constexpr std::u16string_view kOptionFile = u"Option.lib";
constexpr std::u16string_view kParamFile = u"Param.lib";
constexpr std::u16string_view kFavouriteFile = u"FabStr.lib";

const ColumnShape kName{.section = "NAME"};
const ColumnShape kExplain{.section = "EXPLAIN"};
const ColumnShape kDefTag{.section = "DEFTAG"};
const ColumnShape kPro{.section = "PRO"};
const ColumnShape kParam{.section = "PARAM"};
const ColumnShape kFabStr{.section = "FabStr", .keyPrefix = "FabStr", .first = 0};
const ColumnShape kKey{.section = "KEY"};
const ColumnShape kHints{.section = "HINTS"};

constexpr std::u16string_view kKeywordMark = u"!!";

std::vector<TagRow> ReadTags(const ProfileContent& content) {
  const DictionaryColumn names(content, kName);
  const DictionaryColumn explains(content, kExplain, names.Rows());
  const DictionaryColumn defTags(content, kDefTag, names.Rows());
  std::vector<TagRow> rows(names.Rows());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i] = {names.Value(i), explains.Value(i), defTags.Value(i)};
  }
  return rows;
}

OptionRow ReadOption(std::u16string stored, std::u16string explain) {
  if (StartsWith(stored, kKeywordMark)) {
    return {stored.substr(kKeywordMark.size()), std::move(explain), AttributeKind::Keyword};
  }
  const bool handler = Left(stored, 2) == u"on";
  return {std::move(stored), std::move(explain),
          handler ? AttributeKind::EventHandler : AttributeKind::Attribute};
}

std::u16string StoredOption(const OptionRow& row) {
  return row.kind == AttributeKind::Keyword ? std::u16string(kKeywordMark) + row.name : row.name;
}

std::vector<std::u16string> ReadWords(const ProfileContent& content, const ColumnShape& shape) {
  const DictionaryColumn words(content, shape);
  std::vector<std::u16string> rows(words.Rows());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = words.Value(i);
  return rows;
}

bool WriteTable(const ClassCommon& common, const std::u16string& path,
                std::span<const ColumnWriter> columns) {
  return common.Profiles().Update(path, [&](ProfileContent& content) {
    for (const ColumnWriter& column : columns) column.WriteTo(content);
  });
}

template <typename Rows>
bool TooMany(const Rows& rows) {
  return rows.size() > static_cast<std::size_t>(kMaxTableRows);
}

}  // namespace

std::u16string_view KindInWords(AttributeKind kind) {
  switch (kind) {
    case AttributeKind::EventHandler:
      return u"onｲﾍﾞﾝﾄﾊﾝﾄﾞﾗ";
    case AttributeKind::Keyword:
      return u"ｷｰﾜｰﾄﾞ";
    case AttributeKind::Attribute:
      break;
  }
  return u"属性";
}

bool IsCommentName(std::u16string_view name) {
  return name == u"<!-- -->" || name == u"!-- --";
}

std::u16string Dictionaries::PathOf(std::u16string_view fileName) const {
  return common_.Join(common_.Join(common_.ProgramFolder(), u"DataFiles"), fileName);
}

std::optional<ProfileContent> Dictionaries::Load(std::u16string_view path) const {
  if (!common_.PathExists(path)) return std::nullopt;
  return common_.Profiles().Load(path);
}

bool Dictionaries::HasTags() const {
  return common_.PathExists(PathOf(kTagFile));
}

std::vector<TagRow> Dictionaries::Tags() const {
  const auto content = Load(PathOf(kTagFile));
  return content ? ReadTags(*content) : std::vector<TagRow>();
}

std::vector<OptionRow> Dictionaries::Options() const {
  const auto content = Load(PathOf(kOptionFile));
  if (!content) return {};
  const DictionaryColumn names(*content, kPro);
  const DictionaryColumn explains(*content, kExplain, names.Rows());
  std::vector<OptionRow> rows(names.Rows());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = ReadOption(names.Value(i), explains.Value(i));
  return rows;
}

std::vector<std::u16string> Dictionaries::Params() const {
  const auto content = Load(PathOf(kParamFile));
  return content ? ReadWords(*content, kParam) : std::vector<std::u16string>();
}

std::vector<std::u16string> Dictionaries::Favourites() const {
  const auto content = Load(PathOf(kFavouriteFile));
  return content ? ReadWords(*content, kFabStr) : std::vector<std::u16string>();
}

std::vector<std::u16string> Dictionaries::SeededFavourites() const {
  std::vector<std::u16string> rows = Favourites();
  if (!rows.empty()) return rows;
  rows = {u"width", u"height"};
  WriteFavourites(rows);
  return rows;
}

std::vector<UserWordRow> Dictionaries::UserWords(std::u16string_view path) const {
  const auto content = Load(path);
  if (!content) return {};
  const DictionaryColumn keys(*content, kKey);
  const DictionaryColumn hints(*content, kHints, keys.Rows());
  std::vector<UserWordRow> rows(keys.Rows());
  for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = {keys.Value(i), hints.Value(i)};
  return rows;
}

std::optional<TagRow> Dictionaries::FindTag(std::u16string_view name) const {
  std::vector<TagRow> rows = Tags();
  if (TooMany(rows)) rows.resize(kMaxTableRows);
  for (TagRow& row : rows) {
    if (StrComp(name, row.name, Compare::Text) == 0) return std::move(row);
  }
  return std::nullopt;
}

bool Dictionaries::WriteTags(std::span<const TagRow> rows) const {
  if (TooMany(rows)) return false;
  ColumnWriter names(kName);
  ColumnWriter explains(kExplain);
  ColumnWriter defTags(kDefTag);
  int number = 0;
  for (const TagRow& row : rows) {
    names.Add(++number, row.name);
    explains.Add(number, row.explain);
    defTags.Add(number, row.defTag);
  }
  return WriteTable(common_, PathOf(kTagFile), std::array{names, explains, defTags});
}

bool Dictionaries::WriteOptions(std::span<const OptionRow> rows) const {
  if (TooMany(rows)) return false;
  ColumnWriter names(kPro);
  ColumnWriter explains(kExplain);
  int number = 0;
  for (const OptionRow& row : rows) {
    names.Add(++number, StoredOption(row));
    explains.Add(number, row.explain);
  }
  return WriteTable(common_, PathOf(kOptionFile), std::array{names, explains});
}

bool Dictionaries::WriteParams(std::span<const std::u16string> rows) const {
  if (TooMany(rows)) return false;
  ColumnWriter words(kParam);
  int number = 0;
  for (const std::u16string& row : rows) words.Add(++number, row);
  return WriteTable(common_, PathOf(kParamFile), std::array{words});
}

bool Dictionaries::WriteFavourites(std::span<const std::u16string> rows) const {
  ColumnWriter words(kFabStr);
  int index = 0;
  for (const std::u16string& row : rows) {
    if (!row.empty()) words.Add(index, row);
    ++index;
  }
  return WriteTable(common_, PathOf(kFavouriteFile), std::array{words});
}

std::optional<std::u16string_view> FavouriteRefusal(std::u16string_view text) {
  if (Len(text) > kMaxFieldLength) return u"256以上は登録できません";
  if (text.find_first_of(kCrLf) != std::u16string_view::npos)
    return u"改行が含まれている文字列は登録できません";
  return std::nullopt;
}

}  // namespace kestri
