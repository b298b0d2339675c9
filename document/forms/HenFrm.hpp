// The dialog that makes a page out of a plain text and opens it.
#pragma once

#include <QDialog>
#include <array>
#include <string_view>

#include "document/text_to_html.hpp"
#include "platform/file_dialog.hpp"

class QCheckBox;
class QLineEdit;
class QVBoxLayout;

namespace kestri {

class HenFrm : public QDialog {
  Q_OBJECT
 public:
  HenFrm(TextToHtml& conversion, FileDialog& dialogs, QWidget* parent);

  void SetSource(std::u16string_view path);
  // Modal, until a page stands in the editor or the user gives up. True: a page stands there.
  bool Run();

 private:
  void AddExplanation(QVBoxLayout& rows);
  void AddNames(QVBoxLayout& rows);
  void AddOptions(QVBoxLayout& rows);
  void AddButtons(QVBoxLayout& rows);
  void Browse();
  void Start();
  TextToHtmlOptions Options() const;

  TextToHtml& conversion_;
  FileDialog& dialogs_;
  QLineEdit* openTxt_ = nullptr;
  QLineEdit* titleText_ = nullptr;
  std::array<QCheckBox*, 2> chk_{};
};

}  // namespace kestri
