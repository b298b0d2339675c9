#include "tags/forms/class_font_dialog.hpp"

#include "platform/qt/qt_text.hpp"
#include "tags/forms/picker_run.hpp"

namespace kestri {
namespace {

void SetForegroundWindow(QWidget* owner) {
  if (owner == nullptr) return;
  owner->window()->raise();
  owner->window()->activateWindow();
}

}  // namespace

ClassFontDialog::ClassFontDialog(ScreenFonts screenFonts) : screenFonts_(std::move(screenFonts)) {}

ClassFontDialog::~ClassFontDialog() {
  delete form_;
}

bool ClassFontDialog::ShowFont(QWidget* owner) {
  const QPointer<QWidget> window(owner);
  if (form_ == nullptr) form_ = new FontFrm(screenFonts_);
  form_->setWindowTitle(ToQt(caption_));
  form_->LoadValues(choice_);
  form_->OfferStyles(stylesOffered_);
  const Picked picked = RunPicker(form_.data(), owner);
  if (picked == Picked::Yes) choice_ = form_->Shown();
  SetForegroundWindow(window);
  return picked == Picked::Yes;
}

}  // namespace kestri
