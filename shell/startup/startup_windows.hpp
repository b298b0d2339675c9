// Port: the windows that start-up opens and closes.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kestri {

enum class EditorInput { Enabled, Disabled };
enum class StartList { RecentFiles = 0, NewDocument = 1 };  // FileListFrm.Option1, by index
enum class StartListCheck { AsSaved, Greyed };              // FileListFrm.Check1: Greyed is value 2

class StartupWindows {
 public:
  virtual ~StartupWindows() = default;

  // RunArtFrm, modal.
  virtual void ShowOsWarning(std::u16string_view text) = 0;

  // TopFrm. ShowProgress puts the text into Label5 and lets it be painted.
  virtual void ShowSplash() = 0;
  virtual void ShowProgress(std::u16string_view text) = 0;
  virtual void UnloadSplash() = 0;

  // HTMLfrm. LoadEditor loads and shows it; with Disabled its menu, tool bar, text and form take no input
  // until EndLoading. False when the settings are damaged.
  virtual bool LoadEditor(EditorInput input) = 0;
  virtual void LoadPopup() = 0;  // InToTAGFrm
  virtual void EndLoading() = 0;
  virtual void ActivateEditor() = 0;  // the window active, the focus in MainText
  virtual void OpenDocument(std::u16string_view path) = 0;
  virtual void ShowFileList(StartList list, StartListCheck check) = 0;  // FileListFrm, modal

  // Windows of their own. False, or nothing, when the program comes without them.
  virtual bool ShowImageConversion() { return false; }  // IMGCFrm, on the current folder and file
  // ComplForm for the current file, over the window in front, which is disabled. Gives that window's handle.
  virtual std::optional<std::int64_t> ShowCompileWindow() { return std::nullopt; }
  virtual bool ShowUnpackWindow(std::u16string_view) { return false; }  // ArchiverFrm, long path
  virtual bool ShowPackWindow(std::u16string_view) { return false; }    // ArchiverZFrm, long path
};

}  // namespace kestri
