#include "shell/forms/HTMLfrm.hpp"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QFontDatabase>
#include <QMenu>
#include <QProcess>
#include <QScreen>
#include <QShortcut>
#include <QToolTip>

#include "browse/forms/WinShowFrm.hpp"
#include "document/forms/FreeIndFrm.hpp"
#include "document/forms/HenFrm.hpp"
#include "platform/qt/qt_text.hpp"
#include "search/forms/LineIndexFrm.hpp"
#include "shell/common/own_processes.hpp"
#include "shell/forms/icons.hpp"
#include "shell/window/new_document.hpp"
#include "shell/window/status_text.hpp"

namespace kestri {
namespace {

constexpr int kTwipsPerPixel = 15;

QRect ToPixels(const WindowRectangle& twips) {
  return {twips.left / kTwipsPerPixel, twips.top / kTwipsPerPixel, twips.width / kTwipsPerPixel,
          twips.height / kTwipsPerPixel};
}

WindowRectangle ToTwips(const QRect& pixels) {
  return {.left = pixels.left() * kTwipsPerPixel,
          .top = pixels.top() * kTwipsPerPixel,
          .width = pixels.width() * kTwipsPerPixel,
          .height = pixels.height() * kTwipsPerPixel};
}

WindowState StateOf(const QWidget& window) {
  if (window.isMinimized()) return WindowState::Minimized;
  return window.isMaximized() ? WindowState::Maximized : WindowState::Normal;
}

std::vector<std::u16string> ScreenFontFamilies() {
  std::vector<std::u16string> families;
  for (const QString& family : QFontDatabase::families()) families.push_back(FromQt(family));
  return families;
}

PixelRect ToPixelRect(const QRect& rect) {
  return {rect.left(), rect.top(), rect.width(), rect.height()};
}

}  // namespace

HTMLfrm::HTMLfrm(Services services, WindowSettings settings)
    : services_(std::move(services)),
      settings_(std::move(settings)),
      control_(services_.clipboard),
      tagServices_(control_),
      text_(control_, services_.state, services_.common, *this, tagServices_, services_.clipboard,
            services_.boxes),
      document_(control_, services_.state, services_.common, services_.boxes, services_.dialogs, *this,
                services_.fallbacks),
      popupForm_(this),
      popup_({.text = text_,
              .state = services_.state,
              .common = services_.common,
              .host = *this,
              .view = popupForm_,
              .place = *this,
              .hints = *this,
              .tagAnalyse = {},
              .screenFonts = &ScreenFontFamilies}),
      html_({.text = text_,
             .state = services_.state,
             .common = services_.common,
             .host = *this,
             .popup = popup_,
             .place = *this,
             .hints = *this,
             .tagAnalyse = {}}),
      transforms_(text_, services_.state, services_.common, *this),
      slots_(control_, services_.state, services_.common, document_, *this),
      commands_({.common = services_.common,
                 .state = services_.state,
                 .text = text_,
                 .document = document_,
                 .documentWindow = *this,
                 .html = html_,
                 .transforms = transforms_,
                 .slots = slots_,
                 .inputBox = services_.inputBox,
                 .boxes = services_.boxes,
                 .window = *this}) {
  tagServices_.AttachPopup(&popup_);
  tagServices_.AttachHints(this);
  popupForm_.Attach(&popup_);
  BuildBars();
  ConnectView();
  PlaceWindow();
  InstallSubclass();
  NewText(2, services_.common, document_, *this, services_.state, services_.inputBox);
  connect(&timeP_, &QTimer::timeout, this, [this] { TimeP(); });
  timeP_.start(settings_.timerPeriod);
}

// The view goes before the control that it listens to.
HTMLfrm::~HTMLfrm() {
  delete view_;
}

void HTMLfrm::BuildBars() {
  panes_ = new StatusPanes(this);
  actions_ = new CommandActions(commands_,
                                {.hint =
                                     [this](const QString& hint) {
                                       if (services_.state.menuHints != 0)
                                         panes_->SetPane(StatusPanes::kMessage, hint);
                                     },
                                 .unknownError =
                                     [this] {
                                       services_.boxes.Ask({.text = u"不明なｴﾗｰが発生しました",
                                                            .caption = std::u16string(kApplicationTitle),
                                                            .icon = MessageIcon::Exclamation});
                                     }},
                                this);
  actions_->BuildMenus(*menuBar());
  for (const SubmenuKey& row : SubmenuKeys()) {
    const QKeySequence key(QString::fromLatin1(row.key.data(), static_cast<qsizetype>(row.key.size())));
    connect(new QShortcut(key, this), &QShortcut::activated, this, [this, submenu = row.submenu] {
      actions_->PopUp(submenu, view_->viewport()->mapToGlobal(view_->CaretRect().bottomLeft()));
    });
  }
  toolBar_ = new ToolBar(*actions_, this);
  addToolBar(toolBar_);
  setStatusBar(panes_);
  view_ = new EditView(control_, text_, this);
  setCentralWidget(view_);
  toolBar_->setVisible(settings_.toolBarShow != 0);
  panes_->setVisible(settings_.statusBarShow != 0);
}

void HTMLfrm::ConnectView() {
  view_->SetTextFont(settings_.fontName, settings_.fontSize);
  view_->SetColorScheme(ReadColorScheme(settings_.colorLabel));
  view_->SetGuideLines(services_.state.gLine != 0);
  view_->SetLineEndMarks(settings_.eofMark != 0, settings_.eofMarkType);
  popupForm_.TakeKeysOf(view_);
  setFocusProxy(view_);
  view_->setFocus();
}

// Without the subclass the text is bare: no line numbers, no position, no marks, no lines.
void HTMLfrm::InstallSubclass() {
  text_.InstallSubclass(settings_.subClass);
  if (text_.Subclassed()) return;
  view_->SetLineNumbersShown(false);
  view_->SetPositionShown(false);
  view_->SetGuideLines(false);
  view_->SetLineEndMarks(false, settings_.eofMarkType);
}

void HTMLfrm::PlaceWindow() {
  const PlacementAtStart placement = PlacementOf(settings_.startUpWindow);
  const WindowRectangle& rectangle = placement.usePosition ? settings_.rectangle : WindowRectangle();
  const QRect wanted = ToPixels(KeepOnScreen(rectangle, ToTwips(ScreenArea())));
  if (placement.useSize) resize(wanted.size());
  if (placement.usePosition) move(wanted.topLeft());
  if (placement.maximized) setWindowState(Qt::WindowMaximized);
}

QRect HTMLfrm::ScreenArea() const {
  return screen()->availableGeometry();
}

void HTMLfrm::FinishLoading() {
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/kestrile.svg")));
  actions_->AddIcons();
  toolBar_->AddIcons();
  CountStart(services_.common);
  services_.instances.Announce([this] { return FromQt(windowTitle()); }, [this] { BringToFront(); });
}

bool HTMLfrm::OpenDocument(std::u16string_view path) {
  return document_.OpenDocument(path, ReadOnly::No);
}

void HTMLfrm::closeEvent(QCloseEvent* event) {
  popup_.Deactivate();
  if (!document_.ConfirmDiscard(u"終了")) {
    event->ignore();
    return;
  }
  timeP_.stop();
  SaveSettings();
  LeaveInstances();
  event->accept();
}

void HTMLfrm::SaveSettings() {
  settings_.rectangle = ToTwips(QRect(pos(), size()));
  SaveWindowSettings(services_.common, services_.state, settings_, StateOf(*this));
}

void HTMLfrm::LeaveInstances() {
  services_.instances.Withdraw();
  const bool last = CountOwnProcesses(services_.common.PortSet().environment) < 2;
  InstanceLog(services_.common, services_.state)
      .Unregister(last ? InstanceLog::Others::None : InstanceLog::Others::Running);
}

void HTMLfrm::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && !isActiveWindow()) popup_.Deactivate();
}

void HTMLfrm::TimeP() {
  panes_->SetPane(StatusPanes::kClock, ToQt(ClockText(services_.common.PortSet().clock.Now())));
  toolBar_->RefreshStates();
  if (view_->hasFocus()) tagServices_.seTagHint();
}

void HTMLfrm::MessageToStatusBar(std::u16string_view text) {
  panes_->SetPane(StatusPanes::kMessage, ToQt(StampedMessage(text, services_.common.PortSet().clock.Now())));
}

void HTMLfrm::SetStatusPane(int pane, std::u16string_view text) {
  panes_->SetPane(pane, ToQt(text));
}

void HTMLfrm::DocumentModified() {
  document_.TextChanged();
}

void HTMLfrm::SetTextHidden(bool hidden) {
  view_->SetTextHidden(hidden);
}

void HTMLfrm::FocusText() {
  view_->setFocus();
}

void HTMLfrm::BringToFront() {
  if (isMinimized()) showNormal();
  raise();
  activateWindow();
}

void HTMLfrm::ShowTextMenu() {
  static constexpr std::pair<std::string_view, int> kItems[] = {{"MenUNDO", 0}, {"MenUNDO", 1}, {"Edit", 0},
                                                                {"Edit", 1},    {"Edit", 2},    {"Edit", 3},
                                                                {"Edit", 5},    {"HTMLEdit", 4}};
  std::vector<const CommandRow*> rows;
  for (const auto& [array, index] : kItems) rows.push_back(FindCommand(array, index));
  QMenu menu(this);
  actions_->FillMenu(menu, rows);
  menu.exec(QCursor::pos());
}

void HTMLfrm::PaintTextDecor(Decor rows) {
  view_->PaintTextDecor(rows);
}

void HTMLfrm::ResetCaretMemo() {
  view_->ResetCaretMemo();
}

void HTMLfrm::SetDragMode(bool) {}

void HTMLfrm::OpenDroppedFile(std::u16string_view path) {
  if (document_.ConfirmDiscard(u"開く")) OpenDocument(path);
}

void HTMLfrm::OpenInNewInstance(std::u16string_view path) {
  QStringList arguments;
  if (!path.empty()) arguments << ToQtPath(path);
  QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
}

void HTMLfrm::SetCaption(std::u16string_view caption) {
  setWindowTitle(ToQt(caption));
}

// Without an icon of its own the window shows the program's.
void HTMLfrm::SetWindowIcon(std::u16string_view iconName) {
  setWindowIcon(QIcon::fromTheme(ToQt(iconName)));
}

void HTMLfrm::HTMLToolsEnable(bool) {
  toolBar_->RefreshStates();
}

ScrollPosition HTMLfrm::GetScrollPosition() {
  const EditView::ScrollState state = view_->ScrollPosition();
  return {.horizontal = state.x, .vertical = state.firstLine};
}

void HTMLfrm::SetScrollPosition(ScrollPosition position) {
  view_->SetScrollPosition({.firstLine = position.vertical, .x = position.horizontal});
}

void HTMLfrm::RefreshStatus() {
  view_->PaintTextDecor(Decor::Full);
}

void HTMLfrm::DocumentChanged() {
  popup_.Deactivate();
  ResetCaretMemo();
  PaintTextDecor(Decor::Full);
}

void HTMLfrm::ShowToolBar(bool visible) {
  toolBar_->setVisible(visible);
  services_.common.SetINI(services_.common.ExeName(), u"Bar", u"ToolBarShow0", visible ? u"1" : u"0");
}

void HTMLfrm::ShowStatusBar(bool visible) {
  panes_->setVisible(visible);
  services_.common.SetINI(services_.common.ExeName(), u"Bar", u"StatusBar0", visible ? u"1" : u"0");
}

void HTMLfrm::ShowVersion() {
  services_.boxes.Ask({.text = FromQt(services_.versionText), .caption = std::u16string(kApplicationTitle)});
}

void HTMLfrm::ShowFreeIndent() {
  if (!text_.RefuseIfLocked()) FreeIndFrm(transforms_, this).exec();
}

void HTMLfrm::ShowInsertBar() {
  if (insertBar_ == nullptr) insertBar_ = new EditSubFrm(transforms_, services_.common, *this, {}, this);
  insertBar_->show();
  insertBar_->activateWindow();
}

void HTMLfrm::ShowTextToHtml() {
  if (!document_.ConfirmDiscard(u"HTMLに変換して開く")) return;
  TextToHtml conversion(document_, services_.common, services_.boxes);
  HenFrm(conversion, services_.dialogs, this).Run();
}

void HTMLfrm::ShowWindowList() {
  const WindowList windows(services_.common, services_.state, services_.instances);
  WinShowFrm(windows, QIcon::fromTheme(QStringLiteral("text-html")), this).exec();
}

void HTMLfrm::ShowLineJump() {
  LineJump jump(text_, services_.common, services_.boxes, *this);
  LineIndexFrm(jump, this).exec();
}

std::optional<PixelRect> HTMLfrm::GetCaretPixel() {
  if (view_->GetCaretPixel() == QPoint(-9999, -9999)) return std::nullopt;
  const QRect caret = view_->CaretRect();
  return ToPixelRect(QRect(view_->viewport()->mapToGlobal(caret.topLeft()), caret.size()));
}

PixelRect HTMLfrm::ScreenOfCaret() {
  if (const QScreen* holder = QGuiApplication::screenAt(view_->GetCaretPixel())) {
    return ToPixelRect(holder->availableGeometry());
  }
  return ToPixelRect(ScreenArea());
}

void HTMLfrm::TipComments(std::u16string_view text) {
  QToolTip::showText(view_->viewport()->mapToGlobal(view_->CaretRect().bottomLeft()), ToQt(text), view_);
}

int HTMLfrm::TextWidth(std::u16string_view text) {
  return QFontMetrics(view_->Style().font).horizontalAdvance(ToQt(text)) * kTwipsPerPixel;
}

}  // namespace kestri
