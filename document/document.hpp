// The one document of a window: how a file becomes the text of MainText and how the text returns to disk.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "document/backup.hpp"
#include "document/byte_loss.hpp"
#include "document/document_log.hpp"
#include "document/document_window.hpp"
#include "document/edit_control/edit_control.hpp"
#include "document/file_history.hpp"
#include "document/instance_log.hpp"
#include "document/lossy_characters.hpp"
#include "document/reading_positions.hpp"
#include "platform/file_dialog.hpp"
#include "platform/message_box.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

enum class ReadOnly { No, Yes };
enum class KeepModified { No, Yes };

class Document {
 public:
  Document(EditControl& control, ApplicationState& state, const ClassCommon& common, MessageBox& boxes,
           FileDialog& dialogs, DocumentWindow& window, OpenFallbacks& fallbacks);

  // Each of these tells the user what went wrong by itself. True when the text was loaded or stands on disk.
  bool OpenDocument(std::u16string_view path, ReadOnly readOnly);
  bool OpenFileDialog(std::u16string_view startFolder);  // empty: the current folder
  // The same dialog alone, with more of the dialog's flags.
  std::optional<FileDialogAnswer> AskFileToOpen(std::u16string_view startFolder, std::uint32_t moreFlags = 0);
  bool SaveAsDialog(std::u16string_view startFolder);
  bool OverwriteSave();
  bool WriteDocument(std::u16string_view path);

  EditControl& Control() const { return control_; }
  // Fills MainText while its change event is muted. False when the control cannot hold the text.
  bool SetDocumentText(std::u16string text, KeepModified keep);
  // Common end of open, save and new: names the document and shows its state. A path that does not exist is
  // the name of a new document; only the name, without folder, then becomes the current file.
  void ApplyOpenedFile(std::u16string_view path, ReadOnly readOnly, std::u16string_view lineEnd) {
    ApplyOpenedFile(path, readOnly, lineEnd, u"");
  }
  std::u16string TabsToBlanks(std::u16string text) const;
  // False: stay with this document. The caption names the command that would leave it; may be empty.
  bool ConfirmDiscard(std::u16string_view caption);
  bool WriteLog(std::u16string_view message, std::u16string_view subject) const;
  void RegisterHistory(std::u16string_view path) const { history_.RegisterHistory(path); }

  // The control's change event: the first one after a load or save marks the caption.
  void TextChanged();

  // Longest text that MainText takes, in UTF-16 units.
  void LimitText(std::size_t units) { textLimit_ = units; }

  const FileHistory& History() const { return history_; }

 private:
  // Why nothing was opened; the order is that of the messages.
  enum class OpenResult {
    NoName = 0,
    NotFound = 1,
    UnknownKind = 2,
    TextRefused = 3,
    Folder = 4,
    Picture = 5,
    Archive = 6,
    Declined = 7,
    Loaded,
  };
  struct Opening {
    std::u16string path;
    std::u16string longPath;
    ReadOnly readOnly = ReadOnly::No;
    std::optional<FileStatus> onDisk;
    std::u16string text;
    std::u16string lineEnd;
    ByteLoss loss = ByteLoss::None;
  };

  // Opening.
  OpenResult TryOpen(Opening& opening);
  OpenResult Read(Opening& opening);
  OpenResult KindOfNoText(const std::u16string& longPath);
  std::u16string ConvertLineEnds(std::u16string& text) const;
  bool AcceptsLength(const Opening& opening);
  void FinishOpening(const Opening& opening);
  void RestoreReadingPosition(const std::u16string& path);
  std::u16string AbsolutePath(std::u16string_view path) const;

  // What follows when nothing was opened. The texts returned go to the log.
  bool AfterFailedOpen(OpenResult result, const Opening& opening);
  std::u16string TellNoName();
  std::u16string TellNotFound(const std::u16string& path);
  std::u16string OfferAssociatedProgram(const std::u16string& path);
  std::u16string OfferWordProcessor(const std::u16string& path);
  std::u16string ShowPicture(const std::u16string& path);
  void Execute(const std::u16string& target, std::u16string_view parameters);

  // Saving.
  bool TellOverwriteRefusal(const std::u16string& path);
  bool IsCurrentFile(const std::u16string& path) const;
  bool AgreesToOverwrite(const std::u16string& path);
  bool AgreesToForeignChange(const std::u16string& path);
  bool AgreesToByteLoss(const std::u16string& path);
  bool AgreesToLossyCharacters(const std::u16string& path);
  bool AskAboutLoss(const std::u16string& path, const LossyCharacter& added);
  bool Write(const std::u16string& path);
  bool WriteText(const std::u16string& path) const;
  bool TellNotSaved(const std::u16string& path);  // false
  void FinishSaving(const std::u16string& path);
  std::u16string LineEndOnDisk() const;

  // The document's state on display. The remark is told behind what there is to say of the file itself.
  void ApplyOpenedFile(std::u16string_view path, ReadOnly readOnly, std::u16string_view lineEnd,
                       std::u16string_view remark);
  void ReplaceText(std::u16string_view text);
  bool FillControl(std::u16string text, KeepModified keep);
  void NameDocument(const std::u16string& path);
  void ChangeFolder();
  std::u16string TitlePart(const std::u16string& path) const;
  struct ReadOnlyDecision {
    bool locked = false;
    std::u16string_view mark;
    std::u16string_view message;
  };
  ReadOnlyDecision DecideReadOnly(const std::u16string& path, ReadOnly readOnly) const;
  void ShowLineEnd(std::u16string_view lineEnd);
  void ShowCaption();

  std::u16string StartFolder(std::u16string_view folder) const;
  bool Named() const { return onDisk_.has_value(); }
  MessageAnswer Ask(std::u16string_view caption, std::u16string text, MessageIcon icon,
                    MessageButtons buttons, int defaultButton = 1);

  EditControl& control_;
  ApplicationState& state_;
  const ClassCommon& common_;
  MessageBox& boxes_;
  FileDialog& dialogs_;
  DocumentWindow& window_;
  OpenFallbacks& fallbacks_;
  DocumentLog log_;
  FileHistory history_;
  InstanceLog instances_;
  ReadingPositions positions_;
  Backup backup_;

  std::size_t textLimit_ = kLongestText;
  std::u16string titlePart_;
  std::u16string_view readOnlyMark_;
  std::optional<FileStatus> onDisk_;    // the file as this document knows it; nothing for a new document
  ByteLoss byteLoss_ = ByteLoss::None;  // what the file holds and the text does not
  struct AcceptedLoss {
    std::u16string path;
    std::set<char32_t> characters;
  };
  AcceptedLoss acceptedLoss_;  // characters outside the code page that the user agreed to save as others
};

// The application's waiting pointer for as long as this stands.
class BusyPointer {
 public:
  explicit BusyPointer(WindowServices& services) : services_(services) { services_.SetBusyPointer(true); }
  ~BusyPointer() { services_.SetBusyPointer(false); }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  WindowServices& services_;
};

}  // namespace kestri
