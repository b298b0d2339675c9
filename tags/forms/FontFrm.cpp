#include "tags/forms/FontFrm.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QScrollArea>
#include <QShowEvent>
#include <QVBoxLayout>

#include "platform/qt/qt_text.hpp"
#include "tags/forms/candidate_icons.hpp"
#include "tags/forms/picker_run.hpp"

namespace kestri {
namespace {

constexpr int kRowsInSight = 9;
constexpr int kListCharacters = 30;  // full-width, of its narrowest width
constexpr int kSampleLines = 5;      // of the form's own font

QIcon StockIcon() {
  QIcon icon;
  for (const int scale : {1, 2, 3}) {
    const int size = kCandidateIconSize * scale;
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    PaintCandidateIcon(painter, QRectF(0, 0, size, size), CandidateIcon::Font);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

QLabel* LabelOf(const char16_t* caption, QWidget* field) {
  auto* label = new QLabel(QString::fromUtf16(caption));
  label->setBuddy(field);
  return label;
}

}  // namespace

FontFrm::FontFrm(const ScreenFonts& screenFonts, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("FontFrm"));
  BuildFonts(screenFonts);
  BuildSizes();
  BuildStyles();
  BuildSample();
  BuildLayout();
  connect(fontView_, &QListWidget::currentRowChanged, this, &FontFrm::FollowChoice);
  connect(fontView_, &QListWidget::itemDoubleClicked, this, &FontFrm::accept);
  connect(fontSizeCombo_, &QComboBox::currentIndexChanged, this, &FontFrm::FollowChoice);
  connect(bold_, &QCheckBox::toggled, this, &FontFrm::FollowChoice);
  connect(italic_, &QCheckBox::toggled, this, &FontFrm::FollowChoice);
  LoadValues({});
}

void FontFrm::BuildFonts(const ScreenFonts& screenFonts) {
  names_ = OfferedFonts(screenFonts());
  fontView_ = new QListWidget(this);
  fontView_->setObjectName(QStringLiteral("FontView"));
  fontView_->setUniformItemSizes(true);
  const QIcon icon = StockIcon();
  for (const std::u16string& name : names_) fontView_->addItem(new QListWidgetItem(icon, ToQt(name)));
  fontView_->setMinimumSize(kListCharacters * fontMetrics().averageCharWidth() * 2,
                            kRowsInSight * fontView_->sizeHintForRow(0));
}

void FontFrm::BuildSizes() {
  fontSizeCombo_ = new QComboBox(this);
  fontSizeCombo_->setObjectName(QStringLiteral("FontSizeCombo"));
  for (const std::int16_t size : kFontSizes) fontSizeCombo_->addItem(QString::number(size));
  fontSizeCombo_->setMaxVisibleItems(static_cast<int>(kFontSizes.size()));
}

void FontFrm::BuildStyles() {
  bold_ = new QCheckBox(QStringLiteral("太字(&B)"), this);
  bold_->setObjectName(QStringLiteral("Check1_0"));
  italic_ = new QCheckBox(QStringLiteral("斜体(&I)"), this);
  italic_->setObjectName(QStringLiteral("Check1_1"));
}

void FontFrm::OfferStyles(bool offered) {
  bold_->setVisible(offered);
  italic_->setVisible(offered);
}

void FontFrm::BuildSample() {
  flb_ = new QLabel(QStringLiteral("ABC 123 あいう"));
  flb_->setObjectName(QStringLiteral("FLB"));
  flb_->setTextFormat(Qt::PlainText);
  flb_->setAlignment(Qt::AlignCenter);
}

QVBoxLayout* FontFrm::FieldsBesideTheList() {
  auto* fields = new QVBoxLayout;
  fields->addWidget(fontSizeCombo_);
  fields->addWidget(bold_);
  fields->addWidget(italic_);
  fields->addStretch();
  return fields;
}

// A sample too large for its place is scrolled, so that the form keeps its size.
QScrollArea* FontFrm::SampleInItsPlace() {
  auto* sample = new QScrollArea;
  sample->setWidget(flb_);
  sample->setWidgetResizable(true);
  sample->setFocusPolicy(Qt::NoFocus);
  sample->setMinimumHeight(kSampleLines * fontMetrics().height());
  return sample;
}

void FontFrm::BuildLayout() {
  auto* fields = new QGridLayout;
  fields->addWidget(LabelOf(u"ﾌｫﾝﾄ(&F)：", fontView_), 0, 0);
  fields->addWidget(LabelOf(u"ｻｲｽﾞ(&S)：", fontSizeCombo_), 0, 1);
  fields->addWidget(fontView_, 1, 0);
  fields->addLayout(FieldsBesideTheList(), 1, 1);
  fields->setColumnStretch(0, 1);
  auto* all = new QVBoxLayout(this);
  all->addLayout(fields, 1);
  all->addWidget(SampleInItsPlace());
  all->addWidget(PickerButtons(*this, "Command1_", QStringLiteral("&CANCEL")));
}

void FontFrm::LoadValues(const FontChoice& wanted) {
  fontView_->setCurrentRow(FontRow(names_, wanted.name));
  fontView_->scrollToItem(fontView_->currentItem());
  fontSizeCombo_->setCurrentIndex(FontSizeRow(wanted.size));
  bold_->setChecked(wanted.bold);
  italic_->setChecked(wanted.italic);
  FollowChoice();
}

FontChoice FontFrm::Shown() const {
  return {.name = names_[static_cast<std::size_t>(fontView_->currentRow())],
          .size = kFontSizes[static_cast<std::size_t>(fontSizeCombo_->currentIndex())],
          .bold = bold_->isChecked(),
          .italic = italic_->isChecked()};
}

void FontFrm::FollowChoice() {
  const FontChoice choice = Shown();
  QFont font(ToQt(choice.name), choice.size);
  font.setBold(choice.bold);
  font.setItalic(choice.italic);
  flb_->setFont(font);
}

// The list knows its height only now.
void FontFrm::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  fontView_->scrollToItem(fontView_->currentItem());
  fontView_->setFocus();
}

}  // namespace kestri
