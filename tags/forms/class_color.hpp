// ClassColor: one question for a colour code.
#pragma once

#include <QPointer>
#include <string>
#include <string_view>

#include "tags/forms/NSColor.hpp"

namespace kestri {

// The form is made at the first question and stays for the next ones.
class ClassColor {
 public:
  ClassColor() = default;
  ~ClassColor();
  ClassColor(const ClassColor&) = delete;
  ClassColor& operator=(const ClassColor&) = delete;

  // Shows the current colour code, black for anything else. "#RRGGBB" with capital digits; empty: cancelled.
  std::u16string SettingColor(std::u16string_view title, std::u16string_view current, QWidget* owner);

 private:
  QPointer<NSColor> form_;
};

}  // namespace kestri
