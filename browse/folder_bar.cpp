#include "browse/folder_bar.hpp"

namespace kestri {
namespace {

constexpr int kPropertiesVerb = 2;  // modes of ExecuteShow
constexpr int kOpenVerb = 3;
constexpr int kExploreVerb = 1;
constexpr int kMyDocuments = static_cast<int>(SystemFolder::Documents);
constexpr int kWindowsFolder = static_cast<int>(SystemFolder::Windows);

std::u16string Quoted(std::u16string_view text) {
  return std::u16string(u"\"").append(text).append(u"\"");
}

}  // namespace

FolderBar::FolderBar(Around around)
    : directoryTree1(around.common),
      fileExtCombo(around.common),
      dirTreeFile(around.common),
      around_(around) {
  directoryTree1.ChangeDirectory = [this](std::u16string_view path, bool exists) {
    ChangeDirectory(path, exists);
  };
  fileExtCombo.Click = [this] { dirTreeFile.SetPattern(fileExtCombo.Pattern()); };
}

void FolderBar::Start(std::u16string_view folder) {
  const ClassCommon& common = around_.common;
  fileExtCombo.Fill();
  const bool there =
      common.DriveExists(common.CRoot(folder, 0)) && common.IsFileAttribute(folder, kAttributeDirectory);
  directoryTree1.SetPath(there ? std::u16string(folder) : common.GetSystemDirectory(kMyDocuments));
  if (directoryTree1.Path().empty()) directoryTree1.CreateTree();
}

void FolderBar::ReadAgain() {
  directoryTree1.DeletePath(Folder());
  directoryTree1.CreateTree();
}

void FolderBar::ChangeDirectory(std::u16string_view path, bool exists) {
  if (!exists) {
    dirTreeFile.SetPattern(DirTreeFile::kNoFile);
    SetListEnabled(false);
    return;
  }
  const bool wasDisabled = !dirTreeFile.Enabled();
  if (wasDisabled) SetListEnabled(true);
  if (wasDisabled) fileExtCombo.Click();
  dirTreeFile.SetPath(path);
}

void FolderBar::SetListEnabled(bool enabled) {
  dirTreeFile.SetEnabled(enabled);
  fileExtCombo.SetEnabled(enabled);
  if (EnabledChanged) EnabledChanged();
}

// The file list.

void FolderBar::OpenSelectedFile() {
  const std::u16string path = dirTreeFile.FilePath();
  if (path.empty() || !around_.host.ConfirmDiscard(u"開く")) return;
  if (!around_.host.OpenDocument(path, false)) return;
  fileExtCombo.RememberRow();
  around_.host.FocusText();
}

void FolderBar::FileListMouseUp(Shift shift) {
  if (!HasFileFor(FolderBarTool::FileInformation) || shift == Shift::Other) return;
  const bool view = shift == Shift::Shift || ShowsInfoOnSelect();
  around_.host.ShowFileInformation(dirTreeFile.FilePath(), view ? ShowFileView::Yes : ShowFileView::No);
}

void FolderBar::FileListMouseMove(std::optional<std::size_t> over) {
  if (!over || over != dirTreeFile.ListIndex()) around_.host.DismissFileTip();
}

// The tree's menus.

bool FolderBar::FolderReady() const {
  if (around_.common.PathExists(Folder())) return true;
  around_.boxes.Ask({.text = Quoted(Folder()) + u" は準備されていません",
                     .caption = std::u16string(kApplicationTitle),
                     .icon = MessageIcon::Critical});
  return false;
}

void FolderBar::RetryFolder() {
  if (FolderReady()) ReadAgain();
}

void FolderBar::RebuildTree() {
  if (!FolderReady()) return;
  directoryTree1.DeleteTree();
  directoryTree1.CreateTree();
}

void FolderBar::OpenFromFolder() {
  if (FolderReady() && around_.host.ConfirmDiscard(u"開く")) around_.host.OpenDialogAt(Folder());
}

void FolderBar::SaveInFolder() {
  if (FolderReady()) around_.host.SaveAsDialogAt(Folder());
}

void FolderBar::Grep() {
  if (FolderReady()) around_.host.Run(FolderBarTool::Grep, Folder());
}

void FolderBar::NewFolder() {
  if (!FolderReady()) return;
  if (directoryTree1.CreateNewDirectory()) {
    directoryTree1.RenameDirectory();
  } else {
    around_.common.PortSet().window.Beep();
  }
}

void FolderBar::RenameFolder() {
  if (FolderReady()) directoryTree1.RenameDirectory();
}

void FolderBar::FolderProperties() {
  if (FolderReady()) Execute(Folder(), kPropertiesVerb, u"");
}

void FolderBar::Explore() {
  if (around_.common.Style() == PathStyle::Posix) return Execute(Folder(), kExploreVerb, u"");
  const std::u16string windows = around_.common.GetSystemDirectory(kWindowsFolder);
  Execute(around_.common.Join(windows, u"EXPLORER.EXE"), kOpenVerb, u"/e," + Quoted(Folder()));
}

void FolderBar::ConvertImages() {
  const bool there = around_.common.PathExists(Folder());
  around_.host.Run(FolderBarTool::ImageConversion,
                   there ? Folder() : around_.common.GetSystemDirectory(kMyDocuments));
}

void FolderBar::PackFolder() {
  around_.host.Run(FolderBarTool::Pack, Folder());
}

// The sibling viewer under either of its names.
std::u16string FolderBar::PicPeekPath() const {
  for (const std::u16string_view name : {u"PicPeek.exe", u"PicPeek"}) {
    std::u16string path = around_.common.Join(around_.common.ProgramFolder(), name);
    if (around_.common.PathExists(path)) return path;
  }
  return {};
}

bool FolderBar::HasPicPeek() const {
  return !PicPeekPath().empty();
}

void FolderBar::ShowPictures() {
  Execute(PicPeekPath(), kOpenVerb, Quoted(Folder()));
}

void FolderBar::GoTo(SystemFolder folder) {
  directoryTree1.SetPath(around_.common.GetSystemDirectory(static_cast<int>(folder)));
}

// The file list's menus.

void FolderBar::OpenFile() {
  const std::u16string path = dirTreeFile.FilePath();
  if (!around_.host.ConfirmDiscard(u"開く")) return;
  around_.host.OpenDocument(path, around_.common.IsFileAttribute(path, kAttributeReadOnly));
}

void FolderBar::OpenInNewWindow() {
  around_.host.OpenInNewInstance(dirTreeFile.FilePath());
}

void FolderBar::OpenAsHtml() {
  if (around_.host.ConfirmDiscard(u"HTMLに変換して開く")) around_.host.ConvertToHtml(dirTreeFile.FilePath());
}

void FolderBar::OpenAssociated() {
  Execute(dirTreeFile.FilePath(), kOpenVerb, u"");
}

void FolderBar::FileProperties() {
  Execute(dirTreeFile.FilePath(), kPropertiesVerb, u"");
}

void FolderBar::FileViewInhfo() {
  around_.host.ShowFileInformation(dirTreeFile.FilePath(), ShowFileView::Yes);
}

void FolderBar::ExtractUrls() {
  const std::u16string path = dirTreeFile.FilePath();
  if (around_.host.ConfirmDiscard(u"URLの抽出")) around_.host.Run(FolderBarTool::UrlExtraction, path);
}

void FolderBar::Unpack() {
  around_.host.Run(FolderBarTool::Unpack, dirTreeFile.FilePath());
}

void FolderBar::PackFile() {
  around_.host.Run(FolderBarTool::Pack, dirTreeFile.FilePath());
}

// Empty for a document that lies in no folder yet, or on another drive.
std::u16string FolderBar::RelativePath() const {
  const ClassCommon& common = around_.common;
  const std::u16string current = around_.host.CurrentFile();
  if (common.CRoot(current, 0).empty()) return {};
  return common.RelaPath(current, dirTreeFile.FilePath(), u"/");
}

void FolderBar::PasteRelativePath() {
  around_.host.InsertAtCaret(RelativePath());
  around_.host.FocusText();
}

void FolderBar::InvertShowInfoOnSelect() {
  around_.state.showInfoOnSelect = ShowsInfoOnSelect() ? 0 : -1;
}

void FolderBar::Execute(std::u16string_view path, int mode, std::u16string_view parameters) const {
  if (around_.common.ExecuteShow(path, mode, parameters)) return;
  around_.host.MessageToStatusBar(Quoted(around_.common.CFile(path, 0)) + u" を開けません");
}

}  // namespace kestri
