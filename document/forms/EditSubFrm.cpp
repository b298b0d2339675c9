#include "document/forms/EditSubFrm.hpp"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kSetting = u"Setting";
constexpr std::u16string_view kLeft = u"ToolLeft";  // twips
constexpr std::u16string_view kTop = u"ToolTop";    // twips
constexpr std::int32_t kFirstPlace = 1000;          // twips

// Wholly on a screen, on the nearest one when the place lies on none.
QPoint OnScreen(QPoint place, QSize size) {
  const QScreen* screen = QGuiApplication::screenAt(place);
  const QRect area = (screen == nullptr ? QGuiApplication::primaryScreen() : screen)->availableGeometry();
  const int left = std::max(area.left(), std::min(place.x(), area.left() + area.width() - size.width()));
  const int top = std::max(area.top(), std::min(place.y(), area.top() + area.height() - size.height()));
  return {left, top};
}

}  // namespace

EditSubFrm::EditSubFrm(TextTransforms& transforms, const ClassCommon& common, MainTextHost& host,
                       Dialogs dialogs, QWidget* owner)
    : QWidget(owner, Qt::Tool),
      transforms_(transforms),
      common_(common),
      host_(host),
      dialogs_(std::move(dialogs)) {
  setObjectName(QStringLiteral("EditSubFrm"));
  setWindowTitle(ToQt(std::u16string(u"MenuBar for ").append(kApplicationTitle)));
  bar_ = new QMenuBar(this);
  bar_->setNativeMenuBar(false);
  BuildMenus();
  bar_->setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) + 3 * fontMetrics().height());
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSizeConstraint(QLayout::SetFixedSize);
  all->addWidget(bar_);
}

EditSubFrm::~EditSubFrm() {
  if (isVisible()) Keep();
}

void EditSubFrm::BuildMenus() {
  QMenu* characters = bar_->addMenu(QStringLiteral("特殊文字(&S)"));
  for (int i = 0; const InsertRow& row : SpecialCharacterRows())
    AddRow(characters, row.caption, [this, index = i++] { transforms_.ToM(index); });
  QMenu* colors = bar_->addMenu(QStringLiteral("色(&C)"));
  for (int i = 0; const std::u16string_view caption : ColorRows())
    AddRow(colors, caption, [this, index = i++] { transforms_.Color(index); });
  colors->addSeparator();
  AddDialog(colors, kColorPickerCaption, kColorPickerTitle, dialogs_.color);
  QMenu* fonts = bar_->addMenu(QStringLiteral("ﾌｫﾝﾄ(&F)"));
  for (int i = 0; const std::u16string_view caption : FontRows())
    AddRow(fonts, caption, [this, index = i++] { transforms_.nFont(index); });
  fonts->addSeparator();
  AddDialog(fonts, kFontDialogCaption, kFontDialogTitle, dialogs_.font);
}

void EditSubFrm::AddRow(QMenu* menu, std::u16string_view caption, std::function<void()> insert) {
  menu->addAction(ToQt(caption), this, [this, insert = std::move(insert)] {
    insert();
    host_.FocusText();
  });
}

void EditSubFrm::AddDialog(QMenu* menu, std::u16string_view caption, std::u16string_view title,
                           const AskText& ask) {
  QAction* action = menu->addAction(ToQt(caption), this, [this, title, &ask] {
    if (const std::optional<std::u16string> text = ask(title)) transforms_.Insert(*text);
    host_.FocusText();
  });
  action->setEnabled(static_cast<bool>(ask));
}

void EditSubFrm::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) Restore();
  QWidget::showEvent(event);
}

void EditSubFrm::hideEvent(QHideEvent* event) {
  if (!event->spontaneous()) Keep();
  QWidget::hideEvent(event);
}

void EditSubFrm::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
  close();
  host_.FocusText();
}

void EditSubFrm::Restore() {
  const auto twips = [this](std::u16string_view key) {
    return ToLong(common_.GetINI(common_.ExeName(), kSetting, key, ToText(kFirstPlace)))
        .value_or(kFirstPlace);
  };
  move(OnScreen({common_.ConvPixelX(twips(kLeft)), common_.ConvPixelY(twips(kTop))}, frameSize()));
}

void EditSubFrm::Keep() {
  common_.SetINI(common_.ExeName(), kSetting, kLeft, ToText(common_.ConvTwipX(x())));
  common_.SetINI(common_.ExeName(), kSetting, kTop, ToText(common_.ConvTwipY(y())));
}

}  // namespace kestri
