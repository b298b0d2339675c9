// Texts by number out of a file: UTF-8, one "number<TAB>text" a line.
#pragma once

#include <QString>
#include <string>
#include <unordered_map>

namespace kestri {

class StringTable {
 public:
  // Lines without a number and a tab are passed over; of several lines with one number the first counts. A
  // file that cannot be read gives an empty table.
  explicit StringTable(const QString& file);

  const std::u16string& Text(int id) const;  // empty for an unknown number

 private:
  void TakeLine(QStringView line);

  std::unordered_map<int, std::u16string> texts_;
  const std::u16string none_;
};

}  // namespace kestri
