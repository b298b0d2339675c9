#include "shell/forms/HTMLfrm.hpp"

#include <QApplication>
#include <QSessionManager>
#include <QShortcut>
#include <QSplitter>
#include <QWindow>

#include "browse/forms/DirFrame.hpp"
#include "platform/qt/japanese_labels.hpp"
#include "platform/qt/qt_text.hpp"
#include "shell/forms/icons.hpp"
#include "shell/forms/menu_hint_text.hpp"
#include "shell/forms/window_rectangles.hpp"
#include "shell/window/new_document.hpp"
#include "ui/top_most.hpp"

namespace kestri {

HTMLfrm::HTMLfrm(Services services, WindowSettings settings)
    : services_(std::move(services)),
      settings_(std::move(settings)),
      control_(services_.clipboard),
      tagServices_(control_),
      text_(control_, services_.state, services_.common, *this, tagServices_, services_.clipboard,
            services_.boxes),
      view_(new EditView(control_, text_, this)),
      labelText_(new LabelText(
          *view_, [this] { return view_->viewport()->geometry(); },
          {.points = settings_.hintCharacter.fontSize, .style = settings_.hintCharacter.fontStyle})),
      caretPlace_(*view_),
      hints_({.control = control_,
              .common = services_.common,
              .place = caretPlace_,
              .box = *labelText_,
              .wrap = settings_.hintCharacter.wrap}),
      document_(control_, services_.state, services_.common, services_.boxes, services_.dialogs, *this,
                services_.fallbacks),
      popupForm_(this),
      popup_({.text = text_,
              .state = services_.state,
              .common = services_.common,
              .host = *this,
              .view = popupForm_,
              .place = caretPlace_,
              .hints = hints_,
              .tagAnalyse = {},
              .screenFonts = &ScreenFontFamilies,
              .paintStatus = [this] { panes_->repaint(); }}),
      html_({.text = text_,
             .state = services_.state,
             .common = services_.common,
             .host = *this,
             .popup = popup_,
             .place = caretPlace_,
             .hints = hints_,
             .tagAnalyse = {}}),
      transforms_(text_, services_.state, services_.common, *this),
      slots_(control_, services_.state, services_.common, document_, *this),
      views_(services_.common, services_.state, services_.boxes, services_.effects, *this),
      programs_(services_.common, services_.state, services_.boxes),
      inputMethod_(services_.inputMethodTools, services_.boxes),
      commands_({.common = services_.common,
                 .state = services_.state,
                 .text = text_,
                 .document = document_,
                 .documentWindow = *this,
                 .html = html_,
                 .transforms = transforms_,
                 .slots = slots_,
                 .views = views_,
                 .programs = programs_,
                 .inputMethod = inputMethod_,
                 .inputBox = services_.inputBox,
                 .boxes = services_.boxes,
                 .window = *this}),
      fileList_(services_.common, *this),
      resources_(services_.common) {
  tagServices_.AttachPopup(&popup_);
  tagServices_.AttachHints(&hints_);
  ConnectHint();
  popupForm_.Attach(&popup_);
  fonts_.SetStylesOffered(false);
  frameReSise_ = new QSplitter(this);
  frameReSise_->addWidget(view_);
  setCentralWidget(frameReSise_);
  Tell(u"ﾒﾓﾘ初期化中...");
  BuildMenus();
  Tell(u"ｱﾌﾟﾘｹｰｼｮﾝ設定中...");
  ApplySettings();
  if (services_.progress != nullptr) AddIcons();
  services_.effects.SetAnimation(services_.state.menuAnimation, UiEffects::kMenus);
  services_.effects.SetAnimation(services_.state.menuAnimation, UiEffects::kComboBoxes);
  Tell(u"ﾒﾆｭｰﾋﾝﾄ設定中...");
  Tell(u"ﾂｰﾙﾊﾞｰ復元中...");
  RestoreBars();
  Tell(u"ｳｨﾝﾄﾞｳｻｲｽﾞ復元中...");
  PlaceWindow();
  Tell(u"ｻﾌﾞｸﾗｽ化設定中...");
  InstallSubclass(settings_.subClass);
  Tell(u"初期ﾌｧｲﾙ設定中...");
  StartFirstDocument();
  connect(qApp, &QGuiApplication::commitDataRequest, this,
          [this](QSessionManager& session) { EndOfSession(session); });
  connect(qApp, &QGuiApplication::focusWindowChanged, this,
          [this] { RefreshTopMost(services_.state.topMost); });
  connect(&timeP_, &QTimer::timeout, this, [this] { TimeP(); });
  timeP_.start(settings_.timerPeriod);
}

// The folder bar goes before the window that it asks, the view before the control that it listens to.
HTMLfrm::~HTMLfrm() {
  delete dirFrame_;
  delete view_;
}

void HTMLfrm::Tell(std::u16string_view stage) {
  if (services_.progress != nullptr) services_.progress->Show(stage);
  labelText_->SetText(stage);
}

void HTMLfrm::ConnectHint() {
  caretPlace_.hintBox = [this] { return HintRectangle(); };
  labelText_->pressed = [this] {
    hints_.DismissHint();
    view_->setFocus();
  };
}

QRect HTMLfrm::HintRectangle() const {
  if (!labelText_->isVisible()) return {};
  return {labelText_->mapToGlobal(QPoint()), labelText_->size()};
}

void HTMLfrm::BuildMenus() {
  panes_ = new StatusPanes(this);
  actions_ = new CommandActions(commands_,
                                {.hint = [this](int hint) { ShowHint(hint); },
                                 .starting = [this] { view_->CommitComposition(); },
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
}

void HTMLfrm::ShowHint(int hint) {
  if (services_.state.menuHints != 0) panes_->SetPane(StatusPanes::kMessage, MenuHintText(resources_, hint));
}

void HTMLfrm::ApplySettings() {
  SetCaption(services_.state.captionTail + u" ＮＯＷ　ＬＯＡＤＩＮＧ");
  ApplyFont();
  const ColorScheme scheme = ReadColorScheme(settings_.colorLabel);
  settings_.colorLabel = scheme.name;
  view_->SetColorScheme(scheme);
  view_->SetGuideLines(services_.state.gLine != 0);
  view_->SetLineEndMarks(settings_.eofMark != 0, settings_.eofMarkType);
  popupForm_.TakeKeysOf(view_);
  setFocusProxy(view_);
  view_->setFocus();
}

void HTMLfrm::ApplyFont() {
  view_->SetTextFont(settings_.fontName, settings_.fontSize);
}

void HTMLfrm::AddIcons() {
  Tell(u"ﾘｿｰｽ中からｱｲｺﾝ抽出中...");
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/kestrile.svg")));
  if (toolBar_ != nullptr) AddToolIcons();
  if (settings_.menIcon == 0) return;
  Tell(u"ﾒﾆｭｰｱｲｺﾝ設定中...");
  actions_->AddIcons();
}

void HTMLfrm::AddToolIcons() {
  toolBar_->AddIcons(settings_.menIcon != 0 ? ToolBar::MenuIcons::With : ToolBar::MenuIcons::Without);
}

void HTMLfrm::RestoreBars() {
  toolBar_ = new ToolBar(*actions_, this,
                         {.fileKind = [this] { return services_.state.fileKind; },
                          .externalProgram = [this](int index) { return programs_.ProgramName(index); },
                          .hintGone = [this] { ShowHint(0); }});
  addToolBar(toolBar_);
  floatingBar_ = new Toolbar1(
      {.owner = *this, .bar = *toolBar_, .common = services_.common, .closeRequested = [this] { BarSet(); }},
      settings_.toolBar);
  if (services_.progress != nullptr) AddToolIcons();
  setStatusBar(panes_);
  panes_->setMinimumHeight(ToPixels(settings_.statusBarHeight));
  floatingBar_->ShowBar(settings_.toolBarShow != 0);
  panes_->setVisible(settings_.statusBarShow != 0);
  if (settings_.folderBarShow != 0) MakeFolderBar();
}

// By the settings as they stand in the file now.
void HTMLfrm::BarSet() {
  const auto shown = [this](std::u16string_view key) {
    return services_.common.GetINI(services_.common.ExeName(), u"Bar", key, u"1") != u"0";
  };
  floatingBar_->ShowBar(shown(u"ToolBarShow0"));
  panes_->setVisible(shown(u"StatusBar0"));
  ShowFolderBar(shown(u"DirTree"));
  view_->setFocus();
}

void HTMLfrm::PlaceWindow() {
  const PlacementAtStart placement = PlacementOf(settings_.startUpWindow);
  const WindowRectangle& rectangle = placement.usePosition ? settings_.rectangle : WindowRectangle();
  const QRect screen = ScreenAreaAt(ToPixels(rectangle).center(), *this);
  const QRect wanted = ToPixels(KeepOnScreen(rectangle, ToTwips(screen)));
  if (placement.useSize) resize(wanted.size());
  if (placement.usePosition) move(wanted.topLeft());
  if (placement.maximized) setWindowState(Qt::WindowMaximized);
}

void HTMLfrm::InstallSubclass(int mode) {
  view_->InstallSubclass(mode);
}

void HTMLfrm::StartFirstDocument() {
  NewText(2, services_.common, document_, *this, services_.state, services_.inputBox, UseTemplate::No);
}

void HTMLfrm::FinishLoading() {
  if (services_.progress == nullptr) AddIcons();
  services_.progress = nullptr;
  loaded_ = true;
  setWindowIcon(QIcon::fromTheme(iconName_));
  InstallJapaneseLabels();
  CountStart(services_.common);
  services_.instances.Announce([this] { return caption_; }, [this] { BringToFront(); });
}

void HTMLfrm::SetLoading(bool loading) {
  menuBar()->setEnabled(!loading);
  toolBar_->setEnabled(!loading);
  frameReSise_->setEnabled(!loading);
  setEnabled(!loading);
  if (!loading) view_->setFocus();
}

}  // namespace kestri
