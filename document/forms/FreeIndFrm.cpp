#include "document/forms/FreeIndFrm.hpp"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QVBoxLayout>

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr int kMostCharacters = 999;

}  // namespace

FreeIndFrm::FreeIndFrm(TextTransforms& transforms, QWidget* owner) : QDialog(owner), transforms_(transforms) {
  setObjectName(QStringLiteral("FreeIndFrm"));
  setWindowTitle(QStringLiteral("ﾌﾘｰｲﾝﾃﾞﾝﾄ"));
  BuildFields();
  BuildLayout();
  connect(combo1_, &QComboBox::currentIndexChanged, this, &FreeIndFrm::FollowCharacter);
  connect(text2_, &QLineEdit::textChanged, this, &FreeIndFrm::FollowChoice);
  FollowCharacter();
  combo1_->setFocus();
}

void FreeIndFrm::BuildFields() {
  combo1_ = new QComboBox(this);
  combo1_->setObjectName(QStringLiteral("Combo1"));
  combo1_->addItems({QStringLiteral("Tab"), QStringLiteral("半角ｽﾍﾟｰｽ"), QStringLiteral("全角ｽﾍﾟｰｽ"),
                     QStringLiteral("任意指定")});
  text2_ = new QLineEdit(this);
  text2_->setObjectName(QStringLiteral("Text2"));
  // A character outside the basic plane is one too, so a plain limit of the length would not do.
  text2_->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral(".")), text2_));
  text1_ = new QSpinBox(this);
  text1_->setObjectName(QStringLiteral("Text1"));
  text1_->setRange(1, kMostCharacters);
  less_ = new QRadioButton(QStringLiteral("ﾚﾍﾞﾙ -(&M)"), this);
  less_->setObjectName(QStringLiteral("Option1_0"));
  more_ = new QRadioButton(QStringLiteral("ﾚﾍﾞﾙ +(&P)"), this);
  more_->setObjectName(QStringLiteral("Option1_1"));
  more_->setChecked(true);
}

void FreeIndFrm::BuildLayout() {
  auto* directions = new QHBoxLayout;
  directions->addWidget(less_);
  directions->addWidget(more_);
  directions->addStretch();
  auto* fields = new QFormLayout;
  fields->addRow(QStringLiteral("ｲﾝﾃﾞﾝﾄｷｬﾗｸﾀ(&K)："), combo1_);
  fields->addRow(QStringLiteral("任意指定(1文字)(&F)："), text2_);
  fields->addRow(QStringLiteral("ｲﾝﾃﾞﾝﾄｶｳﾝﾄ(&N)："), text1_);
  fields->addRow(QStringLiteral("ｲﾝﾃﾞﾝﾄﾚﾍﾞﾙ："), directions);
  auto* buttons = new QDialogButtonBox(this);
  ok_ = buttons->addButton(QStringLiteral("OK(&O)"), QDialogButtonBox::AcceptRole);
  ok_->setDefault(true);
  buttons->addButton(QStringLiteral("キャンセル(&C)"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::accepted, this, &FreeIndFrm::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &FreeIndFrm::reject);
  auto* all = new QVBoxLayout(this);
  all->addLayout(fields);
  all->addStretch();
  all->addWidget(buttons);
}

FreeIndentChoice FreeIndFrm::Choice() const {
  return {.character = static_cast<IndentCharacter>(combo1_->currentIndex()),
          .freeCharacter = FromQt(text2_->text()),
          .count = text1_->value(),
          .direction = more_->isChecked() ? IndentDirection::More : IndentDirection::Less};
}

void FreeIndFrm::FollowCharacter() {
  text2_->setEnabled(Choice().character == IndentCharacter::Free);
  FollowChoice();
}

void FreeIndFrm::FollowChoice() {
  ok_->setEnabled(!Choice().Unit().empty());
}

void FreeIndFrm::accept() {
  const FreeIndentChoice choice = Choice();
  if (choice.Unit().empty()) return text2_->setFocus();
  transforms_.FreeIndent(choice);
  QDialog::accept();
}

}  // namespace kestri
