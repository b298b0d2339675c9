#include "platform/qt/qt_input_box.hpp"

#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>

#include "platform/qt/dialog_owner.hpp"
#include "platform/qt/japanese_labels.hpp"
#include "platform/qt/qt_text.hpp"
#include "platform/qt/title_room.hpp"

namespace kestri {

std::optional<std::u16string> QtInputBox::Ask(const std::u16string& prompt, const std::u16string& title,
                                              const std::u16string& defaultText) {
  InstallJapaneseLabels();
  QInputDialog dialog(DialogOwner(owner_));
  dialog.setWindowTitle(ToQt(title));
  dialog.setLabelText(ToQt(prompt));
  dialog.setTextValue(ToQt(defaultText));
  dialog.setOkButtonText(QStringLiteral("OK(&O)"));
  dialog.setCancelButtonText(QStringLiteral("キャンセル(&C)"));
  for (QPushButton* button : dialog.findChildren<QPushButton*>()) button->setIcon({});
  dialog.findChild<QLineEdit*>()->setMinimumWidth(RoomForTitle(dialog));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return FromQt(dialog.textValue());
}

}  // namespace kestri
