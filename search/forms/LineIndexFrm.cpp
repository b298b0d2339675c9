#include "search/forms/LineIndexFrm.hpp"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "platform/qt/qt_text.hpp"

namespace kestri {

LineIndexFrm::LineIndexFrm(LineJump& jump, QWidget* owner)
    : QDialog(owner), jump_(jump), lineIndexBox_(new QLineEdit), hotButton1_(new HotButton) {
  setWindowTitle(ToQt(kLineJumpTitle));
  hotButton1_->setText(QStringLiteral("移動(&M)"));
  hotButton1_->setDefault(true);
  auto* cancel = new HotButton(QStringLiteral("閉じる(&C)"));
  auto* label = new QLabel(QStringLiteral("行番号(&L)："));
  label->setBuddy(lineIndexBox_);
  lineIndexBox_->setText(ToQt(jump_.LastNumber()));
  lineIndexBox_->setMinimumWidth(lineIndexBox_->fontMetrics().averageCharWidth() * 16);
  lineIndexBox_->selectAll();
  auto* field = new QHBoxLayout;
  field->addWidget(label);
  field->addWidget(lineIndexBox_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(hotButton1_);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(field);
  layout->addLayout(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  connect(hotButton1_, &HotButton::clicked, this, [this] { Jump(); });
  connect(cancel, &HotButton::clicked, this, &QDialog::reject);
  lineIndexBox_->setFocus();
}

void LineIndexFrm::Jump() {
  if (jump_.JumpTo(FromQt(lineIndexBox_->text()))) {
    accept();
    return;
  }
  lineIndexBox_->setFocus();
  lineIndexBox_->selectAll();
}

void LineIndexFrm::done(int result) {
  jump_.RememberNumber(FromQt(lineIndexBox_->text()));
  QDialog::done(result);
}

}  // namespace kestri
