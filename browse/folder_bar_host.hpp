// What the folder bar needs of the main window.
#pragma once

#include <string>
#include <string_view>

namespace kestri {

// Commands of the bar's menus that other subsystems carry out. One that is not there shows disabled.
enum class FolderBarTool {
  Grep,             // on a folder
  ImageConversion,  // on a folder
  Pack,             // a folder or a file
  Unpack,           // a file
  UrlExtraction,    // a file; the document was asked for before
  FileInformation,  // a file
};

enum class ShowFileView { No, Yes };

class FolderBarHost {
 public:
  virtual ~FolderBarHost() = default;

  // The save prompt for the present document under this heading. False: the user stays with it.
  virtual bool ConfirmDiscard(std::u16string_view verb) = 0;
  // Without the save prompt; tells the user by itself what went wrong. True when the text was loaded.
  virtual bool OpenDocument(std::u16string_view path, bool readOnly) = 0;
  virtual void OpenDialogAt(std::u16string_view folder) = 0;  // the save prompt has passed
  virtual void SaveAsDialogAt(std::u16string_view folder) = 0;
  virtual void OpenInNewInstance(std::u16string_view path) = 0;
  virtual void ConvertToHtml(std::u16string_view path) = 0;  // the save prompt has passed
  virtual void InsertAtCaret(std::u16string_view text) = 0;  // one undo step
  virtual std::u16string CurrentFile() const = 0;            // full path; without folder for a new document
  virtual void FocusText() = 0;
  virtual void MessageToStatusBar(std::u16string_view text) = 0;

  virtual bool Offers(FolderBarTool) const { return false; }
  virtual void Run(FolderBarTool, std::u16string_view) {}
  // FileViewInhfo on a file of the list: the tip and, when asked for, the view. Only where FileInformation is
  // offered.
  virtual void ShowFileInformation(std::u16string_view, ShowFileView) {}
  virtual void DismissFileTip() {}
};

}  // namespace kestri
