// The dialogs and small windows that the commands open.
#include "browse/forms/FileListFrm.hpp"
#include "browse/forms/WinShowFrm.hpp"
#include "browse/window_list.hpp"
#include "document/forms/FreeIndFrm.hpp"
#include "document/forms/HenFrm.hpp"
#include "platform/qt/qt_text.hpp"
#include "search/forms/LineIndexFrm.hpp"
#include "shell/forms/HTMLfrm.hpp"
#include "shell/window/new_document.hpp"
#include "ui/window_helpers.hpp"

namespace kestri {

void HTMLfrm::ShowFileList(FileListStart start) {
  FileListFrm dialog(fileList_, start, this);
  ShowModalWindow(dialog, this);
}

bool HTMLfrm::NewFromList(std::int16_t kind) {
  return NewText(kind, services_.common, document_, *this, services_.state, services_.inputBox);
}

void HTMLfrm::ShowVersion() {
  services_.boxes.Ask({.text = FromQt(services_.versionText), .caption = std::u16string(kApplicationTitle)});
}

void HTMLfrm::ShowFreeIndent() {
  if (text_.RefuseIfLocked()) return;
  FreeIndFrm dialog(transforms_, this);
  ShowModalWindow(dialog, this);
}

void HTMLfrm::ShowInsertBar() {
  if (insertBar_ == nullptr)
    insertBar_ = new EditSubFrm(transforms_, services_.common, *this, InsertBarDialogs(), this);
  insertBar_->show();
  insertBar_->activateWindow();
}

EditSubFrm::Dialogs HTMLfrm::InsertBarDialogs() {
  return {.color = [this](std::u16string_view title) -> std::optional<std::u16string> {
            std::u16string color = colors_.SettingColor(title, u"", this);
            if (color.empty()) return std::nullopt;
            return color;
          },
          .font = [this](std::u16string_view title) -> std::optional<std::u16string> {
            fonts_.SetCaption(title);
            fonts_.SetFontName(settings_.fontName);
            if (!fonts_.ShowFont(this)) return std::nullopt;
            return fonts_.FontName();
          }};
}

void HTMLfrm::ShowTextToHtml() {
  if (!document_.ConfirmDiscard(u"HTMLに変換して開く")) return;
  TextToHtml conversion(document_, services_.common, services_.boxes);
  HenFrm(conversion, services_.dialogs, this).Run();
}

void HTMLfrm::ShowWindowList() {
  const WindowList windows(services_.common, services_.state, services_.instances);
  // It gives the front to the window that was chosen, so it is not taken back here.
  WinShowFrm(windows, QIcon::fromTheme(QStringLiteral("text-html")), this).exec();
}

void HTMLfrm::ShowLineJump() {
  LineJump jump(text_, services_.common, services_.boxes, *this);
  LineIndexFrm dialog(jump, this);
  ShowModalWindow(dialog, this);
}

void HTMLfrm::ShowFontDialog() {
  fonts_.SetCaption(u"ﾌｫﾝﾄの選択");
  fonts_.SetFontName(settings_.fontName);
  fonts_.SetFontSize(static_cast<std::int16_t>(settings_.fontSize));
  if (!fonts_.ShowFont(this)) return;
  settings_.fontName = fonts_.FontName();
  settings_.fontSize = fonts_.FontSize();
  ApplyFont();
  SaveFont(services_.common, settings_);
}

std::u16string HTMLfrm::AskColor(std::u16string_view current) {
  return colors_.SettingColor(u"HTMLｶﾗｰｺｰﾄﾞ取得", current, this);
}

void HTMLfrm::RefreshAllControls() {
  FormAllControlsRefresh(*this);
}

}  // namespace kestri
