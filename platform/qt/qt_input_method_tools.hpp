// The windows of the input methods that Japanese desktops use, started as programs of their own.
#pragma once

#include <QStringList>

#include "platform/input_method_tools.hpp"

namespace kestri {

class QtInputMethodTools : public InputMethodTools {
 public:
  // Looks for the programs on PATH and in the folders where input methods keep theirs.
  QtInputMethodTools();
  explicit QtInputMethodTools(QStringList folders) : folders_(std::move(folders)) {}

  bool ShowProperties() override;
  bool RegisterWord() override;
  bool ShowPad() override;
  // No input method here takes a request for it from outside: its own key does that, through the surrounding
  // text.
  bool Reconvert() override { return false; }

 private:
  QStringList folders_;
};

}  // namespace kestri
