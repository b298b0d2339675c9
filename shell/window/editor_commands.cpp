#include "shell/window/editor_commands.hpp"

#include "document/document_template.hpp"
#include "search/document_reports.hpp"
#include "shell/window/new_document.hpp"
#include "tags/mode_at_caret.hpp"

namespace kestri {

bool EditorCommands::Writable() const {
  return !around_.text.Control().Locked();
}

bool EditorCommands::CanUndo() const {
  return Writable() && around_.text.Control().EM_CANUNDO();
}

bool EditorCommands::CanRedo() const {
  return Writable() && around_.text.Control().EM_CANREDO();
}

bool EditorCommands::HasSelection() const {
  return around_.text.Control().SelLength() > 0;
}

bool EditorCommands::HasSelectionToCut() const {
  return Writable() && HasSelection();
}

bool EditorCommands::HasText() const {
  return around_.text.Control().Length() > 0;
}

bool EditorCommands::TagToolsOn() const {
  return around_.state.fileKind == kFileTypeHtml || around_.state.htmlNAV != 1;
}

void EditorCommands::New(std::int16_t kind) {
  if (!around_.document.ConfirmDiscard(u"新規作成")) return;
  NewText(kind, around_.common, around_.document, around_.documentWindow, around_.state, around_.inputBox);
}

void EditorCommands::ChooseNew() {
  if (around_.document.ConfirmDiscard(u"新規作成")) around_.window.ShowNewDocuments();
}

void EditorCommands::Open() {
  if (!around_.document.ConfirmDiscard(u"開く")) return;
  around_.document.OpenFileDialog(u"");
}

void EditorCommands::Save() {
  around_.document.OverwriteSave();
}

void EditorCommands::SaveAs() {
  around_.document.SaveAsDialog(u"");
}

void EditorCommands::OpenBlankWindow() {
  around_.window.StartInstance(u"");
}

void EditorCommands::OpenInNewWindow() {
  // The other process decides by itself how it opens the file.
  const auto answer = around_.document.AskFileToOpen(u"", kHideReadOnly);
  if (answer) around_.window.StartInstance(answer->fileName);
}

void EditorCommands::OpenCurrentFolder() {
  if (!around_.common.ExecuteShow(around_.state.currentFolder, 1, u""))
    around_.documentWindow.MessageToStatusBar(u"ﾌｫﾙﾀﾞを開けません");
}

std::u16string EditorCommands::HistoryEntry(int index) const {
  return around_.common.GetINI(around_.common.ExeName(), u"FileReg", u"FileReg" + FormatZeros(index, 2), u"");
}

std::u16string EditorCommands::HistoryCaption(int index) const {
  const std::u16string path = HistoryEntry(index);
  const std::u16string shown = path.empty() ? u"(なし)" : around_.common.CFile2(path);
  const std::u16string_view mnemonic = index < 10 ? u"&" : u"";
  return std::u16string(mnemonic) + ToText(index) + u" ： " + Replace(shown, u"&", u"&&");
}

bool EditorCommands::HistoryShown(int index) const {
  return index == 0 || !HistoryEntry(index).empty();
}

void EditorCommands::OpenHistory(int index) {
  if (!around_.document.ConfirmDiscard(u"開く")) return;
  const std::u16string path = HistoryEntry(index);
  around_.document.OpenDocument(path.empty() ? u"Empty!!" : path, ReadOnly::No);
}

void EditorCommands::OpenOtherRecentFile() {
  if (around_.document.ConfirmDiscard(u"最近使用したﾌｧｲﾙを開く")) around_.window.ShowRecentFiles();
}

void EditorCommands::ClearHistory() {
  around_.document.History().Clear();
}

void EditorCommands::Exit() {
  around_.window.CloseWindow();
}

void EditorCommands::Undo() {
  around_.text.MenUNDO(0);
}

void EditorCommands::Redo() {
  around_.text.MenUNDO(1);
}

void EditorCommands::Edit(int index) {
  around_.text.Edit(index);
}

void EditorCommands::HTMLEdit(int index) {
  around_.html.HTMLEdit_Click(index);
}

void EditorCommands::HTMLEditHINTS() {
  around_.html.HTMLEditHINTS();
}

void EditorCommands::CEdit(int index) {
  around_.html.CEdit_Click(index);
}

void EditorCommands::CandidatesAtCaret() {
  HTMLEdit(ModeAtCaret(around_.text.Control()));
}

void EditorCommands::CallUserInTo() {
  around_.html.mnuCallUserInTo_Click();
}

std::u16string EditorCommands::DefaultSlotCaption(std::u16string_view command) const {
  return u"ﾃﾞﾌｫﾙﾄｽﾛｯﾄ(" + ToText(Slots().DefaultSlot()) + u")  " + std::u16string(command);
}

void EditorCommands::ShowTotalIndex() {
  kestri::ShowTotalIndex(around_.text.Control(), around_.documentWindow);
}

void EditorCommands::ShowTotalBytes() {
  kestri::ShowTotalBytes(around_.text.Control(), around_.documentWindow);
}

void EditorCommands::ColorEdit() {
  if (around_.text.RefuseIfLocked()) return;
  const std::u16string color = around_.window.AskColor(around_.text.Control().SelText());
  if (!color.empty()) around_.text.ReplaceSelHwnd(color, true, true);
}

void EditorCommands::EditTemplate(int kind) {
  if (!around_.document.ConfirmDiscard(u"開く")) return;
  const std::u16string path = TemplatePath(around_.common, kind);
  if (TemplateExists(around_.common, kind)) {
    around_.document.OpenDocument(path, ReadOnly::No);
    return;
  }
  around_.document.SetDocumentText(u"", KeepModified::No);
  around_.document.ApplyOpenedFile(path, ReadOnly::No, u"CR+LF");
  // A save asks for the name, and begins where templates are looked for.
  around_.state.currentFolder = around_.common.CPath(path, -2);
}

void EditorCommands::OpenHelp(std::u16string_view fileName) {
  const std::u16string path =
      around_.common.Join(around_.common.Join(around_.common.ProgramFolder(), u"Help"), fileName);
  if (!around_.common.PathExists(path)) {
    around_.documentWindow.MessageToStatusBar(u"ﾍﾙﾌﾟﾌｧｲﾙが見つかりません");
  } else if (!around_.common.ExecuteShow(path, 3, u"")) {
    around_.documentWindow.MessageToStatusBar(u"ﾍﾙﾌﾟﾌｧｲﾙを開けません");
  }
}

void EditorCommands::ShowVersion() {
  around_.window.ShowVersion();
}

}  // namespace kestri
