// Saving: from the control's text to the file.
#include "document/document.hpp"
#include "document/settings_values.hpp"
#include "shell/common/text.hpp"
#include "shell/common/unit_search.hpp"

namespace kestri {
namespace {

LineEnd LineEndOf(std::u16string_view kind) {
  if (kind == u"CR") return LineEnd::Cr;
  if (kind == u"LF") return LineEnd::Lf;
  return LineEnd::CrLf;
}

bool Holds(const EditControl& control, std::u16string_view unit) {
  return unit_search::Find(control.FirstPiece(), unit) != unit_search::npos ||
         unit_search::Find(control.SecondPiece(), unit) != unit_search::npos;
}

constexpr std::u16string_view kNotSaved = u"ﾌｧｲﾙが 保存できません!!";

}  // namespace

bool Document::OverwriteSave() {
  const std::u16string path = state_.currentFile;
  if (!Named() || !common_.PathExists(path)) return SaveAsDialog(u"");
  if (TellOverwriteRefusal(path)) return false;
  if (state_.modified == 0) return true;
  if (common_.IsFileAttribute(path, kAttributeDirectory)) return TellNotSaved(path) || SaveAsDialog(u"");
  if (!AgreesToOverwrite(path) || !backup_.Make(path)) return false;
  return Write(path) || SaveAsDialog(u"");
}

bool Document::TellOverwriteRefusal(const std::u16string& path) {
  std::u16string text;
  if (common_.IsFileAttribute(path, kAttributeReadOnly)) {
    text = u"ReadOnlyﾌｧｲﾙを上書きすることはできません";
  } else if (control_.Locked()) {
    text = u"読み取り専用で開かれたﾌｧｲﾙを 上書保存することはできません";
  } else {
    return false;
  }
  text.append(kCrLf).append(u"別のﾌｧｲﾙ名を指定して下さい");
  Ask(u"上書き保存ｴﾗｰ ", text, MessageIcon::Exclamation, MessageButtons::Ok);
  return true;
}

bool Document::WriteDocument(std::u16string_view target) {
  const std::u16string path(target);
  return (IsCurrentFile(path) ? AgreesToOverwrite(path) : AgreesToLossyCharacters(path)) && Write(path);
}

// By whatever name.
bool Document::IsCurrentFile(const std::u16string& path) const {
  if (!Named()) return false;
  if (path == state_.currentFile) return true;
  FileSystem& files = common_.PortSet().files;
  const auto now = files.Status(path);
  if (!now) return false;
  const bool sameFile = onDisk_ && now->inode != 0 && now->inode == onDisk_->inode;
  return sameFile || files.Canonical(path) == files.Canonical(state_.currentFile);
}

bool Document::Write(const std::u16string& path) {
  if (!common_.MakeDirectory(path)) {
    Ask(u"", u"指定した場所にﾌｧｲﾙを作成できませんでした", MessageIcon::Critical, MessageButtons::Ok);
    return false;
  }
  if (WriteText(path)) {
    FinishSaving(path);
    return true;
  }
  return TellNotSaved(path);
}

bool Document::TellNotSaved(const std::u16string& path) {
  WriteLog(kNotSaved, path);
  std::u16string text(kNotSaved);
  for (const auto* cause :
       {u"・ReadOnlyﾌｧｲﾙである", u"・他で開いている", u"・ﾗｲﾄﾌﾟﾛﾃｸﾄ", u"・容量に余裕が無い"}) {
    text.append(kCrLf).append(cause);
  }
  Ask(u"ﾌｧｲﾙ書き込みｴﾗｰ ", text, MessageIcon::Exclamation, MessageButtons::Ok);
  return false;
}

bool Document::WriteText(const std::u16string& path) const {
  const BusyPointer busy(common_.PortSet().window);
  if (common_.IsFileAttribute(path, kAttributeReadOnly | kAttributeDirectory)) return false;
  return common_.WriteTextPieces(path, control_.FirstPiece(), control_.SecondPiece(),
                                 LineEndOf(state_.lineEnd));
}

void Document::FinishSaving(const std::u16string& path) {
  const BusyPointer busy(common_.PortSet().window);
  if (SwitchedOn(common_, u"TextScrollPos")) {
    positions_.Remember(path, {window_.GetScrollPosition(), control_.SelStart()});
  }
  ApplyOpenedFile(path, ReadOnly::No, LineEndOnDisk());
  byteLoss_ = ByteLoss::None;
  history_.RegisterHistory(path);
  window_.MessageToStatusBar(u"保存完了");
  window_.RefreshTagView();
}

// A file saved with CR or LF stays one. A text that was never converted is named by what stands in it.
std::u16string Document::LineEndOnDisk() const {
  if (LineEndOf(state_.lineEnd) != LineEnd::CrLf) return state_.lineEnd;
  if (control_.LineCount() > 1) return u"CR+LF";
  const bool cr = Holds(control_, u"\r");
  const bool lf = Holds(control_, u"\n");
  if (cr && lf) return u"(不明)";
  if (!cr && !lf) return u"CR+LF";
  return cr ? u"CR" : u"LF";
}

}  // namespace kestri
