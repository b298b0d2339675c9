// Port: the windows that the input method brings along.
#pragma once

namespace kestri {

class InputMethodTools {
 public:
  virtual ~InputMethodTools() = default;
  // False when the machine has no such window.
  virtual bool ShowProperties() = 0;
  virtual bool RegisterWord() = 0;
  virtual bool ShowPad() = 0;  // handwriting, or a table of characters
  // Takes the selected text back into the input method. False when the method cannot be asked for it.
  virtual bool Reconvert() = 0;
};

}  // namespace kestri
