// The dialog of the free indent: which character, how many of them, and which way.
#pragma once

#include <QDialog>

#include "document/text_transforms.hpp"

class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace kestri {

class FreeIndFrm : public QDialog {
  Q_OBJECT
 public:
  explicit FreeIndFrm(TextTransforms& transforms, QWidget* owner = nullptr);

  FreeIndentChoice Choice() const;
  void accept() override;  // indents, then closes

 private:
  void BuildFields();
  void BuildLayout();
  void FollowCharacter();
  void FollowChoice();

  TextTransforms& transforms_;
  QComboBox* combo1_ = nullptr;   // the character
  QLineEdit* text2_ = nullptr;    // the free character
  QSpinBox* text1_ = nullptr;     // the count
  QRadioButton* less_ = nullptr;  // Option1, index 0
  QRadioButton* more_ = nullptr;  // Option1, index 1
  QPushButton* ok_ = nullptr;
};

}  // namespace kestri
