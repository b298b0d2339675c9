// The columns of the toolkit's file dialog as a Japanese reader expects them, whatever the desktop's language
// is.
#pragma once

#include <QFileDialog>
#include <QFileIconProvider>

namespace kestri {

// Folders are called so in the column of kinds.
class FileTypes : public QFileIconProvider {
 public:
  QString type(const QFileInfo& info) const override;
};

// Names take the room that is left; sizes, kinds and dates are never cut. Sizes read "1,234 バイト", "1.2 KB"
// and so on, dates "2003/02/01 04:05". Only for a dialog that the toolkit draws itself.
void DressColumns(QFileDialog& dialog);

}  // namespace kestri
