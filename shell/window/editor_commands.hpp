// What the menu commands do. Each is one call on the document, the text or the tag assistance.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "document/document.hpp"
#include "document/main_text.hpp"
#include "document/save_slots.hpp"
#include "document/text_transforms.hpp"
#include "platform/input_box.hpp"
#include "platform/message_box.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"
#include "tags/html_edit_commands.hpp"

namespace kestri {

// What the commands need of the main window.
class EditorWindow {
 public:
  virtual ~EditorWindow() = default;
  virtual void CloseWindow() = 0;
  virtual void StartInstance(std::u16string_view path) = 0;  // another process; empty: a new document
  virtual bool ToolBarVisible() const = 0;
  virtual void ShowToolBar(bool visible) = 0;
  virtual bool StatusBarVisible() const = 0;
  virtual void ShowStatusBar(bool visible) = 0;
  virtual void ShowGuideLines(bool visible) = 0;
  virtual void ShowVersion() = 0;
  virtual void ShowFreeIndent() = 0;
  virtual void ShowInsertBar() = 0;
  virtual void ShowTextToHtml() = 0;
  virtual void ShowWindowList() = 0;
  virtual void ShowLineJump() = 0;
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

  bool ToolBarShown() const { return around_.window.ToolBarVisible(); }
  bool StatusBarShown() const { return around_.window.StatusBarVisible(); }
  bool GuideLinesShown() const { return around_.state.gLine != 0; }

  void New(std::int16_t kind);
  void Open();
  void Save();
  void SaveAs();
  void OpenBlankWindow();
  void OpenInNewWindow();
  void OpenCurrentFolder();
  std::u16string HistoryCaption(int index) const;
  bool HistoryShown(int index) const;  // the first place always, the others when in use
  void OpenHistory(int index);
  void ClearHistory();
  void Exit();

  // The answer of a read-only document to a command that would change it; nothing otherwise.
  void AnswerIfReadOnly() { around_.text.RefuseIfLocked(); }
  void Undo();
  void Redo();
  void Edit(int index);
  void IndentMore();
  void IndentLess();

  void HTMLEdit(int index);
  void CEdit(int index);
  void CandidatesAtCaret();
  void CallUserInTo();

  TextTransforms& Transforms() const { return around_.transforms; }
  SaveSlots& Slots() const { return around_.slots; }
  EditorWindow& Window() const { return around_.window; }
  std::u16string DefaultSlotCaption(std::u16string_view command) const;
  void ShowTotalIndex();
  void ShowTotalBytes();

  void ToggleToolBar();
  void ToggleStatusBar();
  void ToggleGuideLines();

  void OpenHelp(std::u16string_view fileName);
  void ShowVersion();

 private:
  void PressIntoText(char16_t keyAscii);
  std::u16string HistoryEntry(int index) const;

  Surroundings around_;
};

}  // namespace kestri
