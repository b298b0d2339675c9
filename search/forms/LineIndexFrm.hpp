// LineIndexFrm: asks for a line number and moves the caret there.
#pragma once

#include <QDialog>
#include <QLineEdit>

#include "search/line_jump.hpp"
#include "ui/HotButton.hpp"

namespace kestri {

class LineIndexFrm : public QDialog {
 public:
  LineIndexFrm(LineJump& jump, QWidget* owner);

  QLineEdit& LineIndexBox() { return *lineIndexBox_; }
  HotButton& HotButton1() { return *hotButton1_; }

  void done(int result) override;

 private:
  void Jump();

  LineJump& jump_;
  QLineEdit* lineIndexBox_;
  HotButton* hotButton1_;
};

}  // namespace kestri
