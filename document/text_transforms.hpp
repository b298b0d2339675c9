// The commands that change the selected text or put a ready-made piece into it. Each is one undo step, and
// each begins with the refusal of a document that is read-only.
#pragma once

#include <ctime>
#include <string>
#include <string_view>

#include "document/main_text.hpp"
#include "document/transform_rows.hpp"

namespace kestri {

enum class IndentCharacter { Tab, HalfWidthBlank, FullWidthBlank, Free };
enum class IndentDirection { Less, More };

struct FreeIndentChoice {
  IndentCharacter character = IndentCharacter::Tab;
  std::u16string freeCharacter;  // one character, used with IndentCharacter::Free
  int count = 1;
  IndentDirection direction = IndentDirection::More;

  // What is put before each line; empty when the choice is not complete.
  std::u16string Unit() const;
};

class TextTransforms {
 public:
  TextTransforms(MainText& text, ApplicationState& state, const ClassCommon& common, MainTextHost& host);

  // Indexes are those of the rows in transform_rows.hpp; others do nothing.
  void HighEdit(int index);  // 2 is the dialog of FreeIndent and opens nothing here
  void KakkoMenu(int index);
  void KakkoFSet(int index);        // writes the width; the text is not touched
  int CheckedBracketWidth() const;  // row of BracketWidthRows
  void LineCode(int index);
  int CheckedLineCode() const;  // -1: the document's line ends are of no single kind
  std::u16string LineCodeCaption() const;
  void FreeIndent(const FreeIndentChoice& choice);
  void ToM(int index);
  void Color(int index);
  void nFont(int index);
  void Day(int index);

  // At the caret, in place of the selection.
  void Insert(std::u16string_view text);

 private:
  void ConvertSelection(Conversion conversion);
  bool HasRoomFor(std::size_t unitsInEachLine) const;  // of the selection
  void TellNoRoom();
  void PressIndentKey(int keyCode, char16_t keyAscii);

  MainText& text_;
  ApplicationState& state_;
  const ClassCommon& common_;
  MainTextHost& host_;
};

// What Day puts in at a moment; empty for an index without a row.
std::u16string DayText(int index, const std::tm& now);

}  // namespace kestri
