#include "tags/tag_services.hpp"

#include "tags/tag_locator.hpp"

namespace kestri {

std::int16_t TagServices::CaretTagKind(std::int16_t mode, Compare compare) {
  return static_cast<std::int16_t>(kestri::CaretTagKind(control_, mode, compare));
}

void TagServices::Preset(std::int32_t mode) {
  if (popup_ != nullptr) popup_->Preset(mode);
}

void TagServices::ShowPopup() {
  if (popup_ != nullptr) popup_->ShowPopup();
}

void TagServices::UnloadPopups() {
  if (popup_ != nullptr) popup_->Unload();
  if (unloadOthers_) unloadOthers_();
}

bool TagServices::HintVisible() {
  return hints_ != nullptr && hints_->HintVisible();
}

void TagServices::seTagHide() {
  if (hints_ != nullptr) hints_->seTagHide();
}

void TagServices::seTagHint() {
  if (hints_ != nullptr) hints_->seTagHint();
}

bool TagServices::seTagHintPriSet() {
  return hints_ != nullptr && hints_->seTagHintPriSet();
}

void TagServices::DismissHint() {
  if (hints_ != nullptr) hints_->DismissHint();
}

}  // namespace kestri
