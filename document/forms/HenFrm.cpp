#include "document/forms/HenFrm.hpp"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/qt/qt_text.hpp"
#include "ui/common_dialogs.hpp"
#include "ui/window_helpers.hpp"

namespace kestri {
namespace {

constexpr int kSourceColumns = 44;  // characters of the path that show at once
constexpr int kBrowseColumns = 7;
constexpr int kFrame = 0;  // indices of Chk
constexpr int kKeepBlanks = 1;

// A text that is no label of a field: markup shows as it stands, a doubled "&" is one.
QLabel* MakeText(std::u16string_view caption) {
  auto* text = new QLabel(ToQt(caption).replace(QLatin1String("&&"), QLatin1String("&")));
  text->setTextFormat(Qt::PlainText);
  return text;
}

QLabel* MakeLabel(std::u16string_view caption, QWidget* field) {
  auto* label = new QLabel(ToQt(caption));
  label->setBuddy(field);
  return label;
}

QPushButton* MakeButton(std::u16string_view caption) {
  auto* button = new QPushButton(ToQt(caption));
  button->setAutoDefault(false);
  return button;
}

}  // namespace

HenFrm::HenFrm(TextToHtml& conversion, FileDialog& dialogs, QWidget* parent)
    : QDialog(parent), conversion_(conversion), dialogs_(dialogs) {
  setObjectName(QStringLiteral("HenFrm"));
  setWindowTitle(ToQt(u"HTMLへの変換"));
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(MakeText(u"●ﾃｷｽﾄﾃﾞｰﾀをHTML型に変換して開きます"));
  AddNames(*rows);
  AddOptions(*rows);
  AddExplanation(*rows);
  rows->addStretch();
  AddButtons(*rows);
  openTxt_->setFocus();
}

void HenFrm::AddNames(QVBoxLayout& rows) {
  openTxt_ = new QLineEdit;
  openTxt_->setObjectName(QStringLiteral("Opentxt"));
  openTxt_->setMinimumWidth(fontMetrics().averageCharWidth() * kSourceColumns);
  QPushButton* browse = MakeButton(u"...");
  browse->setMaximumWidth(fontMetrics().averageCharWidth() * kBrowseColumns);
  browse->setAccessibleName(ToQt(u"参照"));
  connect(browse, &QPushButton::clicked, this, &HenFrm::Browse);
  QLabel* target = MakeText(conversion_.TargetName());
  target->setObjectName(QStringLiteral("Target"));
  target->setToolTip(ToQt(conversion_.TargetPath()));
  target->setTextInteractionFlags(Qt::TextSelectableByMouse);

  rows.addWidget(MakeLabel(u"以下のﾌｧｲﾙを開きます(&F)：", openTxt_));
  auto* source = new QHBoxLayout;
  source->addWidget(openTxt_, 1);
  source->addWidget(browse);
  rows.addLayout(source);
  rows.addWidget(MakeText(u"変換後ﾌｧｲﾙ名(ﾗﾝﾀﾞﾑでOSが決定します)："));
  rows.addWidget(target);
}

void HenFrm::AddOptions(QVBoxLayout& rows) {
  chk_ = {new QCheckBox(ToQt(u"<HTML> <HEAD> <TITLE> <BODY> ﾀｸﾞを設置する")),
          new QCheckBox(ToQt(u"半角ｽﾍﾟｰｽは変換しない"))};
  titleText_ = new QLineEdit(ToQt(TextToHtmlOptions().title));
  titleText_->setObjectName(QStringLiteral("TITLEText"));
  QLabel* titleLabel = MakeLabel(u"ﾀｲﾄﾙ(&T)：", titleText_);
  connect(chk_[kFrame], &QCheckBox::toggled, titleText_, &QWidget::setEnabled);
  connect(chk_[kFrame], &QCheckBox::toggled, titleLabel, &QWidget::setEnabled);
  chk_[kFrame]->setChecked(true);

  auto* title = new QHBoxLayout;
  title->setContentsMargins(style()->pixelMetric(QStyle::PM_IndicatorWidth) + 6, 0, 0, 0);
  title->addWidget(titleLabel);
  title->addWidget(titleText_, 1);
  rows.addSpacing(6);
  rows.addWidget(chk_[kFrame]);
  rows.addLayout(title);
  rows.addWidget(chk_[kKeepBlanks]);
  rows.addSpacing(6);
}

void HenFrm::AddExplanation(QVBoxLayout& rows) {
  auto* frame = new QFrame;
  frame->setFrameStyle(QFrame::StyledPanel);
  auto* lines = new QVBoxLayout(frame);
  lines->addWidget(MakeText(u"ﾃｷｽﾄﾃﾞｰﾀの変換は以下の処理を行います．．．"));
  for (const char16_t* step : {u"<   >  &&  \"  などを特殊文字に変換", u"改行を<BR>ﾀｸﾞに変換"}) {
    QLabel* line = MakeText(step);
    line->setIndent(fontMetrics().averageCharWidth() * 2);
    lines->addWidget(line);
  }
  lines->addWidget(MakeText(u"注) 変換される特殊文字は全て半角文字でなければなりません"));
  rows.addWidget(frame);
}

void HenFrm::AddButtons(QVBoxLayout& rows) {
  QPushButton* start = MakeButton(u"&Start");
  start->setDefault(true);
  connect(start, &QPushButton::clicked, this, &HenFrm::Start);
  QPushButton* close = MakeButton(u"&Close");
  connect(close, &QPushButton::clicked, this, &HenFrm::reject);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(start);
  buttons->addWidget(close);
  rows.addLayout(buttons);
}

void HenFrm::SetSource(std::u16string_view path) {
  openTxt_->setText(ToQt(path));
}

bool HenFrm::Run() {
  while (ShowModalWindow(*this, parentWidget()) == QDialog::Accepted) {
    if (conversion_.OpenTarget()) return true;
  }
  return false;
}

void HenFrm::Browse() {
  ClassCommonDialogFile dialog(dialogs_);
  dialog.SetDialogTitle(u"開く ");
  dialog.SetFilter(u"ﾃｷｽﾄ 文書 (*.txt)|*.txt|すべてのﾌｧｲﾙ (*.*)|*.*");
  dialog.SetFileName(FromQt(openTxt_->text()));
  dialog.SetFlags(kHideReadOnly | kFileMustExist | kPathMustExist);
  dialog.SetOwnerhWnd(this);
  if (dialog.ShowOpen()) SetSource(dialog.FileName());
}

void HenFrm::Start() {
  if (conversion_.Convert(FromQt(openTxt_->text()), Options())) accept();
}

TextToHtmlOptions HenFrm::Options() const {
  return {.frame = chk_[kFrame]->isChecked() ? PageFrame::Whole : PageFrame::None,
          .blanks = chk_[kKeepBlanks]->isChecked() ? Blanks::Keep : Blanks::Convert,
          .title = FromQt(titleText_->text())};
}

}  // namespace kestri
