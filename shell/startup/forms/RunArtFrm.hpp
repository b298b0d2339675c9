// The warning that the program was not made for this system, and whether it comes again.
#pragma once

#include <QDialog>
#include <string_view>

#include "shell/common/class_common.hpp"

class QCheckBox;
class QLabel;

namespace kestri {

class RunArtFrm : public QDialog {
  Q_OBJECT
 public:
  explicit RunArtFrm(const ClassCommon& common);

  void SetText(std::u16string_view text);
  void SetChecked(bool checked);

  void accept() override;  // remembers the choice, then closes

 private:
  void BuildLayout();

  const ClassCommon& common_;
  QLabel* label1_ = nullptr;
  QCheckBox* check1_ = nullptr;
};

}  // namespace kestri
