// Reader of the recorded tables in tests/data/*.tsv: UTF-8, tab separated, one header line. A field may hold
// the escapes \r \n \t \\, \uXXXX (one UTF-16 unit) and \xHH (one byte of code page 932).
#pragma once

#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "shell/common/text.hpp"

namespace kestri::fakes {

using OracleRow = std::vector<std::string>;

inline OracleRow SplitFields(const std::string& line) {
  OracleRow fields;
  std::size_t begin = 0;
  for (std::size_t tab = line.find('\t'); tab != std::string::npos; tab = line.find('\t', begin)) {
    fields.push_back(line.substr(begin, tab - begin));
    begin = tab + 1;
  }
  fields.push_back(line.substr(begin));
  return fields;
}

// Every row but the header line and the line "#encode: ..." that heads another set of columns.
// Fields are raw: pass them to OracleText, OracleBytes, HexUnits or HexBytes. A missing or empty file throws,
// so that no test passes for want of rows.
inline std::vector<OracleRow> ReadOracleRows(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::vector<OracleRow> rows;
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    if (!line.empty() && !line.starts_with("#encode")) rows.push_back(SplitFields(line));
  }
  if (rows.empty()) throw std::runtime_error("no recorded rows in " + path);
  return rows;
}

// A text field. \xHH stands for a single byte and is kept as the unit U+00HH.
inline std::u16string OracleText(std::string_view field) {
  std::u16string result;
  std::size_t plainFrom = 0;
  for (std::size_t at = field.find('\\'); at != std::string_view::npos; at = field.find('\\', plainFrom)) {
    result += FromUtf8(field.substr(plainFrom, at - plainFrom));
    const char kind = field.at(at + 1);
    const std::size_t digits = kind == 'u' ? 4 : kind == 'x' ? 2 : 0;
    if (digits > 0) {
      const std::string hex(field.substr(at + 2, digits));
      result += static_cast<char16_t>(std::strtoul(hex.c_str(), nullptr, 16));
    } else {
      result += kind == 'r' ? u'\r' : kind == 'n' ? u'\n' : kind == 't' ? u'\t' : static_cast<char16_t>(kind);
    }
    plainFrom = at + 2 + digits;
  }
  return result + FromUtf8(field.substr(plainFrom));
}

// A field of bytes: printable ASCII as it is, the rest escaped.
inline std::string OracleBytes(std::string_view field) {
  std::string result;
  for (const char16_t unit : OracleText(field)) result += static_cast<char>(unit);
  return result;
}

// "3042 30FB" and "82 A0" columns; an empty column is an empty text.
inline std::u16string HexUnits(const std::string& field) {
  std::istringstream stream(field);
  std::u16string result;
  for (unsigned value = 0; stream >> std::hex >> value;) result += static_cast<char16_t>(value);
  return result;
}

inline std::string HexBytes(const std::string& field) {
  std::string result;
  for (const char16_t unit : HexUnits(field)) result += static_cast<char>(unit);
  return result;
}

}  // namespace kestri::fakes
