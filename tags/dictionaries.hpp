// The tag dictionaries: small profile files under DataFiles that the user edits. One section is one column of
// a table, keys "001", "002"... number its rows; the first empty key column ends the table.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/common/class_common.hpp"

namespace kestri {

inline constexpr int kMaxTableRows = 999;    // keys "001" to "999"
inline constexpr int kMaxFieldLength = 256;  // characters

inline constexpr std::u16string_view kTableLimitText = u"999件まで登録できます";
inline constexpr std::u16string_view kFieldLimitText = u"各項目 256字まで登録できます";

struct TagRow {
  std::u16string name;     // as the user wants it written
  std::u16string explain;  // one line
  std::u16string defTag;   // with or without its "<" and ">"; empty: none

  bool operator==(const TagRow&) const = default;
};

enum class AttributeKind { Attribute, EventHandler, Keyword };

struct OptionRow {
  std::u16string name;  // without the keyword's "!!"
  std::u16string explain;
  AttributeKind kind = AttributeKind::Attribute;

  bool operator==(const OptionRow&) const = default;
};

struct UserWordRow {
  std::u16string key;
  std::u16string hints;

  bool operator==(const UserWordRow&) const = default;
};

// "属性", "onｲﾍﾞﾝﾄﾊﾝﾄﾞﾗ" or "ｷｰﾜｰﾄﾞ".
std::u16string_view KindInWords(AttributeKind kind);

// True for the two spellings of the comment's row: "<!-- -->" and "!-- --".
bool IsCommentName(std::u16string_view name);

// Every read goes to the file and passes over it once; a missing file is an empty table. Values are cut at
// 1023 bytes of the code page and at the first NUL. Every write replaces its whole table as one change of the
// file.
class Dictionaries {
 public:
  explicit Dictionaries(const ClassCommon& common) : common_(common) {}

  bool HasTags() const;  // SelectTAG.lib exists
  std::vector<TagRow> Tags() const;
  std::vector<OptionRow> Options() const;
  std::vector<std::u16string> Params() const;
  std::vector<std::u16string> Favourites() const;
  std::vector<UserWordRow> UserWords(std::u16string_view path) const;  // complete path

  // The row of a tag among the first 999, names in text compare.
  std::optional<TagRow> FindTag(std::u16string_view name) const;

  // Rows are numbered anew from 1. False, with the file as it was, for more than 999 rows or when the file
  // could not be written.
  bool WriteTags(std::span<const TagRow> rows) const;
  bool WriteOptions(std::span<const OptionRow> rows) const;
  bool WriteParams(std::span<const std::u16string> rows) const;
  // Each row under the key of its index from 0; an empty one is left out and so ends the table for all
  // readers.
  bool WriteFavourites(std::span<const std::u16string> rows) const;

  // What the favourites' window begins with: the table, seeded with "width" and "height" when it has no first
  // row.
  std::vector<std::u16string> SeededFavourites() const;

  // Path of a file in DataFiles.
  std::u16string PathOf(std::u16string_view fileName) const;

 private:
  std::optional<ProfileContent> Load(std::u16string_view path) const;

  const ClassCommon& common_;
};

// Why a text cannot become a favourite: "256以上は登録できません",
// "改行が含まれている文字列は登録できません", or nothing when it can.
std::optional<std::u16string_view> FavouriteRefusal(std::u16string_view text);

}  // namespace kestri
