// HTMLfrm: the editor window. It shows state and passes events; the rules live in the logic it owns.
#pragma once

#include <QDeadlineTimer>
#include <QMainWindow>
#include <QTimer>
#include <memory>

#include "browse/file_list.hpp"
#include "browse/folder_bar_host.hpp"
#include "document/document.hpp"
#include "document/forms/EditSubFrm.hpp"
#include "document/main_text.hpp"
#include "document/save_slots.hpp"
#include "document/text_transforms.hpp"
#include "platform/clipboard.hpp"
#include "platform/file_dialog.hpp"
#include "platform/input_box.hpp"
#include "platform/instances.hpp"
#include "platform/message_box.hpp"
#include "shell/forms/Toolbar1.hpp"
#include "shell/forms/command_actions.hpp"
#include "shell/forms/status_panes.hpp"
#include "shell/forms/tool_bar.hpp"
#include "shell/window/editor_commands.hpp"
#include "shell/window/load_progress.hpp"
#include "shell/window/window_settings.hpp"
#include "tags/forms/InToTAGFrm.hpp"
#include "tags/forms/LabelText.hpp"
#include "tags/forms/class_color.hpp"
#include "tags/forms/class_font_dialog.hpp"
#include "tags/forms/view_caret_place.hpp"
#include "tags/html_edit_commands.hpp"
#include "tags/tag_hint.hpp"
#include "tags/tag_services.hpp"
#include "ui/edit_view.hpp"
#include "ui/program_resources.hpp"

class QSessionManager;
class QSplitter;

namespace kestri {

class DirFrame;

class HTMLfrm : public QMainWindow,
                private MainTextHost,
                private DocumentWindow,
                private EditorWindow,
                private SwitchedWindow,
                private FileListWindow,
                private FolderBarHost {
 public:
  struct Services {
    const ClassCommon& common;
    ApplicationState& state;
    MessageBox& boxes;
    FileDialog& dialogs;
    InputBox& inputBox;
    Clipboard& clipboard;
    OpenFallbacks& fallbacks;
    Instances& instances;
    UiEffects& effects;
    InputMethodTools& inputMethodTools;
    LoadProgress* progress = nullptr;  // the splash, while it is up
    QString versionText;
  };

  HTMLfrm(Services services, WindowSettings settings);
  ~HTMLfrm() override;

  // Everything that can wait until the window stands: icons, the start count, the instance log.
  void FinishLoading();
  // The folder bar comes into its room once the document of the start stands: it begins in that one's folder.
  void FillFolderBar();
  // While the window loads behind a splash nothing in it can be used.
  void SetLoading(bool loading);

  // The question of a close, asked by a desktop that ends the session and closes the window right after it:
  // the answer counts for that close too.
  bool AgreesToEnd();

  bool OpenDocument(std::u16string_view path);
  void ShowFileList(FileListStart start);
  EditControl& Control() { return control_; }
  EditView& TextView() { return *view_; }
  InToTAGFrm& Popup() { return popupForm_; }
  CommandActions& Commands() { return *actions_; }
  StatusPanes& Panes() { return *panes_; }
  EditorCommands& CommandTarget() { return commands_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // The stages of the load, in their order.
  void Tell(std::u16string_view stage);
  void BuildMenus();
  void ShowHint(int hint);  // 0: takes the hint away
  void ApplySettings();
  void AddIcons();
  void AddToolIcons();
  void RestoreBars();
  void BarSet();
  void MakeFolderBar();
  void PlaceWindow();
  void InstallSubclass(int mode);
  void StartFirstDocument();

  // The stages of the close.
  void ShowClosing();
  void SaveSettings();
  void LeaveInstances();
  void CloseOtherForms();
  // The user logs out: the document is asked for here too.
  void EndOfSession(QSessionManager& session);

  void ApplyFont();
  void TimeP();
  void ConnectHint();
  QRect HintRectangle() const;  // pixels of the screen; empty while no hint is up
  std::u16string CaretText() const;

  // MainTextHost, DocumentWindow
  void MessageToStatusBar(std::u16string_view text) override;
  void SetStatusPane(int pane, std::u16string_view text) override;
  void DocumentModified() override;
  void SetTextHidden(bool hidden) override;
  void FocusText() override;
  void BringToFront() override;
  void ShowTextMenu() override;
  void PaintTextDecor(Decor rows) override;
  void ResetCaretMemo() override;
  void SetDragMode(bool) override {}  // the view asks the text for its mode at each press
  void OpenDroppedFile(std::u16string_view path) override;
  void OpenInNewInstance(std::u16string_view path) override;
  void SetCaption(std::u16string_view caption) override;
  void SetWindowIcon(std::u16string_view iconName) override;
  void HTMLToolsEnable(bool enable) override;
  ScrollPosition GetScrollPosition() override;
  void SetScrollPosition(ScrollPosition position) override;
  void RefreshTagView() override {}
  void RefreshStatus() override;
  void DocumentChanged() override;

  // EditorWindow
  void CloseWindow() override { close(); }
  void StartInstance(std::u16string_view path) override { OpenInNewInstance(path); }
  void ShowRecentFiles() override { ShowFileList({FileListView::Recent, false}); }
  void ShowNewDocuments() override { ShowFileList({FileListView::New, false}); }
  void ShowVersion() override;
  void ShowFreeIndent() override;
  void ShowInsertBar() override;
  void ShowTextToHtml() override;
  void ShowWindowList() override;
  void ShowLineJump() override;
  void ShowFontDialog() override;
  std::u16string AskColor(std::u16string_view current) override;
  InputMode InputModeShown() const override { return view_->ChosenInputMode(); }
  void ShowInputMode(InputMode mode) override { view_->SetInputMode(mode); }
  void RefreshAllControls() override;
  void EnterFolderBar() override;
  EditSubFrm::Dialogs InsertBarDialogs();

  // SwitchedWindow
  bool ToolBarVisible() const override { return floatingBar_->BarShown(); }
  void ShowToolBar(bool visible) override { floatingBar_->ShowBar(visible); }
  bool ToolBarDocked() const override { return floatingBar_->Docked(); }
  void DockToolBar(bool docked) override { floatingBar_->SetDocked(docked); }
  bool StatusBarVisible() const override { return !panes_->isHidden(); }
  void ShowStatusBar(bool visible) override { panes_->setVisible(visible); }
  bool FolderBarVisible() const override;
  void ShowFolderBar(bool visible) override;
  int FolderBarWidth() const override { return settings_.directoryTreeWidth; }
  void ShowGuideLines(bool visible) override { view_->SetGuideLines(visible); }
  bool LineNumbersVisible() const override { return text_.Subclassed(); }
  void ShowLineNumbers(bool visible) override { InstallSubclass(visible ? 1 : 0); }
  void ApplyTopMost() override;

  // FileListWindow
  bool OpenFromList(std::u16string_view path) override { return OpenDocument(path); }
  bool NewFromList(std::int16_t kind) override;

  // FolderBarHost
  bool ConfirmDiscard(std::u16string_view verb) override { return document_.ConfirmDiscard(verb); }
  bool OpenDocument(std::u16string_view path, bool readOnly) override;
  void OpenDialogAt(std::u16string_view folder) override { document_.OpenFileDialog(folder); }
  void SaveAsDialogAt(std::u16string_view folder) override { document_.SaveAsDialog(folder); }
  void ConvertToHtml(std::u16string_view path) override;
  void InsertAtCaret(std::u16string_view text) override;
  std::u16string CurrentFile() const override { return services_.state.currentFile; }

  Services services_;
  WindowSettings settings_;
  EditControl control_;
  TagServices tagServices_;
  MainText text_;
  EditView* view_;
  LabelText* labelText_;
  ViewCaretPlace caretPlace_;
  TagHint hints_;
  Document document_;
  InToTAGFrm popupForm_;
  InToTAG popup_;
  HtmlEditCommands html_;
  TextTransforms transforms_;
  SaveSlots slots_;
  ViewSwitches views_;
  ExternalPrograms programs_;
  InputMethodMenu inputMethod_;
  EditorCommands commands_;
  FileList fileList_;
  ClassColor colors_;
  ClassFontDialog fonts_;
  ProgramResources resources_;
  EditSubFrm* insertBar_ = nullptr;

  CommandActions* actions_ = nullptr;
  ToolBar* toolBar_ = nullptr;
  Toolbar1* floatingBar_ = nullptr;
  StatusPanes* panes_ = nullptr;
  QSplitter* frameReSise_ = nullptr;  // between folder bar and text
  QWidget* folderBarRoom_ = nullptr;
  DirFrame* dirFrame_ = nullptr;
  QTimer timeP_;
  std::u16string caption_;
  QDeadlineTimer agreedToEnd_;  // until then the question at the session's end counts for the close behind it
  QString iconName_;            // of the document's kind, in the icon theme
  bool loaded_ = false;         // pictures may be read
};

}  // namespace kestri
