// Patterns of file lists: "*.htm;*.html".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestri {

// "*" stands for any characters, "?" for one; letter case does not count. "*.*" takes every name, one without
// a dot too; blanks around a pattern do not count. An empty text takes nothing.
class FilePattern {
 public:
  FilePattern() = default;
  explicit FilePattern(std::u16string_view text);

  bool Takes(std::u16string_view name) const;

 private:
  std::vector<std::u16string> patterns_;  // in small letters
};

}  // namespace kestri
