// MainText: what each key and message does in the text, laid over the edit control.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/edit_control/edit_control.hpp"
#include "document/tag_assistance.hpp"
#include "platform/message_box.hpp"
#include "platform/window_services.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

// What the window that holds the text does for it.
class MainTextHost {
 public:
  virtual ~MainTextHost() = default;
  virtual void MessageToStatusBar(std::u16string_view text) = 0;
  virtual void SetStatusPane(int pane, std::u16string_view text) = 0;  // one-based
  // The first change since load or save, before the modified flag is set.
  virtual void DocumentModified() = 0;
  virtual void SetTextHidden(bool hidden) = 0;  // no painting of a half-done block operation
  virtual void FocusText() = 0;
  virtual void BringToFront() = 0;
  virtual void ShowTextMenu() = 0;  // the program's own context menu at the pointer
  enum class Decor { Full, ChangedLines };
  virtual void PaintTextDecor(Decor rows) = 0;
  virtual void ResetCaretMemo() = 0;        // the next PaintTextDecor repaints whatever the caret's position
  virtual void SetDragMode(bool drag) = 0;  // OLEDragMode 1 and OLEDropMode 2, or 0 and 1
  virtual void OpenDroppedFile(std::u16string_view path) = 0;    // in this window
  virtual void OpenInNewInstance(std::u16string_view path) = 0;  // quotes the path for the command line
};

// Key codes of KeyDown and KeyUp; all others are passed as 0.
enum KeyCode : int { kKeyTab = 9, kKeyEnd = 35, kKeyHome = 36, kKeyDelete = 46 };
enum ShiftBit : int { kShift = 1, kControl = 2, kAlt = 4 };

class MainText {
 public:
  MainText(EditControl& control, ApplicationState& state, const ClassCommon& common, MainTextHost& host,
           TagAssistance& tags, Clipboard& clipboard, MessageBox& boxes);

  EditControl& Control() { return control_; }

  // Mode 1 lays the rules of MainTextProc over the control, 0 takes them off; without them tabs are not
  // converted.
  void InstallSubclass(int mode);
  void InstallSubclassAsSet();  // by the setting SubClass, default 1
  bool Subclassed() const { return subclassed_; }

  // Events of the control, in the order in which a key raises them.
  bool KeyDown(int keyCode, int shift);  // true: swallowed
  char16_t KeyPress(char16_t keyAscii);  // the character to hand on, 0 when swallowed
  void KeyUp(int keyCode, int shift);
  void Change();
  void MouseDown();
  enum class Drop { Done, Refused };
  Drop OLEDropText(std::u16string_view text);
  Drop OLEDropFiles(const std::vector<std::u16string>& paths);
  Drop OLEDropOther();
  // A drag of the selection ends at a position of the text: one undo step, what was moved or copied stays
  // selected.
  enum class SelectionDrag { Move, Copy };
  void DropSelection(Position to, SelectionDrag drag);

  // Messages, all through MainTextProc. lParam of WM_CHAR: 1 from the keyboard, 0 or -1 from the program. A
  // locked control takes no character, no paste and no input.
  void WM_CHAR(char16_t character, int lParam);
  void WM_KEYDOWN(EditKey key, KeyModifiers modifiers);
  void WM_CUT();
  void WM_COPY();
  void WM_PASTE();
  void PasteAt(Position at, std::u16string_view text);  // of the middle button: treated as WM_PASTE's
  void WM_CLEAR();
  void EM_UNDO();
  void EM_REDO();
  void EM_SETSEL(Position start, Position end);
  void EM_REPLACESEL(std::u16string_view text);
  void WM_SETTEXT(std::u16string_view text);
  void WM_PAINT();  // after the text was painted; message 1151 comes to the same
  void WM_LBUTTONDOWN();
  void WM_BUTTONUP();  // left up, right down
  // With a button held, after the control has followed the mouse.
  void WM_MOUSEMOVE(Position selLengthBefore);
  bool WM_LBUTTONDBLCLK();  // true: a word was selected here; false: the control does its own
  bool WM_CONTEXTMENU();    // true: the program's own menu was shown
  void CommitInput(std::u16string_view text);  // text of the input method, in one piece

  // Text insertion helpers. Each replacement is one undo step; the redraw and scroll flags are the system's.
  std::u16string ExpandTabs(std::u16string_view text) const;
  void ReplaceSelRaw(std::u16string_view text, bool redraw, bool scroll);
  void ReplaceSelHwnd(std::u16string_view text, bool redraw, bool scroll);
  void ReplaceSelKeep(std::u16string_view text, bool redraw, bool scroll);
  void SelectWholeLines();
  void RefreshDecor();

  // Menu commands.
  void Edit(int index);     // 0 cut, 1 copy, 2 paste, 3 delete, 5 select all, 6 select the caret's line
  void MenUNDO(int index);  // 0 undo, 1 redo
  // Beep and "読み取り専用で開かれています" when the document is read-only.
  bool RefuseIfLocked();

  bool DragMode() const { return dragMode_; }

 private:
  class HiddenText;

  // Runs an action; an error that escapes it is told in a box. False then.
  bool Guarded(const std::function<void()>& action);

  // KeyPress, rule by rule: each answers with the character to hand on.
  char16_t ApplyKeyRules(char16_t key);
  char16_t PressEscape();
  char16_t PressEnter();
  char16_t PressIndentKey(char16_t key);
  char16_t PressTabWithoutSelection();
  char16_t PressTagOpen();
  char16_t PressBlankOrEquals(char16_t key);
  void ShiftBlock(char16_t key);
  void SmartHome();

  bool ConvertsTabs() const;
  std::u16string_view Expanded(std::u16string_view text, std::u16string& storage) const;
  bool NavigationAllowed() const;
  bool RefusedByAsciiArt();
  void OpenPopup(std::int32_t mode, char16_t key);

  void SendChar(char16_t character, int lParam);
  void DecorAfterChar(char16_t character, int lParam);
  void DecorAfterMove();
  void Refresh();
  void SoftRefresh();
  void SetDragMode(bool drag);
  void SelectWord();
  void Paste(std::u16string_view fromOutside, std::optional<Position> at);
  bool AcceptsLargePaste(std::u16string_view text);
  void OpenDropped(const std::vector<std::u16string>& files);
  void MoveOrCopySelection(Position to, SelectionDrag drag);
  void RunEdit(int index);
  std::int32_t SwitchOf(std::u16string_view setting) const;

  static constexpr std::int16_t kGateOpen = 9;
  static constexpr std::int16_t kGateClosed = -1;

  EditControl& control_;
  ApplicationState& state_;
  const ClassCommon& common_;
  MainTextHost& host_;
  TagAssistance& tags_;
  Clipboard& clipboard_;
  MessageBox& boxes_;
  // 9 between a KeyDown and its KeyPress. A key that brings no character closes it too: its KeyUp may be lost
  // to another window, and the next character of the program would be taken for a key.
  std::int16_t keyGate_ = kGateClosed;
  bool subclassed_ = false;
  bool dragMode_ = false;
};

}  // namespace kestri
