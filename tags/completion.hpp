// InToTAG: the logic of the candidate popup, from the key that opens it to the text it types.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "document/main_text.hpp"
#include "tags/candidate_list.hpp"
#include "tags/candidate_view.hpp"
#include "tags/show_at_caret.hpp"
#include "tags/tag_hints_port.hpp"

namespace kestri {

enum class PresetResult { Ready, NoUserWords };
enum class PopupFocus : std::int16_t { Stay = 0, ToText = -1 };
enum class ListKey { Up, Down, PageUp, PageDown, Home, End, Left, Right };

class InToTAG {
 public:
  struct Surroundings {
    MainText& text;
    const ApplicationState& state;
    const ClassCommon& common;
    MainTextHost& host;
    CandidateView& view;
    CaretPlace& place;
    TagHints& hints;
    std::function<void()> tagAnalyse;        // opens the tag analysis; may be empty
    ScreenFonts screenFonts;                 // may be empty
    std::function<void()> paintStatus = {};  // paints the status panes at once; may be empty
  };

  explicit InToTAG(Surroundings surroundings);
  InToTAG(const InToTAG&) = delete;
  InToTAG& operator=(const InToTAG&) = delete;

  // Switches the list to a mode; the first call loads the list. Without a user word, mode 5 says so in the
  // hint box and closes.
  PresetResult Preset(std::int32_t mode);
  void Unload();
  bool Loaded() const { return loaded_; }

  // The word left of the caret becomes the typed prefix. False when there is none. xOffset: the word's width,
  // twips.
  bool PrefixFromCaret(int& xOffset);
  // HintAnimation is read, and the popup opens at the caret, moved left by 310 twips and the offset.
  void ShowPopup(int xOffset = 0);
  void HidePopup(PopupFocus focus);
  void Deactivate();  // the window lost its activation: gone without animation

  // Events of the popup while it is visible. An error in them is answered by a beep; what was typed stays.
  void KeyPress(char16_t keyAscii);
  // Text that comes in one piece, from a key or an input method. What the list can be narrowed by counts as
  // typed; the first other character closes the popup, and the text from there on stays in the document.
  void CommitText(std::u16string_view text);
  void KeyDown(ListKey key);
  void ItemClick(int row);
  void DoubleClick(int row);

  void TypeChars(std::u16string_view text, std::int16_t flag);
  void InsertWrapped(std::u16string_view text, std::u16string_view open, std::u16string_view close,
                     std::int32_t mode);
  bool JumpToPrefix();
  bool TypedClosingTag() const;

  std::int32_t StartPos() const { return startPos_; }
  std::int32_t NextStart() const { return nextStart_; }
  const std::u16string& Typed() const { return typed_; }
  bool UpClose() const { return upClose_ == Opens::Up; }
  std::int16_t AutoAnalyse() const { return autoAnalyse_; }
  std::int16_t AutoSelect() const { return autoSelect_; }
  std::int16_t AutoHint() const { return autoHint_; }
  std::int16_t CloseTag() const { return closeTag_; }
  std::int32_t EditMode() const { return editMode_; }

  const std::vector<CandidateRow>& Rows() const { return rows_; }
  bool Ghosted(int row) const { return Row(row).tag != editMode_; }
  int Selected() const { return selected_; }  // zero-based row, -1: none

 private:
  EditControl& Control() const { return around_.text.Control(); }
  const CandidateRow& Row(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  void Beep() const;

  void Load();
  void ReadSettings();
  void ShowLoaded();
  void BringModeToTop();
  bool AnythingLoaded() const { return rows_.size() > kRowsThatAlwaysStand; }
  bool HasRowOf(std::int32_t mode) const;
  PresetResult CheckUserWords();

  void Trapped(const std::function<void()>& action);
  void TakeKey(char16_t keyAscii);
  void TakeText(std::u16string_view text);
  void TakeListKey(ListKey key);
  void Activate();
  void Backspace();
  void TypeIntoText(char16_t character);
  void Accept();
  void TakeTypedBack();
  void InsertChosen(std::u16string_view chosen);
  void FollowUp();
  void SelectRow(int row);

  static constexpr std::size_t kRowsThatAlwaysStand = 9;  // the numbers -1 to 7

  Surroundings around_;
  std::vector<CandidateRow> rows_;
  bool loaded_ = false;
  int selected_ = -1;

  std::int32_t startPos_ = 0;    // SelStart at which the word being completed begins
  std::int32_t nextStart_ = -1;  // a word start prepared for the next activation
  std::u16string typed_;         // since the popup opened
  Opens upClose_ = Opens::Down;
  std::int16_t autoAnalyse_ = 0;
  std::int16_t autoSelect_ = 0;
  std::int16_t autoHint_ = 0;
  std::int16_t closeTag_ = 0;  // the typed word begins with "/" in mode 1
  std::int32_t editMode_ = 0;
};

}  // namespace kestri
