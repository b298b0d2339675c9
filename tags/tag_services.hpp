// The tag assistance that the key rules of the text call: locator, popup and hints behind one interface.
#pragma once

#include <functional>

#include "document/tag_assistance.hpp"
#include "tags/completion.hpp"
#include "tags/tag_hints_port.hpp"

namespace kestri {

// Made before the text that it serves; the parts come later, and each is answered for by doing nothing until
// then.
class TagServices final : public TagAssistance {
 public:
  explicit TagServices(EditControl& control) : control_(control) {}

  void AttachPopup(InToTAG* popup) { popup_ = popup; }
  void AttachHints(TagHints* hints) { hints_ = hints; }
  void OnUnloadPopups(std::function<void()> unloadOthers) { unloadOthers_ = std::move(unloadOthers); }

  std::int16_t CaretTagKind(std::int16_t mode, Compare compare) override;
  void Preset(std::int32_t mode) override;
  void ShowPopup() override;
  void UnloadPopups() override;
  bool HintVisible() override;
  void seTagHide() override;
  void seTagHint() override;
  bool seTagHintPriSet() override;
  void DismissHint() override;

 private:
  EditControl& control_;
  InToTAG* popup_ = nullptr;
  TagHints* hints_ = nullptr;
  std::function<void()> unloadOthers_;
};

}  // namespace kestri
