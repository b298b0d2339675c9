// Commands of the HTMLEdit menu and their neighbours: completion of the word at the caret, hint, default tag,
// the user's own words.
#pragma once

#include <functional>

#include "tags/completion.hpp"

namespace kestri {

class HtmlEditCommands {
 public:
  struct Surroundings {
    MainText& text;
    const ApplicationState& state;
    const ClassCommon& common;
    MainTextHost& host;
    InToTAG& popup;
    CaretPlace& place;
    TagHints& hints;
    std::function<void()> tagAnalyse;  // may be empty
  };

  explicit HtmlEditCommands(Surroundings surroundings) : around_(std::move(surroundings)) {}

  void HTMLEdit_Click(int index);  // 0 analysis, 1 tags, 2 attributes, 3 values
  void HTMLEditHINTS();
  void CEdit_Click(int index);  // 0 default tag
  void mnuCallUserInTo_Click();

 private:
  void Complete(std::int32_t mode);

  Surroundings around_;
};

}  // namespace kestri
