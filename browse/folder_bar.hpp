// The folder bar of the main window: tree, kinds of file, file list, and what is done with the folder or file
// chosen there.
#pragma once

#include <string>
#include <string_view>

#include "browse/dir_tree_file.hpp"
#include "browse/directory_tree.hpp"
#include "browse/file_ext_combo.hpp"
#include "browse/folder_bar_host.hpp"
#include "platform/message_box.hpp"
#include "shell/common/application_state.hpp"

namespace kestri {

class FolderBar {
 public:
  struct Around {
    const ClassCommon& common;
    ApplicationState& state;
    MessageBox& boxes;
    FolderBarHost& host;
  };
  explicit FolderBar(Around around);
  FolderBar(const FolderBar&) = delete;
  FolderBar& operator=(const FolderBar&) = delete;

  DirectoryTree directoryTree1;
  FileExtCombo fileExtCombo;
  DirTreeFile dirTreeFile;
  // The list or the drop-down list was switched on or off.
  std::function<void()> EnabledChanged;

  // The bar is shown for the first time. My documents stand in for a folder whose drive is not there.
  void Start(std::u16string_view folder);
  // What the bar shows: the tree's folder, with the disk read anew.
  void ReadAgain();

  void LeaveToText() { around_.host.FocusText(); }

  // The file list.
  void OpenSelectedFile();  // double click
  enum class Shift { None, Shift, Other };
  void FileListMouseUp(Shift shift);  // button 1, over the selected file or outside of all
  void FileListMouseMove(std::optional<std::size_t> over);

  // DirTreeSubMenu. Each drops out with a message when the tree's folder is gone.
  void RetryFolder();
  void RebuildTree();
  void OpenFromFolder();
  void SaveInFolder();
  void Grep();
  void NewFolder();
  void RenameFolder();
  void FolderProperties();
  // DirTreeSubSubMenu, DirTreeBookMenu
  void Explore();
  void ConvertImages();
  void PackFolder();
  void ShowPictures();
  void GoTo(SystemFolder folder);

  // DirTreeFileSubMenu and its sub-menus, on the selected file.
  void OpenFile();
  void OpenInNewWindow();
  void OpenAsHtml();
  void OpenAssociated();
  void FileProperties();
  void FileViewInhfo();
  void ExtractUrls();
  void Unpack();
  void PackFile();
  void PasteRelativePath();
  void InvertShowInfoOnSelect();

  bool HasFile() const { return dirTreeFile.ListIndex().has_value(); }
  bool HasFileFor(FolderBarTool tool) const { return HasFile() && Offers(tool); }
  bool Offers(FolderBarTool tool) const { return around_.host.Offers(tool); }
  bool HasPicPeek() const;
  bool CanRename() const { return directoryTree1.BeforeLabelEdit(); }
  bool CanPasteRelativePath() const { return HasFile() && !RelativePath().empty(); }
  bool ShowsInfoOnSelect() const { return around_.state.showInfoOnSelect != 0; }
  const ClassCommon& Common() const { return around_.common; }

 private:
  void ChangeDirectory(std::u16string_view path, bool exists);
  void SetListEnabled(bool enabled);
  bool FolderReady() const;
  std::u16string RelativePath() const;
  std::u16string PicPeekPath() const;
  void Execute(std::u16string_view path, int mode, std::u16string_view parameters) const;
  const std::u16string& Folder() const { return directoryTree1.Path(); }

  Around around_;
};

}  // namespace kestri
