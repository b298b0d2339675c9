#include "platform/qt/qt_ui_effects.hpp"

#include <QApplication>

namespace kestri {

// The toolkit animates a part only while effects are on at all.
void QtUiEffects::SetAnimation(std::int16_t value, std::int32_t which) {
  const bool animated = value != 0;
  if (animated) QApplication::setEffectEnabled(Qt::UI_General, true);
  QApplication::setEffectEnabled(which == kComboBoxes ? Qt::UI_AnimateCombo : Qt::UI_AnimateMenu, animated);
}

}  // namespace kestri
