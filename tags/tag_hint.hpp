// The hint of the tag at the caret: what the tag means and how it is usually written, in a box beside the
// caret.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/edit_control/edit_control.hpp"
#include "shell/common/class_common.hpp"
#include "tags/show_at_caret.hpp"
#include "tags/tag_hints_port.hpp"

namespace kestri {

// LabelText, the box over the text. It knows its size from its lines.
class HintBox : public ToolWindow {
 public:
  virtual void SetText(std::u16string_view text) = 0;  // lines with CR LF between them
  virtual PixelRect Room() = 0;                        // the text area, pixels of the screen
  virtual bool Visible() = 0;
  virtual void Hide() = 0;
};

class TagHint final : public TagHints {
 public:
  struct Surroundings {
    EditControl& control;
    const ClassCommon& common;
    CaretPlace& place;
    HintBox& box;
    int wrap;  // bytes in a line
  };

  explicit TagHint(Surroundings surroundings) : around_(surroundings) {}

  bool HintVisible() override { return around_.box.Visible(); }
  void seTagHide() override;
  // Costs next to nothing while neither the caret nor the text's length has changed since the last call.
  void seTagHint() override;
  // The dictionary is read when the caret has come into another tag, not again within the same one.
  bool seTagHintPriSet() override;
  void DismissHint() override;
  void TipComments(std::u16string_view text) override;
  void TipCommentsReset();

  // What the box shows: a tag's name with "_TiHeTag00_" behind it, "_TiHenOTag00_" after a dismissal, or
  // nothing.
  const std::u16string& Tag() const { return tag_; }

 private:
  struct Seen {
    Position caret = -1;
    Position length = -1;
    bool operator==(const Seen&) const = default;
  };

  Seen Look() const { return {around_.control.SelStart(), around_.control.Length()}; }
  void FollowCaret();
  void FollowScrolling();
  void ShowHintOf(const std::u16string& name);
  void PlaceBox();

  Surroundings around_;
  std::u16string tag_;
  std::u16string hintless_;  // a name that the dictionary tells nothing of, while the caret is in its tag
  Seen seen_;                // at the last check
  std::optional<PixelRect> placedAt_;  // the caret that the box stands at
};

}  // namespace kestri
