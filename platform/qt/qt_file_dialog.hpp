// The toolkit's own file and folder dialogs, with Japanese labels on every desktop and the read-only box.
#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include "platform/file_dialog.hpp"

namespace kestri {

// Rows for the toolkit out of "caption|pattern;pattern|...": the caption stays as it is, the patterns stand
// in a second pair of brackets that the dialog hides. "*.*" means every name.
QStringList NameFilters(const std::u16string& filter);

class QtFileDialog : public FileDialog {
 public:
  std::optional<FileDialogAnswer> AskOpen(const FileDialogRequest& request) override;
  std::optional<FileDialogAnswer> AskSave(const FileDialogRequest& request) override;
  std::optional<std::u16string> AskFolder(const std::u16string& title, const std::u16string& folder) override;
  void SetOwner(QWidget* owner) { owner_ = owner; }

 private:
  QPointer<QWidget> owner_;
};

}  // namespace kestri
