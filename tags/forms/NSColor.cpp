#include "tags/forms/NSColor.hpp"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShowEvent>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionSpinBox>
#include <QVBoxLayout>

#include "platform/qt/qt_text.hpp"
#include "shell/common/class_common.hpp"
#include "tags/forms/color_palette.hpp"
#include "tags/forms/picker_run.hpp"
#include "ui/HotButton.hpp"

namespace kestri {
namespace {

constexpr int kLargest = 255;
constexpr int kTick = 25;
constexpr int kLargeStep = 10;
constexpr int kSmallStep = 1;
constexpr int kSliderCharacters = 34;  // of its narrowest width

struct Part {
  const char16_t* caption;
  const char16_t* name;
};
constexpr std::array<Part, 3> kPartTexts = {{{u"&R：", u"赤"}, {u"&G：", u"緑"}, {u"&B：", u"青"}}};

// The two arrows alone: the number stands beside them, and the keys belong to the slider.
class ArrowSpinner : public QSpinBox {
 public:
  ArrowSpinner() {
    setRange(0, kLargest);
    setSingleStep(kSmallStep);
    setFocusPolicy(Qt::NoFocus);
    lineEdit()->hide();
    lineEdit()->setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override { return {ArrowWidth(), QSpinBox::sizeHint().height()}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  int ArrowWidth() const {
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.rect = QRect(QPoint(), QSpinBox::sizeHint());
    const QRect arrow = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this);
    return option.rect.right() - arrow.left() + 3;
  }
};

QString Indexed(const char* name, std::size_t index) {
  return QLatin1String(name) + QString::number(index);
}

}  // namespace

NSColor::NSColor(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("NSColor"));
  auto* parts = new QGridLayout;
  for (std::size_t index = 0; index < kParts; ++index) BuildPart(index, *parts);
  BuildCode();
  palette_ = new ColorPalette(this);
  palette_->chosen = [this](const NamedColor& color) { TakeNamed(color); };
  BuildLayout(*parts);
  ShowColor();
}

void NSColor::BuildPart(std::size_t index, QGridLayout& grid) {
  auto* slider = new QSlider(Qt::Horizontal, this);
  slider->setObjectName(Indexed("HScroll_", index));
  slider->setAccessibleName(QString::fromUtf16(kPartTexts[index].name));
  slider->setRange(0, kLargest);
  slider->setTickPosition(QSlider::TicksBelow);
  slider->setTickInterval(kTick);
  slider->setPageStep(kLargeStep);
  slider->setSingleStep(kSmallStep);
  slider->setMinimumWidth(kSliderCharacters * fontMetrics().averageCharWidth());
  auto* caption = new QLabel(QString::fromUtf16(kPartTexts[index].caption), this);
  caption->setBuddy(slider);
  auto* spinner = new ArrowSpinner;
  spinner->setObjectName(Indexed("UpDoun_", index));
  spinner->setAccessibleName(slider->accessibleName());
  auto* value = new QLabel(QStringLiteral("0"), this);
  value->setObjectName(Indexed("Label_", index));
  value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  value->setMinimumWidth(value->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
  hScroll_[index] = slider;
  upDoun_[index] = spinner;
  label_[index] = value;
  for (int column = 0; QWidget * widget : {static_cast<QWidget*>(caption), static_cast<QWidget*>(slider),
                                           static_cast<QWidget*>(spinner), static_cast<QWidget*>(value)}) {
    grid.addWidget(widget, static_cast<int>(index), column++);
  }
  connect(slider, &QSlider::valueChanged, this, [this, index] { FollowSlider(index); });
  connect(spinner, &QSpinBox::valueChanged, slider, &QSlider::setValue);
}

void NSColor::BuildCode() {
  sLabel_ = new QLineEdit(this);
  sLabel_->setObjectName(QStringLiteral("SLabel"));
  sLabel_->setAccessibleName(QStringLiteral("カラーコード"));
  sLabel_->setReadOnly(true);
  sLabel_->setAlignment(Qt::AlignCenter);
  sLabel_->setMinimumHeight(2 * sLabel_->sizeHint().height());
}

void NSColor::BuildLayout(QGridLayout& parts) {
  auto* all = new QVBoxLayout(this);
  all->addLayout(&parts);
  all->addWidget(sLabel_);
  all->addWidget(palette_);
  all->addStretch();
  all->addWidget(PickerButtons(*this, "Command_", QStringLiteral("&Cancel")));
}

void NSColor::Prepare(std::u16string_view title, std::u16string_view current) {
  setWindowTitle(ToQt(title));
  answer_.clear();
  const HtmlColor color = ClassCommon::HtmlColorToDecimal(current);
  SetParts(color.red, color.green, color.blue);
}

void NSColor::SetParts(int red, int green, int blue) {
  hScroll_[0]->setValue(red);
  hScroll_[1]->setValue(green);
  hScroll_[2]->setValue(blue);
}

void NSColor::FollowSlider(std::size_t index) {
  const int value = hScroll_[index]->value();
  upDoun_[index]->setValue(value);
  label_[index]->setNum(value);
  ShowColor();
  if (focusWidget() != hScroll_[index]) hScroll_[index]->setFocus();
}

// The keys stay with the swatches.
void NSColor::TakeNamed(const NamedColor& color) {
  QWidget* swatch = focusWidget();
  SetParts(color.red, color.green, color.blue);
  if (swatch != nullptr) swatch->setFocus();
}

void NSColor::ShowColor() {
  const QColor color(hScroll_[0]->value(), hScroll_[1]->value(), hScroll_[2]->value());
  sLabel_->setUpdatesEnabled(false);
  QPalette colors = sLabel_->palette();
  colors.setColor(QPalette::Base, color);
  colors.setColor(QPalette::Text, ReadableOnFace(Qt::black, color));
  sLabel_->setPalette(colors);
  sLabel_->setText(ToQt(ClassCommon::DecimalToHtmlColor(color.red(), color.green(), color.blue())));
  sLabel_->setUpdatesEnabled(true);
  palette_->Mark(color);
}

void NSColor::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) hScroll_[0]->setFocus();
}

void NSColor::accept() {
  answer_ = FromQt(sLabel_->text());
  QDialog::accept();
}

}  // namespace kestri
