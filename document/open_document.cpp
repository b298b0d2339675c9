// Opening: from a path to the control's text.
#include <algorithm>
#include <exception>

#include "document/document.hpp"
#include "document/document_template.hpp"
#include "document/settings_values.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kEmptyHistoryPlace = u"Empty!!";
constexpr std::size_t kAdvisedBytes = 32000;

// More characters than advised bytes are more bytes in any case.
bool IsLongerThanAdvised(std::u16string_view text) {
  return text.size() > kAdvisedBytes || code_page::EncodedLength(text) > kAdvisedBytes;
}

std::u16string_view WordsFor(ByteLoss loss) {
  switch (loss) {
    case ByteLoss::Unreadable:
      return u"ｼﾌﾄJISとして読めないﾃﾞｰﾀを「・」に置き換えて開きました";
    case ByteLoss::Utf8:
      return u"UTF-8のﾌｧｲﾙを ｼﾌﾄJISとして開きました";
    case ByteLoss::None:
      break;
  }
  return {};
}

}  // namespace

bool Document::OpenDocument(std::u16string_view path, ReadOnly readOnly) {
  Opening opening;
  opening.path = path;
  opening.readOnly = readOnly;
  OpenResult result = OpenResult::Declined;
  try {
    result = TryOpen(opening);
  } catch (const std::exception&) {
    result = OpenResult::TextRefused;  // no memory for a text of this size
  }
  opening.text = {};
  return result == OpenResult::Loaded || AfterFailedOpen(result, opening);
}

Document::OpenResult Document::TryOpen(Opening& opening) {
  if (opening.path.empty() || opening.path == kEmptyHistoryPlace) return OpenResult::NoName;
  const OpenResult read = Read(opening);
  if (read != OpenResult::Loaded) return read;
  if (!AcceptsLength(opening)) return OpenResult::Declined;
  const BusyPointer busy(common_.PortSet().window);
  if (!FillControl(std::move(opening.text), KeepModified::No)) return OpenResult::TextRefused;
  // Until it is named the text belongs to no file, least of all to the one that stood there before.
  state_.currentFile.clear();
  try {
    FinishOpening(opening);
  } catch (const std::exception&) {
    window_.MessageToStatusBar(u"不明なｴﾗｰが発生しました");
  }
  return OpenResult::Loaded;
}

Document::OpenResult Document::Read(Opening& opening) {
  const BusyPointer busy(common_.PortSet().window);
  if (!common_.PathExists(opening.path)) return OpenResult::NotFound;
  opening.path = AbsolutePath(opening.path);
  opening.longPath = common_.GetLongPath(opening.path);
  opening.onDisk = common_.PortSet().files.Status(opening.longPath);
  if (common_.IsFileAttribute(opening.longPath, kAttributeDirectory)) return OpenResult::Folder;
  // Two bytes give at least one character: no need to read what the control cannot hold.
  if (opening.onDisk && opening.onDisk->size / 2 > textLimit_ + 1) return OpenResult::TextRefused;
  const ClassCommon::TextRead read = common_.ReadWholeText(opening.longPath, opening.text, textLimit_);
  if (read == ClassCommon::TextRead::NoText) return KindOfNoText(opening.longPath);
  if (read == ClassCommon::TextRead::TooLong) return OpenResult::TextRefused;
  opening.loss = ByteLossOf(common_.PortSet().files, opening.longPath, opening.text);
  if (!IsTemplate(common_, opening.longPath)) opening.text = TabsToBlanks(std::move(opening.text));
  opening.lineEnd = ConvertLineEnds(opening.text);
  return OpenResult::Loaded;
}

Document::OpenResult Document::KindOfNoText(const std::u16string& longPath) {
  if (fallbacks_.SusieSupports(UCase(common_.CFile(longPath, 2)))) return OpenResult::Picture;
  if (SwitchedOn(common_, u"FileArcOpen") && fallbacks_.OpenArchiveQuietly(longPath))
    return OpenResult::Archive;
  return OpenResult::UnknownKind;
}

// Without a separator in front the path would depend on the process's folder, which follows the document. A
// link stays the name of the document.
std::u16string Document::AbsolutePath(std::u16string_view path) const {
  const bool relative = common_.Style() == PathStyle::Posix && path.front() != u'/';
  if (!relative) return std::u16string(path);
  FileSystem& files = common_.PortSet().files;
  if (common_.IsFileAttribute(path, kAttributeDirectory)) return files.Canonical(path);
  const auto slash = path.rfind(u'/');
  const bool named = slash == std::u16string_view::npos;
  const std::u16string whole = files.Canonical(named ? std::u16string_view(u".") : path.substr(0, slash));
  return whole.empty() ? std::u16string(path) : common_.Join(whole, path.substr(named ? 0 : slash + 1));
}

std::u16string Document::ConvertLineEnds(std::u16string& text) const {
  if (SwitchedOn(common_, u"CRLFCheck")) {
    std::u16string kind = ClassCommon::CrLfWinOrMac(text);
    if (kind == u"CR" || kind == u"LF") {
      text = ClassCommon::Rermutation2(text, kind == u"CR" ? u"\r" : u"\n", kCrLf, Compare::Binary, 0);
      return kind;
    }
  }
  return u"CR+LF";
}

bool Document::AcceptsLength(const Opening& opening) {
  if (!IsLongerThanAdvised(opening.text)) return true;
  std::u16string text = opening.path;
  text.append(kCrLf).append(u"32KB以上のﾃｷｽﾄが貼り付けられようとしています");
  text.append(kCrLf).append(kApplicationTitle);
  text.append(u" は 32KB以上のﾃｷｽﾄを編集する事を推奨していません");
  text.append(kCrLf).append(u"そのまま作業を進めますか？");
  return Ask(u"", text, MessageIcon::Exclamation, MessageButtons::YesNo, 2) == MessageAnswer::Yes;
}

void Document::FinishOpening(const Opening& opening) {
  RestoreReadingPosition(opening.path);
  ApplyOpenedFile(opening.path, opening.readOnly, opening.lineEnd, WordsFor(opening.loss));
  if (Named()) onDisk_ = opening.onDisk;  // it may have vanished while a question stood
  history_.RegisterHistory(opening.path);
  byteLoss_ = opening.loss;
  acceptedLoss_ = {};
}

void Document::RestoreReadingPosition(const std::u16string& path) {
  if (!SwitchedOn(common_, u"TextScrollPos")) return;
  const ReadingPosition position = positions_.Of(path);
  const RedrawOff frozen(control_);
  window_.SetScrollPosition(position.scroll);
  control_.SetSelStart(position.selStart);
}

}  // namespace kestri
