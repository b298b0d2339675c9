// Layouts of the lines that show, by line number. Follows replacements in the text without laying out
// anything.
#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "document/edit_control/edit_control.hpp"
#include "ui/line_layout.hpp"
#include "ui/text_style.hpp"

namespace kestri {

class LineLayoutCache {
 public:
  explicit LineLayoutCache(const EditControl& control) : control_(control) {}

  const TextStyle& Style() const { return style_; }
  void SetStyle(const TextStyle& style);
  LineLayout& Line(std::int32_t line);    // 0 <= line < LineCount
  bool IsPlain(std::int32_t line) const;  // and laid out
  void TextReplaced(const TextChange& change);
  void SetInset(Position at, Inset inset);
  void ClearInset();
  // Forgets lines far from the rows that show, when there are many.
  void Trim(std::int32_t firstVisible, std::int32_t lastVisible);
  void Clear() { lines_.clear(); }
  std::size_t Size() const { return lines_.size(); }

 private:
  const EditControl& control_;
  TextStyle style_;
  std::map<std::int32_t, std::unique_ptr<LineLayout>> lines_;
  std::int32_t insetLine_ = -1;
};

}  // namespace kestri
