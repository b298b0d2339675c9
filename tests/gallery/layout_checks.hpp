// What can be told of a window's layout without looking: cut texts, clashing mnemonics, fields out of reach.
// Each check gives one line for each fault, ready for a person to read.
#pragma once

#include <QString>
#include <QStringList>

class QMenu;
class QMenuBar;
class QWidget;

namespace kestri::gallery {

// Labels, buttons, check boxes, group boxes and drop-down lists that are narrower or lower than their text. A
// label made to be shortened, which offers the whole text as its tool tip, is no fault.
QStringList CutTexts(const QWidget& window);

// Fields, buttons and labels of fields that answer to the same Alt key.
QStringList ClashingMnemonics(const QWidget& window);
QStringList ClashingMnemonics(const QMenu& menu);
QStringList ClashingMnemonics(const QMenuBar& bar);

// Text fields, drop-down lists and number fields that no label's mnemonic leads to. A window's only field
// needs none.
QStringList FieldsWithoutMnemonic(const QWidget& window);

// Enabled fields and buttons that real Tab presses never reach. The window must be active.
QStringList FieldsOutOfReach(QWidget& window);

// Only for dialogs: nothing answers the Enter key.
QStringList NoDefaultButton(const QWidget& window);

}  // namespace kestri::gallery
