#include "tags/forms/picker_run.hpp"

#include <QDialogButtonBox>

#include "ui/HotButton.hpp"

namespace kestri {

QWidget* PickerButtons(QDialog& form, const char* name, const QString& cancelCaption) {
  auto* ok = new HotButton(QStringLiteral("&OK"));
  ok->setObjectName(QLatin1String(name) + u'0');
  ok->SetDefault2(true);
  auto* cancel = new HotButton(cancelCaption);
  cancel->setObjectName(QLatin1String(name) + u'1');
  auto* buttons = new QDialogButtonBox(&form);
  buttons->addButton(ok, QDialogButtonBox::AcceptRole);
  buttons->addButton(cancel, QDialogButtonBox::RejectRole);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &form, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &form, &QDialog::reject);
  return buttons;
}

Picked RunPicker(const QPointer<QDialog>& form, QWidget* owner) {
  form->setParent(owner == nullptr ? nullptr : owner->window(), form->windowFlags());
  const int result = form->exec();
  if (form == nullptr) return Picked::No;
  form->setParent(nullptr, form->windowFlags());
  return result == QDialog::Accepted ? Picked::Yes : Picked::No;
}

}  // namespace kestri
