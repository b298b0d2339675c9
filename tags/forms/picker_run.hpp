// What the pickers' forms have in common: their buttons, and one call of a form that stays for the next call.
#pragma once

#include <QDialog>
#include <QPointer>

namespace kestri {

// "&OK", which Enter presses, and cancel; the objects are the name with the indices 0 and 1.
QWidget* PickerButtons(QDialog& form, const char* name, const QString& cancelCaption);

enum class Picked { No, Yes };

// Modal over the owner's window, which may be none. The form is gone when the owner went meanwhile.
Picked RunPicker(const QPointer<QDialog>& form, QWidget* owner);

}  // namespace kestri
