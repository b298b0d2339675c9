// One section of a profile file as a column of numbered rows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "shell/common/profile_file.hpp"

namespace kestri {

// Where a column's rows stand: keys are the prefix and a number of at least three digits that begins at
// first.
struct ColumnShape {
  std::string_view section;
  std::string_view keyPrefix = {};
  int first = 1;
};

class DictionaryColumn {
 public:
  // A table's key column: it ends in front of its first empty row.
  DictionaryColumn(const ProfileContent& content, const ColumnShape& shape);
  // Another column of a table with that many rows.
  DictionaryColumn(const ProfileContent& content, const ColumnShape& shape, std::size_t rows);

  std::size_t Rows() const { return values_.size(); }
  // Row 0 is the one that shape.first numbers; an absent row is empty.
  std::u16string Value(std::size_t row) const;

 private:
  void Fill(const std::vector<ProfileContent::Entry>& entries, const ColumnShape& shape);

  std::vector<std::string> values_;
};

// A column's new rows.
class ColumnWriter {
 public:
  explicit ColumnWriter(const ColumnShape& shape) : shape_(shape) {}

  void Add(int number, std::u16string_view value);  // a line break in a value becomes a blank
  // Replaces what the section held; everything else in the file stays as it is.
  void WriteTo(ProfileContent& content) const;

 private:
  struct Line {
    std::string key;
    std::string value;
  };

  void AppendTo(ProfileContent& content) const;

  ColumnShape shape_;
  std::vector<Line> lines_;
};

}  // namespace kestri
