// The folder bar beside the text, and what it asks of the window.
#include <QSplitter>
#include <QVBoxLayout>

#include "browse/forms/DirFrame.hpp"
#include "document/forms/HenFrm.hpp"
#include "platform/qt/qt_text.hpp"
#include "shell/forms/HTMLfrm.hpp"
#include "shell/forms/window_rectangles.hpp"

namespace kestri {

void HTMLfrm::MakeFolderBar() {
  frameReSise_->setObjectName(QStringLiteral("FrameReSise"));
  folderBarRoom_ = new QWidget;
  frameReSise_->insertWidget(0, folderBarRoom_);
  frameReSise_->setStretchFactor(0, 0);
  frameReSise_->setStretchFactor(1, 1);
  frameReSise_->setChildrenCollapsible(false);
  const int width = ToPixels(settings_.directoryTreeWidth);
  frameReSise_->setSizes({width, std::max(1, frameReSise_->width() - width)});
  connect(frameReSise_, &QSplitter::splitterMoved, this,
          [this] { settings_.directoryTreeWidth = ToTwips(folderBarRoom_->width()); });
}

void HTMLfrm::FillFolderBar() {
  if (!FolderBarVisible() || dirFrame_ != nullptr) return;
  dirFrame_ = new DirFrame(
      {.common = services_.common, .state = services_.state, .boxes = services_.boxes, .host = *this},
      folderBarRoom_);
  auto* layout = new QVBoxLayout(folderBarRoom_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(dirFrame_);
  layout->activate();
  dirFrame_->show();
  dirFrame_->Start(services_.state.currentFolder);
}

bool HTMLfrm::FolderBarVisible() const {
  return folderBarRoom_ != nullptr && !folderBarRoom_->isHidden();
}

void HTMLfrm::ShowFolderBar(bool visible) {
  if (visible == FolderBarVisible()) return;
  if (folderBarRoom_ == nullptr) MakeFolderBar();
  folderBarRoom_->setVisible(visible);
  if (!visible) return view_->setFocus();
  if (dirFrame_ != nullptr) return dirFrame_->Bar().ReadAgain();
  FillFolderBar();
}

void HTMLfrm::EnterFolderBar() {
  ShowFolderBar(true);
  FillFolderBar();
  dirFrame_->DirectoryTree1().setFocus();
}

bool HTMLfrm::OpenDocument(std::u16string_view path, bool readOnly) {
  return document_.OpenDocument(path, readOnly ? ReadOnly::Yes : ReadOnly::No);
}

void HTMLfrm::ConvertToHtml(std::u16string_view path) {
  TextToHtml conversion(document_, services_.common, services_.boxes);
  HenFrm dialog(conversion, services_.dialogs, this);
  dialog.SetSource(path);
  dialog.Run();
}

void HTMLfrm::InsertAtCaret(std::u16string_view text) {
  if (text_.RefuseIfLocked()) return;
  text_.ReplaceSelHwnd(text, true, true);
}

}  // namespace kestri
