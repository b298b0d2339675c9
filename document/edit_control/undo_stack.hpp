// Undo and redo. A step is what one undo takes back: one edit, one run of typing or of deleting, or one
// scope.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/edit_control/gap_buffer.hpp"
#include "document/edit_control/position.hpp"

namespace kestri {

enum class EditKind {
  Single,   // a step of its own
  Typing,   // joins the typing before it, word by word
  Erasing,  // Backspace or Delete: joins the erasing before it
};

struct UndoChange {
  Position at = 0;
  Position removed = 0;
  Position inserted = 0;
};

struct UndoStep {
  EditKind kind = EditKind::Single;
  Selection before;
  Selection after;
  std::vector<UndoChange> changes;
  std::u16string text;  // of each change in turn: what it removed, then what it inserted
};

class UndoStack {
 public:
  struct Edit {
    EditKind kind = EditKind::Single;
    Position at = 0;
    GapBuffer::Pieces removed;
    std::u16string_view inserted;
    Selection before;
    Selection after;
  };
  void Record(const Edit& edit);  // when it throws nothing has changed

  // What follows does not join what came before.
  void CloseRun() { runOpen_ = false; }

  // Everything recorded between the outermost two is one step; without an edit there is none.
  void OpenScope(Selection before);
  void CloseScope(Selection after);

  void Clear();
  bool CanUndo() const { return done_ > 0 && scopes_ == 0; }
  bool CanRedo() const { return done_ < steps_.size() && scopes_ == 0; }
  // The step to apply, valid until the next Record or Clear; null when there is none.
  const UndoStep* Undo();
  const UndoStep* Redo();
  // The same without taking it.
  const UndoStep* NextUndo() const { return CanUndo() ? &steps_[done_ - 1] : nullptr; }
  const UndoStep* NextRedo() const { return CanRedo() ? &steps_[done_] : nullptr; }

 private:
  bool Joins(const Edit& edit) const;
  bool JoinsTyping(const Edit& edit) const;
  bool JoinsErasing(const Edit& edit) const;
  void BeginStep(const Edit& edit);
  static void Append(UndoStep& step, const Edit& edit);
  void FollowRun(const Edit& edit);

  std::vector<UndoStep> steps_;
  std::size_t done_ = 0;  // steps below are done, steps from here on were undone
  bool runOpen_ = false;
  bool runHasWord_ = false;
  int scopes_ = 0;
  bool scopeHasStep_ = false;
  std::optional<Selection> scopeBefore_;
};

}  // namespace kestri
