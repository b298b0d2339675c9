// What the control is made of. Nothing here tells the host anything; messages do, see Message.
#pragma once

#include <optional>

#include "document/edit_control/caret_movement.hpp"
#include "document/edit_control/edit_control.hpp"
#include "document/edit_control/gap_buffer.hpp"
#include "document/edit_control/line_index.hpp"
#include "document/edit_control/undo_stack.hpp"

namespace kestri {

struct EditControl::Impl {
  explicit Impl(Clipboard& port) : clipboard(port) {}

  Clipboard& clipboard;
  EditControlEvents* events = nullptr;
  GapBuffer text;
  LineIndex lines;
  UndoStack undo;
  Selection selection;
  CaretMovement movement{text, lines};
  bool locked = false;
  bool modified = false;
  // The part of the text that the running message replaced so far, lines not yet counted.
  std::optional<TextChange> replaced;

  void SetText(std::u16string value);
  Selection Snapped(Position anchor, Position caret) const;
  void Select(Position anchor, Position caret);
  enum class Undo { Record, Forget };
  void Replace(Selection range, std::u16string_view inserted, EditKind kind, Undo mode = Undo::Record);
  void Type(char16_t character);
  void DeleteRight(bool byWord);
  void DeleteWordLeft();
  void MoveByKey(EditKey key, KeyModifiers modifiers);
  bool UndoStep();
  bool RedoStep();
  bool CheckInvariants() const;
  std::u16string Selected() const {
    return text.Slice(selection.Start(), selection.End() - selection.Start());
  }

 private:
  struct Room;
  void Reserve(const Room& room);
  // Throws nothing where there is room. What may throw comes before, so that a failed edit changes nothing.
  void ReplaceText(Position at, Position removed, std::u16string_view inserted);
  void Backspace();
  // The selection when there is one, else from the caret to the position.
  void Erase(Position to, EditKind kind);
  void StepBack(const kestri::UndoStep& step);
  void StepForward(const kestri::UndoStep& step);
  Position CaretAfter(Position at, Position removed, std::u16string_view inserted) const;
};

// One message to the control: when it ends, the host hears of what it did, each thing once.
class EditControl::Message {
 public:
  enum class Scroll { No, ToCaret };
  explicit Message(Impl& impl, Scroll scroll = Scroll::No);
  ~Message();
  Message(const Message&) = delete;
  Message& operator=(const Message&) = delete;
  void TellNoChange() { tellChange_ = false; }  // EN_CHANGE is left out

 private:
  TextChange Counted(TextChange change) const;

  Impl& impl_;
  Scroll scroll_;
  Selection before_;
  std::int32_t linesBefore_;
  bool tellChange_ = true;
};

}  // namespace kestri
