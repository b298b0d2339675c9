// What is asked before a save would lose something that the user may not know of.
#include <algorithm>

#include "document/document.hpp"
#include "document/lossy_characters.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kOverwriteCaption = u"上書き保存の確認 ";

std::u16string QuotedName(const ClassCommon& common, std::u16string_view path) {
  return u"\"" + common.CFile(path, 0) + u"\"";
}

bool SameState(const FileStatus& left, const FileStatus& right) {
  return left.size == right.size && left.modified == right.modified &&
         left.modifiedNanoseconds == right.modifiedNanoseconds && left.inode == right.inode;
}

std::u16string ShownCharacter(const EditControl& control, const LossyCharacter& one) {
  if (one.character == kEndOfFileMark) return u"U+001A";
  return control.Slice(one.position, one.character < 0x10000 ? 1 : 2);
}

}  // namespace

bool Document::AgreesToOverwrite(const std::u16string& path) {
  return AgreesToForeignChange(path) && AgreesToByteLoss(path) && AgreesToLossyCharacters(path);
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

bool Document::AgreesToByteLoss(const std::u16string& path) {
  if (byteLoss_ == ByteLoss::None) return true;
  const bool utf8 = byteLoss_ == ByteLoss::Utf8;
  std::u16string text = QuotedName(common_, path);
  text.append(kCrLf).append(utf8 ? u"このﾌｧｲﾙは UTF-8で書かれています"
                                 : u"このﾌｧｲﾙには ｼﾌﾄJISとして読めないﾃﾞｰﾀが含まれていました");
  text.append(kCrLf).append(utf8 ? u"上書きすると 一部のﾃﾞｰﾀが別のｺｰﾄﾞに置き換わり 元に戻せません"
                                 : u"上書きすると その部分は「・」に置き換わり 元に戻せません");
  text.append(kCrLf).append(u"上書き保存しますか？");
  return Ask(kOverwriteCaption, text, MessageIcon::Exclamation, MessageButtons::YesNo, 2) ==
         MessageAnswer::Yes;
}

// A yes counts for the characters that stood in the text and for the file that was asked about.
bool Document::AgreesToLossyCharacters(const std::u16string& path) {
  const std::vector<LossyCharacter> lossy = LossyCharacters(control_);
  if (path != acceptedLoss_.path) acceptedLoss_ = {path, {}};
  std::set<char32_t>& accepted = acceptedLoss_.characters;
  const auto added = std::find_if(lossy.begin(), lossy.end(), [&accepted](const LossyCharacter& one) {
    return !accepted.contains(one.character);
  });
  if (added == lossy.end()) return true;
  if (!AskAboutLoss(path, *added)) return false;
  for (const LossyCharacter& one : lossy) accepted.insert(one.character);
  return true;
}

bool Document::AskAboutLoss(const std::u16string& path, const LossyCharacter& added) {
  std::u16string text = QuotedName(common_, path);
  text.append(kCrLf).append(u"ｼﾌﾄJISで保存できない文字が含まれています");
  text.append(u" (").append(ToText(control_.LineOf(added.position) + 1)).append(u"行目 「");
  text.append(ShownCharacter(control_, added)).append(u"」)");
  text.append(kCrLf).append(u"保存すると その文字は「?」などに置き換わります");
  text.append(kCrLf).append(u"このまま保存しますか？");
  return Ask(u"保存の確認 ", text, MessageIcon::Exclamation, MessageButtons::YesNo, 2) == MessageAnswer::Yes;
}

}  // namespace kestri
