// What is asked before a save would lose something that the user may not know of.
#include "document/document.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kOverwriteCaption = u"上書き保存の確認 ";

std::u16string QuotedName(const ClassCommon& common, std::u16string_view path) {
  return u"\"" + common.CFile(path, 0) + u"\"";
}

bool SameState(const FileStatus& left, const FileStatus& right) {
  return left.size == right.size && left.modified == right.modified;
}

// Index of the first unit that the code page cannot hold; the text has at least one.
std::size_t FirstLossyUnit(std::u16string_view text) {
  std::size_t skipped = 0;
  while (text.size() > 1) {
    const std::u16string_view head = text.substr(0, text.size() / 2);
    if (code_page::RoundTrips(head)) {
      skipped += head.size();
      text.remove_prefix(head.size());
    } else {
      text = head;
    }
  }
  return skipped;
}

}  // namespace

bool Document::AgreesToOverwrite(const std::u16string& path) {
  return AgreesToForeignChange(path) && AgreesToUnreadableBytes(path) && AgreesToLossyCharacters(path);
}

bool Document::AgreesToForeignChange(const std::u16string& path) {
  const auto now = common_.PortSet().files.Status(path);
  if (!now || !onDisk_ || SameState(*now, *onDisk_)) return true;
  std::u16string text = QuotedName(common_, path);
  text.append(kCrLf).append(u"このﾌｧｲﾙは 開いた後に他のﾌﾟﾛｸﾞﾗﾑで変更されています");
  text.append(kCrLf).append(u"上書きすると その変更は失われます");
  text.append(kCrLf).append(u"上書き保存しますか？");
  return Ask(kOverwriteCaption, text, MessageIcon::Exclamation, MessageButtons::YesNo, 2) ==
         MessageAnswer::Yes;
}

bool Document::AgreesToUnreadableBytes(const std::u16string& path) {
  if (!unreadableBytes_) return true;
  std::u16string text = QuotedName(common_, path);
  text.append(kCrLf).append(u"このﾌｧｲﾙには ｼﾌﾄJISとして読めないﾃﾞｰﾀが含まれていました");
  text.append(kCrLf).append(u"上書きすると その部分は「・」に置き換わり 元に戻せません");
  text.append(kCrLf).append(u"上書き保存しますか？");
  return Ask(kOverwriteCaption, text, MessageIcon::Exclamation, MessageButtons::YesNo, 2) ==
         MessageAnswer::Yes;
}

bool Document::AgreesToLossyCharacters(std::u16string_view path) {
  if (lossAccepted_) return true;
  const std::u16string_view first = control_.FirstPiece();
  const bool inFirst = !code_page::RoundTrips(first);
  if (!inFirst && code_page::RoundTrips(control_.SecondPiece())) return true;
  const std::size_t at =
      inFirst ? FirstLossyUnit(first) : first.size() + FirstLossyUnit(control_.SecondPiece());
  const auto position = static_cast<Position>(at);
  const bool pair = (control_.At(position) & 0xFC00) == 0xD800;
  std::u16string text = QuotedName(common_, path);
  text.append(kCrLf).append(u"ｼﾌﾄJISで保存できない文字が含まれています");
  text.append(u" (").append(ToText(control_.LineOf(position) + 1)).append(u"行目 「");
  text.append(control_.Slice(position, pair ? 2 : 1)).append(u"」)");
  text.append(kCrLf).append(u"保存すると その文字は「?」などに置き換わります");
  text.append(kCrLf).append(u"このまま保存しますか？");
  lossAccepted_ =
      Ask(u"保存の確認 ", text, MessageIcon::Exclamation, MessageButtons::YesNo, 2) == MessageAnswer::Yes;
  return lossAccepted_;
}

}  // namespace kestri
