// HTMLfrm: the editor window. It shows state and passes events; the rules live in the logic it owns.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <memory>

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
#include "shell/forms/command_actions.hpp"
#include "shell/forms/status_panes.hpp"
#include "shell/forms/tool_bar.hpp"
#include "shell/window/editor_commands.hpp"
#include "shell/window/window_settings.hpp"
#include "tags/forms/InToTAGFrm.hpp"
#include "tags/html_edit_commands.hpp"
#include "tags/tag_services.hpp"
#include "ui/edit_view.hpp"

namespace kestri {

class HTMLfrm : public QMainWindow,
                private MainTextHost,
                private DocumentWindow,
                private EditorWindow,
                private CaretPlace,
                private TagHints {
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
    QString versionText;
  };

  HTMLfrm(Services services, WindowSettings settings);
  ~HTMLfrm() override;

  // Everything that can wait until the window stands: icons, the start count, the instance log.
  void FinishLoading();

  bool OpenDocument(std::u16string_view path);
  EditControl& Control() { return control_; }
  EditView& TextView() { return *view_; }
  Document& CurrentDocument() { return document_; }
  InToTAGFrm& Popup() { return popupForm_; }
  CommandActions& Commands() { return *actions_; }
  StatusPanes& Panes() { return *panes_; }
  EditorCommands& CommandTarget() { return commands_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void BuildBars();
  void ConnectView();
  void InstallSubclass();
  void PlaceWindow();
  void SaveSettings();
  void LeaveInstances();
  void TimeP();
  QRect ScreenArea() const;

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
  void SetDragMode(bool drag) override;
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
  bool ToolBarVisible() const override { return !toolBar_->isHidden(); }
  void ShowToolBar(bool visible) override;
  bool StatusBarVisible() const override { return !panes_->isHidden(); }
  void ShowStatusBar(bool visible) override;
  void ShowGuideLines(bool visible) override { view_->SetGuideLines(visible); }
  void ShowVersion() override;
  void ShowFreeIndent() override;
  void ShowInsertBar() override;
  void ShowTextToHtml() override;
  void ShowWindowList() override;
  void ShowLineJump() override;

  // CaretPlace
  std::optional<PixelRect> GetCaretPixel() override;
  PixelRect ScreenOfCaret() override;
  PixelRect HintBox() override { return {}; }
  int FontPoints() override { return settings_.fontSize; }
  int TextWidth(std::u16string_view text) override;
  bool TextHasFocus() override { return view_->hasFocus(); }

  // TagHints. Hints do not follow the caret; a text that must be told stands in a tool tip at the caret.
  bool HintVisible() override { return false; }
  void seTagHide() override {}
  void seTagHint() override {}
  bool seTagHintPriSet() override { return false; }
  void DismissHint() override {}
  void TipComments(std::u16string_view text) override;

  Services services_;
  WindowSettings settings_;
  EditControl control_;
  TagServices tagServices_;
  MainText text_;
  Document document_;
  InToTAGFrm popupForm_;
  InToTAG popup_;
  HtmlEditCommands html_;
  TextTransforms transforms_;
  SaveSlots slots_;
  EditorCommands commands_;
  EditSubFrm* insertBar_ = nullptr;

  CommandActions* actions_ = nullptr;
  ToolBar* toolBar_ = nullptr;
  StatusPanes* panes_ = nullptr;
  EditView* view_ = nullptr;
  QTimer timeP_;
};

}  // namespace kestri
