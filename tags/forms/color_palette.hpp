// The named colours as two rows of swatches; arrow keys walk them, the blank chooses.
#pragma once

#include <QWidget>
#include <functional>

#include "tags/named_colors.hpp"

class QButtonGroup;

namespace kestri {

class ColorPalette : public QWidget {
  Q_OBJECT
 public:
  explicit ColorPalette(QWidget* parent = nullptr);

  std::function<void(const NamedColor&)> chosen;
  void Mark(const QColor& color);  // the swatch of this very colour, or none

 private:
  QButtonGroup* swatches_ = nullptr;  // ids are indices of kNamedColors
};

}  // namespace kestri
