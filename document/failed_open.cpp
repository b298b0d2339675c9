// What the user is told and offered when a file did not open as text.
#include "document/document.hpp"
#include "shell/common/image_viewer.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

std::u16string Quoted(std::u16string_view text) {
  return (std::u16string(u"\"").append(text)) + u"\"";
}

}  // namespace

bool Document::AfterFailedOpen(OpenResult result, const Opening& opening) {
  std::u16string logText;
  switch (result) {
    case OpenResult::NoName:
      logText = TellNoName();
      break;
    case OpenResult::NotFound:
      logText = TellNotFound(opening.path);
      break;
    case OpenResult::UnknownKind:
      logText = OfferAssociatedProgram(opening.path);
      break;
    case OpenResult::TextRefused:
      logText = OfferWordProcessor(opening.path);
      break;
    case OpenResult::Folder:
      return OpenFileDialog(opening.path);
    case OpenResult::Picture:
      logText = ShowPicture(opening.path);
      break;
    case OpenResult::Archive:
      fallbacks_.ShowArchive(opening.path);
      break;
    case OpenResult::Declined:
    case OpenResult::Loaded:
      break;
  }
  if (!logText.empty()) WriteLog(logText, opening.longPath);
  return false;
}

std::u16string Document::TellNoName() {
  std::u16string text = u"開くﾃﾞｰﾀがありません";
  text.append(kCrLf).append(u"開きたいﾌｧｲﾙ名を指定してください");
  Ask(u"FileName = NULL  ", text, MessageIcon::Exclamation, MessageButtons::Ok);
  return u"開くﾃﾞｰﾀがありません";
}

std::u16string Document::TellNotFound(const std::u16string& path) {
  std::u16string text = u"ﾌｧｲﾙ " + Quoted(path) + u" が見付かりません";
  Ask(u"開く ", text, MessageIcon::Exclamation, MessageButtons::Ok);
  return text;
}

std::u16string Document::OfferAssociatedProgram(const std::u16string& path) {
  std::u16string text = u"不明な理由でﾌｧｲﾙが開けません";
  text.append(kCrLf).append(u"ﾃｷｽﾄﾌｧｲﾙ以外の可能性があります");
  text.append(kCrLf).append(u"ﾌｧｲﾙを関連付けて開きますか");
  if (Ask(u"開く ", text, MessageIcon::Exclamation, MessageButtons::OkCancel) != MessageAnswer::Ok) {
    return std::u16string(u"『").append(kApplicationTitle).append(u"』では開けません");
  }
  Execute(path, u"");
  return u"不明ﾌｧｲﾙを関連付けて開きます";
}

std::u16string Document::OfferWordProcessor(const std::u16string& path) {
  const std::u16string target =
      common_.GetINI(common_.ExeName(), u"Path", u"WordPath", common_.GetWindowsAppPathForWinINI(2));
  const auto status = common_.PortSet().files.Status(common_.GetShortPath(path));
  std::u16string text = Quoted(path);
  text.append(kCrLf).append(kCrLf).append(u"ｻｲｽﾞが大きすぎます(");
  text.append(ToText(status ? static_cast<std::int64_t>(status->size) : 0)).append(u"ﾊﾞｲﾄ)");
  text.append(kCrLf).append(u"『").append(kApplicationTitle);
  text.append(u"』は安全のため 30～60KB以上のﾌｧｲﾙは開けません");
  text.append(kCrLf).append(kCrLf).append(Quoted(common_.CFile(target, 1))).append(u"で開きますか?");
  if (Ask(u"開く ", text, MessageIcon::Exclamation, MessageButtons::OkCancel) == MessageAnswer::Ok) {
    Execute(target, Quoted(path));
  }
  return u"ｻｲｽﾞが大きすぎます";
}

// The sibling viewer where it is installed, else the desktop's own.
std::u16string Document::ShowPicture(const std::u16string& path) {
  const std::u16string viewer = SiblingImageViewer(common_);
  if (common_.PathExists(viewer)) {
    Execute(viewer, path);
  } else {
    Execute(path, u"");
  }
  return u"ｲﾒｰｼﾞを開きます";
}

void Document::Execute(const std::u16string& target, std::u16string_view parameters) {
  if (common_.ExecuteShow(target, 3, parameters)) return;
  window_.MessageToStatusBar(Quoted(common_.CFile(target, 0)) + u" を開けません");
}

}  // namespace kestri
