// The text control's model: text, lines, selection, undo. No display.
// Positions are zero-based UTF-16 indices. Only CR LF ends a line; a lone CR or LF is an ordinary character.
// The caret never stands between CR and LF, nor inside a surrogate pair.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "document/edit_control/position.hpp"
#include "platform/clipboard.hpp"
#include "shell/common/text.hpp"

namespace kestri {

// One replacement as it happened: removed units at a position, then inserted units there.
struct TextChange {
  Position at = 0;
  Position removed = 0;
  Position inserted = 0;
  std::int32_t firstLine = 0;      // line of at, before and after
  std::int32_t linesRemoved = 0;   // line ends taken away
  std::int32_t linesInserted = 0;  // line ends put in
};

// What the control tells its host. Called after the model is consistent.
class EditControlEvents {
 public:
  virtual ~EditControlEvents() = default;
  virtual void TextReplaced(const TextChange&) {}
  virtual void SelectionChanged() {}
  virtual void ScrollCaret() {}
  virtual void RedrawSwitched(bool) {}
  virtual void Change() {}  // EN_CHANGE: once a message that changed the text
};

// How wide text stands, for moving the caret up and down. Without one, cells: 1 for ASCII and half-width
// kana, 2 for the rest, tabs to the next multiple of 8.
class ColumnMetrics {
 public:
  virtual ~ColumnMetrics() = default;
  virtual double XOf(Position position) = 0;
  virtual Position PositionAt(std::int32_t line, double x) = 0;
  virtual std::int32_t PageLines() = 0;
};

enum class EditKey { Left, Right, Up, Down, Home, End, PageUp, PageDown, Delete };
struct KeyModifiers {
  bool shift = false;
  bool control = false;
};

class EditControl {
 public:
  explicit EditControl(Clipboard& clipboard);
  ~EditControl();
  EditControl(const EditControl&) = delete;
  EditControl& operator=(const EditControl&) = delete;

  void SetEvents(EditControlEvents* events);
  void SetColumnMetrics(ColumnMetrics* metrics);

  // Properties of the host control.
  std::u16string Text() const;  // a copy of everything
  // Takes the storage over; clears undo, caret to 0, not modified. Spare capacity is room for the first
  // edits: a loader that reserves some saves a copy of the document. No Change event: a load is not a change.
  void SetText(std::u16string text);
  Position Length() const;
  Position SelStart() const;
  Position SelLength() const;
  std::u16string SelText() const;
  void SetSelStart(Position start);    // clamped; collapses the selection
  void SetSelLength(Position length);  // from SelStart; clamped
  bool Locked() const;
  void SetLocked(bool locked);
  bool Modified() const;  // since the last SetText or SetModified(false)
  void SetModified(bool modified);

  // Caret and anchor: the selection lies between them.
  Position Caret() const;
  Position Anchor() const;
  enum class Extend { No, Yes };
  void MoveCaret(Position to, Extend extend);

  // Reading without a copy of the document.
  char16_t At(Position position) const;                         // U+0000 outside
  std::u16string Slice(Position begin, Position length) const;  // clamped
  Position LineStart(std::int32_t line) const;
  Position LineEnd(std::int32_t line) const;  // before its CR LF
  std::int32_t LineCount() const;             // at least 1
  std::int32_t LineOf(Position position) const;
  // First hit at or after from; last hit that ends at or before end. -1 when there is none.
  Position Find(std::u16string_view text, Position from, Compare compare = Compare::Binary) const;
  Position FindLast(std::u16string_view text, Position end, Compare compare = Compare::Binary) const;
  // The text in its two contiguous pieces, for whole-document passes.
  std::u16string_view FirstPiece() const;
  std::u16string_view SecondPiece() const;
  // Moves the buffer's gap to the caret, so that the next key press is cheap. For idle time. Ends the
  // validity of the pieces, as edits do.
  void PrepareEditAtCaret();

  // Messages. WM_CHAR: 8 Backspace, 9 tab, 10 and 13 CR LF, 26 undo, 127 and other controls below 32 nothing,
  // else the character. Typing, clearing, cutting, pasting and undoing do nothing on a locked control.
  void WM_CHAR(char16_t character);
  void WM_KEYDOWN(EditKey key, KeyModifiers modifiers);
  void WM_CUT();
  void WM_COPY() const;
  void WM_PASTE();
  void WM_CLEAR();
  void WM_SETTEXT(std::u16string_view text);  // as SetText, with a Change event
  void WM_SETREDRAW(bool on);
  // One undo step; without canUndo the undo buffer is emptied. Works on a locked control too.
  void EM_REPLACESEL(bool canUndo, std::u16string_view text);
  bool EM_CANUNDO() const;
  bool EM_UNDO();  // one step back; false when there is none or the control is locked
  bool EM_CANREDO() const;
  bool EM_REDO();
  void EM_EMPTYUNDOBUFFER();
  void EM_SETSEL(Position start, Position end);    // (0, -1) all; (-1, x) none
  Position EM_LINEINDEX(std::int32_t line) const;  // -1 the caret's line; -1 when there is no such line
  std::int32_t EM_LINEFROMCHAR(Position position) const;  // -1 the line of the selection's start
  Position EM_LINELENGTH(Position position) const;
  std::int32_t EM_GETLINECOUNT() const;
  // Bytes of the line in code page 932, at most size of them; empty for a line that does not exist.
  std::string EM_GETLINE(std::int32_t line, std::size_t size) const;
  void EM_SCROLLCARET();

  // Deletes the word left of the caret, or the selection, as one step.
  void DeleteWordLeft();

  // For tests: every part agrees with the text. Costs a pass over the document.
  bool CheckInvariants() const;

 private:
  friend class EditScope;
  struct Impl;
  class Message;
  std::unique_ptr<Impl> impl_;
};

// Everything between construction and destruction is one undo step. Scopes nest.
class EditScope {
 public:
  explicit EditScope(EditControl& control);
  ~EditScope();
  EditScope(const EditScope&) = delete;
  EditScope& operator=(const EditScope&) = delete;

 private:
  EditControl& control_;
};

// Nothing is painted while it lives.
class RedrawOff {
 public:
  explicit RedrawOff(EditControl& control) : control_(control) { control_.WM_SETREDRAW(false); }
  ~RedrawOff() { control_.WM_SETREDRAW(true); }
  RedrawOff(const RedrawOff&) = delete;
  RedrawOff& operator=(const RedrawOff&) = delete;

 private:
  EditControl& control_;
};

}  // namespace kestri
