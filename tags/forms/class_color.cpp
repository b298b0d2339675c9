#include "tags/forms/class_color.hpp"

#include "tags/forms/picker_run.hpp"

namespace kestri {

ClassColor::~ClassColor() {
  delete form_;
}

std::u16string ClassColor::SettingColor(std::u16string_view title, std::u16string_view current,
                                        QWidget* owner) {
  if (form_ == nullptr) form_ = new NSColor;
  form_->Prepare(title, current);
  return RunPicker(form_.data(), owner) == Picked::Yes ? form_->Answer() : std::u16string();
}

}  // namespace kestri
