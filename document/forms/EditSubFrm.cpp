#include "document/forms/EditSubFrm.hpp"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "platform/qt/qt_text.hpp"
#include "platform/qt/title_room.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kSetting = u"Setting";
constexpr std::u16string_view kLeft = u"ToolLeft";  // twips
constexpr std::u16string_view kTop = u"ToolTop";    // twips
constexpr std::int32_t kFirstPlace = 1000;          // twips

// Wholly on a screen with its frame, on the first one when the place lies on none. Before the window stands
// nobody knows the frame: the style's has to do.
QPoint OnScreen(QPoint place, QSize size, const QStyle& style) {
  const QScreen* screen = QGuiApplication::screenAt(place);
  const int side = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  const QRect area = (screen == nullptr ? QGuiApplication::primaryScreen() : screen)
                         ->availableGeometry()
                         .adjusted(side, style.pixelMetric(QStyle::PM_TitleBarHeight), -side, -side);
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
  bar_->installEventFilter(this);
  BuildMenus();
  bar_->setMinimumWidth(RoomForTitle(*this));
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSizeConstraint(QLayout::SetFixedSize);
  all->addWidget(bar_);
}

EditSubFrm::~EditSubFrm() {
  if (isVisible()) Keep();
}

void EditSubFrm::BuildMenus() {
  QMenu* characters = bar_->addMenu(QStringLiteral("特殊文字(&M)"));
  for (int i = 0; const InsertRow& row : SpecialCharacterRows())
    AddRow(characters, row.caption, [this, index = i++] { transforms_.ToM(index); });
  QMenu* colors = bar_->addMenu(QStringLiteral("色(&C)"));
  for (int i = 0; const std::u16string_view caption : ColorRows())
    AddRow(colors, caption, [this, index = i++] { transforms_.Color(index); });
  colors->addSeparator();
  AddDialog(colors, kColorPickerCaption, kColorPickerTitle, dialogs_.color);
  QMenu* fonts = bar_->addMenu(QStringLiteral("ﾌｫﾝﾄ(&N)"));
  for (int i = 0; const std::u16string_view caption : FontRows())
    AddRow(fonts, caption, [this, index = i++] { transforms_.nFont(index); });
  fonts->addSeparator();
  AddDialog(fonts, kFontDialogCaption, kFontDialogTitle, dialogs_.font);
}

void EditSubFrm::AddRow(QMenu* menu, std::u16string_view caption, std::function<void()> insert) {
  menu->addAction(ToQt(caption), this, [this, insert = std::move(insert)] {
    insert();
    BackToText();
  });
}

void EditSubFrm::AddDialog(QMenu* menu, std::u16string_view caption, std::u16string_view title,
                           const AskText& ask) {
  QAction* action = menu->addAction(ToQt(caption), this, [this, title, &ask] {
    if (const std::optional<std::u16string> text = ask(title)) transforms_.Insert(*text);
    BackToText();
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
  BackToText();
}

// A bar that was used by its letters keeps the keys, and would swallow Esc.
bool EditSubFrm::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() != Qt::Key_Escape) return false;
  keyPressEvent(key);
  return true;
}

void EditSubFrm::BackToText() {
  if (parentWidget() != nullptr) parentWidget()->window()->activateWindow();
  host_.FocusText();
}

// The place is the inside's: where the frame begins is not known before the window stands.
void EditSubFrm::Restore() {
  const auto twips = [this](std::u16string_view key) {
    return ToLong(common_.GetINI(common_.ExeName(), kSetting, key, ToText(kFirstPlace)))
        .value_or(kFirstPlace);
  };
  const QPoint place(common_.ConvPixelX(twips(kLeft)), common_.ConvPixelY(twips(kTop)));
  setGeometry(QRect(OnScreen(place, size(), *style()), size()));
}

void EditSubFrm::Keep() {
  common_.SetINI(common_.ExeName(), kSetting, kLeft, ToText(common_.ConvTwipX(geometry().x())));
  common_.SetINI(common_.ExeName(), kSetting, kTop, ToText(common_.ConvTwipY(geometry().y())));
}

}  // namespace kestri
