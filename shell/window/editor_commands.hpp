// What the menu commands do. Each is one call on the document, the text or the tag assistance.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/document.hpp"
#include "document/input_mode.hpp"
#include "document/main_text.hpp"
#include "document/save_slots.hpp"
#include "document/text_transforms.hpp"
#include "platform/input_box.hpp"
#include "platform/message_box.hpp"
#include "run/external_programs.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"
#include "shell/window/view_switches.hpp"
#include "tags/html_edit_commands.hpp"

namespace kestri {

// What the commands need of the main window.
class EditorWindow {
 public:
  virtual ~EditorWindow() = default;
  virtual void CloseWindow() = 0;
  virtual void StartInstance(std::u16string_view path) = 0;  // another process; empty: a new document
  virtual void ShowRecentFiles() = 0;
  virtual void ShowNewDocuments() = 0;
  virtual void ShowVersion() = 0;
  virtual void ShowFreeIndent() = 0;
  virtual void ShowInsertBar() = 0;
  virtual void ShowTextToHtml() = 0;
  virtual void ShowWindowList() = 0;
  virtual void ShowLineJump() = 0;
  virtual void ShowFontDialog() = 0;
  virtual std::u16string AskColor(std::u16string_view current) = 0;  // "#RRGGBB"; empty when cancelled
  virtual InputMode InputModeShown() const = 0;
  virtual void ShowInputMode(InputMode mode) = 0;
  virtual void RefreshAllControls() = 0;
  virtual void EnterFolderBar() = 0;  // the keyboard goes there; a hidden bar comes first
};

class EditorCommands {
 public:
  struct Surroundings {
    const ClassCommon& common;
    ApplicationState& state;
    MainText& text;
    Document& document;
    DocumentWindow& documentWindow;
    HtmlEditCommands& html;
    TextTransforms& transforms;
    SaveSlots& slots;
    ViewSwitches& views;
    ExternalPrograms& programs;
    InputMethodMenu& inputMethod;
    InputBox& inputBox;
    MessageBox& boxes;
    EditorWindow& window;
  };
  explicit EditorCommands(Surroundings surroundings) : around_(surroundings) {}

  // When a command may run.
  bool Always() const { return true; }
  bool Never() const { return false; }
  bool CanUndo() const;
  bool CanRedo() const;
  bool Writable() const;
  bool HasSelection() const;
  bool HasSelectionToCut() const;
  bool HasText() const;
  bool TagToolsOn() const;  // HTML documents, or all when the setting says so

  void New(std::int16_t kind);
  void ChooseNew();
  void Open();
  void Save();
  void SaveAs();
  void OpenBlankWindow();
  void OpenInNewWindow();
  void OpenCurrentFolder();
  std::u16string HistoryCaption(int index) const;
  bool HistoryShown(int index) const;  // the first place always, the others when in use
  void OpenHistory(int index);
  void OpenOtherRecentFile();
  void ClearHistory();
  void Exit();

  // The answer of a read-only document to a command that would change it; nothing otherwise.
  void AnswerIfReadOnly() { around_.text.RefuseIfLocked(); }
  void Undo();
  void Redo();
  void Edit(int index);

  void HTMLEdit(int index);
  void HTMLEditHINTS();
  void CEdit(int index);
  void CandidatesAtCaret();
  void CallUserInTo();
  void ColorEdit();

  void EditTemplate(int kind);  // an empty one when there is none yet

  TextTransforms& Transforms() const { return around_.transforms; }
  SaveSlots& Slots() const { return around_.slots; }
  ViewSwitches& Views() const { return around_.views; }
  ExternalPrograms& Programs() const { return around_.programs; }
  InputMethodMenu& InputMethod() const { return around_.inputMethod; }
  EditorWindow& Window() const { return around_.window; }
  std::u16string DefaultSlotCaption(std::u16string_view command) const;
  void ShowTotalIndex();
  void ShowTotalBytes();

  void OpenHelp(std::u16string_view fileName);
  void ShowVersion();

 private:
  std::u16string HistoryEntry(int index) const;

  Surroundings around_;
};

}  // namespace kestri
