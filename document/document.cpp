#include "document/document.hpp"

#include <algorithm>
#include <exception>

#include "document/document_template.hpp"
#include "document/settings_values.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kChangedMark = u"(変更)";
constexpr std::u16string_view kReadOnlyMark = u"(読取)";

// The change event does nothing while this stands; a failure in between leaves the flags as they were.
class MutedChange {
 public:
  explicit MutedChange(ApplicationState& state)
      : state_(state), modified_(state.modified), shown_(state.modifiedShown) {
    state_.modified = -1;
    state_.modifiedShown = -1;
  }
  ~MutedChange() {
    state_.modified = modified_;
    state_.modifiedShown = shown_;
  }
  MutedChange(const MutedChange&) = delete;
  MutedChange& operator=(const MutedChange&) = delete;

 private:
  ApplicationState& state_;
  std::int16_t modified_;
  std::int16_t shown_;
};

std::u16string_view KindPane(std::int32_t fileKind) {
  if (fileKind == kFileTypeHtml) return u"HTML";
  if (fileKind == kFileTypeAsciiArt) return u"AA";
  return u"";
}

// The status bar shows one message: a second one would hide the first.
std::u16string InOneLine(std::u16string_view first, std::u16string_view second) {
  std::u16string line(first);
  if (!first.empty() && !second.empty()) line += u"  ";
  return line.append(second);
}

}  // namespace

Document::Document(EditControl& control, ApplicationState& state, const ClassCommon& common,
                   MessageBox& boxes, FileDialog& dialogs, DocumentWindow& window, OpenFallbacks& fallbacks)
    : control_(control),
      state_(state),
      common_(common),
      boxes_(boxes),
      dialogs_(dialogs),
      window_(window),
      fallbacks_(fallbacks),
      log_(common),
      history_(common),
      instances_(common, state),
      positions_(common),
      backup_(common, boxes, fallbacks) {}

bool Document::WriteLog(std::u16string_view message, std::u16string_view subject) const {
  return log_.WriteLog(message, subject);
}

MessageAnswer Document::Ask(std::u16string_view caption, std::u16string text, MessageIcon icon,
                            MessageButtons buttons, int defaultButton) {
  return boxes_.Ask({.text = std::move(text),
                     .caption = std::u16string(caption).append(kApplicationTitle),
                     .icon = icon,
                     .buttons = buttons,
                     .defaultButton = defaultButton});
}

std::u16string Document::TabsToBlanks(std::u16string text) const {
  if (state_.tabASeT == -1 || state_.tabSpaceCount == 0) return text;
  const auto tabs = static_cast<std::size_t>(std::count(text.begin(), text.end(), u'\t'));
  if (tabs == 0) return text;
  const auto width = static_cast<std::size_t>(std::max(0, 4 * state_.tabSpaceCount));
  std::u16string blanks;
  blanks.reserve(text.size() - tabs + tabs * width);
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t tab = std::min(text.find(u'\t', from), text.size());
    blanks.append(text, from, tab - from);
    if (tab < text.size()) blanks.append(width, u' ');
    from = tab + 1;
  }
  return blanks;
}

bool Document::SetDocumentText(std::u16string text, KeepModified keep) {
  try {
    return FillControl(state_.tabsKept != 0 ? std::move(text) : TabsToBlanks(std::move(text)), keep);
  } catch (const std::exception&) {
    return false;
  }
}

bool Document::FillControl(std::u16string text, KeepModified keep) {
  if (text.size() > textLimit_) return false;
  {
    const MutedChange muted(state_);
    keep == KeepModified::Yes ? ReplaceText(text) : control_.SetText(std::move(text));
  }
  window_.RefreshStatus();
  const bool changed = keep == KeepModified::Yes;
  control_.SetModified(changed);
  state_.modified = changed ? -1 : 0;
  state_.modifiedShown = state_.modified;
  if (changed) window_.SetStatusPane(2, u"変更あり");
  ShowCaption();
  return true;
}

// Another text over unsaved work: one undo step brings that back.
void Document::ReplaceText(std::u16string_view text) {
  control_.EM_SETSEL(0, -1);
  control_.EM_REPLACESEL(true, text);
  control_.EM_SETSEL(0, 0);
}

void Document::TextChanged() {
  if (state_.modified != 0) return;
  state_.modified = -1;
  ShowCaption();
}

void Document::ShowCaption() {
  std::u16string caption = titlePart_;
  caption.append(readOnlyMark_);
  if (state_.modified != 0) caption.append(kChangedMark);
  window_.SetCaption(caption.append(state_.captionTail));
}

void Document::ApplyOpenedFile(std::u16string_view openedPath, ReadOnly readOnly, std::u16string_view lineEnd,
                               std::u16string_view remark) {
  const std::u16string path(openedPath);
  NameDocument(path);
  state_.fileKind = common_.FileTypeReturn(path);
  state_.tabsKept = IsTemplate(common_, path) ? -1 : 0;
  window_.SetStatusPane(4, KindPane(state_.fileKind));
  window_.SetWindowIcon(Named() ? common_.GetFileIcon(path, 1) : std::u16string());
  state_.modified = 0;
  state_.modifiedShown = 0;
  control_.SetModified(false);
  const ReadOnlyDecision decision = DecideReadOnly(path, readOnly);
  titlePart_ = TitlePart(path);
  readOnlyMark_ = decision.mark;
  ShowCaption();
  window_.MessageToStatusBar(InOneLine(decision.message, remark));
  ShowLineEnd(lineEnd);
  if (control_.Locked() != decision.locked) control_.SetLocked(decision.locked);
  window_.HTMLToolsEnable(state_.fileKind == kFileTypeHtml || state_.htmlNAV != 1);
  instances_.Register(path);
  if (Named() && SwitchedOn(common_, u"WINDOWS_Favorites"))
    common_.PortSet().shell.AddToRecentDocuments(path);
  window_.DocumentChanged();
}

void Document::NameDocument(const std::u16string& path) {
  if (path != state_.currentFile) {
    byteLoss_ = ByteLoss::None;
    acceptedLoss_ = {};
  }
  onDisk_ = path.empty() ? std::nullopt : common_.PortSet().files.Status(path);
  if (!Named()) {
    state_.currentFile = common_.CFile(path, 0);
    return;
  }
  state_.currentFile = path;
  state_.currentFolder = common_.AppPath2(common_.CPath(path, -2));
  ChangeFolder();
}

void Document::ChangeFolder() {
  Environment& environment = common_.PortSet().environment;
  if (environment.ChangeFolder(state_.currentFolder)) return;
  environment.ChangeFolder(environment.Folder(SystemFolder::Documents));
}

std::u16string Document::TitlePart(const std::u16string& path) const {
  const bool wholePath = Named() && SwitchedOn(common_, u"CaptionFilePath");
  return WithoutControls(wholePath ? path : common_.CFile(path, 0));
}

Document::ReadOnlyDecision Document::DecideReadOnly(const std::u16string& path, ReadOnly readOnly) const {
  const ReadOnlyDecision locked{true, kReadOnlyMark, u"読み取り専用で開きました"};
  if (!Named()) return {};
  if (readOnly == ReadOnly::Yes) return locked;
  if (!common_.IsFileAttribute(path, kAttributeReadOnly)) return {};
  if (!SwitchedOn(common_, u"ReadOnlyCheck")) return locked;
  return {false, u"", u"読み取り専用を解除して開きました"};
}

void Document::ShowLineEnd(std::u16string_view lineEnd) {
  // Pane 2 tells of a new kind once; otherwise it only loses the mark of a change.
  window_.SetStatusPane(2, lineEnd == state_.lineEnd ? std::u16string_view() : lineEnd);
  window_.SetStatusPane(3, lineEnd);
  state_.lineEnd = lineEnd;
}

bool Document::ConfirmDiscard(std::u16string_view caption) {
  if (state_.modified != -1) return true;
  const std::u16string name = Named() ? common_.CFile(state_.currentFile, 0) : state_.currentFile;
  std::u16string heading(caption.empty() ? u"ﾃﾞｰﾀが変更されています" : caption);
  std::u16string text = u"ﾃﾞｰﾀが変更されています  上書き保存をしますか?";
  text.append(kCrLf).append(u"\"").append(name).append(u"\"");
  switch (Ask(heading.append(u"  "), text, MessageIcon::Exclamation, MessageButtons::YesNoCancel)) {
    case MessageAnswer::Yes:
      return OverwriteSave();
    case MessageAnswer::No:
      return true;
    default:
      return false;
  }
}

}  // namespace kestri
