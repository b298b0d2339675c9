#include "shell/startup/forms/RunArtFrm.hpp"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include "platform/qt/qt_text.hpp"
#include "shell/common/application_state.hpp"

namespace kestri {

RunArtFrm::RunArtFrm(const ClassCommon& common) : common_(common) {
  setObjectName(QStringLiteral("RunArtFrm"));
  setWindowTitle(ToQt(kApplicationTitle));
  label1_ = new QLabel(this);
  label1_->setObjectName(QStringLiteral("Label1"));
  label1_->setTextFormat(Qt::PlainText);
  check1_ = new QCheckBox(QStringLiteral("次回からこのﾒｯｾｰｼﾞを表示しない"), this);
  check1_->setObjectName(QStringLiteral("Check1"));
  BuildLayout();
}

void RunArtFrm::BuildLayout() {
  auto* icon = new QLabel(this);
  const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(size));
  auto* buttons = new QDialogButtonBox(this);
  QPushButton* ok = buttons->addButton(QStringLiteral("OK(&O)"), QDialogButtonBox::AcceptRole);
  ok->setDefault(true);
  ok->setFocus();
  connect(buttons, &QDialogButtonBox::accepted, this, &RunArtFrm::accept);
  auto* grid = new QGridLayout(this);
  grid->setSizeConstraint(QLayout::SetFixedSize);
  grid->setHorizontalSpacing(14);
  grid->setVerticalSpacing(12);
  grid->addWidget(icon, 0, 0, Qt::AlignTop);
  grid->addWidget(label1_, 0, 1);
  grid->addWidget(check1_, 1, 1);
  grid->addWidget(buttons, 2, 0, 1, 2);
}

void RunArtFrm::SetText(std::u16string_view text) {
  label1_->setText(ToQt(text));
}

void RunArtFrm::SetChecked(bool checked) {
  check1_->setChecked(checked);
}

void RunArtFrm::accept() {
  common_.SetINI(common_.ExeName(), u"RunArt", u"RunArt", check1_->isChecked() ? u"1" : u"0");
  QDialog::accept();
}

}  // namespace kestri
